#include "Tests/Catalogue/Types/TypeFamilies.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string_view>

namespace {

using F = enTypeFamily;

constexpr unsigned kDateFields = kYearField | kMonthField | kDayField;
constexpr unsigned kTimeFields = kHourField | kMinuteField | kSecondField;
constexpr unsigned kMonths = kYearField | kMonthField;

constexpr int kUnsigned = -1; // as a factor of the bits

struct SMeaning
{
    std::int64_t type;
    enTypeFamily family;
    int bits = 0; // of integers, negative without a sign; of the significand of floats
    unsigned fields = 0;
    bool hasZone = false;
};

constexpr SMeaning Moment(std::int64_t type, unsigned fields, bool hasZone = false)
{
    const F family = (fields & ~kDateFields) == 0   ? F::Date
                     : (fields & ~kTimeFields) == 0 ? F::Time
                                                    : F::Timestamp;
    return {type, family, 0, fields, hasZone};
}

constexpr SMeaning Qualified(std::int64_t type, unsigned fields)
{
    return {type, F::Qualified, 0, fields};
}

constexpr SMeaning Interval(std::int64_t type, unsigned fields)
{
    return {type, F::Interval, 0, fields};
}

// The fields from one to another.
constexpr unsigned To(unsigned first, unsigned last)
{
    return last * 2 - first;
}

// clang-format off
constexpr SMeaning kMeanings[] = {
//   type  family           bits
    {  0, F::Character},
    {  1, F::Character},
    {  2, F::Character},
    {  3, F::Character},
    {  4, F::Character},
    {  5, F::National},
    {  7, F::Character},
    {  8, F::National},
    {  9, F::National},
    { 10, F::National},
    { 11, F::National},
    { 12, F::National},
    { 13, F::National},
    { 14, F::Decimal},
    { 16, F::Binary},
    { 17, F::Binary},
    { 20, F::Binary},
    { 22, F::Bits},
    { 23, F::Binary},
    { 24, F::File},
    { 25, F::Decimal},
    { 26, F::Decimal},
    { 27, F::Bits},
    { 28, F::Boolean},
    { 29, F::RowIdentity},
    { 30, F::RowIdentity},
    { 31, F::Binary},
    { 32, F::Binary},
    { 33, F::Integer,          8},
    { 34, F::Integer,         16},
    { 35, F::Integer,         32},
    { 36, F::Integer,         32},
    { 37, F::Integer,         64},
    { 38, F::Integer,          8 * kUnsigned},
    { 39, F::Integer,         16 * kUnsigned},
    { 40, F::Integer,         32 * kUnsigned},
    { 41, F::Integer,         64 * kUnsigned},
    { 42, F::Float,           24},
    { 43, F::Float,           53},
    { 44, F::Float,           53},
    { 45, F::Float,           24},
    { 46, F::Float,           53},
    { 47, F::Float,           53},
    { 58, F::Decimal},
    { 59, F::Decimal},
    { 60, F::Decimal},
    {103, F::Uuid},
    {104, F::RowIdentity},
    {105, F::Variant},
    {106, F::Spatial},
    {107, F::Spatial},
    {108, F::Spatial},
    {109, F::Hierarchy},
    {110, F::Xml},
    {111, F::Xml},
    {112, F::RowIdentity},    // eight bytes that change with the row
    {113, F::Integer,         16},
    {114, F::Array},
    {115, F::Array},
    {116, F::Array},
    {117, F::Array},
    {118, F::Array},
    {119, F::Array},
    {120, F::Array},
    {121, F::Array},
    {122, F::Array},
    {123, F::Decimal},
    {124, F::National},       // two bytes a character
    {125, F::Binary},
    {126, F::Binary},
    {127, F::Json},
    {128, F::Json},
    {129, F::Integer,         32},
    {130, F::Integer,         32 * kUnsigned},
    {131, F::Integer,         16 * kUnsigned},
    {132, F::Integer,          8 * kUnsigned},
    {133, F::Integer,         24 * kUnsigned},
    {134, F::Integer,         64 * kUnsigned},
    {135, F::Character},
    {136, F::Character},
    {137, F::DecimalFloat,    34},
    {138, F::Spatial},
    {139, F::Spatial},
    {141, F::Record},
//          type  fields
    Moment  ( 48, kDateFields),
    Moment  ( 49, kTimeFields),
    Moment  ( 50, kTimeFields),
    Moment  ( 51, kAllFields),
    Moment  ( 52, kAllFields),
    Moment  ( 53, kAllFields),
    Moment  ( 54, kAllFields, true),
    Moment  ( 56, kTimeFields, true),
    Moment  ( 57, kAllFields),
    Moment  (102, kAllFields, true),
    Qualified( 75, To(kYearField,   kYearField)),
    Qualified( 76, To(kYearField,   kMonthField)),
    Qualified( 77, To(kYearField,   kDayField)),
    Qualified( 78, To(kYearField,   kHourField)),
    Qualified( 79, To(kYearField,   kMinuteField)),
    Qualified( 80, To(kYearField,   kSecondField)),
    Qualified( 81, To(kDayField,    kDayField)),
    Qualified( 82, To(kHourField,   kHourField)),
    Qualified( 83, To(kHourField,   kMinuteField)),
    Qualified( 84, To(kHourField,   kSecondField)),
    Qualified( 85, To(kMonthField,  kMonthField)),
    Qualified( 86, To(kMonthField,  kDayField)),
    Qualified( 87, To(kYearField,   kSecondField)),
    Qualified( 88, To(kMonthField,  kHourField)),
    Qualified( 89, To(kMonthField,  kMinuteField)),
    Qualified( 90, To(kMonthField,  kSecondField)),
    Qualified( 91, To(kMonthField,  kSecondField)),
    Qualified( 92, To(kDayField,    kHourField)),
    Qualified( 93, To(kDayField,    kMinuteField)),
    Qualified( 94, To(kDayField,    kSecondField)),
    Qualified( 95, To(kDayField,    kSecondField)),
    Qualified( 96, To(kHourField,   kSecondField)),
    Qualified( 97, To(kMinuteField, kMinuteField)),
    Qualified( 98, To(kMinuteField, kSecondField)),
    Qualified( 99, To(kMinuteField, kSecondField)),
    Qualified(100, To(kSecondField, kSecondField)),
    Qualified(101, To(kSecondField, kSecondField)),
    Interval( 61, To(kYearField,   kYearField)),
    Interval( 62, To(kYearField,   kMonthField)),
    Interval( 63, To(kMonthField,  kMonthField)),
    Interval( 64, To(kDayField,    kDayField)),
    Interval( 65, To(kDayField,    kHourField)),
    Interval( 66, To(kDayField,    kMinuteField)),
    Interval( 67, To(kDayField,    kSecondField)),
    Interval( 68, To(kDayField,    kSecondField)),
    Interval( 69, To(kHourField,   kHourField)),
    Interval( 70, To(kHourField,   kMinuteField)),
    Interval( 71, To(kHourField,   kSecondField)),
    Interval( 72, To(kMinuteField, kMinuteField)),
    Interval( 73, To(kMinuteField, kSecondField)),
    Interval( 74, To(kSecondField, kSecondField)),
};
// clang-format on

const SMeaning* MeaningOf(std::int64_t uvdbType)
{
    const auto* const found = std::ranges::find(kMeanings, uvdbType, &SMeaning::type);
    return found != std::end(kMeanings) ? found : nullptr;
}

bool Takes(const SDataTypeParams& row, std::string_view wanted)
{
    std::string_view words = row.createParams;
    while (!words.empty()) {
        const std::size_t end = std::min(words.find_first_of(",;"), words.size());
        if (words.substr(0, end) == wanted)
            return true;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return false;
}

// Decimal digits that the largest of `bits` has.
long DigitsOfBits(int bits)
{
    return static_cast<long>(std::floor(bits * std::log10(2.0))) + 1;
}

int ValueBits(const STypeCapacity& integer)
{
    return integer.isSigned ? integer.integerBits - 1 : integer.integerBits;
}

// The digits of which an integer holds all numbers; those of which it holds some are one more.
long FullDigits(const STypeCapacity& integer)
{
    return DigitsOfBits(ValueBits(integer)) - 1;
}

void SetExact(const SMeaning& meaning, const SDataTypeParams& row, std::uint64_t size, long scale,
              STypeCapacity& capacity)
{
    if (meaning.family == F::Integer && !Takes(row, "PRECISION")) {
        capacity.integerBits = std::abs(meaning.bits);
        capacity.isSigned = meaning.bits > 0;
        // A name for a shorter integer than its internal type.
        if (row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && row.columnSize == 7 && meaning.bits == 32)
            capacity.integerBits = 24;
        capacity.wholeDigits = DigitsOfBits(ValueBits(capacity));
        // Of a number that has fewer digits than its bits.
        if (row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && row.columnSize > 0)
            capacity.wholeDigits = std::min(capacity.wholeDigits, static_cast<long>(row.columnSize));
        capacity.digits = capacity.wholeDigits;
    } else if (scale == kAnyScale) {
        capacity.digits = static_cast<long>(size);
        capacity.wholeDigits = capacity.digits;
        capacity.fractionDigits = row.maxScale;
    } else {
        // Numbers of so many digits hold integers and decimals alike.
        capacity.family = F::Decimal;
        const long fraction = Takes(row, "SCALE")       ? std::clamp<long>(scale, row.minScale, row.maxScale)
                              : Takes(row, "PRECISION") ? 0
                                                        : std::clamp<long>(scale, row.minScale, row.maxScale);
        capacity.wholeDigits = std::max(static_cast<long>(size) - fraction, 0L);
        capacity.fractionDigits = std::max(fraction, 0L);
        capacity.hasNegativeScale = fraction < 0;
        capacity.digits = static_cast<long>(size);
    }
    capacity.length = static_cast<std::uint64_t>(capacity.digits);
}

void SetFloat(const SMeaning& meaning, const SDataTypeParams& row, std::uint64_t size,
              STypeCapacity& capacity)
{
    const bool isTold = row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && size > 0;
    capacity.significand = isTold ? static_cast<long>(size) : meaning.bits;
    // Binary floats have one of two sizes, or a larger one.
    if (meaning.family == F::Float && capacity.significand < 53)
        capacity.significand = capacity.significand <= 24 ? 24 : 53;
    capacity.length = meaning.family == F::Float ? 24 : 42;
}

// The digits behind the second that a text form leaves room for.
long SecondDigitsOfText(std::uint64_t size, const SMeaning& meaning)
{
    const auto zone = static_cast<std::uint64_t>(meaning.hasZone ? 6 : 0);
    const auto plain = static_cast<std::uint64_t>((meaning.fields & kYearField) != 0 ? 19 : 8) + zone;
    return size > plain + 1 && size <= plain + 10 ? static_cast<long>(size - plain) - 1 : 0;
}

void SetTime(const SMeaning& meaning, const SDataTypeParams& row, long scale, long leadingPrecision,
             STypeCapacity& capacity)
{
    constexpr std::uint64_t kToTheMinute = 16;

    capacity.fields = meaning.fields;
    capacity.hasZone = meaning.hasZone;
    // One type for all intervals.
    if (std::string_view(row.name) == "INTERVAL()")
        capacity.fields = kAllFields;
    if (meaning.type == 52 && row.columnSize == kToTheMinute)
        capacity.fields &= ~static_cast<unsigned>(kSecondField);
    if ((capacity.fields & kSecondField) != 0) {
        capacity.secondDigits = row.isScaleValid ? std::clamp<long>(scale, row.minScale, row.maxScale)
                                : meaning.family == F::Interval ? 0
                                                                : SecondDigitsOfText(row.columnSize, meaning);
    }
    if (row.isLeadingPrecisionValid)
        capacity.leadingDigits = leadingPrecision;
}

bool IsText(F family)
{
    return family == F::Character || family == F::National;
}

bool IsExact(F family)
{
    return family == F::Integer || family == F::Decimal;
}

bool IsMoment(F family)
{
    return family == F::Date || family == F::Time || family == F::Timestamp || family == F::Qualified;
}

using Losses = std::vector<enTypeLoss>;

void CompareIntegers(const STypeCapacity& source, const STypeCapacity& target, Losses& losses)
{
    if (source.isSigned && !target.isSigned)
        losses.push_back(enTypeLoss::Sign);
    if (ValueBits(target) < ValueBits(source))
        losses.push_back(enTypeLoss::WholeDigits);
}

void CompareExact(const STypeCapacity& source, const STypeCapacity& target, Losses& losses)
{
    const bool isTargetInteger = target.integerBits != 0;
    if (isTargetInteger && source.integerBits != 0) {
        CompareIntegers(source, target, losses);
        return;
    }
    if (isTargetInteger && !target.isSigned)
        losses.push_back(enTypeLoss::Sign);
    if (source.wholeDigits > (isTargetInteger ? FullDigits(target) : target.wholeDigits) ||
        (!isTargetInteger && source.digits > target.digits && source.fractionDigits <= target.fractionDigits))
        losses.push_back(source.hasNegativeScale ? enTypeLoss::NegativeScale : enTypeLoss::WholeDigits);
    if (source.fractionDigits > target.fractionDigits)
        losses.push_back(enTypeLoss::FractionDigits);
}

// Decimal digits that come back unchanged.
long SafeDigits(const STypeCapacity& target)
{
    if (target.family == F::DecimalFloat)
        return target.significand;
    return static_cast<long>(std::floor(static_cast<double>(target.significand - 1) * std::log10(2.0)));
}

void CompareFloats(const STypeCapacity& source, const STypeCapacity& target, Losses& losses)
{
    if (IsExact(source.family)) {
        const bool isBinary = target.family == F::Float && source.integerBits != 0;
        if (isBinary ? ValueBits(source) > target.significand : source.digits > SafeDigits(target))
            losses.push_back(enTypeLoss::Significand);
    } else if (source.family == target.family) {
        if (source.significand > target.significand)
            losses.push_back(enTypeLoss::Significand);
    } else if (source.family == F::DecimalFloat
                   ? source.significand > SafeDigits(target)
                   : DigitsOfBits(static_cast<int>(source.significand)) > target.significand)
        losses.push_back(enTypeLoss::Significand);
}

void CompareMoments(const STypeCapacity& source, const STypeCapacity& target, Losses& losses)
{
    if ((source.fields & ~target.fields) != 0)
        losses.push_back(enTypeLoss::Fields);
    else if (source.secondDigits > target.secondDigits)
        losses.push_back(enTypeLoss::SecondDigits);
    if (source.hasZone && !target.hasZone)
        losses.push_back(enTypeLoss::Zone);
}

// How many of the smallest field of its kind, months or seconds, the first field counts.
double UnitOf(unsigned fields)
{
    constexpr double kUnits[] = {12, 1, 86400, 3600, 60, 1};
    return kUnits[std::countr_zero(fields)];
}

void CompareIntervals(const STypeCapacity& source, const STypeCapacity& target, Losses& losses)
{
    const bool holdsMonths = (source.fields & kMonths) == 0 || (target.fields & kMonths) != 0;
    const bool holdsTimes = (source.fields & ~kMonths) == 0 || (target.fields & ~kMonths) != 0;
    if (!holdsMonths || !holdsTimes || target.fields < std::bit_floor(source.fields)) {
        losses.push_back(enTypeLoss::Fields);
        return;
    }
    if (source.secondDigits > target.secondDigits)
        losses.push_back(enTypeLoss::SecondDigits);
    if (source.leadingDigits == 0 || target.leadingDigits == 0)
        return;
    const double ratio = UnitOf(source.fields) / UnitOf(target.fields);
    const double needed = static_cast<double>(source.leadingDigits) + std::log10(ratio);
    if (std::ceil(needed - 1e-9) > static_cast<double>(target.leadingDigits))
        losses.push_back(enTypeLoss::LeadingDigits);
}

// The length that `source` needs where its values are written as characters, bytes or bits.
std::uint64_t LengthIn(F family, const STypeCapacity& source)
{
    constexpr std::uint64_t kUuidBytes = 16;

    if (source.family == F::Uuid)
        return IsText(family) ? 2 * kUuidBytes : kUuidBytes;
    if (source.family == F::Bits && family == F::Binary)
        return (source.length + 7) / 8;
    if (source.family == F::Boolean)
        return 1;
    return source.length;
}

} // namespace

const char* FamilyText(enTypeFamily family)
{
    constexpr const char* kTexts[] = {"unknown",       "character", "national character",
                                      "binary",        "file",      "bits",
                                      "integer",       "decimal",   "float",
                                      "decimal float", "boolean",   "date",
                                      "time",          "timestamp", "qualified moment",
                                      "interval",      "uuid",      "xml",
                                      "json",          "spatial",   "row identity",
                                      "array",         "variant",   "hierarchy",
                                      "record"};
    return kTexts[static_cast<std::size_t>(family)];
}

enTypeFamily FamilyOf(std::int64_t uvdbType)
{
    const SMeaning* const meaning = MeaningOf(uvdbType);
    return meaning ? meaning->family : F::Unknown;
}

STypeCapacity CapacityOf(const SDataTypeParams& row, std::uint64_t size, long scale, long leadingPrecision)
{
    STypeCapacity capacity;
    const SMeaning* const meaning = MeaningOf(row.uvdbType);
    if (!meaning)
        return capacity;
    const bool takesSize = Takes(row, "LENGTH") || Takes(row, "MAX LENGTH") || Takes(row, "PRECISION");
    if (!takesSize || size == 0 || size > row.columnSize)
        size = row.columnSize;
    capacity.family = meaning->family;
    capacity.length = size;
    switch (meaning->family) {
    case F::Integer:
    case F::Decimal:
        SetExact(*meaning, row, size, scale, capacity);
        break;
    case F::Float:
    case F::DecimalFloat:
        SetFloat(*meaning, row, size, capacity);
        break;
    case F::Date:
    case F::Time:
    case F::Timestamp:
    case F::Qualified:
    case F::Interval:
        SetTime(*meaning, row, scale, leadingPrecision, capacity);
        break;
    case F::Bits:
        capacity.length = std::max<std::uint64_t>(size, 1);
        break;
    default:
        break;
    }
    return capacity;
}

const char* LossText(enTypeLoss loss)
{
    constexpr const char* kTexts[] = {"length",
                                      "digits in front of the point",
                                      "digits behind the point",
                                      "negative scale",
                                      "sign",
                                      "significand",
                                      "fields",
                                      "digits behind the second",
                                      "leading digits",
                                      "zone"};
    return kTexts[static_cast<std::size_t>(loss)];
}

std::vector<enTypeLoss> LossesOf(const STypeCapacity& source, const STypeCapacity& target)
{
    Losses losses;
    switch (target.family) {
    case F::Character:
    case F::National:
    case F::Binary:
    case F::Bits:
        if (LengthIn(target.family, source) > target.length)
            losses.push_back(enTypeLoss::Length);
        break;
    case F::Integer:
    case F::Decimal:
        if (IsExact(source.family))
            CompareExact(source, target, losses);
        else if (source.family == F::Bits &&
                 DigitsOfBits(static_cast<int>(source.length)) > target.wholeDigits)
            losses.push_back(enTypeLoss::WholeDigits);
        break;
    case F::Float:
    case F::DecimalFloat:
        CompareFloats(source, target, losses);
        break;
    case F::Date:
    case F::Time:
    case F::Timestamp:
    case F::Qualified:
        if (IsMoment(source.family))
            CompareMoments(source, target, losses);
        break;
    case F::Interval:
        if (source.family == F::Interval)
            CompareIntervals(source, target, losses);
        break;
    default:
        break;
    }
    return losses;
}
