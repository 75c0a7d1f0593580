#pragma once

namespace Uve {

// Character classes of code points. None depends on the process's locale, save iswalnum_l.
class UChar
{
public:
    // 9 to 13 and 32.
    static bool isspace(char32_t codePoint);
    // The former and the blanks and separators of Unicode, without the no-break ones.
    static bool iswspace(char32_t codePoint);
    // ASCII letters and digits.
    static bool isalnum(char32_t codePoint);
    // Letters and decimal digits of any script.
    static bool iswalnum(char32_t codePoint);
    static bool iswalpha(char32_t codePoint);
    // '0' to '9'.
    static bool iswdigit(char32_t codePoint);
    // What the C library thinks under "en_US.UTF8", or "C.UTF-8" where that isn't installed. Looks the locale
    // up at each call.
    static bool iswalnum_l(char32_t codePoint);
};

class u8char
{
public:
    static bool isspace(char32_t codePoint) { return UChar::isspace(codePoint); }
    static bool iswspace(char32_t codePoint) { return UChar::iswspace(codePoint); }
    // 10 and 13.
    static bool isnewline(char32_t codePoint) { return codePoint == 10 || codePoint == 13; }
};

} // namespace Uve
