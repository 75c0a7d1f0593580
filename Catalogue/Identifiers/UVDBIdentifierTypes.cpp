#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

namespace {

constexpr const char* kTypeTexts[] = {
#define UVDB_OBJECT_TYPE(name, number, text) text,
#include "Catalogue/Identifiers/UVDBIdentifierTypes.inc"
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

constexpr std::size_t kWholeObjectTypes = UVDB_DBO_EVENT + 1;

constexpr int kBusinessLogicTypes[] = {UVDB_DBO_VIEW,    UVDB_DBO_STORED_PROCEDURE, UVDB_DBO_FUNCTION,
                                       UVDB_DBO_TRIGGER, UVDB_DBO_PACKAGE,          UVDB_DBO_SCRIPT};

} // namespace

const char* const DBOTypes[] = {
#define UVDB_OBJECT_TYPE(name, number, text) \
    (number) < static_cast<int>(kWholeObjectTypes) ? (text) : nullptr,
#include "Catalogue/Identifiers/UVDBIdentifierTypes.inc"
#undef UVDB_OBJECT_TYPE
};

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

const char* UVDB_DBO_TypeToString(unsigned long type)
{
    return type < kWholeObjectTypes ? DBOTypes[type] : "";
}

int StringToUVDB_DBO_Type(const Uve::U8CString& text)
{
    const std::span<const char* const> texts(DBOTypes, kWholeObjectTypes);
    const auto found = std::ranges::find(texts, std::string_view(text));
    return found != texts.end() ? static_cast<int>(found - texts.begin()) : kUVDBUnknownObjectType;
}

Uve::U8CString UVDBGetLogObjectName(int type)
{
    std::string name;
    for (const char c : std::string_view(UVDBIdentifierTypeToString(static_cast<unsigned long>(type)))) {
        const bool isUpper = c >= 'A' && c <= 'Z';
        if (isUpper && !name.empty())
            name += ' ';
        name += isUpper ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return name;
}

bool IsBusinessLogicObject(int type)
{
    return std::ranges::find(kBusinessLogicTypes, type) != std::end(kBusinessLogicTypes);
}
