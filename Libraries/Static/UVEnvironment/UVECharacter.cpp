#include "UVEnvironment/UVECharacter.h"

#include "UVEnvironment/UVEUnicode.h"

#include <locale.h>
#include <wctype.h>

namespace Uve {

bool UChar::isspace(char32_t codePoint)
{
    return codePoint == ' ' || (codePoint >= 9 && codePoint <= 13);
}

bool UChar::iswspace(char32_t codePoint)
{
    // 8199 is left out: a figure space keeps the digits of one number together.
    return isspace(codePoint) || codePoint == 5760 || codePoint == 6158 ||
           (codePoint >= 8192 && codePoint <= 8198) || (codePoint >= 8200 && codePoint <= 8202) ||
           codePoint == 8232 || codePoint == 8233 || codePoint == 8287 || codePoint == 12288;
}

bool UChar::isalnum(char32_t codePoint)
{
    return iswdigit(codePoint) || (codePoint >= 'a' && codePoint <= 'z') ||
           (codePoint >= 'A' && codePoint <= 'Z');
}

bool UChar::iswalnum(char32_t codePoint)
{
    return iswalpha(codePoint) || UnicodeToType(codePoint) == UNICODE_DECIMAL_NUMBER;
}

bool UChar::iswalpha(char32_t codePoint)
{
    switch (UnicodeToType(codePoint)) {
    case UNICODE_LOWERCASE_LETTER:
    case UNICODE_MODIFIER_LETTER:
    case UNICODE_OTHER_LETTER:
    case UNICODE_TITLECASE_LETTER:
    case UNICODE_UPPERCASE_LETTER:
        return true;
    default:
        return false;
    }
}

bool UChar::iswdigit(char32_t codePoint)
{
    return codePoint >= '0' && codePoint <= '9';
}

bool UChar::iswalnum_l(char32_t codePoint)
{
    // Made once: making one reads files.
    static const locale_t locale = [] {
        const locale_t english = newlocale(LC_CTYPE_MASK, "en_US.UTF8", nullptr);
        return english ? english : newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    }();
    return locale ? ::iswalnum_l(static_cast<wint_t>(codePoint), locale) != 0 : iswalnum(codePoint);
}

} // namespace Uve
