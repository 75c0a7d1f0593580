// What the internal types mean.
#pragma once

namespace uvtypes {

enum class enFamily
{
    Unknown,
    Text,
    NationalText,
    Binary,
    Bits,
    Integer,
    Decimal,
    Float,
    Boolean,
    DateTime, // dates, times of day, and both
    Interval,
    Uuid,
    Xml,
    Json,
    Spatial,
    RowId,
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

struct SMeaning
{
    long type;
    enFamily family;
    unsigned fields = 0;  // of dates, times and intervals
    bool hasZone = false; // of times
    int bits = 0;         // of integers, negative where they have no sign; of the significand of floats
};

// The meaning of an internal type; null for numbers that have none.
const SMeaning* MeaningOf(long type);

} // namespace uvtypes
