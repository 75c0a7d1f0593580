// One code point in each of the encoding forms. The plain pieces that the conversions are made of: no
// allocation, no reading or writing outside what they are told. Its decoder is the one for bytes that may not
// be UTF-8: it tells what is malformed, and nothing of it gets through. UVEUnicode.h walks the texts of the
// system, which it takes as they are.
#pragma once

#include <cstddef>

namespace Uve::CodePoints {

constexpr unsigned int kReplacement = 0xFFFD;
constexpr unsigned int kLast = 0x10FFFF;

constexpr bool IsSurrogate(unsigned int codePoint)
{
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

constexpr bool IsScalarValue(unsigned int codePoint)
{
    return codePoint <= kLast && !IsSurrogate(codePoint);
}

// Bytes that EncodeUtf8 writes.
constexpr int Utf8Length(unsigned int codePoint)
{
    if (codePoint < 0x80)
        return 1;
    if (codePoint < 0x800)
        return 2;
    return codePoint < 0x10000 || codePoint > kLast ? 3 : 4;
}

// Writes up to four bytes; what isn't a scalar value is written as the replacement character.
// Returns: the bytes written.
constexpr int EncodeUtf8(unsigned int codePoint, char* out)
{
    if (!IsScalarValue(codePoint))
        codePoint = kReplacement;
    const int length = Utf8Length(codePoint);
    constexpr unsigned char kLead[] = {0, 0, 0xC0, 0xE0, 0xF0};
    for (int i = length - 1; i > 0; --i) {
        out[i] = static_cast<char>(0x80 | (codePoint & 0x3F));
        codePoint >>= 6;
    }
    out[0] = static_cast<char>(kLead[length] | codePoint);
    return length;
}

// Writes one or two units.
// Returns: the units written.
constexpr int EncodeUtf16(unsigned int codePoint, unsigned short* out)
{
    if (!IsScalarValue(codePoint))
        codePoint = kReplacement;
    if (codePoint < 0x10000) {
        out[0] = static_cast<unsigned short>(codePoint);
        return 1;
    }
    out[0] = static_cast<unsigned short>(0xD800 + ((codePoint - 0x10000) >> 10));
    out[1] = static_cast<unsigned short>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
    return 2;
}

enum class enDecoded
{
    Character,
    Malformed, // `length` bytes to step over, the code point is the replacement character
    Truncated  // the input ends within a sequence that was sound so far
};

struct SDecoded
{
    enDecoded kind;
    std::size_t length; // bytes
    unsigned int codePoint;
};

// Reads the sequence at `bytes`, of which `available` (at least 1) are there. A malformed one ends before the
// first byte that can't belong to it.
constexpr SDecoded DecodeUtf8(const unsigned char* bytes, std::size_t available)
{
    const unsigned int lead = bytes[0];
    if (lead < 0x80)
        return {enDecoded::Character, 1, lead};

    // The second byte's range is narrower after four of the leads: it keeps out overlong forms, surrogates
    // and what lies above the last code point.
    std::size_t length = 0;
    unsigned int lowest = 0x80;
    unsigned int highest = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0)
            lowest = 0xA0;
        else if (lead == 0xED)
            highest = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0)
            lowest = 0x90;
        else if (lead == 0xF4)
            highest = 0x8F;
    } else {
        return {enDecoded::Malformed, 1, kReplacement};
    }

    unsigned int codePoint = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= available)
            return {enDecoded::Truncated, 0, 0};
        if (bytes[i] < lowest || bytes[i] > highest)
            return {enDecoded::Malformed, i, kReplacement};
        codePoint = codePoint << 6 | (bytes[i] & 0x3F);
        lowest = 0x80;
        highest = 0xBF;
    }
    return {enDecoded::Character, length, codePoint};
}

} // namespace Uve::CodePoints
