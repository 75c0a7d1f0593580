// What a type can hold.
//
// This goes by the meaning of internal types and by the numbers of a type's row, and not by the mapping: so
// it tells of rows that map badly, too.
#pragma once

#include "Catalogue/Types/DataTypes/TypeMeaning.h"
#include "Catalogue/Types/UVDBTypeText.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "Tools/uvtypes/TextTraits.h"

#include <cstdint>

namespace uvtypes {

using UVDBMeaning::enTypeFamily;

struct SCapacity
{
    static constexpr long kAnyDigits = 1000; // as many as are wanted

    enTypeFamily family = enTypeFamily::Unknown; // as what other databases store it
    std::uint64_t length = 0;                    // characters, bytes or bits; 0: not known
    bool hasNoLength = false;                    // texts: as long as they come
    STextTraits text;                            // of texts
    bool foldsCase = false;                      // texts: letters in upper and lower case are the same
    std::size_t valueCount = 0;                  // texts: only so many values are allowed; 0: all are
    bool hasNumbering = false;                   // the database numbers the rows by it
    bool isBounded = false;                      // numbers: `least` and `most` are
    double least = 0;
    double most = 0;
    long wholeDigits = 0;        // decimals: before the point
    long fraction = kAnyDigits;  // digits after the point or after the second
    long floatBits = 0;          // of the significand
    bool isDecimalFloat = false; // its digits are decimal ones, so decimals stay exact
    long leadingDigits = 0;      // of an interval's first field; 0: not known
    unsigned fields = 0;         // UVDBMeaning::enTimeField
    bool hasZone = false;
    long firstYear = 1;
    long lastYear = 9999;
};

// Of a type with its numbers completed.
SCapacity CapacityOf(DB_VERSION_INFO version, const STypeText& type);

} // namespace uvtypes
