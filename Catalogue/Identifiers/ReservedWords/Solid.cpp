// solidDB 6.5 and 7.0, SQL Guide: "Reserved words". This list hasn't been compared with the manual word by
// word.
#include "Catalogue/Identifiers/ReservedWords/ReservedWordList.h"
#include "Catalogue/Identifiers/ReservedWords/ReservedWords.h"
#include "Catalogue/Identifiers/ReservedWords/Sql92Words.h"

namespace {

// clang-format off
constexpr std::string_view kSolidAdded[] = {
    "ADMIN",
    "AFTER",
    "APPEND",
    "ASYNC",
    "BEFORE",
    "BINARY",
    "BOOKMARK",
    "CALL",
    "CLUSTER",
    "COMMITBLOCK",
    "COMMITTED",
    "CURRENT_CATALOG",
    "CURRENT_SCHEMA",
    "DATA",
    "DENSE",
    "ELSEIF",
    "ENABLE",
    "EVENT",
    "EXPLAIN",
    "EXPORT",
    "FORWARD",
    "HINT",
    "IDENTIFIED",
    "IF",
    "IMPORT",
    "INDEX",
    "INTERNAL",
    "LEAVE",
    "LOCK",
    "LONG",
    "LOOP",
    "MASTER",
    "MESSAGE",
    "OPTIMISTIC",
    "PESSIMISTIC",
    "PLAN",
    "POST",
    "PROPAGATE",
    "PUBLICATION",
    "REFRESH",
    "REGISTER",
    "REPEATABLE",
    "REPLICA",
    "RESTART",
    "RESULT",
    "RETURN",
    "RETURNS",
    "REVERSE",
    "ROWID",
    "SAVE",
    "SEQUENCE",
    "SERIALIZABLE",
    "SORT",
    "SQLCA",
    "SQLWARNING",
    "START",
    "STORE",
    "SUBSCRIBE",
    "SUBSCRIPTION",
    "TINYINT",
    "TRIGGER",
    "TRUNCATE",
    "UNREGISTER",
    "VARBINARY",
    "WAIT",
    "WHILE",
};
constexpr std::string_view kSolidGone[] = {
    "END-EXEC",
};
// clang-format on
constexpr auto kSolidWords = UVDBRows::NewerWords<UVDBRows::kSql92Words, kSolidAdded, kSolidGone>();
static_assert(std::size(kSolidWords) == 292);

} // namespace

constinit const std::span<const std::string_view> kSolidReservedWords{kSolidWords};
