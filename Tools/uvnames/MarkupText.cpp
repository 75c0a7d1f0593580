#include "Tools/uvnames/MarkupText.h"

#include "UVEnvironment/UVEEncoding.h"
#include "UVEnvironment/UVEXmlText.h"

namespace uvnames {

namespace {

constexpr const char* kReplacement = "\xEF\xBF\xBD";

// What readers of markup would take for blanks.
constexpr const char* kWhiteSpace[][2] = {{"\t", "&#9;"}, {"\n", "&#10;"}, {"\r", "&#13;"}};

bool IsRefused(char c)
{
    return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
}

} // namespace

std::string MarkupText(std::string_view text)
{
    const Uve::U8CString valid =
        UVDB::IsValidUTF8(text) ? Uve::U8CString(text) : Uve::WideToUTF8(Uve::UTF8ToWide(text));
    Uve::U8CString plain;
    for (const char c : valid) {
        if (IsRefused(c))
            plain += kReplacement;
        else
            plain += c;
    }
    Uve::U8CString markup = UVDBEscapeXML(plain);
    for (const auto& [character, reference] : kWhiteSpace)
        markup.Replace(character, reference);
    return {markup.data(), markup.size()};
}

} // namespace uvnames
