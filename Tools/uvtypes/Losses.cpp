#include "Tools/uvtypes/Losses.h"

#include "Catalogue/UVDBDataTypes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <iterator>

namespace uvtypes {

namespace {

// clang-format off
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
