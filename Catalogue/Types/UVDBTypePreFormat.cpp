// What a type name says beyond its numbers, by the habits of each source database.
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeFormat.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

using Uve::U8CString;

namespace {

// Sizes of the text forms in which intervals of Oracle travel.
constexpr unsigned long kOracleDaySize = 30;
constexpr unsigned long kOracleYearSize = 15;

// What an unbounded character column of the PostgreSQL family counts as.
constexpr unsigned long kPostgreSqlUnbounded = 4000;

constexpr unsigned long kSqlServerMax = 2147483647;

// Below it, DB2's LONG VARCHAR fits into a VARCHAR.
constexpr unsigned long kDb2LongVarchar = 32673;

constexpr std::string_view kInformixLeading[] = {
    "INTERVAL DAY() TO DAY",     "INTERVAL DAY() TO HOUR",      "INTERVAL DAY() TO MINUTE",
    "INTERVAL DAY() TO SECOND",  "INTERVAL HOUR() TO HOUR",     "INTERVAL HOUR() TO MINUTE",
    "INTERVAL HOUR() TO SECOND", "INTERVAL MINUTE() TO MINUTE", "INTERVAL MINUTE() TO SECOND",
    "INTERVAL MONTH() TO MONTH", "INTERVAL SECOND() TO SECOND", "INTERVAL YEAR() TO MONTH",
    "INTERVAL YEAR() TO YEAR",
};
static_assert(std::ranges::is_sorted(kInformixLeading));

constexpr std::string_view kInformixFraction[] = {
    "INTERVAL DAY() TO FRACTION()",
    "INTERVAL HOUR() TO FRACTION()",
    "INTERVAL MINUTE() TO FRACTION()",
    "INTERVAL SECOND() TO FRACTION()",
};
static_assert(std::ranges::is_sorted(kInformixFraction));

bool IsAnyOf(std::string_view name, auto const& sortedNames)
{
    return std::ranges::binary_search(sortedNames, name);
}

// Reads the parameters of a name, "2;6;", from the front.
class CParameterReader
{
public:
    explicit CParameterReader(std::string_view params) : m_Left(params) {}

    // The number that stands next. Without one, `value` stays: the caller's own number then holds.
    bool Read(long& value)
    {
        long number = 0;
        const auto [end, error] = std::from_chars(m_Left.data(), m_Left.data() + m_Left.size(), number);
        if (error == std::errc::invalid_argument)
            return false;
        value = error == std::errc() ? number : std::numeric_limits<long>::max();
        m_Left.remove_prefix(static_cast<std::size_t>(end - m_Left.data()));
        return true;
    }

    bool IsAtEndOfPart() const { return m_Left.empty() || m_Left.front() == ';'; }
    bool IsAt(char character) const { return !m_Left.empty() && m_Left.front() == character; }

    void SkipSeparator()
    {
        if (!m_Left.empty())
            m_Left.remove_prefix(1);
    }

private:
    std::string_view m_Left;
};

void ReadLeadingPrecision(CParameterReader& params, STypeNumbers& numbers)
{
    if (params.Read(numbers.leadingPrecision) && params.IsAtEndOfPart())
        numbers.hasLeadingPrecision = true;
}

void PreFormatSqlServer(DB_VERSION_INFO version, U8CString& name, STypeNumbers& numbers)
{
    name.Replace(" IDENTITY", "");
    const auto holds = [&name](const char* text) { return name.find(text) != U8CString::npos; };
    const bool isUnbounded =
        (holds("VARCHAR") && !holds("LONG VARCHAR")) || (holds("VARBINARY") && !holds("LONG VARBINARY"));
    if (version.major > 8 && numbers.size == 0 && numbers.hasSize && isUnbounded)
        numbers.size = kSqlServerMax;
}

void PreFormatInformix(const U8CString& name, std::string_view params, STypeNumbers& numbers)
{
    // A DECIMAL with this scale is a floating one.
    constexpr long kFloatingScale = 255;

    numbers.hasSize = numbers.hasScale = numbers.hasLeadingPrecision = false;
    if (Uve::Compat::stricmp(name.c_str(), "DECIMAL") == 0) {
        if (numbers.scale == kFloatingScale) {
            numbers.scale = 0;
            numbers.hasScale = true;
        }
        return;
    }
    const bool hasFraction = IsAnyOf(name, kInformixFraction);
    if (!hasFraction && !IsAnyOf(name, kInformixLeading))
        return;
    CParameterReader reader(params);
    ReadLeadingPrecision(reader, numbers);
    if (!hasFraction)
        return;
    reader.SkipSeparator();
    // "3.5": the number after the point takes the place of the one in front.
    while (reader.Read(numbers.scale) && reader.IsAt('.'))
        reader.SkipSeparator();
}

void PreFormatOracle(const U8CString& name, std::string_view params, STypeNumbers& numbers)
{
    CParameterReader reader(params);
    if (name == "BFILE")
        numbers.size = 255;
    else if (name == "ROWID" || name == "UROWID")
        numbers.size = 18;
    else if (name == "INTERVAL YEAR() TO MONTH")
        ReadLeadingPrecision(reader, numbers);
    else if (name == "INTERVAL DAY() TO SECOND()") {
        ReadLeadingPrecision(reader, numbers);
        reader.SkipSeparator();
        if (reader.Read(numbers.scale) && reader.IsAtEndOfPart())
            numbers.hasScale = true;
    }

    if (name == "INTERVAL DAY() TO SECOND()" || name == "INTERVAL DAY TO SECOND" ||
        name == "INTERVAL DAY() TO SECOND")
        numbers.size = kOracleDaySize;
    else if (name == "INTERVAL YEAR() TO MONTH" || name == "INTERVAL YEAR TO MONTH")
        numbers.size = kOracleYearSize;
}

void PreFormatPostgreSql(const U8CString& name, STypeNumbers& numbers)
{
    if ((name == "CHARACTER VARYING" || name == "VARCHAR") && numbers.size == 0 && !numbers.hasSize) {
        numbers.size = kPostgreSqlUnbounded;
        numbers.hasSize = true;
    }
}

// The blank that some catalogues put before the parentheses.
void JoinBitData(U8CString& name)
{
    name.Replace("CHARACTER () FOR BIT DATA", "CHARACTER() FOR BIT DATA");
    name.Replace("VARCHAR () FOR BIT DATA", "VARCHAR() FOR BIT DATA");
}

void PreFormatDb2(DB_VERSION_INFO version, U8CString& name, STypeNumbers& numbers)
{
    if (version.subType == UVDB_DB2_UDB_FOR_zOS_AND_OS390 && name == "LONG VARCHAR" &&
        numbers.size < kDb2LongVarchar)
        name = "VARCHAR";
    if (version.subType == UVDB_DB2_UDB_FOR_AS400_AND_iSERIES)
        name.TrimRight("()");
    JoinBitData(name);
    if (name.find("DECFLOAT") != U8CString::npos) {
        numbers.scale = 34;
        numbers.hasScale = true;
    }
}

} // namespace

void PreFormatDBMSDataType(DB_VERSION_INFO version, U8CString& name, STypeNumbers& numbers, long mode)
{
    U8CString params;
    // A period's inner parentheses would be taken for its end.
    if (version.db != UVDB_DB_TERADATA || !name.starts_with("PERIOD("))
        name = NormalizeTypeName(name.c_str(), params, version, mode);
    name.TrimRight();
    if (Uve::Compat::stricmp(name.c_str(), "TIMESTAMP()") == 0)
        name = "TIMESTAMP";

    switch (version.db) {
    case UVDB_DB_MSSQL:
        PreFormatSqlServer(version, name, numbers);
        break;
    case UVDB_DB_SYBASE:
        if (version.subType == UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE)
            name.Replace(" IDENTITY", "");
        break;
    case UVDB_DB_INFORMIX:
        PreFormatInformix(name, params, numbers);
        break;
    case UVDB_DB_POSTGRESQL:
    case UVDB_DB_ENTERPRISEDB:
    case UVDB_DB_GREENPLUM:
    case UVDB_DB_VPOSTGRES:
        PreFormatPostgreSql(name, numbers);
        break;
    case UVDB_DB_ORA:
        PreFormatOracle(name, params, numbers);
        break;
    case UVDB_DB_DB2:
        PreFormatDb2(version, name, numbers);
        break;
    case UVDB_DB_HIRDB:
    case UVDB_DB_SAP_HANA:
        JoinBitData(name);
        break;
    default:
        break;
    }
}

void PreFormatDBMSDataType(DB_VERSION_INFO version, U8CString& name, unsigned long& size, bool& hasSize,
                           long& scale, bool& hasScale, long& leadingPrecision, bool& hasLeadingPrecision,
                           long mode)
{
    STypeNumbers numbers{size, hasSize, scale, hasScale, leadingPrecision, hasLeadingPrecision};
    PreFormatDBMSDataType(version, name, numbers, mode);
    size = numbers.size;
    hasSize = numbers.hasSize;
    scale = numbers.scale;
    hasScale = numbers.hasScale;
    leadingPrecision = numbers.leadingPrecision;
    hasLeadingPrecision = numbers.hasLeadingPrecision;
}

void PreFormatDBMSDataType(DB_VERSION_INFO version, U8CString& name, unsigned long& size, long& scale)
{
    STypeNumbers numbers{.size = size, .scale = scale};
    PreFormatDBMSDataType(version, name, numbers, -1);
    size = numbers.size;
    scale = numbers.scale;
}
