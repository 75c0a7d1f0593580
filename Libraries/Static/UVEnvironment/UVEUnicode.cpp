#include "UVEnvironment/UVEUnicode.h"

#include "UVEnvironment/UVEUnicodeTables.h"

#include <algorithm>
#include <limits>

namespace Uve {

namespace {

constexpr char32_t kCodePointEnd = 0x110000;

// The payload bits of a lead byte by the width of its sequence.
constexpr unsigned char kLeadMask[] = {0, 0xFF, 0x1F, 0x0F, 0x07, 0x03, 0x01};
constexpr unsigned char kLeadMark[] = {0, 0x00, 0xC0, 0xE0, 0xF0, 0xF8, 0xFC};

const char* EndOfCharacter(const char* text)
{
    return text + strnlen(text, 6);
}

// The simple mapping that an attribute value stands for; 0 if none.
char32_t SimpleMapping(std::uint32_t attribute)
{
    return attribute < Tables::kSpecialCase ? attribute
                                            : Tables::specialCases[attribute - Tables::kSpecialCase];
}

const Tables::STitleCase* FindTitleCase(char32_t codePoint)
{
    const auto row = std::ranges::lower_bound(Tables::titleCases, codePoint, {}, &Tables::STitleCase::title);
    return row != Tables::titleCases.end() && row->title == codePoint ? &*row : nullptr;
}

// What the tables say of the upper or lower case of a letter, as an attribute value; 0 if it stays.
std::uint32_t CaseValue(char32_t codePoint, bool toUpper)
{
    switch (UnicodeToType(codePoint)) {
    case UNICODE_LOWERCASE_LETTER:
        return toUpper ? Tables::AttributeAt(codePoint) : 0;
    case UNICODE_UPPERCASE_LETTER:
        return toUpper ? 0 : Tables::AttributeAt(codePoint);
    case UNICODE_TITLECASE_LETTER:
        if (const auto* row = FindTitleCase(codePoint))
            return toUpper ? row->upper : row->lower;
        return 0;
    default:
        return 0;
    }
}

char AsciiToUpper(char byte)
{
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

char AsciiToLower(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

// Turkish and Azerbaijani have two letters i: one with a dot in both cases, one without in both.
char32_t DottedMapping(char32_t codePoint, bool toUpper)
{
    if (toUpper)
        return codePoint == U'i' ? 0x130 : 0;
    return codePoint == U'I' ? 0x131 : codePoint == 0x130 ? U'i' : 0;
}

bool HasTwoLettersI(std::string_view locale)
{
    const std::string_view language = locale.substr(0, locale.find_first_of("_-.@"));
    return language == "tr" || language == "az";
}

// Where mapped text goes: first into a measure, since it may be longer or shorter than its source, then into
// memory of that size.
struct SMeasure
{
    std::size_t byteCount = 0;

    void Put(std::string_view part) { byteCount += part.size(); }
    void PutAscii(std::string_view part, bool) { byteCount += part.size(); }
};

struct SWriter
{
    std::string& text;

    void Put(std::string_view part) { text += part; }
    void PutAscii(std::string_view part, bool toUpper)
    {
        const std::size_t start = text.size();
        text += part;
        std::transform(part.begin(), part.end(), text.begin() + static_cast<std::ptrdiff_t>(start),
                       toUpper ? AsciiToUpper : AsciiToLower);
    }
};

template <class Sink>
void PutCodePoint(char32_t codePoint, Sink& sink)
{
    char bytes[6];
    sink.Put(std::string_view(bytes, utf8_from_codepoint(codePoint, bytes)));
}

const char* EndOfAscii(const char* text, const char* end)
{
    while (end - text >= 8 && utf8_is_ascii_run(text))
        text += 8;
    while (text < end && static_cast<unsigned char>(*text) < 0x80)
        ++text;
    return text;
}

template <class Sink>
void MapCase(std::string_view text, bool toUpper, bool twoLettersI, Sink& sink)
{
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        if (!twoLettersI) {
            const char* const asciiEnd = EndOfAscii(at, end);
            sink.PutAscii({at, static_cast<std::size_t>(asciiEnd - at)}, toUpper);
            at = asciiEnd;
            if (at == end)
                break;
        }
        const SUtf8CodePoint read = utf8_decode(at, end);
        const std::string_view source(at, read.bytes);
        at += read.bytes;

        if (const char32_t dotted = twoLettersI ? DottedMapping(read.codePoint, toUpper) : 0)
            PutCodePoint(dotted, sink);
        else if (const std::uint32_t value = read.wellFormed ? CaseValue(read.codePoint, toUpper) : 0;
                 value == 0)
            sink.Put(source);
        else if (value < Tables::kSpecialCase)
            PutCodePoint(value, sink);
        else // the full mapping follows the simple one
            for (std::size_t i = value - Tables::kSpecialCase + 1; Tables::specialCases[i] != 0; ++i)
                PutCodePoint(Tables::specialCases[i], sink);
    }
}

std::string ChangeCase(std::string_view text, bool toUpper, std::string_view locale)
{
    const bool twoLettersI = HasTwoLettersI(locale);
    SMeasure measure;
    MapCase(text, toUpper, twoLettersI, measure);
    std::string result;
    result.reserve(measure.byteCount);
    SWriter writer{result};
    MapCase(text, toUpper, twoLettersI, writer);
    return result;
}

} // namespace

bool utf8_is_ascii(std::string_view text)
{
    const char* const end = text.data() + text.size();
    return EndOfAscii(text.data(), end) == end;
}

const char* utf8_advance(const char* text, const char* end, std::size_t& charCount)
{
    while (charCount > 0 && text < end) {
        if (charCount >= 8 && end - text >= 8 && utf8_is_ascii_run(text)) {
            text += 8;
            charCount -= 8;
        } else {
            text += utf8_width(text, end);
            --charCount;
        }
    }
    return text;
}

const char* utf8_previous(const char* begin, const char* text)
{
    do
        --text;
    while (text > begin && utf8_is_continuation(*text));
    return text;
}

std::size_t utf8_strlen(std::string_view text)
{
    constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();
    std::size_t left = kAll;
    utf8_advance(text.data(), text.data() + text.size(), left);
    return kAll - left;
}

std::size_t utf8_strlen(const char* text, std::ptrdiff_t byteCount)
{
    if (!text)
        return 0;
    const std::size_t size =
        byteCount < 0 ? std::strlen(text) : strnlen(text, static_cast<std::size_t>(byteCount));
    return utf8_strlen(std::string_view(text, size));
}

std::ptrdiff_t utf8_pointer_to_offset(const char* text, const char* position)
{
    if (position < text)
        return -utf8_pointer_to_offset(position, text);
    return static_cast<std::ptrdiff_t>(
        utf8_strlen(std::string_view(text, static_cast<std::size_t>(position - text))));
}

SUtf8CodePoint utf8_decode(const char* text, const char* end)
{
    const auto lead = static_cast<unsigned char>(*text);
    if (lead < 0x80)
        return {lead, 1, true};

    const unsigned width = utf8_skip_data[lead];
    const auto bytes = static_cast<unsigned>(utf8_width(text, end));
    SUtf8CodePoint result{static_cast<char32_t>(lead & kLeadMask[width]), bytes, width > 1 && bytes == width};
    for (unsigned i = 1; i < bytes; ++i) {
        result.codePoint = (result.codePoint << 6) | (static_cast<unsigned char>(text[i]) & 0x3Fu);
        result.wellFormed = result.wellFormed && utf8_is_continuation(text[i]);
    }
    result.wellFormed = result.wellFormed && utf8_codepoint_width(result.codePoint) == width;
    return result;
}

char32_t utf8_to_codepoint(const char* text)
{
    return text && *text ? utf8_decode(text, EndOfCharacter(text)).codePoint : 0;
}

unsigned utf8_codepoint_width(char32_t codePoint)
{
    return codePoint < 0x80        ? 1
           : codePoint < 0x800     ? 2
           : codePoint < 0x10000   ? 3
           : codePoint < 0x200000  ? 4
           : codePoint < 0x4000000 ? 5
                                   : 6;
}

unsigned utf8_from_codepoint(char32_t codePoint, char* out)
{
    const unsigned width = utf8_codepoint_width(codePoint);
    for (unsigned i = width - 1; i > 0; --i) {
        out[i] = static_cast<char>((codePoint & 0x3F) | 0x80);
        codePoint >>= 6;
    }
    out[0] = static_cast<char>((codePoint & kLeadMask[width]) | kLeadMark[width]);
    return width;
}

std::string utf8_from_codepoint(char32_t codePoint)
{
    char bytes[6];
    return {bytes, utf8_from_codepoint(codePoint, bytes)};
}

std::u32string utf8_to_ucs4_fast(std::string_view text)
{
    std::u32string result;
    result.reserve(utf8_strlen(text));
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        const SUtf8CodePoint read = utf8_decode(at, end);
        result += read.codePoint;
        at += read.bytes;
    }
    return result;
}

std::optional<std::string> g_ucs4_to_utf8(std::u32string_view codePoints)
{
    std::size_t byteCount = 0;
    for (const char32_t codePoint : codePoints) {
        if (codePoint >= 0x80000000)
            return std::nullopt;
        byteCount += utf8_codepoint_width(codePoint);
    }
    std::string result(byteCount, '\0');
    char* out = result.data();
    for (const char32_t codePoint : codePoints)
        out += utf8_from_codepoint(codePoint, out);
    return result;
}

enUnicodeType UnicodeToType(char32_t codePoint)
{
    return codePoint < kCodePointEnd ? static_cast<enUnicodeType>(Tables::TypeAt(codePoint))
                                     : UNICODE_UNASSIGNED;
}

std::uint32_t UnicodeToAttribute(char32_t codePoint)
{
    return codePoint < kCodePointEnd ? Tables::AttributeAt(codePoint) : 0;
}

char32_t UnicodeToUpper(char32_t codePoint)
{
    const char32_t mapped = SimpleMapping(CaseValue(codePoint, true));
    return mapped ? mapped : codePoint;
}

char32_t UnicodeToLower(char32_t codePoint)
{
    const char32_t mapped = SimpleMapping(CaseValue(codePoint, false));
    return mapped ? mapped : codePoint;
}

std::string utf8_to_uppercase(std::string_view text, std::string_view locale)
{
    return ChangeCase(text, true, locale);
}

std::string utf8_to_lowercase(std::string_view text, std::string_view locale)
{
    return ChangeCase(text, false, locale);
}

std::string utf8_casefold(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    SWriter writer{result};
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        const char* const asciiEnd = EndOfAscii(at, end);
        writer.PutAscii({at, static_cast<std::size_t>(asciiEnd - at)}, false);
        at = asciiEnd;
        if (at == end)
            break;
        const SUtf8CodePoint read = utf8_decode(at, end);
        const std::string_view source(at, read.bytes);
        at += read.bytes;
        if (!read.wellFormed) {
            writer.Put(source);
            continue;
        }
        const auto row =
            std::ranges::lower_bound(Tables::foldings, read.codePoint, {}, &Tables::SFolding::codePoint);
        if (row != Tables::foldings.end() && row->codePoint == read.codePoint)
            writer.Put(row->text);
        else
            PutCodePoint(UnicodeToLower(read.codePoint), writer);
    }
    return result;
}

} // namespace Uve
