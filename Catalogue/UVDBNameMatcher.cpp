#include "Catalogue/UVDBNameMatcher.h"

#include <algorithm>

namespace UVDB {

namespace {

bool IsPlain(char c)
{
    return c >= 0x20 && c < 0x7f;
}

char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

CNameMatcher::CNameMatcher(const char* text, enCase letterCase)
    : m_Text(text), m_Case(letterCase),
      m_IsPlain(std::all_of(m_Text.c_str(), m_Text.c_str() + m_Text.size(), IsPlain))
{
    if (m_IsPlain) {
        m_PlainKey.assign(m_Text.c_str(), m_Text.size());
        if (m_Case == ignoreCase)
            std::transform(m_PlainKey.begin(), m_PlainKey.end(), m_PlainKey.begin(), ToLower);
    }
}

// No locale collates two different printable ASCII texts as equal, and neither normalisation nor case folding
// takes such a text out of ASCII. Everything else goes the long way.
bool CNameMatcher::Matches(const char* name) const
{
    const std::string_view view{name};
    if (m_IsPlain && std::all_of(view.begin(), view.end(), IsPlain)) {
        if (m_Case == exactCase)
            return view == m_PlainKey;
        return std::equal(view.begin(), view.end(), m_PlainKey.begin(), m_PlainKey.end(),
                          [](char a, char b) { return ToLower(a) == b; });
    }
    const Uve::U8CString subject{name};
    return (m_Case == exactCase ? subject.Collate(m_Text.c_str()) : subject.CollateNoCase(m_Text.c_str())) ==
           0;
}

} // namespace UVDB
