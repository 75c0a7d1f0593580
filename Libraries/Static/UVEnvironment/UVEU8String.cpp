#include "UVEnvironment/UVEU8String.h"

#include "UVEnvironment/UVEString.h"

#include <cstdarg>

namespace Uve {

u8string u8string::uppercase() const
{
    return utf8_to_uppercase(m_Text);
}

u8string u8string::lowercase() const
{
    return utf8_to_lowercase(m_Text);
}

u8string u8string::casefold() const
{
    return utf8_casefold(m_Text);
}

u8string u8string::normalize(NormalizeMode mode) const
{
    return utf8_normalize(m_Text, mode).value_or(m_Text);
}

u8string& u8string::printf(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    UVEstring text;
    text.FormatArgs(format, arguments);
    va_end(arguments);
    m_Text = std::move(text);
    return *this;
}

u8string& u8string::Splice(size_type charPos, size_type charCount, std::string_view text)
{
    const std::string_view part = Detail::Utf8Part(m_Text, charPos, charCount);
    m_Text.replace(static_cast<size_type>(part.data() - m_Text.data()), part.size(), text);
    return *this;
}

} // namespace Uve
