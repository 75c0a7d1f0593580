// Code pages, lists of numbers, and the placeholders of generated literals.
#include "UVEnvironment/UVECodePoints.h"
#include "UVEnvironment/UVECompat.h"
#include "UVEnvironment/UVEEncoding.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace {

struct SPlaceholder
{
    std::string_view token;
    std::string_view constant;
};

// Tried in this order: a literal with several placeholders is cut by the first one first.
// clang-format off
constexpr SPlaceholder kPlaceholders[] = {
    {"ORVANTA_REPLACE_INFORMATION_SEPARATOR_FOUR",  "Sep.D"},
    {"ORVANTA_REPLACE_INFORMATION_SEPARATOR_THREE", "Sep.C"},
    {"ORVANTA_REPLACE_INFORMATION_SEPARATOR_TWO",   "Sep.B"},
    {"ORVANTA_REPLACE_INFORMATION_SEPARATOR_ONE",   "Sep.A"},
    {"ORVANTA_REPLACE_ESCAPE",                      "Sep.E"},
    {"ORVANTA_REPLACE_SUBSTITUTE",                  "Sep.F"},
    {"ORVANTA_REPLACE_END_OF_MEDIUM",               "Sep.G"},
    {"ORVANTA_REPLACE_CANCEL",                      "Sep.H"},
};

// 128 to 159 of Windows-1252; 0: no character.
constexpr std::array<unsigned short, 32> kWindows1252 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

struct SCharsetSize
{
    const char* name;
    int bytes;
};

constexpr SCharsetSize kMySqlCharsets[] = {
    {"utf8mb4", 4},
    {"utf8",    3},
    {"ujis",    3},
    {"eucjpms", 3},
    {"ucs2",    2},
    {"sjis",    2},
    {"gbk",     2},
    {"euckr",   2},
    {"cp932",   2},
    {"big5",    2},
};
// clang-format on

// Cuts `literal` (with its quotes) at each `token` and joins the pieces by the constant. A piece that is a
// lone quote is an empty string at the literal's end and is left out.
std::string Concatenate(std::string_view literal, std::string_view token, std::string_view constant)
{
    std::string result;
    std::size_t begin = 0;
    for (std::size_t hit = literal.find(token); hit != std::string_view::npos;
         hit = literal.find(token, begin)) {
        const std::string_view piece = literal.substr(begin, hit - begin);
        if (begin != 0)
            result.append(" + \"").append(piece).append("\" + ");
        else if (piece != "\"")
            result.append(piece).append("\" + ");
        result.append(constant);
        begin = hit + token.size();
    }
    const std::string_view last = literal.substr(begin);
    if (last != "\"")
        result.append(" + \"").append(last);
    return result;
}

// Returns: the offset of the quote that closes the literal opened at `open`, npos without one.
std::size_t FindClosingQuote(const std::string& text, std::size_t open)
{
    std::size_t close = text.find('"', open + 1);
    while (close != std::string::npos && text[close - 1] == '\\')
        close = text.find('"', close + 1);
    return close;
}

template <class Text>
Text FormatCodePoint(unsigned int codePoint, typename Text::value_type fill, int width)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    Text digits;
    do {
        digits.insert(digits.begin(), static_cast<typename Text::value_type>(kDigits[codePoint % 16]));
        codePoint /= 16;
    } while (codePoint != 0);
    if (width > 0 && digits.size() < static_cast<std::size_t>(width))
        digits.insert(0, static_cast<std::size_t>(width) - digits.size(), fill);
    Text result;
    result.push_back('~');
    result.push_back('u');
    return result + digits;
}

template <class Add>
void ReadNumbers(const Uve::U8CString& list, int base, Add add)
{
    int position = 0;
    for (;;) {
        const Uve::U8CString piece = list.Tokenize(",", position);
        if (position == -1)
            return;
        const long number = std::strtol(piece.c_str(), nullptr, base);
        const bool isCharacter = number >= 0 && number <= static_cast<long>(Uve::CodePoints::kLast);
        add(isCharacter ? static_cast<unsigned int>(number) : Uve::CodePoints::kReplacement);
    }
}

} // namespace

namespace UVDB {

unsigned int GetACP()
{
    return Uve::Compat::GetACP();
}

bool DoesCodePageRequireUnicode(bool for1251)
{
    return DoesCodePageRequireUnicode(GetACP(), for1251);
}

bool DoesCodePageRequireUnicode(unsigned int codePage, bool for1251)
{
    switch (codePage) {
    case 850:
    case 932:
    case 936:
    case 949:
    case 950:
    case 1361:
        return true;
    case 1251:
        return for1251;
    default:
        return false;
    }
}

int CP1252ToUnicode(int character)
{
    return character < 128 || character > 159 ? character
                                              : kWindows1252[static_cast<std::size_t>(character - 128)];
}

std::string CP1252ToUnicode(unsigned char character, char fill, int width)
{
    return FormatCodePoint<std::string>(static_cast<unsigned int>(CP1252ToUnicode(int{character})), fill,
                                        width);
}

std::wstring UTF8ToUnicode(int codePoint, wchar_t fill, int width)
{
    return FormatCodePoint<std::wstring>(static_cast<unsigned int>(codePoint), fill, width);
}

std::wstring GetUTF8ListFromString(const std::wstring& text, int base)
{
    std::wstring list;
    for (const wchar_t character : text) {
        char number[16];
        std::snprintf(number, sizeof number, base == 16 ? "%X," : "%u,",
                      static_cast<unsigned int>(character));
        list.append(number, number + std::char_traits<char>::length(number));
    }
    return list;
}

std::wstring ConvertUTF8ListToString(const std::wstring& list, int base)
{
    std::wstring text;
    ReadNumbers(Uve::WideToUTF8(list), base,
                [&](unsigned int number) { text.push_back(static_cast<wchar_t>(number)); });
    return text;
}

std::string ConvertUTF8ListToString(const std::string& list, int base)
{
    std::string text;
    ReadNumbers(list, base, [&](unsigned int number) {
        char bytes[4];
        text.append(bytes, static_cast<std::size_t>(Uve::Encoding::UTF8::cp2UTF8(number, bytes)));
    });
    return text;
}

int GetMySQLCharsetMaxSize(const char* name)
{
    for (const SCharsetSize& charset : kMySqlCharsets) {
        if (Uve::Compat::stricmp(charset.name, name) == 0)
            return charset.bytes;
    }
    return 1;
}

void HandleOrvantaReplaceSymbols(std::string& text)
{
    std::string output;
    std::size_t done = 0;
    for (;;) {
        const std::size_t open = text.find('"', done);
        const std::size_t close = open == std::string::npos ? open : FindClosingQuote(text, open);
        if (close == std::string::npos)
            break;
        output.append(text, done, open - done);
        done = close + 1;

        std::string literal = text.substr(open, done - open);
        for (const SPlaceholder& placeholder : kPlaceholders) {
            if (literal.find(placeholder.token) != std::string::npos)
                literal = Concatenate(literal, placeholder.token, placeholder.constant);
        }
        output += literal;
    }
    output.append(text, done, std::string::npos);
    text = std::move(output);
}

} // namespace UVDB
