// Access: "List of Microsoft Jet 4.0 reserved words", which the Access database engine keeps. This list
// hasn't been compared with the manual word by word.
#include "Catalogue/Identifiers/ReservedWords/ReservedWordList.h"
#include "Catalogue/Identifiers/ReservedWords/ReservedWords.h"
#include "Catalogue/Identifiers/ReservedWords/Sql92Words.h"

namespace {

// clang-format off
constexpr std::string_view kAccessAdded[] = {
    "ADMINDB",
    "ALPHANUMERIC",
    "AUTOINCREMENT",
    "BAND",
    "BINARY",
    "BNOT",
    "BOOLEAN",
    "BOR",
    "BXOR",
    "BYTE",
    "COMP",
    "COMPRESSION",
    "CONTAINER",
    "CONTAINS",
    "COUNTER",
    "CREATEDB",
    "CURRENCY",
    "DATABASE",
    "DATETIME",
    "DISALLOW",
    "DISTINCTROW",
    "EXCLUSIVECONNECT",
    "FLOAT4",
    "FLOAT8",
    "GENERAL",
    "GUID",
    "IEEEDOUBLE",
    "IEEESINGLE",
    "IGNORE",
    "IMAGE",
    "INDEX",
    "INHERITABLE",
    "ININDEX",
    "INTEGER1",
    "INTEGER2",
    "INTEGER4",
    "LOGICAL",
    "LOGICAL1",
    "LONG",
    "LONGBINARY",
    "LONGCHAR",
    "LONGTEXT",
    "MEMO",
    "MONEY",
    "NOTE",
    "NUMBER",
    "OBJECT",
    "OLEOBJECT",
    "OWNERACCESS",
    "PARAMETERS",
    "PASSWORD",
    "PERCENT",
    "PIVOT",
    "PROC",
    "SELECTSCHEMA",
    "SELECTSECURITY",
    "SHORT",
    "SINGLE",
    "STRING",
    "TABLEID",
    "TEXT",
    "TOP",
    "TRANSFORM",
    "UNIQUEIDENTIFIER",
    "UPDATEIDENTITY",
    "UPDATEOWNER",
    "UPDATESECURITY",
    "VARBINARY",
    "YESNO",
};
// clang-format on
constexpr auto kAccessWords = UVDBRows::NewerWords<UVDBRows::kSql92Words, kAccessAdded>();
static_assert(std::size(kAccessWords) == 296);

} // namespace

constinit const std::span<const std::string_view> kAccessReservedWords{kAccessWords};
