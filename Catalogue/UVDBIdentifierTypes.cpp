#include "Catalogue/UVDBIdentifierTypes.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

constexpr const char* kTypeTexts[] = {
#define UVDB_OBJECT_TYPE(name, number, text) text,
#include "Catalogue/UVDBIdentifierTypes.inc"
#undef UVDB_OBJECT_TYPE
};
static_assert(std::size(kTypeTexts) == UVDB_DBO_VARIABLE + 1, "the rows are indexed by number");

struct STypeByText
{
    std::string_view text;
    int type;
};

// clang-format off
constexpr STypeByText kTypesByText[] = {
//   text                    type
    {"Alias",                UVDB_DBO_ALIAS},
    {"CheckConstraint",      UVDB_DBO_CHECK_CONSTRAINT},
    {"Class",                UVDB_DBO_CLASS},
    {"Column",               UVDB_DBO_COLUMN},
    {"Comment",              UVDB_DBO_COMMENT},
    {"Cursor",               UVDB_DBO_CURSOR},
    {"DataType",             UVDB_DBO_USER_DATA_TYPE},
    {"Default",              UVDB_DBO_DEFAULT},
    {"DefaultBinding",       UVDB_DBO_DEFAULT_BINDING},
    {"DropIndex",            UVDB_DBO_INDEX},
    {"Event",                UVDB_DBO_EVENT},
    {"Exception",            UVDB_DBO_EXCEPTION},
    {"ForeignKey",           UVDB_DBO_FOREIGN_KEY},
    {"Function",             UVDB_DBO_FUNCTION},
    {"Index",                UVDB_DBO_INDEX},
    {"Macro",                UVDB_DBO_MACRO},
    {"Package",              UVDB_DBO_PACKAGE},
    {"PrimaryKey",           UVDB_DBO_PRIMARY_KEY},
    {"ReferencesConstraint", UVDB_DBO_REFERENCES_CONSTRAINT},
    {"Rule",                 UVDB_DBO_RULE},
    {"RuleBinding",          UVDB_DBO_RULE_BINDING},
    {"Script",               UVDB_DBO_SCRIPT},
    {"Sequence",             UVDB_DBO_SEQUENCE},
    {"StoredProcedure",      UVDB_DBO_STORED_PROCEDURE},
    {"Synonym",              UVDB_DBO_SYNONYM},
    {"Table",                UVDB_DBO_TABLE},
    {"TableData",            UVDB_DBO_TABLE_DATA},
    {"Trigger",              UVDB_DBO_TRIGGER},
    {"UniqueConstraint",     UVDB_DBO_UNIQUE_CONSTRAINT},
    {"Unknown",              kUVDBUnknownObjectType},
    {"UserAccount",          UVDB_DBO_USER_ACCOUNT},
    {"UserDefinedType",      UVDB_DBO_USER_DEFINED_TYPE},
    {"Variable",             UVDB_DBO_VARIABLE},
    {"View",                 UVDB_DBO_VIEW},
    {"schema",               UVDB_DBO_SCHEMA},
};
// clang-format on
static_assert(std::size(kTypesByText) == 35);
static_assert(std::ranges::adjacent_find(kTypesByText, std::ranges::greater_equal{}, &STypeByText::text) ==
                  std::end(kTypesByText),
              "texts ascend without repeats");

} // namespace

const char* UVDBIdentifierTypeToString(unsigned long type)
{
    return type < std::size(kTypeTexts) ? kTypeTexts[type] : "";
}

int UVDBIdentifierStringToType(const Uve::U8CString& text)
{
    const std::string_view wanted(text);
    const auto found = std::ranges::lower_bound(kTypesByText, wanted, {}, &STypeByText::text);
    return found != std::end(kTypesByText) && found->text == wanted ? found->type : UVDB_DBO_SCRIPT;
}
