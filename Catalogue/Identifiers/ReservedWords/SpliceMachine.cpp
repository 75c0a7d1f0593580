// Splice Machine: the reserved words of Apache Derby, whose SQL grammar it has; just those that Derby 10.14
// refuses as plain names of tables and columns. Splice Machine itself hasn't been tried.
#include "Catalogue/Identifiers/ReservedWords/ReservedWordList.h"
#include "Catalogue/Identifiers/ReservedWords/ReservedWords.h"
#include "Catalogue/Identifiers/ReservedWords/Sql92Words.h"

namespace {

// clang-format off
constexpr std::string_view kSpliceMachineAdded[] = {
    "BIGINT",
    "BOOLEAN",
    "CALL",
    "CURRENT_ROLE",
    "CURSORS",
    "DEFINER",
    "DETERMINISTIC",
    "EXPLAIN",
    "FUNCTION",
    "GETCURRENTCONNECTION",
    "INOUT",
    "INVOKER",
    "LTRIM",
    "NONE",
    "NVARCHAR",
    "OUT",
    "RTRIM",
    "SUBSTR",
    "WINDOW",
    "XML",
    "XMLEXISTS",
    "XMLPARSE",
    "XMLQUERY",
    "XMLSERIALIZE",
};
constexpr std::string_view kSpliceMachineGone[] = {
    "ABSOLUTE",
    "ACTION",
    "BIT_LENGTH",
    "CATALOG",
    "CHAR_LENGTH",
    "COALESCE",
    "COUNT",
    "DATE",
    "DAY",
    "DESCRIPTOR",
    "DOMAIN",
    "END-EXEC",
    "EXTRACT",
    "INTERVAL",
    "LANGUAGE",
    "LEVEL",
    "LOCAL",
    "MODULE",
    "MONTH",
    "NAMES",
    "OCTET_LENGTH",
    "POSITION",
    "PRECISION",
    "SECTION",
    "SESSION",
    "SIZE",
    "THEN",
    "TIME",
    "TIMESTAMP",
    "USAGE",
    "VALUE",
    "WHEN",
    "ZONE",
};
// clang-format on
constexpr auto kSpliceMachineWords =
    UVDBRows::NewerWords<UVDBRows::kSql92Words, kSpliceMachineAdded, kSpliceMachineGone>();
static_assert(std::size(kSpliceMachineWords) == 218);

} // namespace

constinit const std::span<const std::string_view> kSpliceMachineReservedWords{kSpliceMachineWords};
