#include "Tools/uvtypes/Capacity.h"

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBKindSet.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <string_view>

namespace uvtypes {

namespace {

using namespace UVDBMeaning;

// Dates and times that end early.
struct SYears
{
    std::uint64_t db;
    const char* name;
    long first;
    long last;
};

// clang-format off
constexpr SYears kYears[] = {
//   database         name             first last
    {UVDB_DB_MSSQL,  "DATETIME",       1753, 9999},
    {UVDB_DB_MSSQL,  "SMALLDATETIME",  1900, 2079},
    {UVDB_DB_SYBASE, "DATETIME",       1753, 9999},
    {UVDB_DB_SYBASE, "SMALLDATETIME",  1900, 2079},
    {UVDB_DB_MySQL,  "TIMESTAMP",      1970, 2038},
};
// clang-format on

// As what another database stores the values.
enTypeFamily StoredAs(enTypeFamily family)
{
    switch (family) {
    case enTypeFamily::File:
    case enTypeFamily::RowVersion:
        return enTypeFamily::Binary;
    case enTypeFamily::RowNumber:
        return enTypeFamily::Integer;
    case enTypeFamily::DecimalFloat:
        return enTypeFamily::Float;
    case enTypeFamily::Date:
    case enTypeFamily::Time:
    case enTypeFamily::Qualified:
        return enTypeFamily::Timestamp;
    default:
        return family;
    }
}

void SetIntegerRange(int bits, SCapacity& capacity)
{
    capacity.isBounded = true;
    capacity.most = std::ldexp(1.0, bits < 0 ? -bits : bits - 1) - 1;
    capacity.least = bits < 0 ? 0 : -capacity.most - 1;
    capacity.fraction = 0;
}

void SetDecimalRange(long digits, long scale, SCapacity& capacity)
{
    capacity.isBounded = true;
    capacity.most = std::pow(10.0, static_cast<double>(digits - scale));
    capacity.least = -capacity.most;
    capacity.wholeDigits = digits - scale;
    capacity.fraction = std::max(scale, 0L);
}

void SetNumber(const STypeMeaning& meaning, const SDataTypeParams& row, const STypeNumbers& numbers,
               SCapacity& capacity)
{
    const auto size = static_cast<long>(numbers.size);
    if (TakesParameter(row, "PRECISION") && size > 0) {
        SetDecimalRange(size, numbers.scale, capacity);
    } else if (StoredAs(meaning.family) == enTypeFamily::Integer) {
        SetIntegerRange(meaning.bits, capacity);
        // A name that takes less than its internal type.
        const double limit = std::pow(10.0, static_cast<double>(row.columnSize));
        if (row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && row.columnSize > 0 && limit < capacity.most) {
            capacity.most = limit;
            capacity.least = std::max(capacity.least, -limit);
        }
    } else if (row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && row.columnSize > 0 &&
               (!row.isScaleValid || row.minScale == row.maxScale)) {
        SetDecimalRange(static_cast<long>(row.columnSize), row.maxScale, capacity);
        // A currency that counts in bits: one of them is the sign.
        if (meaning.bits != 0) {
            const double unit = std::pow(10.0, -static_cast<double>(row.maxScale));
            capacity.most = std::min(capacity.most, std::ldexp(unit, meaning.bits - 1));
            capacity.least = -capacity.most;
        }
    }
}

long BitsOfDigits(double digits)
{
    return static_cast<long>(std::ceil(digits * std::log2(10.0)));
}

long FloatBits(const STypeMeaning& meaning, const SDataTypeParams& row, const STypeNumbers& numbers)
{
    // Decimal floats count decimal digits.
    if (meaning.family == enTypeFamily::DecimalFloat)
        return BitsOfDigits(row.columnSize > 0 ? static_cast<double>(row.columnSize) : meaning.bits);
    if (TakesParameter(row, "PRECISION") || TakesParameter(row, "LENGTH")) {
        const auto told = static_cast<long>(numbers.size);
        return told == 0 ? meaning.bits : told <= 24 ? 24 : std::max(53L, told);
    }
    // A name for more or less than the internal type tells.
    const bool tellsBits = row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && row.columnSize >= 24;
    return tellsBits ? static_cast<long>(row.columnSize) : meaning.bits;
}

// The digits that a text form of `size` characters has for fractions of a second.
long FractionOfText(std::uint64_t size, unsigned fields)
{
    const std::uint64_t plain = (fields & kYear) != 0 ? 19 : 8;
    return size > plain + 1 && size <= plain + 10 ? static_cast<long>(size - plain - 1) : 0;
}

void SetTime(DB_VERSION_INFO version, const STypeMeaning& meaning, const SDataTypeParams& row,
             const STypeText& type, SCapacity& capacity)
{
    const STypeNumbers& numbers = type.numbers;
    capacity.fields = meaning.fields;
    // MySQL's TIMESTAMP is a moment: it is shown in the zone of whoever asks.
    const bool isMoment = version.db == UVDB_DB_MySQL && std::strcmp(row.name, "TIMESTAMP") == 0;
    capacity.hasZone = meaning.hasZone || isMoment;
    const bool hasSeconds = (meaning.fields & kSecond) != 0;
    const bool isInterval = meaning.family == enTypeFamily::Interval;
    if (!hasSeconds || (isInterval && !row.isScaleValid && !numbers.hasScale))
        capacity.fraction = 0;
    else if (row.isScaleValid)
        capacity.fraction = row.minScale == row.maxScale ? row.maxScale : numbers.scale;
    else if (numbers.hasScale)
        capacity.fraction = numbers.scale;
    else if (!meaning.hasZone)
        capacity.fraction = FractionOfText(row.columnSize, meaning.fields);
    if (isInterval) {
        if (row.isLeadingPrecisionValid)
            capacity.leadingDigits = numbers.leadingPrecision;
        // One type for all of them, unless fields are written.
        if (version.db == UVDB_DB_POSTGRESQL && type.uvdbType == -1)
            capacity.fields = kDate | kTime;
    }
    // To the minute.
    if (row.uvdbType == UVDBRows::SmallTimestamp && row.columnSize > 0 && row.columnSize < 19)
        capacity.fields &= ~static_cast<unsigned>(kSecond);
    for (const SYears& years : kYears) {
        if (years.db == version.db && std::strcmp(years.name, row.name) == 0) {
            capacity.firstYear = years.first;
            capacity.lastYear = years.last;
        }
    }
}

// Decimals that float: their digits count from the first, wherever the point is. 0 for others.
long FloatingDigits(DB_VERSION_INFO version, const SDataTypeParams& row, const STypeNumbers& numbers)
{
    const std::string_view name = row.name;
    const bool isNumberDatabase = version.db == UVDB_DB_ORA || version.db == UVDB_DB_TERADATA;
    if (isNumberDatabase && name == "NUMBER" && !numbers.hasSize && !numbers.hasScale)
        return 38;
    if (version.db == UVDB_DB_INFORMIX && (name == "DECIMAL" || name == "DEC" || name == "NUMERIC") &&
        !numbers.hasScale)
        return static_cast<long>(numbers.size);
    return 0;
}

// PostgreSQL's NUMERIC without numbers takes all digits that come, before the point and after it.
bool IsUnlimitedDecimal(DB_VERSION_INFO version, const STypeText& type)
{
    constexpr CKindSet kKinds{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM, UVDB_DB_VPOSTGRES};
    return type.uvdbType == UVDBRows::DecFloat && kKinds.Has(version.db);
}

void SetText(DB_VERSION_INFO version, const SDataTypeParams& row, const STypeText& type, SCapacity& capacity)
{
    capacity.length = type.numbers.size > 0 ? type.numbers.size : row.columnSize;
    capacity.text = TextTraitsOf(version, row, type);
    capacity.foldsCase = type.writtenName == "CITEXT";
    capacity.valueCount = type.valueCount;
    const std::string_view name = row.name;
    const bool isVarying = name == "VARCHAR" || name == "CHARACTER VARYING";
    capacity.hasNoLength = version.db == UVDB_DB_POSTGRESQL && type.numbers.size == 0 && isVarying;
}

} // namespace

SCapacity CapacityOf(DB_VERSION_INFO version, const STypeText& type)
{
    SCapacity capacity;
    const SDataTypeParams* const row =
        type.uvdbType == -1
            ? FindDBMSDataTypeRow(version, type.name.c_str(), type.numbers.size, type.numbers.scale)
            : GetUVDBDataTypeParams(type.uvdbType); // a name of a language, that look-ups don't find
    if (row == nullptr)
        return capacity;
    const STypeMeaning& meaning = MeaningOfInternalType(row->uvdbType);
    if (meaning.family == enTypeFamily::Unknown)
        return capacity;
    capacity.hasNumbering = type.hasNumbering;
    if (IsUnlimitedDecimal(version, type)) {
        capacity.family = enTypeFamily::Decimal;
        return capacity;
    }
    if (const long digits = FloatingDigits(version, *row, type.numbers); digits > 0) {
        capacity.family = enTypeFamily::Float;
        capacity.floatBits = BitsOfDigits(static_cast<double>(digits));
        capacity.isDecimalFloat = true;
        return capacity;
    }
    capacity.family = StoredAs(meaning.family);
    switch (capacity.family) {
    case enTypeFamily::Integer:
    case enTypeFamily::Decimal:
        SetNumber(meaning, *row, type.numbers, capacity);
        break;
    case enTypeFamily::Float:
        capacity.floatBits = FloatBits(meaning, *row, type.numbers);
        capacity.isDecimalFloat = meaning.family == enTypeFamily::DecimalFloat;
        break;
    case enTypeFamily::Timestamp:
    case enTypeFamily::Interval:
        SetTime(version, meaning, *row, type, capacity);
        break;
    case enTypeFamily::Text:
    case enTypeFamily::NationalText:
        SetText(version, *row, type, capacity);
        break;
    default:
        capacity.length = type.numbers.size > 0 ? type.numbers.size : row->columnSize;
        if (meaning.family == enTypeFamily::Bits)
            capacity.length = std::max<std::uint64_t>(capacity.length, 1);
    }
    return capacity;
}

} // namespace uvtypes
