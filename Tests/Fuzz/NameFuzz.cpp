#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Names/NameFixture.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>

// Any text as names: a line is one name, its parts stand between tabs. The first four bytes choose source,
// target, rules and type. A name that was converted once is converted to the same again, and no result is
// longer than the texts that made it account for.

namespace {

constexpr SDatabase kDatabases[] = {
    {UVDB_DB_ORA},
    {UVDB_DB_ORA, kNoSubType, 11, 2},
    {UVDB_DB_MSSQL},
    {UVDB_DB_MySQL},
    {UVDB_DB_POSTGRESQL},
    {UVDB_DB_DB2},
    {UVDB_DB_SYBASE, UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE},
    {UVDB_DB_INFORMIX},
    {UVDB_DB_TERADATA},
    {UVDB_DB_FIREBIRD},
    {UVDB_DB_SAP_HANA},
    {UVDB_DB_CS},
    {UVDB_DB_COBOL},
    {UVDB_DB_EXCEL},
    {UVDB_DB_4GL_PROGRESS},
    {UVDB_DB_PERVASIVE},
};

// Words that the rules put around a name, and numbers after it.
constexpr std::size_t kRoom = 200;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

std::string_view TakeField(std::string_view& text, char separator)
{
    const std::size_t end = text.find(separator);
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    return field;
}

SRules RulesOf(std::uint8_t bits)
{
    return {.remove = (bits & 1) != 0,
            .replacement = bits & 2 ? "_" : "",
            .removeFirst = (bits & 4) != 0,
            .replacementFirst = bits & 8 ? "x" : "",
            .trim = (bits & 16) != 0,
            .alphanumOnly = (bits & 32) != 0,
            .consonantsOnly = (bits & 64) != 0,
            .leftTrim = (bits & 128) != 0,
            .reservedWordPattern = bits & 64 ? "r_%RWORD%" : ""};
}

void Drive(CNameHost& host, int type, std::string_view line)
{
    SName name;
    name.schema = TakeField(line, '\t');
    name.object = TakeField(line, '\t');
    name.sub = TakeField(line, '\t');
    const char* const kindText = line.starts_with('t') ? "temp" : "";
    const std::size_t limit = 8 * name.Text().size() + kRoom;

    SName first = name;
    SName again = name;
    const int result = host.Normalize(type, first, kindText);
    Require(host.Normalize(type, again, kindText) == result);
    Require(first == again);
    Require(first.Text().size() <= limit);
    for (const unsigned long mode : {0UL, 1UL, 2UL, 4UL, 8UL, 16UL})
        Require(host.normaliser.PrepareObjectName(name.object.c_str(), host.target, mode).size() <= limit);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 4)
        return 0;
    m_ReportMap.clear();
    CNameHost host(kDatabases[data[0] % std::size(kDatabases)], kDatabases[data[1] % std::size(kDatabases)],
                   RulesOf(data[2]));
    const int type = data[3] % (UVDB_DBO_VARIABLE + 2) - 1;
    std::string_view text(reinterpret_cast<const char*>(data + 4), size - 4);
    while (!text.empty())
        Drive(host, type, TakeField(text, '\n'));
    Require(CNormalizeName::GetNormalizeNameReport().size() <= 40 * size + 200 * (m_ReportMap.size() + 1));
    return 0;
}
