#include "UVEnvironment/UVEEncoding.h"

#include "UVEnvironment/UVECodePoints.h"
#include "UVEnvironment/UVEU8String.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace {

using namespace Uve::CodePoints;

// A place for a conversion's result that never grows.
struct SBoundedOutput
{
    unsigned char* next;
    unsigned char* end;

    // Returns: false if the code point doesn't fit.
    bool Add(unsigned int codePoint)
    {
        const int length = Utf8Length(codePoint);
        if (end - next < length)
            return false;
        EncodeUtf8(codePoint, reinterpret_cast<char*>(next));
        next += length;
        return true;
    }
};

struct SStringOutput
{
    std::string text;

    bool Add(unsigned int codePoint)
    {
        char bytes[4];
        text.append(bytes, static_cast<std::size_t>(EncodeUtf8(codePoint, bytes)));
        return true;
    }
};

template <bool kBigEndian>
unsigned int Unit16(const unsigned char* bytes)
{
    const unsigned int high = bytes[kBigEndian ? 0 : 1];
    return high << 8 | bytes[kBigEndian ? 1 : 0];
}

template <bool kBigEndian>
SDecoded DecodeUtf16(const unsigned char* bytes, std::size_t available)
{
    if (available < 2)
        return {enDecoded::Truncated, 0, 0};
    const unsigned int unit = Unit16<kBigEndian>(bytes);
    if (!IsSurrogate(unit))
        return {enDecoded::Character, 2, unit};
    if (unit >= 0xDC00)
        return {enDecoded::Malformed, 2, kReplacement};
    if (available < 4)
        return {enDecoded::Truncated, 0, 0};
    const unsigned int low = Unit16<kBigEndian>(bytes + 2);
    if (low < 0xDC00 || low > 0xDFFF)
        return {enDecoded::Malformed, 2, kReplacement};
    return {enDecoded::Character, 4, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00)};
}

template <bool kBigEndian>
SDecoded DecodeUtf32(const unsigned char* bytes, std::size_t available)
{
    if (available < 4)
        return {enDecoded::Truncated, 0, 0};
    unsigned int codePoint = 0;
    for (int i = 0; i < 4; ++i)
        codePoint = codePoint << 8 | bytes[kBigEndian ? i : 3 - i];
    if (!IsScalarValue(codePoint))
        return {enDecoded::Malformed, 4, kReplacement};
    return {enDecoded::Character, 4, codePoint};
}

// Runs `decode` over the input, with a replacement for what is malformed, until the input or the room ends.
template <class Decode, class Output>
void Convert(Decode decode, const unsigned char* input, std::size_t inputSize, Output& output)
{
    std::size_t at = 0;
    while (at < inputSize) {
        const SDecoded decoded = decode(input + at, inputSize - at);
        if (decoded.kind == enDecoded::Truncated || !output.Add(decoded.codePoint))
            return;
        at += decoded.length;
    }
}

template <class Decode>
std::size_t ConvertToBuffer(Decode decode, const unsigned char* input, std::size_t inputSize,
                            unsigned char* output, std::size_t outputSize)
{
    if (input == nullptr || output == nullptr)
        return 0;
    SBoundedOutput bounded{output, output + outputSize};
    Convert(decode, input, inputSize, bounded);
    return static_cast<std::size_t>(bounded.next - output);
}

template <class Decode>
Uve::U8CString ConvertToString(Decode decode, const char* bytes, std::size_t size)
{
    SStringOutput output;
    if (bytes != nullptr)
        Convert(decode, reinterpret_cast<const unsigned char*>(bytes), size, output);
    return Uve::U8CString(std::move(output.text));
}

// libxml2's argument form: the output's room and the input may both end in the middle, malformed input is
// reported.
template <class Decode, class Add>
int ConvertReporting(Decode decode, Add add, unsigned char* out, int* outSize, const unsigned char* in,
                     int* inSize)
{
    if (out == nullptr || outSize == nullptr || in == nullptr || inSize == nullptr || *outSize < 0 ||
        *inSize < 0)
        return -1;
    const std::size_t available = static_cast<std::size_t>(*inSize);
    std::size_t consumed = 0;
    SBoundedOutput output{out, out + *outSize};
    bool malformed = false;
    while (consumed < available) {
        const SDecoded decoded = decode(in + consumed, available - consumed);
        malformed = decoded.kind == enDecoded::Malformed;
        if (decoded.kind != enDecoded::Character || !add(output, decoded.codePoint))
            break;
        consumed += decoded.length;
    }
    *inSize = static_cast<int>(consumed);
    *outSize = static_cast<int>(output.next - out);
    return malformed ? -2 : *outSize;
}

bool AddUtf8(SBoundedOutput& output, unsigned int codePoint)
{
    return output.Add(codePoint);
}

bool AddUtf16LE(SBoundedOutput& output, unsigned int codePoint)
{
    unsigned short units[2];
    const int count = EncodeUtf16(codePoint, units);
    if (output.end - output.next < 2L * count)
        return false;
    for (int i = 0; i < count; ++i) {
        *output.next++ = static_cast<unsigned char>(units[i] & 0xFF);
        *output.next++ = static_cast<unsigned char>(units[i] >> 8);
    }
    return true;
}

std::string EncodeWide(std::wstring_view text)
{
    SStringOutput output;
    output.text.reserve(text.size());
    for (const wchar_t character : text)
        output.Add(static_cast<unsigned int>(character));
    return std::move(output.text);
}

std::size_t CountUnits(const Uve::SqlWchar* text, long length)
{
    if (text == nullptr)
        return 0;
    if (length >= 0)
        return static_cast<std::size_t>(length);
    std::size_t count = 0;
    while (text[count] != 0)
        ++count;
    return count;
}

// ODBC's text as bytes: UTF-16 in the order of the machine, which is little endian on every platform of the
// system.
static_assert(std::endian::native == std::endian::little);
constexpr auto kDecodeSqlWchar = DecodeUtf16<false>;

} // namespace

namespace Uve::Encoding::UTF8 {

int cp2UTF8(unsigned int codePoint, char* out)
{
    return EncodeUtf8(codePoint, out);
}

std::size_t UTF16LEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize)
{
    return ConvertToBuffer(DecodeUtf16<false>, input, inputSize, output, outputSize);
}

std::size_t UTF16BEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize)
{
    return ConvertToBuffer(DecodeUtf16<true>, input, inputSize, output, outputSize);
}

std::size_t UTF32LEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize)
{
    return ConvertToBuffer(DecodeUtf32<false>, input, inputSize, output, outputSize);
}

std::size_t UTF32BEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize)
{
    return ConvertToBuffer(DecodeUtf32<true>, input, inputSize, output, outputSize);
}

U8CString FromUTF16LE(const char* bytes, std::size_t size)
{
    return ConvertToString(DecodeUtf16<false>, bytes, size);
}

U8CString FromUTF16BE(const char* bytes, std::size_t size)
{
    return ConvertToString(DecodeUtf16<true>, bytes, size);
}

U8CString FromUTF32LE(const char* bytes, std::size_t size)
{
    return ConvertToString(DecodeUtf32<false>, bytes, size);
}

U8CString FromUTF32BE(const char* bytes, std::size_t size)
{
    return ConvertToString(DecodeUtf32<true>, bytes, size);
}

U8CString FromSystem(const char* bytes, std::size_t size)
{
    return U8CString(bytes, size);
}

} // namespace Uve::Encoding::UTF8

namespace Uve {

U8CString SystemToUTF8(std::string_view text)
{
    return U8CString(text);
}

std::string UTF8ToSystem(std::string_view text)
{
    return std::string(text);
}

std::wstring UTF8ToWide(std::string_view text)
{
    std::wstring wide;
    wide.reserve(text.size());
    struct SWideOutput
    {
        std::wstring& text;
        bool Add(unsigned int codePoint)
        {
            text.push_back(static_cast<wchar_t>(codePoint));
            return true;
        }
    } output{wide};
    Convert(DecodeUtf8, reinterpret_cast<const unsigned char*>(text.data()), text.size(), output);
    return wide;
}

U8CString WideToUTF8(std::wstring_view text)
{
    return U8CString(EncodeWide(text));
}

U8CString SqlWcharToUTF8String(const SqlWchar* text, long length)
{
    return ConvertToString(kDecodeSqlWchar, reinterpret_cast<const char*>(text),
                           CountUnits(text, length) * sizeof(SqlWchar));
}

std::size_t SqlWcharToUTF8Char(const SqlWchar* text, long length, char* out, std::size_t outSize)
{
    if (out == nullptr || outSize == 0)
        return 0;
    const std::size_t written = ConvertToBuffer(kDecodeSqlWchar, reinterpret_cast<const unsigned char*>(text),
                                                CountUnits(text, length) * sizeof(SqlWchar),
                                                reinterpret_cast<unsigned char*>(out), outSize - 1);
    out[written] = '\0';
    return written;
}

std::vector<SqlWchar> UTF8StringToSqlWchar(std::string_view text)
{
    std::vector<SqlWchar> units;
    units.reserve(text.size() + 1);
    struct SUnitOutput
    {
        std::vector<SqlWchar>& units;
        bool Add(unsigned int codePoint)
        {
            SqlWchar pair[2];
            units.insert(units.end(), pair, pair + EncodeUtf16(codePoint, pair));
            return true;
        }
    } output{units};
    Convert(DecodeUtf8, reinterpret_cast<const unsigned char*>(text.data()), text.size(), output);
    units.push_back(0);
    return units;
}

} // namespace Uve

namespace UVDB {

int UTF16LEToUTF8(unsigned char* out, int* outSize, const unsigned char* in, int* inSize)
{
    return ConvertReporting(DecodeUtf16<false>, AddUtf8, out, outSize, in, inSize);
}

int UTF16BEToUTF8(unsigned char* out, int* outSize, const unsigned char* in, int* inSize)
{
    return ConvertReporting(DecodeUtf16<true>, AddUtf8, out, outSize, in, inSize);
}

int UTF8ToUTF16LE(unsigned char* out, int* outSize, const unsigned char* in, int* inSize)
{
    return ConvertReporting(DecodeUtf8, AddUtf16LE, out, outSize, in, inSize);
}

bool IsUtf8(std::string_view text)
{
    return text.starts_with("\xEF\xBB\xBF");
}

bool IsValidUTF8(std::string_view text)
{
    return FindInvalidUTF8(text) == std::string_view::npos;
}

std::size_t FindInvalidUTF8(std::string_view text)
{
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    const std::size_t size = text.size();
    std::size_t at = 0;
    while (at < size) {
        // Sources are ASCII for long stretches: eight bytes at a time.
        while (size - at >= 8) {
            std::uint64_t word;
            std::memcpy(&word, bytes + at, sizeof word);
            if ((word & 0x8080808080808080u) != 0)
                break;
            at += 8;
        }
        while (at < size && bytes[at] < 0x80)
            ++at;
        while (at < size && bytes[at] >= 0x80) {
            const SDecoded decoded = DecodeUtf8(bytes + at, size - at);
            if (decoded.kind != enDecoded::Character)
                return at;
            at += decoded.length;
        }
    }
    return std::string_view::npos;
}

void UTF8Toisolat1(std::string_view text, std::string& out)
{
    out.assign(text);
}

void isolat1ToUTF8(std::string_view text, std::string& out)
{
    out.assign(text);
}

void isolat1ToUTF8(std::string_view text, Uve::u8string& out)
{
    out = Uve::u8string(std::string(text));
}

std::wstring s2ws(std::string_view text)
{
    return Uve::UTF8ToWide(text);
}

std::string ws2s(std::wstring_view text)
{
    return EncodeWide(text);
}

std::string WCSToMBS(const wchar_t* text)
{
    return text == nullptr ? std::string() : EncodeWide(text);
}

std::string WideToMultibyteUTF8(std::wstring_view text)
{
    return EncodeWide(text);
}

} // namespace UVDB
