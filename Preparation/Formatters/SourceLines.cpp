#include "Preparation/Formatters/SourceLines.h"

#include <algorithm>

namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

} // namespace

bool CSourceLines::Next(SSourceLine& line)
{
    if (m_Rest.empty())
        return false;
    const std::size_t end = m_Rest.find('\n');
    line = {m_Rest.substr(0, end), ++m_Number};
    m_Rest.remove_prefix(end == m_Rest.npos ? m_Rest.size() : end + 1);
    return true;
}

bool CSourceLines::NextFilled(SSourceLine& line)
{
    SSourceLine next;
    while (Next(next)) {
        if (!next.text.empty()) {
            line = next;
            return true;
        }
    }
    return false;
}

std::size_t ColumnOffset(std::string_view line, std::size_t column)
{
    std::size_t offset = 0;
    for (; column != 0 && offset != line.size(); --column)
        offset += CharacterLength(line, offset);
    return offset;
}

std::size_t CountCharacters(std::string_view line, std::size_t most)
{
    std::size_t count = 0;
    for (std::size_t offset = 0; count != most && offset != line.size(); ++count)
        offset += CharacterLength(line, offset);
    return count;
}

std::string_view WithoutLeadingBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
}

std::string_view WithoutTrailingBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(kWhiteSpace) + 1); // npos + 1 is 0
}

std::string_view WithoutOuterBlanks(std::string_view text)
{
    return WithoutLeadingBlanks(WithoutTrailingBlanks(text));
}

std::size_t CountFinalLineFeeds(std::string_view text)
{
    return text.size() - (text.find_last_not_of('\n') + 1);
}

void AppendFinalLineFeeds(std::string_view source, std::uint32_t lineCount, std::string& text,
                          std::vector<std::uint32_t>& sourceLines)
{
    const std::size_t count = CountFinalLineFeeds(source);
    text.append(count, '\n');
    std::size_t added = count;
    if (added != 0 && !sourceLines.empty())
        --added; // the first one ends the open line
    for (; added != 0; --added)
        sourceLines.push_back(lineCount - static_cast<std::uint32_t>(added) + 1);
}
