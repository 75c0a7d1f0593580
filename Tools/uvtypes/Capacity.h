// What a type can hold, and what is lost when one stands for another.
//
// This goes by the meaning of internal types and by the numbers of a type's row, and not by the mapping: so
// it tells of rows that map badly, too. A byte and a character count the same.
#pragma once

#include "Catalogue/UVDBTypeText.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <cstdint>
#include <string>
#include <vector>

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

struct SCapacity
{
    static constexpr long kAnyDigits = 1000; // as many as are wanted

    enFamily family = enFamily::Unknown;
    std::uint64_t length = 0; // characters, bytes or bits; 0: not known
    bool isBounded = false;   // numbers: `least` and `most` are
    double least = 0;
    double most = 0;
    long fraction = kAnyDigits; // digits behind the point or behind the second
    long floatBits = 0;         // of the significand
    long leadingDigits = 0;     // of an interval's first field; 0: not known
    unsigned fields = 0;        // enTimeField
    bool hasZone = false;
    long firstYear = 1;
    long lastYear = 9999;
};

// Of a type with its numbers completed.
SCapacity CapacityOf(DB_VERSION_INFO version, const STypeText& type);

// What `target`, a type as written for `to`, can't take of `source`. Each is a sentence without a full stop;
// none: nothing is lost, or nothing is known of one of both.
std::vector<std::string> Losses(const SCapacity& source, DB_VERSION_INFO to, const std::string& target);

} // namespace uvtypes
