#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/UVDBKindSet.h"
#include "Catalogue/UVDBRowConditions.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace {

constexpr std::uint64_t kNewest = ~std::uint64_t{0};

struct SMarks
{
    char open = 0; // 0: none
    char close = 0;
};

constexpr SMarks kQuotes{'"', '"'};
constexpr SMarks kBrackets{'[', ']'};
constexpr SMarks kBackticks{'`', '`'};
constexpr SMarks kNoMarks{};

// Versions of majorFrom to majorTo with at least this minor number, both words included.
struct SMarksRow
{
    CKindSet kinds;
    std::uint64_t subType = kAnySubType;
    std::uint64_t majorFrom = 0;
    std::uint64_t majorTo = kNewest;
    std::uint64_t minorFrom = 0;
    SMarks marks;
};

constexpr std::uint64_t kAse = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE;

// Order is meaning: the first row that fits decides.
// clang-format off
constexpr SMarksRow kRows[] = {
//   kinds               subtype      major        minor  marks
    {{UVDB_DB_MSSQL},    kAnySubType,  7, kNewest,  0,    kBrackets},
    {{UVDB_DB_MSSQL},    kAnySubType,  0, kNewest, 51,    kBrackets},
    {{UVDB_DB_SYBASE},   kAse,        13, kNewest,  0,    kBrackets},
    {{UVDB_DB_SYBASE},   kAse,        12, 12,      50,    kBrackets},
    {{UVDB_DB_SYBASE},   kAse,        11, 11,       0,    kBrackets},
    {{UVDB_DB_MySQL, UVDB_DB_ACCESS, UVDB_DB_INGRES, UVDB_DB_SingleStoreDB},
                         kAnySubType,  0, kNewest,  0,    kBackticks},
    {{UVDB_DB_CS, UVDB_DB_CPP, UVDB_DB_C, UVDB_DB_4GL_INFORMIX, UVDB_DB_HTML, UVDB_DB_COBOL,
      UVDB_DB_OBJECTIVEC, UVDB_DB_IPHONE, UVDB_DB_WINDOWS_PHONE_SILVERLIGHT, UVDB_DB_TELON_COBOL},
                         kAnySubType,  0, kNewest,  0,    kNoMarks},
    {CKindSet::All(),    kAnySubType,  0, kNewest,  0,    kQuotes},
};
// clang-format on

SMarks MarksOf(const DB_VERSION_INFO& version)
{
    return std::ranges::find_if(kRows,
                                [&](const SMarksRow& row) {
                                    return row.kinds.Has(version.db) &&
                                           FitsSubType(row.subType, version.subType) &&
                                           version.major >= row.majorFrom && version.major <= row.majorTo &&
                                           version.minor >= row.minorFrom;
                                })
        ->marks;
}

Uve::U8CString TextOf(char mark)
{
    return mark ? Uve::U8CString(mark) : Uve::U8CString();
}

void TrimPair(std::string_view& name, std::string_view open, std::string_view close)
{
    if (name.size() >= open.size() + close.size() && name.starts_with(open) && name.ends_with(close))
        name = name.substr(open.size(), name.size() - open.size() - close.size());
}

} // namespace

Uve::U8CString GetDBMSEncloseCharOpen(DB_VERSION_INFO version)
{
    return TextOf(MarksOf(version).open);
}

Uve::U8CString GetDBMSEncloseCharClose(DB_VERSION_INFO version)
{
    return TextOf(MarksOf(version).close);
}

int GetDBMSEncloseOpenAsChar(DB_VERSION_INFO version)
{
    return MarksOf(version).open;
}

int GetDBMSEncloseCloseAsChar(DB_VERSION_INFO version)
{
    return MarksOf(version).close;
}

Uve::U8CString EscIdentifier(DB_VERSION_INFO version, Uve::U8CString text)
{
    if (MarksOf(version).close == '"')
        text.Replace("\"", "\"\"");
    return text;
}

Uve::U8CString UnEscIdentifier(DB_VERSION_INFO version, Uve::U8CString text)
{
    if (MarksOf(version).close == '"')
        text.Replace("\"\"", "\"");
    return text;
}

bool IsIdentifierQuoted(const char* name, DB_VERSION_INFO /*version*/, const char* quote)
{
    return name && quote && *quote && std::string_view(name).starts_with(quote);
}

Uve::U8CString TrimDelimited(Uve::U8CString name)
{
    std::string_view trimmed(name);
    TrimPair(trimmed, "\"[", "]\"");
    TrimPair(trimmed, "[", "]");
    TrimPair(trimmed, "\"", "\"");
    if (trimmed.size() == name.size())
        return name;
    return Uve::U8CString(trimmed);
}
