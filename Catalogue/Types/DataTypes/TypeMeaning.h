// What the internal types mean, apart from how databases spell them.
#pragma once

#include <cstdint>

namespace UVDBMeaning {

enum class enTypeFamily : std::uint8_t
{
    Unknown,
    Text,
    NationalText,
    Binary,
    File, // beside the database
    Bits,
    Integer,
    Decimal,
    Float,
    DecimalFloat, // decimal digits, wherever the point is
    Boolean,
    Date,
    Time,      // of day
    Timestamp, // date and time
    Qualified, // a moment from one part of it to another
    Interval,
    Uuid,
    Xml,
    Json,
    Spatial,
    RowId,      // a row's address
    RowNumber,  // a number that tells rows apart
    RowVersion, // eight bytes that change with the row
    Array,
    Variant,
    Hierarchy,
    Record
};

// The parts of a date and time, and of an interval.
enum enTimeField : unsigned
{
    kYear = 1,
    kMonth = 2,
    kDay = 4,
    kHour = 8,
    kMinute = 16,
    kSecond = 32
};

inline constexpr unsigned kDate = kYear | kMonth | kDay;
inline constexpr unsigned kTime = kHour | kMinute | kSecond;

struct STypeMeaning
{
    enTypeFamily family = enTypeFamily::Unknown;
    // Of integers, negative where they have no sign; of currencies that count in bits; of the significand of
    // floats; decimal digits of decimal floats.
    int bits = 0;
    unsigned fields = 0;  // of moments and intervals: enTimeField
    bool hasZone = false; // of moments
};

} // namespace UVDBMeaning

// Returns: a meaning of unknown family for numbers that are no internal types.
const UVDBMeaning::STypeMeaning& MeaningOfInternalType(std::int64_t uvdbType);
