#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Names/NormalizeName.h"

#include <string_view>

// A million names are entered one by one, and each is new: sparse buckets are cheaper than walks along
// chains.
std::unordered_map<CObjects, CConvertedName, CObjectsHash> m_ReportMap = [] {
    std::unordered_map<CObjects, CConvertedName, CObjectsHash> map;
    map.max_load_factor(0.25F);
    return map;
}();

namespace {

struct SReasonText
{
    unsigned long bit;
    std::string_view text;
};

// Each text brings the blank that parts it from the next.
// clang-format off
constexpr SReasonText kReasons[] = {
    {UVDB_NAME_SCHEMA_OMITTED,   "Omit schema option "},
    {UVDB_NAME_FIRST_CHARACTER,  "Not allowed character at the first position "},
    {UVDB_NAME_CHARACTERS,       "Not allowed characters "},
    {UVDB_NAME_TOO_LONG,         "Identifier too long "},
    {UVDB_NAME_MADE_UNIQUE,      "Made unique "},
    {UVDB_NAME_CHANGED_BY_USER,  "Changed by User "},
    {UVDB_NAME_SCHEMA_LEFT_OUT,  "Omit schema option "},
    {UVDB_NAME_TEMPORARY_TABLE,  "Temporary table "},
    {UVDB_NAME_QUOTED,           "Quoted by Orvanta"},
};
// clang-format on

// A name of several parts as its last one and what stands before that.
struct SNameParts
{
    std::string_view name;
    std::string_view table;
    bool hasTable = false;
};

SNameParts SplitLast(std::string_view text)
{
    const std::size_t dot = text.rfind('.');
    if (dot == std::string_view::npos)
        return {text, {}, false};
    return {text.substr(dot + 1), text.substr(0, dot), true};
}

void AppendIdentifier(const CObjects& object, const CConvertedName& converted, Uve::U8CString& report)
{
    const SNameParts source = SplitLast(object.name);
    const SNameParts target = SplitLast(converted.name);
    report += "<Identifier type=\"";
    report += CNormalizeName::TypeToString(static_cast<unsigned long>(object.type));
    report += "\" source=\"";
    report += source.name;
    report += "\" target=\"";
    report += target.name;
    report += "\" ";
    if (source.hasTable || target.hasTable) {
        report += " table=\"";
        report += source.hasTable ? source.table : target.table;
        report += '"';
    }
    if (const Uve::U8CString reasons = CNormalizeName::ReasonsToString(converted.reasons); !reasons.empty()) {
        report += " reason=\"";
        report += reasons;
        report += '"';
    }
    report += "/>";
}

} // namespace

Uve::U8CString CNormalizeName::TypeToString(unsigned long type)
{
    // Reports have always spelled this one so.
    return type == UVDB_DBO_USER_ACCOUNT ? "UserAcount" : UVDBIdentifierTypeToString(type);
}

Uve::U8CString CNormalizeName::ReasonsToString(unsigned long reasons)
{
    Uve::U8CString texts;
    for (const SReasonText& reason : kReasons) {
        if (reasons & reason.bit)
            texts += reason.text;
    }
    return texts;
}

Uve::U8CString CNormalizeName::GetNormalizeNameReport()
{
    Uve::U8CString report = "<IdentifierNames>";
    for (const auto& [object, converted] : m_ReportMap)
        AppendIdentifier(object, converted, report);
    report += "</IdentifierNames>";
    return report;
}
