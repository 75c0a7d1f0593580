#include "Tools/uvtypes/Losses.h"

#include "Catalogue/Types/UVDBDataTypes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <iterator>

namespace uvtypes {

namespace {

using namespace UVDBMeaning;

// clang-format off
struct SFamilyName
{
    enTypeFamily family;
    const char* name;
};

constexpr SFamilyName kFamilyNames[] = {
    {enTypeFamily::Text,         "text"},
    {enTypeFamily::NationalText, "text"},
    {enTypeFamily::Binary,       "bytes"},
    {enTypeFamily::Bits,         "bits"},
    {enTypeFamily::Integer,      "an integer"},
    {enTypeFamily::Decimal,      "an exact number"},
    {enTypeFamily::Float,        "a floating point number"},
    {enTypeFamily::Boolean,      "a truth value"},
    {enTypeFamily::Timestamp,    "a date or time"},
    {enTypeFamily::Interval,     "an interval"},
    {enTypeFamily::Uuid,         "a UUID"},
    {enTypeFamily::Xml,          "XML"},
    {enTypeFamily::Json,         "JSON"},
    {enTypeFamily::Spatial,      "spatial data"},
    {enTypeFamily::RowId,        "a row's address"},
    {enTypeFamily::Array,        "an array"},
    {enTypeFamily::Variant,      "a value of any type"},
    {enTypeFamily::Hierarchy,    "a place in a hierarchy"},
    {enTypeFamily::Record,       "a record"},
};
// clang-format on

const char* FamilyName(enTypeFamily family)
{
    const auto* const found =
        std::find_if(std::begin(kFamilyNames), std::end(kFamilyNames),
                     [family](const SFamilyName& name) { return name.family == family; });
    return found == std::end(kFamilyNames) ? "something unknown" : found->name;
}

bool IsText(enTypeFamily family)
{
    return family == enTypeFamily::Text || family == enTypeFamily::NationalText;
}

bool IsNumber(enTypeFamily family)
{
    return family == enTypeFamily::Integer || family == enTypeFamily::Decimal ||
           family == enTypeFamily::Float;
}

std::string LimitText(double limit, const SCapacity& capacity)
{
    if (capacity.family == enTypeFamily::Decimal && capacity.wholeDigits > 0)
        return std::to_string(capacity.wholeDigits) + " digits before the point";
    char text[40];
    std::snprintf(text, sizeof(text), "%.15g", limit);
    return text;
}

std::string CountText(std::uint64_t count, const char* one)
{
    return std::to_string(count) + ' ' + one + (count == 1 ? "" : "s");
}

// Of the significand of a float, as decimal digits that are always exact.
std::string DigitsText(long bits)
{
    return std::to_string(static_cast<long>(static_cast<double>(bits) * std::log10(2.0))) + " digits";
}

using Texts = std::vector<std::string>;

void CompareLengths(std::uint64_t wanted, std::uint64_t there, Texts& losses)
{
    // No value is that long.
    constexpr std::uint64_t kHuge = 1000000000;
    if (wanted != 0 && there != 0 && wanted > there && there < kHuge)
        losses.push_back("length: " + std::to_string(wanted) + " there, " + std::to_string(there) + " here");
}

// Above this nobody counts characters: large objects.
constexpr std::uint64_t kLongText = 1000000;

// A character takes up to so many bytes.
constexpr std::uint64_t kMostBytes = 4;

void CompareTextLengths(const SCapacity& source, const SCapacity& target, Texts& losses)
{
    if (source.hasNoLength) {
        if (!target.hasNoLength && target.length != 0 && target.length < kLongText)
            losses.push_back("length: no limit there, " + std::to_string(target.length) + " here");
        return;
    }
    if (source.length == 0 || target.length == 0)
        return;
    if (source.length > target.length) {
        CompareLengths(source.length, target.length, losses);
        return;
    }
    // In a code page it is the character set that gets lost.
    const bool isCountedInBytes =
        target.text.unit == UVDB_LENGTH_UNIT_BYTES && target.text.characters == enCharacters::Unicode;
    if (!isCountedInBytes || target.length >= kLongText || target.length / kMostBytes >= source.length)
        return;
    const std::string bytes = CountText(target.length, "byte");
    if (source.text.unit == UVDB_LENGTH_UNIT_CHARACTERS)
        losses.push_back("length: " + CountText(source.length, "character") + " there, " + bytes + " here");
    else if (source.text.characters == enCharacters::CodePage)
        losses.push_back("length: " + CountText(source.length, "byte") + " of a code page there, " + bytes +
                         " of Unicode here");
}

void CompareTexts(const SCapacity& source, const SCapacity& target, Texts& losses)
{
    CompareTextLengths(source, target, losses);
    if (source.text.characters == enCharacters::Unicode && target.text.characters == enCharacters::CodePage)
        losses.emplace_back("character set: Unicode there, a code page here");
    if (source.valueCount > 0 && target.valueCount == 0)
        losses.push_back("values: only " + std::to_string(source.valueCount) + " allowed there, any here");
    if (source.foldsCase && !target.foldsCase)
        losses.emplace_back("case: doesn't count there, may count here");
}

// An exact number in a floating one.
bool StaysExact(const SCapacity& source, const SCapacity& target)
{
    const double limit = std::ldexp(1.0, static_cast<int>(target.floatBits));
    if (!target.isDecimalFloat)
        return source.isBounded && source.fraction == 0 && source.most <= limit;
    // Of what has no limit nobody uses more digits than such a one has.
    const auto digits = static_cast<double>(source.wholeDigits + source.fraction);
    return !source.isBounded || source.family == enTypeFamily::Integer || std::pow(10.0, digits) <= limit;
}

void CompareNumbers(const SCapacity& source, const SCapacity& target, Texts& losses)
{
    if (source.family == enTypeFamily::Float) {
        if (target.family != enTypeFamily::Float) {
            // A decimal without bounds holds what a double tells.
            if (target.isBounded)
                losses.push_back("range: a floating point number there, fixed digits here");
        } else if (target.floatBits < source.floatBits) {
            losses.push_back("precision: " + DigitsText(source.floatBits) + " there, " +
                             DigitsText(target.floatBits) + " here");
        }
        return;
    }
    if (target.family == enTypeFamily::Float) {
        if (!StaysExact(source, target) && target.isDecimalFloat)
            losses.push_back("precision: " + std::to_string(source.wholeDigits + source.fraction) +
                             " digits there, " + DigitsText(target.floatBits) + " here");
        else if (!StaysExact(source, target))
            losses.push_back("precision: an exact number there, a floating point number here");
        return;
    }
    // Rounded powers of ten and of two don't meet closer than this.
    constexpr double kAlmost = 1 - 1e-12;
    if (target.isBounded && source.isBounded) {
        if (source.most * kAlmost > target.most)
            losses.push_back("range: up to " + LimitText(source.most, source) + " there, " +
                             LimitText(target.most, target) + " here");
        else if (source.least * kAlmost < target.least)
            losses.push_back("range: from " + LimitText(source.least, source) + " there, " +
                             LimitText(target.least, target) + " here");
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
    case enTypeFamily::Uuid:
        return (target.family == enTypeFamily::Binary && target.length >= 16) ||
               (IsText(target.family) && target.length >= 32);
    case enTypeFamily::Boolean:
        return target.family == enTypeFamily::Bits || target.family == enTypeFamily::Integer ||
               target.family == enTypeFamily::Decimal;
    case enTypeFamily::Bits:
        if (source.length <= 1 && target.family == enTypeFamily::Boolean)
            return true;
        if (target.family == enTypeFamily::Integer || target.family == enTypeFamily::Decimal)
            return !target.isBounded || target.most + 1 >= std::ldexp(1.0, static_cast<int>(source.length));
        return target.family == enTypeFamily::Binary &&
               (target.length == 0 || target.length * 8 >= source.length);
    case enTypeFamily::RowId:
        return IsText(target.family) && target.length >= source.length;
    default:
        return false;
    }
}

} // namespace

std::vector<std::string> Losses(const SCapacity& source, DB_VERSION_INFO to, const std::string& target)
{
    STypeText type = ReadTypeText(to, target);
    if (type.error.GetLength() > 0 || !type.isKnown || source.family == enTypeFamily::Unknown)
        return {};
    CompleteTypeNumbers(to, type);
    const SCapacity here = CapacityOf(to, type);
    if (here.family == enTypeFamily::Unknown)
        return {};

    Texts losses;
    if (source.hasNumbering && !here.hasNumbering)
        losses.emplace_back("numbering: rows are numbered there, not here");
    if (IsText(source.family) && IsText(here.family)) {
        CompareTexts(source, here, losses);
    } else if (IsNumber(source.family) && IsNumber(here.family)) {
        CompareNumbers(source, here, losses);
    } else if (source.family == here.family) {
        if (source.family == enTypeFamily::Timestamp)
            CompareTimes(source, here, losses);
        else if (source.family == enTypeFamily::Interval)
            CompareIntervals(source, here, losses);
        else if (source.family == enTypeFamily::Binary || source.family == enTypeFamily::Bits)
            CompareLengths(source.length, here.length, losses);
    } else if (source.family == enTypeFamily::Bits && here.family == enTypeFamily::Binary) {
        CompareLengths((source.length + 7) / 8, here.length, losses);
    } else if (!HoldsAll(source, here)) {
        losses.push_back(std::string("family: ") + FamilyName(source.family) + " there, " +
                         FamilyName(here.family) + " here");
    }
    return losses;
}

} // namespace uvtypes
