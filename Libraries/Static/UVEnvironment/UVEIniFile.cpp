#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace {

std::string_view TrimBlanks(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\v\f";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view StripQuotes(std::string_view text)
{
    const bool isQuoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.front() == text.back();
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

bool EqualNoCase(std::string_view a, const Uve::U8CString& b)
{
    return a.size() == b.size() && Uve::Compat::_strnicmp(a.data(), b.c_str(), a.size()) == 0;
}

// Returns: the value as it stands between its blanks, nothing if the file or the key isn't there.
std::optional<std::string> FindValue(const Uve::U8CString& section, const Uve::U8CString& key,
                                     const Uve::U8CString& path)
{
    Uve::U8CString content;
    try {
        content = Uve::File::ReadAllText(path);
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }

    const std::string& text = content;
    bool inSection = false;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string_view line = TrimBlanks(std::string_view(text).substr(begin, end - begin));
        begin = end + 1;
        if (line.empty() || line.front() == ';')
            continue;
        if (line.front() == '[') {
            // Only the first section of a name counts.
            if (inSection)
                return std::nullopt;
            const std::size_t close = std::min(line.find(']'), line.size());
            inSection = EqualNoCase(TrimBlanks(line.substr(1, close - 1)), section);
            continue;
        }
        const std::size_t equals = line.find('=');
        if (inSection && equals != std::string_view::npos &&
            EqualNoCase(TrimBlanks(line.substr(0, equals)), key))
            return std::string(TrimBlanks(line.substr(equals + 1)));
    }
    return std::nullopt;
}

} // namespace

namespace Uve::Compat {

std::size_t GetPrivateProfileString(const U8CString& section, const U8CString& key,
                                    const U8CString& defaultValue, U8CString& result, const U8CString& path)
{
    const std::optional<std::string> value = FindValue(section, key, path);
    result = value ? U8CString(StripQuotes(*value)) : U8CString(defaultValue);
    return result.size();
}

int GetPrivateProfileInt(const U8CString& section, const U8CString& key, int defaultValue,
                         const U8CString& path)
{
    const std::optional<std::string> value = FindValue(section, key, path);
    if (!value)
        return defaultValue;
    const std::string text(StripQuotes(*value));
    const bool isHexadecimal = _strnicmp(text.c_str(), "0x", 2) == 0;
    const long long number = _strtoi64(text.c_str(), nullptr, isHexadecimal ? 16 : 10);
    if (isHexadecimal && number >= 0 && number <= UINT_MAX)
        return static_cast<int>(static_cast<unsigned int>(number));
    return static_cast<int>(std::clamp<long long>(number, INT_MIN, INT_MAX));
}

} // namespace Uve::Compat
