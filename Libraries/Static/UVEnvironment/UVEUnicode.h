#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

// Code points, case, normalisation and collation over UTF-8 text.
//
// UTF-8 is walked by lead bytes alone. Malformed text is never refused: a stray continuation byte counts as
// one character, and a sequence that the end of the text cuts off ends there. Nothing here reads outside the
// text it is given. Code points are 31 bits wide; forms of five and six bytes are accepted. Whether foreign
// bytes are UTF-8 at all is told by UVECodePoints.h, and of a whole text by UVEEncoding.h.
namespace Uve {

namespace Detail {
constexpr std::array<unsigned char, 256> MakeSkipData()
{
    std::array<unsigned char, 256> widths{};
    for (unsigned lead = 0; lead < widths.size(); ++lead)
        widths[lead] = lead < 0xC0   ? 1
                       : lead < 0xE0 ? 2
                       : lead < 0xF0 ? 3
                       : lead < 0xF8 ? 4
                       : lead < 0xFC ? 5
                       : lead < 0xFE ? 6
                                     : 1;
    return widths;
}
} // namespace Detail

// Length in bytes of the sequence that a lead byte opens.
inline constexpr std::array<unsigned char, 256> utf8_skip_data = Detail::MakeSkipData();

// ---- Walking ----

// Bytes from `text` (which is below `end`) to the next character, never beyond `end`.
inline std::size_t utf8_width(const char* text, const char* end)
{
    const std::size_t width = utf8_skip_data[static_cast<unsigned char>(*text)];
    const auto available = static_cast<std::size_t>(end - text);
    return width < available ? width : available;
}

inline bool utf8_is_continuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

// Are the next eight bytes eight characters? Long walks ask this first: most text is ASCII.
inline bool utf8_is_ascii_run(const char* text)
{
    std::uint64_t word = 0;
    std::memcpy(&word, text, sizeof(word));
    return (word & 0x8080808080808080u) == 0;
}

// Is all of `text` below 0x80?
bool utf8_is_ascii(std::string_view text);

// Steps `charCount` characters forward from `text`, or to `end` if that comes first.
// Returns: where it stands; `charCount` holds the steps that were left over.
const char* utf8_advance(const char* text, const char* end, std::size_t& charCount);

// Start of the character before `text`, which is above `begin`: back over continuation bytes.
const char* utf8_previous(const char* begin, const char* text);

// Characters in `text`.
std::size_t utf8_strlen(std::string_view text);

// Characters in the first `byteCount` bytes of `text`, or up to its NUL if that comes first or -1 is given.
std::size_t utf8_strlen(const char* text, std::ptrdiff_t byteCount = -1);

// Characters from `text` to `position`; negative if `position` lies before `text`.
std::ptrdiff_t utf8_pointer_to_offset(const char* text, const char* position);

// ---- Code points ----

struct SUtf8CodePoint
{
    char32_t codePoint = 0;
    unsigned bytes = 0; // taken from the text, 1 to 6
    bool wellFormed =
        false; // complete and no longer than needed; if not, `codePoint` is made of what is there
};

// Reads the character at `text`, which is below `end`.
SUtf8CodePoint utf8_decode(const char* text, const char* end);

// Reads the character at the start of a C string.
char32_t utf8_to_codepoint(const char* text);

// Bytes that `codePoint` takes: 1 up to 0x7F, 2 up to 0x7FF, 3 up to 0xFFFF, 4 up to 0x1FFFFF, 5 below
// 0x4000000, otherwise 6.
unsigned utf8_codepoint_width(char32_t codePoint);

// Writes `codePoint`, below 0x80000000, to `out`, which has room for 6 bytes. Writes no NUL.
// Returns: the bytes written.
unsigned utf8_from_codepoint(char32_t codePoint, char* out);

std::string utf8_from_codepoint(char32_t codePoint);

// Code points of `text`, malformed parts as utf8_decode gives them.
std::u32string utf8_to_ucs4_fast(std::string_view text);

// Returns: the UTF-8 form; nothing if a code point is negative (0x80000000 or more).
std::optional<std::string> g_ucs4_to_utf8(std::u32string_view codePoints);

// ---- Properties ----

// General types, in the order of their two-letter names.
enum enUnicodeType : unsigned char
{
    UNICODE_CONTROL,
    UNICODE_FORMAT,
    UNICODE_UNASSIGNED,
    UNICODE_PRIVATE_USE,
    UNICODE_SURROGATE,
    UNICODE_LOWERCASE_LETTER,
    UNICODE_MODIFIER_LETTER,
    UNICODE_OTHER_LETTER,
    UNICODE_TITLECASE_LETTER,
    UNICODE_UPPERCASE_LETTER,
    UNICODE_SPACING_MARK,
    UNICODE_ENCLOSING_MARK,
    UNICODE_NON_SPACING_MARK,
    UNICODE_DECIMAL_NUMBER,
    UNICODE_LETTER_NUMBER,
    UNICODE_OTHER_NUMBER,
    UNICODE_CONNECT_PUNCTUATION,
    UNICODE_DASH_PUNCTUATION,
    UNICODE_CLOSE_PUNCTUATION,
    UNICODE_FINAL_PUNCTUATION,
    UNICODE_INITIAL_PUNCTUATION,
    UNICODE_OTHER_PUNCTUATION,
    UNICODE_OPEN_PUNCTUATION,
    UNICODE_CURRENCY_SYMBOL,
    UNICODE_MODIFIER_SYMBOL,
    UNICODE_MATH_SYMBOL,
    UNICODE_OTHER_SYMBOL,
    UNICODE_LINE_SEPARATOR,
    UNICODE_PARAGRAPH_SEPARATOR,
    UNICODE_SPACE_SEPARATOR,
};

// Above 0x10FFFF everything is unassigned.
enUnicodeType UnicodeToType(char32_t codePoint);

// The other case of a letter: the upper case letter of a lower case one and the reverse; 0 if it has none or
// `codePoint` is no such letter. From 0x1000000 on, the value less 0x1000000 is where a special case text
// begins.
std::uint32_t UnicodeToAttribute(char32_t codePoint);

// One code point for one. Letters that have no counterpart of a single code point, such as U+00DF, stay.
char32_t UnicodeToUpper(char32_t codePoint);
char32_t UnicodeToLower(char32_t codePoint);

// ---- Case ----

// Text in upper or lower case with the full mappings: U+00DF becomes "SS". Malformed bytes stay as they are.
// `locale` is a locale's name; languages "tr" and "az" keep dotted and dotless i apart, others don't.
std::string utf8_to_uppercase(std::string_view text, std::string_view locale = {});
std::string utf8_to_lowercase(std::string_view text, std::string_view locale = {});

// A form in which texts that differ in case alone are equal. Full folding: U+00DF becomes "ss".
std::string utf8_casefold(std::string_view text);

// ---- Normalisation and collation ----

enum class NormalizeMode
{
    CanonicalDecomposition = 0,
    CanonicalComposition = 1,
    CompatibilityDecomposition = 2,
    CompatibilityComposition = 3,
};

// Sorts every run of combining marks by combining class; marks of one class keep their order.
void g_unicode_canonical_ordering(char32_t* codePoints, std::size_t count);

std::u32string utf8_normalize_wc(std::string_view text, NormalizeMode mode);

// Returns: the normalised text; nothing if it holds a code point that UTF-8 can't express.
std::optional<std::string> utf8_normalize(std::string_view text, NormalizeMode mode);

// Compares two texts by the C library's collation, in compatibility composition.
// Returns: negative, 0 or positive; 0 also if a side is null or can't be normalised.
int utf8_collate(const char* left, const char* right);

} // namespace Uve
