#include "Tests/Catalogue/Types/TypeFamilies.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string_view>

namespace {

using UVDBMeaning::STypeMeaning;
using enum UVDBMeaning::enTimeField;
using UVDBMeaning::kDate;
using UVDBMeaning::kTime;
using F = enTypeFamily;

constexpr unsigned kMonths = kYear | kMonth;

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

void SetExact(const STypeMeaning& meaning, const SDataTypeParams& row, std::uint64_t size, long scale,
              STypeCapacity& capacity)
{
    if (capacity.family == F::Integer && !TakesParameter(row, "PRECISION")) {
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
        const long fraction =
            TakesParameter(row, "SCALE")       ? std::clamp<long>(scale, row.minScale, row.maxScale)
            : TakesParameter(row, "PRECISION") ? 0
                                               : std::clamp<long>(scale, row.minScale, row.maxScale);
        capacity.wholeDigits = std::max(static_cast<long>(size) - fraction, 0L);
        capacity.fractionDigits = std::max(fraction, 0L);
        capacity.hasNegativeScale = fraction < 0;
        capacity.digits = static_cast<long>(size);
    }
    capacity.length = static_cast<std::uint64_t>(capacity.digits);
}

void SetFloat(const STypeMeaning& meaning, const SDataTypeParams& row, std::uint64_t size,
              STypeCapacity& capacity)
{
    const bool isTold = row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && size > 0;
    capacity.significand = isTold ? static_cast<long>(size) : meaning.bits;
    // Binary floats have one of two sizes, or a larger one.
    if (capacity.family == F::Float && capacity.significand < 53)
        capacity.significand = capacity.significand <= 24 ? 24 : 53;
    capacity.length = capacity.family == F::Float ? 24 : 42;
}

// The digits after the second that a text form leaves room for.
long SecondDigitsOfText(std::uint64_t size, const STypeMeaning& meaning)
{
    const auto zone = static_cast<std::uint64_t>(meaning.hasZone ? 6 : 0);
    const auto plain = static_cast<std::uint64_t>((meaning.fields & kYear) != 0 ? 19 : 8) + zone;
    return size > plain + 1 && size <= plain + 10 ? static_cast<long>(size - plain) - 1 : 0;
}

void SetTime(const STypeMeaning& meaning, const SDataTypeParams& row, long scale, long leadingPrecision,
             STypeCapacity& capacity)
{
    constexpr std::uint64_t kToTheMinute = 16;

    capacity.fields = meaning.fields;
    capacity.hasZone = meaning.hasZone;
    // One type for all intervals.
    if (std::string_view(row.name) == "INTERVAL()")
        capacity.fields = kAllFields;
    if (row.uvdbType == UVDBRows::SmallTimestamp && row.columnSize == kToTheMinute)
        capacity.fields &= ~static_cast<unsigned>(kSecond);
    if ((capacity.fields & kSecond) != 0) {
        capacity.secondDigits = row.isScaleValid ? std::clamp<long>(scale, row.minScale, row.maxScale)
                                : capacity.family == F::Interval
                                    ? 0
                                    : SecondDigitsOfText(row.columnSize, meaning);
    }
    if (row.isLeadingPrecisionValid)
        capacity.leadingDigits = leadingPrecision;
}

bool IsText(F family)
{
    return family == F::Text || family == F::NationalText;
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
    constexpr const char* kTexts[] = {
        "unknown",       "text",       "national text", "binary",    "file",
        "bits",          "integer",    "decimal",       "float",     "decimal float",
        "boolean",       "date",       "time",          "timestamp", "qualified moment",
        "interval",      "uuid",       "xml",           "json",      "spatial",
        "row's address", "row number", "row version",   "array",     "variant",
        "hierarchy",     "record"};
    return kTexts[static_cast<std::size_t>(family)];
}

enTypeFamily FamilyOf(std::int64_t uvdbType)
{
    const F family = MeaningOfInternalType(uvdbType).family;
    return family == F::RowNumber || family == F::RowVersion ? F::RowId : family;
}

STypeCapacity CapacityOf(const SDataTypeParams& row, std::uint64_t size, long scale, long leadingPrecision)
{
    STypeCapacity capacity;
    const STypeMeaning& meaning = MeaningOfInternalType(row.uvdbType);
    if (meaning.family == UVDBMeaning::enTypeFamily::Unknown)
        return capacity;
    const bool takesSize = TakesParameter(row, "LENGTH") || TakesParameter(row, "MAX LENGTH") ||
                           TakesParameter(row, "PRECISION");
    if (!takesSize || size == 0 || size > row.columnSize)
        size = row.columnSize;
    capacity.family = FamilyOf(row.uvdbType);
    capacity.length = size;
    switch (capacity.family) {
    case F::Integer:
    case F::Decimal:
        SetExact(meaning, row, size, scale, capacity);
        break;
    case F::Float:
    case F::DecimalFloat:
        SetFloat(meaning, row, size, capacity);
        break;
    case F::Date:
    case F::Time:
    case F::Timestamp:
    case F::Qualified:
    case F::Interval:
        SetTime(meaning, row, scale, leadingPrecision, capacity);
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
                                      "digits before the point",
                                      "digits after the point",
                                      "negative scale",
                                      "sign",
                                      "significand",
                                      "fields",
                                      "digits after the second",
                                      "leading digits",
                                      "zone"};
    return kTexts[static_cast<std::size_t>(loss)];
}

std::vector<enTypeLoss> LossesOf(const STypeCapacity& source, const STypeCapacity& target)
{
    Losses losses;
    switch (target.family) {
    case F::Text:
    case F::NationalText:
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
