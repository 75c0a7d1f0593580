#include "Tools/uvtypes/Capacity.h"

#include "Catalogue/UVDBDataTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string_view>

namespace uvtypes {

namespace {

constexpr unsigned kDate = kYear | kMonth | kDay;
constexpr unsigned kTime = kHour | kMinute | kSecond;
constexpr unsigned kDayTime = kDay | kTime;

struct SMeaning
{
    long type;
    enFamily family;
    unsigned fields = 0;  // of dates, times and intervals
    bool hasZone = false; // of times
    int bits = 0;         // of integers, negative where they have no sign; of the significand of floats
};

// clang-format off
constexpr SMeaning kMeanings[] = {
//   type  family
    {  0, enFamily::Text},
    {  1, enFamily::Text},
    {  2, enFamily::Text},
    {  3, enFamily::Text},
    {  4, enFamily::Text},
    {  5, enFamily::NationalText},
    {  7, enFamily::Text},
    {  8, enFamily::NationalText},
    {  9, enFamily::NationalText},
    { 10, enFamily::NationalText},
    { 11, enFamily::NationalText},
    { 12, enFamily::NationalText},
    { 13, enFamily::NationalText},
    { 14, enFamily::Decimal},
    { 16, enFamily::Binary},
    { 17, enFamily::Binary},
    { 20, enFamily::Binary},
    { 22, enFamily::Bits},
    { 23, enFamily::Binary},
    { 24, enFamily::Binary},
    { 25, enFamily::Decimal},
    { 26, enFamily::Decimal},
    { 27, enFamily::Bits},
    { 28, enFamily::Boolean},
    { 29, enFamily::RowId},
    { 30, enFamily::RowId},
    { 31, enFamily::Binary},
    { 32, enFamily::Binary},
//   type  family             fields            zone   bits
    { 33, enFamily::Integer,  0,                false,   8},
    { 34, enFamily::Integer,  0,                false,  16},
    { 35, enFamily::Integer,  0,                false,  32},
    { 36, enFamily::Integer,  0,                false,  32},
    { 37, enFamily::Integer,  0,                false,  64},
    { 38, enFamily::Integer,  0,                false,  -8},
    { 39, enFamily::Integer,  0,                false, -16},
    { 40, enFamily::Integer,  0,                false, -32},
    { 41, enFamily::Integer,  0,                false, -64},
    { 42, enFamily::Float,    0,                false,  24},
    { 43, enFamily::Float,    0,                false,  53},
    { 44, enFamily::Float,    0,                false,  53},
    { 45, enFamily::Float,    0,                false,  24},
    { 46, enFamily::Float,    0,                false,  53},
    { 47, enFamily::Float,    0,                false,  53},
    { 48, enFamily::DateTime, kDate},
    { 49, enFamily::DateTime, kTime},
    { 50, enFamily::DateTime, kTime},
    { 51, enFamily::DateTime, kDate | kTime},
    { 52, enFamily::DateTime, kDate | kTime},
    { 53, enFamily::DateTime, kDate | kTime},
    { 54, enFamily::DateTime, kDate | kTime,    true},
    { 56, enFamily::DateTime, kTime,            true},
    { 57, enFamily::DateTime, kDate | kTime},
    { 58, enFamily::Decimal},
    { 59, enFamily::Decimal},
    { 60, enFamily::Decimal},
    { 61, enFamily::Interval, kYear},
    { 62, enFamily::Interval, kYear | kMonth},
    { 63, enFamily::Interval, kMonth},
    { 64, enFamily::Interval, kDay},
    { 65, enFamily::Interval, kDay | kHour},
    { 66, enFamily::Interval, kDay | kHour | kMinute},
    { 67, enFamily::Interval, kDayTime},
    { 68, enFamily::Interval, kDayTime},
    { 69, enFamily::Interval, kHour},
    { 70, enFamily::Interval, kHour | kMinute},
    { 71, enFamily::Interval, kTime},
    { 72, enFamily::Interval, kMinute},
    { 73, enFamily::Interval, kMinute | kSecond},
    { 74, enFamily::Interval, kSecond},
    { 75, enFamily::DateTime, kYear},
    { 76, enFamily::DateTime, kYear | kMonth},
    { 77, enFamily::DateTime, kDate},
    { 78, enFamily::DateTime, kDate | kHour},
    { 79, enFamily::DateTime, kDate | kHour | kMinute},
    { 80, enFamily::DateTime, kDate | kTime},
    { 81, enFamily::DateTime, kDay},
    { 82, enFamily::DateTime, kHour},
    { 83, enFamily::DateTime, kHour | kMinute},
    { 84, enFamily::DateTime, kTime},
    { 85, enFamily::DateTime, kMonth},
    { 86, enFamily::DateTime, kMonth | kDay},
    { 87, enFamily::DateTime, kDate | kTime},
    { 88, enFamily::DateTime, kMonth | kDay | kHour},
    { 89, enFamily::DateTime, kMonth | kDay | kHour | kMinute},
    { 90, enFamily::DateTime, kMonth | kDayTime},
    { 91, enFamily::DateTime, kMonth | kDayTime},
    { 92, enFamily::DateTime, kDay | kHour},
    { 93, enFamily::DateTime, kDay | kHour | kMinute},
    { 94, enFamily::DateTime, kDayTime},
    { 95, enFamily::DateTime, kDayTime},
    { 96, enFamily::DateTime, kTime},
    { 97, enFamily::DateTime, kMinute},
    { 98, enFamily::DateTime, kMinute | kSecond},
    { 99, enFamily::DateTime, kMinute | kSecond},
    {100, enFamily::DateTime, kSecond},
    {101, enFamily::DateTime, kSecond},
    {102, enFamily::DateTime, kDate | kTime,    true},
    {103, enFamily::Uuid},
    {104, enFamily::Integer,  0,                false, -32},
    {105, enFamily::Variant},
    {106, enFamily::Spatial},
    {107, enFamily::Spatial},
    {108, enFamily::Spatial},
    {109, enFamily::Hierarchy},
    {110, enFamily::Xml},
    {111, enFamily::Xml},
    {112, enFamily::Binary},
    {113, enFamily::Integer,  0,                false,  16},
    {114, enFamily::Array},
    {115, enFamily::Array},
    {116, enFamily::Array},
    {117, enFamily::Array},
    {118, enFamily::Array},
    {119, enFamily::Array},
    {120, enFamily::Array},
    {121, enFamily::Array},
    {122, enFamily::Array},
    {123, enFamily::Decimal},
    {124, enFamily::NationalText},
    {125, enFamily::Binary},
    {126, enFamily::Binary},
    {127, enFamily::Json},
    {128, enFamily::Json},
    {129, enFamily::Integer,  0,                false,  32},
    {130, enFamily::Integer,  0,                false, -32},
    {131, enFamily::Integer,  0,                false, -16},
    {132, enFamily::Integer,  0,                false,  -8},
    {133, enFamily::Integer,  0,                false, -24},
    {134, enFamily::Integer,  0,                false, -64},
    {135, enFamily::Text},
    {136, enFamily::Text},
    {137, enFamily::Float,    0,                false, 113},
    {138, enFamily::Spatial},
    {139, enFamily::Spatial},
    {141, enFamily::Record},
};

// Dates and times that end early.
struct SYears
{
    std::uint64_t db;
    const char* name;
    long first;
    long last;
};

constexpr SYears kYears[] = {
//   database         name             first last
    {UVDB_DB_MSSQL,  "DATETIME",       1753, 9999},
    {UVDB_DB_MSSQL,  "SMALLDATETIME",  1900, 2079},
    {UVDB_DB_SYBASE, "DATETIME",       1753, 9999},
    {UVDB_DB_SYBASE, "SMALLDATETIME",  1900, 2079},
    {UVDB_DB_MySQL,  "TIMESTAMP",      1970, 2038},
};

struct SFamilyName
{
    enFamily family;
    const char* name;
};

constexpr SFamilyName kFamilyNames[] = {
    {enFamily::Text,         "text"},
    {enFamily::NationalText, "national text"},
    {enFamily::Binary,       "bytes"},
    {enFamily::Bits,         "bits"},
    {enFamily::Integer,      "an integer"},
    {enFamily::Decimal,      "an exact number"},
    {enFamily::Float,        "a floating point number"},
    {enFamily::Boolean,      "a truth value"},
    {enFamily::DateTime,     "a date or time"},
    {enFamily::Interval,     "an interval"},
    {enFamily::Uuid,         "a UUID"},
    {enFamily::Xml,          "XML"},
    {enFamily::Json,         "JSON"},
    {enFamily::Spatial,      "spatial data"},
    {enFamily::RowId,        "a row's address"},
    {enFamily::Array,        "an array"},
    {enFamily::Variant,      "a value of any type"},
    {enFamily::Hierarchy,    "a place in a hierarchy"},
    {enFamily::Record,       "a record"},
};
// clang-format on

const char* FamilyName(enFamily family)
{
    const auto* const found =
        std::find_if(std::begin(kFamilyNames), std::end(kFamilyNames),
                     [family](const SFamilyName& name) { return name.family == family; });
    return found == std::end(kFamilyNames) ? "something unknown" : found->name;
}

const SMeaning* MeaningOf(long type)
{
    const auto* const found =
        std::lower_bound(std::begin(kMeanings), std::end(kMeanings), type,
                         [](const SMeaning& meaning, long wanted) { return meaning.type < wanted; });
    return found != std::end(kMeanings) && found->type == type ? found : nullptr;
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
    capacity.fraction = std::max(scale, 0L);
}

bool TakesWord(const SDataTypeParams& row, const char* word)
{
    return std::strstr(row.createParams, word) != nullptr;
}

void SetNumber(const SMeaning& meaning, const SDataTypeParams& row, const STypeNumbers& numbers,
               SCapacity& capacity)
{
    const auto size = static_cast<long>(numbers.size);
    if (TakesWord(row, "PRECISION") && !TakesWord(row, "LEADING PRECISION") && size > 0) {
        SetDecimalRange(size, numbers.scale, capacity);
    } else if (meaning.family == enFamily::Integer) {
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
        // Currencies count in 32 or 64 bits.
        if (meaning.type == 58 || meaning.type == 59) {
            const int bits = meaning.type == 58 ? 31 : 63;
            capacity.most =
                std::min(capacity.most, std::ldexp(std::pow(10.0, -static_cast<double>(row.maxScale)), bits));
            capacity.least = -capacity.most;
        }
    }
}

long BitsOfDigits(double digits)
{
    return static_cast<long>(std::ceil(digits * std::log2(10.0)));
}

long FloatBits(const SMeaning& meaning, const SDataTypeParams& row, const STypeNumbers& numbers)
{
    // Decimal floats count decimal digits.
    if (meaning.type == 137)
        return row.columnSize > 0 ? BitsOfDigits(static_cast<double>(row.columnSize)) : meaning.bits;
    if (TakesWord(row, "PRECISION") || TakesWord(row, "LENGTH")) {
        const auto told = static_cast<long>(numbers.size);
        return told == 0 ? meaning.bits : told <= 24 ? 24 : std::max(53L, told);
    }
    // A name for more or less than the internal type tells.
    const bool tellsBits = row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && row.columnSize >= 24;
    return tellsBits ? static_cast<long>(row.columnSize) : meaning.bits;
}

// The digits that a text form of `size` characters has behind the second.
long FractionOfText(std::uint64_t size, unsigned fields)
{
    const std::uint64_t plain = (fields & kYear) != 0 ? 19 : 8;
    return size > plain + 1 && size <= plain + 10 ? static_cast<long>(size - plain - 1) : 0;
}

void SetTime(DB_VERSION_INFO version, const SMeaning& meaning, const SDataTypeParams& row,
             const STypeNumbers& numbers, SCapacity& capacity)
{
    capacity.fields = meaning.fields;
    capacity.hasZone = meaning.hasZone;
    const bool hasSeconds = (meaning.fields & kSecond) != 0;
    const bool isInterval = meaning.family == enFamily::Interval;
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
        // One type for all of them.
        if (version.db == UVDB_DB_POSTGRESQL)
            capacity.fields = kDate | kTime;
    }
    // To the minute.
    if (meaning.type == 52 && row.columnSize > 0 && row.columnSize < 19)
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

bool IsText(enFamily family)
{
    return family == enFamily::Text || family == enFamily::NationalText;
}

bool IsNumber(enFamily family)
{
    return family == enFamily::Integer || family == enFamily::Decimal || family == enFamily::Float;
}

std::string NumberText(double number)
{
    char text[40];
    std::snprintf(text, sizeof(text), "%.15g", number);
    return text;
}

std::string BitsText(long bits)
{
    // What has thousands of digits is told to have no limit.
    constexpr long kMany = 10000;
    return bits >= kMany ? "no limit" : std::to_string(bits) + " binary digits";
}

bool HasNationalTypes(DB_VERSION_INFO version)
{
    for (const SDataTypeParams& row : GetDBMSDataTypeParamsList(version)) {
        const SMeaning* const meaning = MeaningOf(static_cast<long>(row.uvdbType));
        if (meaning != nullptr && meaning->family == enFamily::NationalText)
            return true;
    }
    return false;
}

using Texts = std::vector<std::string>;

void CompareLengths(std::uint64_t wanted, std::uint64_t there, Texts& losses)
{
    if (wanted != 0 && there != 0 && wanted > there)
        losses.push_back("length: " + std::to_string(wanted) + " there, " + std::to_string(there) + " here");
}

void CompareNumbers(const SCapacity& source, const SCapacity& target, Texts& losses)
{
    if (source.family == enFamily::Float) {
        if (target.family != enFamily::Float) {
            // A decimal without bounds holds what a double tells.
            if (target.isBounded)
                losses.push_back("range: a floating point number there, fixed digits here");
        } else if (target.floatBits < source.floatBits) {
            losses.push_back("precision: " + BitsText(source.floatBits) + " there, " +
                             BitsText(target.floatBits) + " here");
        }
        return;
    }
    if (target.family == enFamily::Float) {
        const bool isExact = source.isBounded && source.fraction == 0 &&
                             source.most <= std::ldexp(1.0, static_cast<int>(target.floatBits));
        if (!isExact)
            losses.push_back("precision: an exact number there, a floating point number here");
        return;
    }
    if (target.isBounded && !source.isBounded)
        losses.push_back("range: no limit there, " + NumberText(target.most) + " here");
    // Rounded powers of ten and of two don't meet closer than this.
    constexpr double kAlmost = 1 - 1e-12;
    if (target.isBounded && source.isBounded) {
        if (source.most * kAlmost > target.most)
            losses.push_back("range: up to " + NumberText(source.most) + " there, " +
                             NumberText(target.most) + " here");
        else if (source.least * kAlmost < target.least)
            losses.push_back("range: from " + NumberText(source.least) + " there, " +
                             NumberText(target.least) + " here");
    }
    if (target.fraction < source.fraction)
        losses.push_back(
            "scale: " + (source.fraction == SCapacity::kAnyDigits ? "any" : std::to_string(source.fraction)) +
            " there, " + std::to_string(target.fraction) + " here");
}

void CompareTimes(const SCapacity& source, const SCapacity& target, Texts& losses)
{
    struct SFieldName
    {
        unsigned field;
        const char* name;
    };
    constexpr SFieldName kNames[] = {{kYear, "year"}, {kMonth, "month"},   {kDay, "day"},
                                     {kHour, "hour"}, {kMinute, "minute"}, {kSecond, "second"}};
    std::string missing;
    for (const SFieldName& name : kNames)
        if ((source.fields & ~target.fields & name.field) != 0)
            missing.append(missing.empty() ? "" : ", ").append(name.name);
    if (!missing.empty())
        losses.push_back("range: no " + missing + " here");
    else if (target.fraction < source.fraction && (source.fields & kSecond) != 0)
        losses.push_back("scale: " + std::to_string(source.fraction) + " digits of a second there, " +
                         std::to_string(target.fraction) + " here");
    if (source.hasZone && !target.hasZone)
        losses.push_back("time zone: none here");
    if ((source.fields & kYear) != 0 && (target.fields & kYear) != 0 &&
        (source.firstYear < target.firstYear || source.lastYear > target.lastYear))
        losses.push_back("range: years " + std::to_string(source.firstYear) + " to " +
                         std::to_string(source.lastYear) + " there, " + std::to_string(target.firstYear) +
                         " to " + std::to_string(target.lastYear) + " here");
}

void CompareIntervals(const SCapacity& source, const SCapacity& target, Texts& losses)
{
    constexpr unsigned kMonths = kYear | kMonth;
    // Larger fields can be told by smaller ones, but never months by days.
    const bool hasMonths = (source.fields & kMonths) == 0 || (target.fields & kMonths) != 0;
    const bool hasSeconds = (source.fields & ~kMonths) == 0 || (target.fields & ~kMonths) != 0;
    const bool isFineEnough = target.fields >= std::bit_floor(source.fields);
    if (!hasMonths || !hasSeconds || !isFineEnough)
        losses.push_back("range: the interval has other fields here");
    else if (source.fields != 0 && std::countr_zero(source.fields) == std::countr_zero(target.fields) &&
             source.leadingDigits > target.leadingDigits && target.leadingDigits > 0)
        losses.push_back("precision: " + std::to_string(source.leadingDigits) + " leading digits there, " +
                         std::to_string(target.leadingDigits) + " here");
    else if (target.fraction < source.fraction && (source.fields & kSecond) != 0)
        losses.push_back("scale: " + std::to_string(source.fraction) + " digits of a second there, " +
                         std::to_string(target.fraction) + " here");
}

// Both ends of other families that carry over whole.
bool HoldsAll(const SCapacity& source, const SCapacity& target)
{
    switch (source.family) {
    case enFamily::Uuid:
        return (target.family == enFamily::Binary && target.length >= 16) ||
               (IsText(target.family) && target.length >= 32);
    case enFamily::Boolean:
        return target.family == enFamily::Bits || target.family == enFamily::Integer ||
               target.family == enFamily::Decimal;
    case enFamily::Bits:
        if (source.length <= 1 && target.family == enFamily::Boolean)
            return true;
        if (target.family == enFamily::Integer || target.family == enFamily::Decimal)
            return !target.isBounded || target.most + 1 >= std::ldexp(1.0, static_cast<int>(source.length));
        return target.family == enFamily::Binary &&
               (target.length == 0 || target.length * 8 >= source.length);
    case enFamily::RowId:
        return IsText(target.family) && target.length >= source.length;
    default:
        return false;
    }
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
    const SMeaning* const meaning = MeaningOf(static_cast<long>(row->uvdbType));
    if (meaning == nullptr)
        return capacity;
    if (const long digits = FloatingDigits(version, *row, type.numbers); digits > 0) {
        capacity.family = enFamily::Float;
        capacity.floatBits = BitsOfDigits(static_cast<double>(digits));
        return capacity;
    }
    capacity.family = meaning->family;
    switch (meaning->family) {
    case enFamily::Integer:
    case enFamily::Decimal:
        SetNumber(*meaning, *row, type.numbers, capacity);
        break;
    case enFamily::Float:
        capacity.floatBits = FloatBits(*meaning, *row, type.numbers);
        break;
    case enFamily::DateTime:
    case enFamily::Interval:
        SetTime(version, *meaning, *row, type.numbers, capacity);
        break;
    default:
        capacity.length = type.numbers.size > 0 ? type.numbers.size : row->columnSize;
        if (meaning->family == enFamily::Bits)
            capacity.length = std::max<std::uint64_t>(capacity.length, 1);
    }
    return capacity;
}

std::vector<std::string> Losses(const SCapacity& source, DB_VERSION_INFO to, const std::string& target)
{
    STypeText type = ReadTypeText(to, target);
    if (type.error.GetLength() > 0 || !type.isKnown || source.family == enFamily::Unknown)
        return {};
    CompleteTypeNumbers(to, type);
    const SCapacity here = CapacityOf(to, type);
    if (here.family == enFamily::Unknown)
        return {};

    Texts losses;
    if (IsText(source.family) && IsText(here.family)) {
        CompareLengths(source.length, here.length, losses);
        if (source.family == enFamily::NationalText && here.family == enFamily::Text && HasNationalTypes(to))
            losses.push_back("family: national text there, text of the database's own character set here");
    } else if (IsNumber(source.family) && IsNumber(here.family)) {
        CompareNumbers(source, here, losses);
    } else if (source.family == here.family) {
        if (source.family == enFamily::DateTime)
            CompareTimes(source, here, losses);
        else if (source.family == enFamily::Interval)
            CompareIntervals(source, here, losses);
        else if (source.family == enFamily::Binary || source.family == enFamily::Bits)
            CompareLengths(source.length, here.length, losses);
    } else if (source.family == enFamily::Bits && here.family == enFamily::Binary) {
        CompareLengths((source.length + 7) / 8, here.length, losses);
    } else if (!HoldsAll(source, here)) {
        losses.push_back(std::string("family: ") + FamilyName(source.family) + " there, " +
                         FamilyName(here.family) + " here");
    }
    return losses;
}

} // namespace uvtypes
