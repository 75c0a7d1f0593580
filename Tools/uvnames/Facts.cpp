#include "Tools/uvnames/Facts.h"

#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "Names/NormalizeName.h"

namespace uvnames {

namespace {

// What may stand in a name beside letters and digits, of the ASCII characters.
template <class Refuses>
std::string AllowedMarks(Refuses refuses)
{
    std::string marks;
    for (char c = '!'; c <= '~'; ++c) {
        const bool isAlnum = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (!isAlnum && !refuses(c))
            marks += c;
    }
    return marks;
}

std::string CaseText(long identifierCase)
{
    switch (identifierCase) {
    case UVDB_IC_UPPER:
        return "upper";
    case UVDB_IC_LOWER:
        return "lower";
    case UVDB_IC_AS_IT_STANDS:
        return "as it stands";
    default:
        return "case-insensitive";
    }
}

} // namespace

NameFacts FactsOf(const SToolDatabase& database)
{
    const DB_VERSION_INFO version = database.version;
    NameFacts facts;
    for (unsigned long type = 0; type <= UVDB_DBO_VARIABLE; ++type) {
        if (const Uve::U8CString text = CNormalizeName::TypeToString(type); !text.empty())
            facts.emplace_back("longest " + text,
                               static_cast<std::int64_t>(GetDBMSMaxIdentifierSize(type, version, "")));
    }
    facts.emplace_back("longest temporary Table",
                       static_cast<std::int64_t>(GetDBMSMaxIdentifierSize(UVDB_DBO_TABLE, version, "temp")));
    for (const auto type : {std::uint64_t{UVDB_DBO_COLUMN}, std::uint64_t{UVDB_DBO_VARIABLE}}) {
        const std::string of = type == UVDB_DBO_COLUMN ? "" : " of a Variable";
        facts.emplace_back("marks inside" + of, AllowedMarks([&](char c) {
                               return IsDBMSNotAllowedChar(version, type, c, "", false);
                           }));
        facts.emplace_back("marks first" + of, AllowedMarks([&](char c) {
                               return IsDBMSNotAllowedCharFPos(version, type, c, "", false);
                           }));
        facts.emplace_back("digit first" + of, !IsDBMSNotAllowedCharFPos(version, type, '0', "", false));
    }
    facts.emplace_back("quotes", GetDBMSEncloseCharOpen(version) + GetDBMSEncloseCharClose(version));
    facts.emplace_back("case of plain names", CaseText(UVDBGetIdentifierCaseGuess(version)));
    facts.emplace_back("case of quoted names", CaseText(UVDBGetQuotedIdentifierCaseGuess(version)));
    facts.emplace_back("default schema", GetDefaultSchema(version));
    facts.emplace_back("variable prefix", DBMSVariablePrefix(version));
    facts.emplace_back("reserved words", static_cast<std::uint64_t>(GetReservedWords(version).size()));
    return facts;
}

} // namespace uvnames
