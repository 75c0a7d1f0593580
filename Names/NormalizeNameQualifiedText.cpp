#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Names/NormalizeName.h"

#include <array>
#include <string_view>
#include <utility>

namespace {

// Parts one part from the next in a text that callers carry through a single argument.
constexpr std::string_view kIdentifierDelimiter = "__ORVANTA_IDENTIFIER_DELIM__";

bool IsSinglePart(int type)
{
    return type == UVDB_DBO_LABEL || type == UVDB_DBO_CURSOR || type == UVDB_DBO_VARIABLE;
}

} // namespace

std::vector<Uve::U8CString> CNormalizeName::SplitIdentifier(const Uve::U8CString& name,
                                                            DB_VERSION_INFO version)
{
    return SplitObjectName(name, version);
}

std::vector<Uve::U8CString> CNormalizeName::SplitIdentifier(int type, const Uve::U8CString& name,
                                                            const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    if (IsSinglePart(type))
        return {name};
    return SplitIdentifier(name, info ? info->get_DbmsVersion() : DB_VERSION_INFO{});
}

std::list<Uve::U8CString> CNormalizeName::GetIdentifiers(const Uve::U8CString& text)
{
    std::list<Uve::U8CString> names;
    std::size_t at = 0;
    for (std::size_t end; (end = text.find(kIdentifierDelimiter, at)) != std::string::npos;
         at = end + kIdentifierDelimiter.size())
        names.emplace_back(text.data() + at, end - at);
    names.emplace_back(text.data() + at, text.size() - at);
    return names;
}

std::list<Uve::U8CString> CNormalizeName::BindIdentifier(std::list<Uve::U8CString> names,
                                                         std::list<Uve::U8CString> others)
{
    names.splice(names.end(), others);
    return names;
}

Uve::U8CString CNormalizeName::BuildXMLIdentifier(const Uve::U8CString& name, unsigned long type,
                                                  const Uve::U8CString& table)
{
    const Uve::U8CString tableAttribute = table.empty() ? Uve::U8CString() : " table=\"" + table + "\"";
    return "<sql_identifier identifier_type=\"" + TypeToString(type) + "\"" + tableAttribute +
           "><T__REGULAR_SQL_IDENTIFIER type=\"TOKEN\">" + name +
           "</T__REGULAR_SQL_IDENTIFIER></sql_identifier>";
}

Uve::U8CString
CNormalizeName::BuildXMLQualifiedIdentifier(const Uve::U8CString& first, unsigned long firstType,
                                            const Uve::U8CString& second, unsigned long secondType,
                                            const Uve::U8CString& third, unsigned long thirdType)
{
    const std::array<std::pair<const Uve::U8CString*, unsigned long>, 3> parts{
        {{&first, firstType}, {&second, secondType}, {&third, thirdType}}};
    Uve::U8CString identifiers;
    for (const auto& [name, type] : parts) {
        if (name->empty())
            continue;
        if (!identifiers.empty())
            identifiers += "<T__DOT type=\"TOKEN\">.</T__DOT>";
        identifiers += BuildXMLIdentifier(*name, type, "");
    }
    return "<qualified_sql_identifier>" + identifiers + "</qualified_sql_identifier>";
}
