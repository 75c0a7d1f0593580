// What a type can hold.
//
// This goes by the meaning of internal types and by the numbers of a type's row, and not by the mapping: so
// it tells of rows that map badly, too. A byte and a character count the same.
#pragma once

#include "Catalogue/UVDBTypeText.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "Tools/uvtypes/Meaning.h"

#include <cstdint>

namespace uvtypes {

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

} // namespace uvtypes
