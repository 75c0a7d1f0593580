// What a type with its numbers holds, by the meaning of its internal type and apart from all sheaves: the
// judge in tests that map types from one database to another.
//
// Lengths count characters, bytes or bits as the family does; a byte and a character count the same.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeRow.h"
#include "Catalogue/Types/DataTypes/TypeMeaning.h"

#include <cstdint>
#include <limits>
#include <vector>

using UVDBMeaning::enTypeFamily;

const char* FamilyText(enTypeFamily family);

// The families by which types are compared: rows are identified in any way.
// Returns: Unknown for a number that is no internal type.
enTypeFamily FamilyOf(std::int64_t uvdbType);

constexpr bool IsLongNational(std::int64_t uvdbType)
{
    return uvdbType == UVDBRows::LongNVarChar || uvdbType == UVDBRows::LongVarWChar ||
           uvdbType == UVDBRows::UniText;
}

inline constexpr unsigned kAllFields = UVDBMeaning::kDate | UVDBMeaning::kTime;

// What one type with its numbers can hold. Only what belongs to the family is set.
struct STypeCapacity
{
    enTypeFamily family = enTypeFamily::Unknown;
    std::uint64_t length = 0; // of texts, bytes and bits; of other families the length of their text form
    long wholeDigits = 0;     // of exact numbers: before the point
    long fractionDigits = 0;  // after it
    long digits = 0;          // both together
    bool hasNegativeScale = false; // the last digits before the point are always 0
    int integerBits = 0;           // of integers that count in bits
    bool isSigned = true;
    long significand = 0;   // of floats: binary digits, of decimal ones decimal digits
    unsigned fields = 0;    // of times and intervals: UVDBMeaning::enTimeField
    long secondDigits = 0;  // after the second
    long leadingDigits = 0; // of an interval's first field; 0: not known
    bool hasZone = false;
};

// As a scale: the type takes none, its point may be anywhere.
inline constexpr long kAnyScale = std::numeric_limits<long>::min();

// What a row holds when its type is written with these numbers; those above the row's limits are cut. A size
// of 0 is the largest.
STypeCapacity CapacityOf(const SDataTypeParams& row, std::uint64_t size, long scale, long leadingPrecision);

enum class enTypeLoss
{
    Length,
    WholeDigits,    // before the point
    FractionDigits, // after it
    NegativeScale,  // its digits
    Sign,
    Significand,
    Fields,
    SecondDigits,
    LeadingDigits,
    Zone
};

const char* LossText(enTypeLoss loss);

// In what `target` is below `source`. Families may differ: what counts is whether the values fit.
std::vector<enTypeLoss> LossesOf(const STypeCapacity& source, const STypeCapacity& target);
