#include "Catalogue/Types/UVDBTypeConverting.h"

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/Types/UVDBTypeFormat.h"
#include "Catalogue/Types/UVDBTypeMapping.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "UVEnvironment/UVECompat.h"

#include <utility>

using Uve::U8CString;

namespace {

// What stands for a type of which nothing is known.
constexpr unsigned long kUnknownTypeSize = 255;

bool IsSameText(const char* a, const char* b)
{
    return Uve::Compat::stricmp(a, b) == 0;
}

bool Goes(const DB_VERSION_INFO& source, std::uint64_t sourceDb, const DB_VERSION_INFO& target,
          std::uint64_t targetDb)
{
    return source.db == sourceDb && target.db == targetDb;
}

void Decide(STypeTrail* trail, enTypeDecision decision)
{
    if (trail)
        trail->decisions.push_back(decision);
}

// One conversion on its way: the type with its numbers as they stand, and what they have become.
class CTypeConversion
{
public:
    CTypeConversion(const DB_VERSION_INFO& source, const DB_VERSION_INFO& target, bool identity,
                    STypeTrail* trail)
        : m_Source(source), m_Target(target), m_Identity(identity), m_Trail(trail)
    {}

    STypeNumbers numbers;

    // By name and sizes, with the ODBC number where the name helps nowhere.
    STargetType ByName(const U8CString& name, long odbcType);

    // By an internal type that is known.
    STargetType ByType(const U8CString& name, long uvdbType);

private:
    long InternalType(const U8CString& name, long odbcType);
    STargetType Map(long uvdbType, bool identity);

    const DB_VERSION_INFO& m_Source;
    const DB_VERSION_INFO& m_Target;
    const bool m_Identity;
    STypeTrail* const m_Trail;
};

long CTypeConversion::InternalType(const U8CString& name, long odbcType)
{
    const long found =
        ODBCToUVDBDataType(m_Source, odbcType, name.c_str(), numbers.size, numbers.scale, numbers.scale);
    if (m_Trail) {
        m_Trail->sourceRow = FindDBMSDataTypeRow(m_Source, name.c_str(), numbers.size, numbers.scale);
        m_Trail->sourceType = found;
        Decide(m_Trail, m_Trail->sourceRow ? UVDB_TYPE_FROM_ROW
                        : found != -1      ? UVDB_TYPE_FROM_ODBC
                                           : UVDB_TYPE_UNKNOWN);
    }
    return found;
}

STargetType CTypeConversion::Map(long uvdbType, bool identity)
{
    STargetType result{.uvdbType = uvdbType};
    result.name =
        UVDBToDBMSDataType(m_Target, uvdbType, numbers.size, numbers.scale, numbers.scale, identity);
    const SDataTypeParams* formatRow = nullptr;
    result.text = FormatDBMSDataType(m_Target, result.name.c_str(), static_cast<long>(numbers.size),
                                     numbers.scale, numbers.leadingPrecision, uvdbType, &formatRow);
    if (!m_Trail)
        return result;

    m_Trail->mappedType = uvdbType;
    m_Trail->formatRow = formatRow;
    m_Trail->size = numbers.size;
    m_Trail->scale = numbers.scale;
    m_Trail->leadingPrecision = numbers.leadingPrecision;
    const SUVDBToDBMSDataType* const row = FindMappingRow(m_Target, uvdbType, numbers.size, numbers.scale);
    if (identity && row && result.name != row->name)
        Decide(m_Trail, UVDB_TYPE_IDENTITY);
    else
        m_Trail->targetRow = row;
    if (m_Trail->targetRow && m_Trail->targetRow->uvdbType != uvdbType)
        Decide(m_Trail, UVDB_TYPE_AS_VARCHAR);
    return result;
}

STargetType CTypeConversion::ByName(const U8CString& name, long odbcType)
{
    U8CString copy = name;
    PreFormatDBMSDataType(m_Source, copy, numbers, -1);

    const long found = InternalType(name, odbcType);
    long mapped = found;
    bool identity = m_Identity;
    if (found == -1) {
        mapped = UVDBRows::VarChar;
        numbers.size = kUnknownTypeSize;
        numbers.scale = 0;
        identity = false;
    } else if (found == UVDBRows::SmallInt && Goes(m_Source, UVDB_DB_4GL_INFORMIX, m_Target, UVDB_DB_MSSQL)) {
        mapped = UVDBRows::Integer;
        Decide(m_Trail, UVDB_TYPE_4GL_SMALLINT);
    } else if (found == UVDBRows::Numeric && Goes(m_Source, UVDB_DB_POSTGRESQL, m_Target, UVDB_DB_MSSQL) &&
               numbers.size == 0 && numbers.scale == 0) {
        mapped = UVDBRows::Float;
        Decide(m_Trail, UVDB_TYPE_BARE_NUMERIC);
    }
    return Map(mapped, identity);
}

STargetType CTypeConversion::ByType(const U8CString& name, long uvdbType)
{
    U8CString copy = name;
    PreFormatDBMSDataType(m_Source, copy, numbers, -1);
    return Map(uvdbType, m_Identity);
}

// The characters that an Informix interval's text has. SQL Server has no intervals and stores that text.
void SetIntervalSize(U8CString& name, long uvdbType, STypeNumbers& numbers, STypeTrail* trail)
{
    constexpr unsigned long kHourToMinute = 5;
    constexpr unsigned long kHourToSecond = 8;
    constexpr unsigned long kYearToMonth = 8;
    constexpr unsigned long kHourToFraction = 14;

    const unsigned long before = numbers.size;
    if (uvdbType == UVDBRows::IntervalHourToSecond)
        numbers.size = kHourToFraction;
    else if (uvdbType == UVDBRows::IntervalYearToMonth)
        numbers.size = kYearToMonth;
    else if (uvdbType == -1) {
        if (name == "INTERVAL HOUR() TO FRACTION")
            name = "INTERVAL HOUR() TO FRACTION()";
        if (name == "INTERVAL HOUR() TO MINUTE")
            numbers.size = kHourToMinute;
        else if (name == "INTERVAL HOUR() TO SECOND")
            numbers.size = kHourToSecond;
        else if (name == "INTERVAL YEAR() TO MONTH")
            numbers.size = kYearToMonth;
        else if (name == "INTERVAL HOUR() TO FRACTION()")
            numbers.size = kHourToFraction;
    }
    if (numbers.size != before)
        Decide(trail, UVDB_TYPE_INTERVAL_SIZE);
}

// The exceptions of particular directions, in their order; the first that applies to the internal type
// settles it. Each stands for columns that once came over wrong.
bool ApplyExceptions(const DB_VERSION_INFO& source, const DB_VERSION_INFO& target, const SSourceType& type,
                     U8CString& name, long& uvdbType, STypeNumbers& numbers, STypeTrail* trail)
{
    const bool isNVarcharMax = IsSameText(name.c_str(), "NVARCHAR(MAX)");

    if (uvdbType == UVDBRows::SmallInt && Goes(source, UVDB_DB_4GL_INFORMIX, target, UVDB_DB_MSSQL)) {
        uvdbType = UVDBRows::Integer;
        Decide(trail, UVDB_TYPE_4GL_SMALLINT);
        return false;
    }
    if (uvdbType == UVDBRows::Numeric && numbers.size == 0 && numbers.scale == 0 &&
        Goes(source, UVDB_DB_POSTGRESQL, target, UVDB_DB_MSSQL)) {
        uvdbType = UVDBRows::Float;
        Decide(trail, UVDB_TYPE_BARE_NUMERIC);
        return false;
    }
    if (isNVarcharMax && Goes(source, UVDB_DB_MSSQL, target, UVDB_DB_POSTGRESQL)) {
        uvdbType = UVDBRows::Text;
        Decide(trail, UVDB_TYPE_NVARCHAR_MAX);
        return false;
    }
    if (Goes(source, UVDB_DB_MSSQL, target, UVDB_DB_MSSQL)) {
        if (!IsSameText(name.c_str(), "DateTime"))
            return false;
        Decide(trail, UVDB_TYPE_SAME_DATETIME);
        return true;
    }
    if (target.db == UVDB_DB_POSTGRESQL && IsSameText(name.c_str(), "NUMBER") && type.precision == 0) {
        uvdbType = UVDBRows::Numeric;
        Decide(trail, UVDB_TYPE_BARE_NUMBER);
        return false;
    }
    if (Goes(source, UVDB_DB_INFORMIX, target, UVDB_DB_MSSQL))
        SetIntervalSize(name, uvdbType, numbers, trail);
    return false;
}

// Teradata's default sizes aren't written out.
void CutTeradataDefault(const DB_VERSION_INFO& target, U8CString& text, STypeTrail* trail)
{
    if (target.db != UVDB_DB_TERADATA ||
        (!IsSameText(text.c_str(), "BLOB(2097088000)") && !IsSameText(text.c_str(), "CLOB(2097088000)")))
        return;
    text.resize(text.find('('));
    Decide(trail, UVDB_TYPE_TERADATA_DEFAULT);
}

} // namespace

U8CString DBMSToDBMSDataType(DB_VERSION_INFO source, DB_VERSION_INFO target, U8CString& name,
                             unsigned long& size, bool& hasSize, long& leadingPrecision,
                             bool& hasLeadingPrecision, long& scale, bool& hasScale, bool& identity,
                             long odbcType, long* uvdbType)
{
    CTypeConversion conversion(source, target, identity, nullptr);
    conversion.numbers = {size, hasSize, scale, hasScale, leadingPrecision, hasLeadingPrecision};
    STargetType result = conversion.ByName(name, odbcType);
    const STypeNumbers& numbers = conversion.numbers;
    size = numbers.size;
    hasSize = numbers.hasSize;
    scale = numbers.scale;
    hasScale = numbers.hasScale;
    leadingPrecision = numbers.leadingPrecision;
    hasLeadingPrecision = numbers.hasLeadingPrecision;
    name = std::move(result.name);
    if (uvdbType)
        *uvdbType = result.uvdbType;
    return std::move(result.text);
}

STargetType ConvertDataType(DB_VERSION_INFO source, DB_VERSION_INFO target, const SSourceType& type,
                            STypeTrail* trail)
{
    if (trail)
        *trail = {};
    U8CString name = type.name;
    long uvdbType = type.uvdbType;
    CTypeConversion conversion(source, target, type.identity, trail);
    STypeNumbers& numbers = conversion.numbers;
    numbers.size = type.length != 0 ? type.length : type.precision;
    numbers.scale = type.scale;
    numbers.leadingPrecision = type.leadingPrecision;
    // Without a number it is still a size: the largest.
    numbers.hasSize = name.ends_with("(MAX)");
    if (trail && uvdbType != -1) {
        trail->sourceType = uvdbType;
        Decide(trail, UVDB_TYPE_GIVEN);
    }

    if (ApplyExceptions(source, target, type, name, uvdbType, numbers, trail))
        return {.name = name, .text = name, .uvdbType = uvdbType};
    STargetType result = uvdbType == -1 ? conversion.ByName(name, 0) : conversion.ByType(name, uvdbType);
    CutTeradataDefault(target, result.text, trail);
    return result;
}

U8CString GetDefDBMSToDBMSConverting(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name,
                                     long& uvdbType, unsigned long length, unsigned long precision,
                                     long leadingPrecision, long scale, bool identity, bool format)
{
    STargetType result = ConvertDataType(source, target,
                                         {.name = name ? name : "",
                                          .uvdbType = uvdbType,
                                          .length = length,
                                          .precision = precision,
                                          .leadingPrecision = leadingPrecision,
                                          .scale = scale,
                                          .identity = identity});
    uvdbType = result.uvdbType;
    return std::move(format ? result.text : result.name);
}
