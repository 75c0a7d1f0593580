// One row of a data type table, and how rows are written. A table shows of each row only what distinguishes
// it.
#pragma once

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

// What a size of a row counts.
enum enColumnSizePurpose : std::uint64_t
{
    UVDB_SIZE_IS_LENGTH = 0,
    UVDB_SIZE_IS_PRECISION = 1
};

// A type name of a database or language with the sizes that it takes. The texts are literals.
struct SDataTypeParams
{
    std::int64_t uvdbType = 0;    // internal type number, -1 in the null row
    const char* name = "";        // "()" marks where parameters go
    std::uint64_t columnSize = 0; // largest length or precision that this row accepts
    std::uint64_t columnSizePurpose = UVDB_SIZE_IS_LENGTH;
    std::int64_t leadingPrecision = 0; // largest one, of intervals
    bool isLeadingPrecisionValid = false;
    std::int64_t minScale = 0;
    std::int64_t maxScale = 0;
    bool isScaleValid = false;
    bool isPrecScaleFixed = false; // precision and scale are implied by the name
    const char* createParams = ""; // the words that become parameters, such as "PRECISION,SCALE"
    bool isSynonym = false;        // a further spelling of a type declared before it
};

// Whether `word`, as a whole, is one of the row's createParams.
constexpr bool TakesParameter(const SDataTypeParams& row, std::string_view word)
{
    std::string_view words = row.createParams;
    while (!words.empty()) {
        const std::size_t end = std::min(words.find_first_of(",;"), words.size());
        if (words.substr(0, end) == word)
            return true;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return false;
}

// What look-ups answer where a row is asked for and none exists.
inline constexpr SDataTypeParams kNullSDataTypeParams{.uvdbType = -1, .name = "%inVlD%"};

namespace UVDBRows {

// A name without parameters. `size` is what its values can take: bytes, characters or, for dates and times,
// characters of the text form.
constexpr SDataTypeParams Plain(enInternalType type, const char* name, std::uint64_t size = 0)
{
    return {.uvdbType = type, .name = name, .columnSize = size};
}

// A name with a length.
constexpr SDataTypeParams Sized(enInternalType type, const char* name, std::uint64_t size,
                                const char* createParams = "LENGTH")
{
    return {.uvdbType = type, .name = name, .columnSize = size, .createParams = createParams};
}

// A number without parameters: `digits` of precision.
constexpr SDataTypeParams Whole(enInternalType type, const char* name, std::uint64_t digits)
{
    return {
        .uvdbType = type, .name = name, .columnSize = digits, .columnSizePurpose = UVDB_SIZE_IS_PRECISION};
}

// A number with a precision of its own, without a scale.
constexpr SDataTypeParams Precise(enInternalType type, const char* name, std::uint64_t digits,
                                  const char* createParams = "PRECISION")
{
    return {.uvdbType = type,
            .name = name,
            .columnSize = digits,
            .columnSizePurpose = UVDB_SIZE_IS_PRECISION,
            .createParams = createParams};
}

// A number with precision and scale.
constexpr SDataTypeParams Scaled(enInternalType type, const char* name, std::uint64_t digits,
                                 std::int64_t minScale, std::int64_t maxScale,
                                 const char* createParams = "PRECISION,SCALE")
{
    return {.uvdbType = type,
            .name = name,
            .columnSize = digits,
            .columnSizePurpose = UVDB_SIZE_IS_PRECISION,
            .minScale = minScale,
            .maxScale = maxScale,
            .isScaleValid = true,
            .createParams = createParams};
}

// A number whose precision and scale the name implies, such as a currency.
constexpr SDataTypeParams Fixed(enInternalType type, const char* name, std::uint64_t digits,
                                std::int64_t scale)
{
    return {.uvdbType = type,
            .name = name,
            .columnSize = digits,
            .columnSizePurpose = UVDB_SIZE_IS_PRECISION,
            .minScale = scale,
            .maxScale = scale,
            .isScaleValid = true,
            .isPrecScaleFixed = true};
}

// A time with digits after the second. `size`: characters of the longest text form.
constexpr SDataTypeParams Timed(enInternalType type, const char* name, std::uint64_t size,
                                std::int64_t minScale, std::int64_t maxScale,
                                const char* createParams = "SCALE")
{
    return {.uvdbType = type,
            .name = name,
            .columnSize = size,
            .minScale = minScale,
            .maxScale = maxScale,
            .isScaleValid = true,
            .createParams = createParams};
}

// An interval with a leading precision.
constexpr SDataTypeParams Led(enInternalType type, const char* name, std::uint64_t size,
                              std::int64_t leadingPrecision, const char* createParams = "LEADING PRECISION")
{
    return {.uvdbType = type,
            .name = name,
            .columnSize = size,
            .leadingPrecision = leadingPrecision,
            .isLeadingPrecisionValid = true,
            .createParams = createParams};
}

// An interval with a leading precision and digits after the second.
constexpr SDataTypeParams LedTimed(enInternalType type, const char* name, std::uint64_t size,
                                   std::int64_t leadingPrecision, std::int64_t minScale,
                                   std::int64_t maxScale,
                                   const char* createParams = "LEADING PRECISION;SCALE")
{
    SDataTypeParams row = Led(type, name, size, leadingPrecision, createParams);
    row.minScale = minScale;
    row.maxScale = maxScale;
    row.isScaleValid = true;
    return row;
}

// A further spelling of a type declared before.
constexpr SDataTypeParams Synonym(SDataTypeParams row)
{
    row.isSynonym = true;
    return row;
}

} // namespace UVDBRows
