#include "Grammar/UVGrammarKeeperText.h"

#include <algorithm>

namespace {

constexpr char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool BeginsWith(std::string_view text, std::string_view word)
{
    if (text.size() < word.size())
        return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (ToLower(text[i]) != ToLower(word[i]))
            return false;
    }
    return true;
}

} // namespace

void CGeneratedText::Advance(std::size_t bytes)
{
    m_ByteOffset += std::min(bytes, m_Text.size() - m_ByteOffset);
}

bool CGeneratedText::StartsWith(std::string_view word) const
{
    return BeginsWith(m_Text.substr(m_ByteOffset), word);
}

bool CGeneratedText::Seek(std::string_view word)
{
    // Generated files reach ten megabytes: only the places of the first letter are looked at.
    const char both[] = {ToLower(word.front()), word.front() >= 'a' && word.front() <= 'z'
                                                    ? static_cast<char>(word.front() - 'a' + 'A')
                                                    : word.front()};
    const std::string_view firstLetters(both, both[0] == both[1] ? 1 : 2);
    while (true) {
        const std::size_t found = m_Text.find_first_of(firstLetters, m_ByteOffset);
        if (found == std::string_view::npos) {
            m_ByteOffset = m_Text.size();
            return false;
        }
        m_ByteOffset = found;
        if (StartsWith(word))
            return true;
        ++m_ByteOffset;
    }
}

void CGeneratedText::SkipSymbols(std::string_view set)
{
    m_ByteOffset = std::min(m_Text.find_first_not_of(set, m_ByteOffset), m_Text.size());
}

void CGeneratedText::SkipUntilSymbols(std::string_view set)
{
    m_ByteOffset = std::min(m_Text.find_first_of(set, m_ByteOffset), m_Text.size());
}

void CGeneratedText::SkipCaseSymbols(std::string_view set)
{
    while (IsOneOf(set) && !IsCaseEnd())
        ++m_ByteOffset;
}

void CGeneratedText::SkipUntilCaseSymbols(std::string_view set)
{
    while (!AtEnd() && !IsOneOf(set) && !IsCaseEnd())
        ++m_ByteOffset;
}

void CGeneratedText::SkipLine()
{
    SkipUntilSymbols("\n");
    SkipSymbols(kWhiteSpace);
}

bool CGeneratedText::IsCaseEnd() const
{
    return StartsWith("break;") || StartsWith("YY_BREAK") || StartsWith("goto ");
}

int CountRows(std::string_view text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}
