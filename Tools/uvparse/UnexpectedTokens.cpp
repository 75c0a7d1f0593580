#include "Tools/uvparse/UnexpectedTokens.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace uvparse {

namespace {

// Code points of a long line that are shown before and behind the place.
constexpr std::size_t kShownBefore = 60;
constexpr std::size_t kShownBehind = 60;
constexpr std::size_t kShownOfToken = 60;

bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::size_t CountCodePoints(std::string_view text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !IsContinuation(byte); }));
}

// The offset `count` code points before `offset`, not before `limit`.
std::size_t StepBack(std::string_view text, std::size_t offset, std::size_t count, std::size_t limit)
{
    while (count > 0 && offset > limit) {
        --offset;
        if (!IsContinuation(text[offset]))
            --count;
    }
    return offset;
}

// The offset `count` code points behind `offset`, not behind `limit`.
std::size_t StepForward(std::string_view text, std::size_t offset, std::size_t count, std::size_t limit)
{
    while (count > 0 && offset < limit) {
        do
            ++offset;
        while (offset < limit && IsContinuation(text[offset]));
        --count;
    }
    return offset;
}

// The first line of a token, cut if it is long. A token's bytes come from a file: what would move the cursor
// is shown as a blank.
std::string ShownToken(std::string_view text, const SUnexpectedToken& token)
{
    const std::size_t begin = std::min(token.offset, text.size());
    const std::size_t end = begin + std::min(token.length, text.size() - begin);
    const std::size_t lineEnd = std::min(text.find('\n', begin), end);
    const std::size_t shownEnd = StepForward(text, begin, kShownOfToken, lineEnd);
    std::string shown(text.substr(begin, shownEnd - begin));
    std::replace_if(
        shown.begin(), shown.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
    return shownEnd < end ? shown + "..." : shown;
}

} // namespace

std::vector<SUnexpectedToken> ReadTokenList(const std::string& list)
{
    std::vector<SUnexpectedToken> tokens;
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::size_t lineNumber = 0;
        std::size_t column = 0;
        SUnexpectedToken token;
        if (fields >> lineNumber >> column >> token.offset >> token.length)
            tokens.push_back(token);
    }
    return tokens;
}

void CTextPlaces::Advance(std::size_t offset)
{
    for (std::size_t feed = m_Text.find('\n', m_Offset); feed < offset; feed = m_Text.find('\n', m_Offset)) {
        m_Offset = feed + 1;
        ++m_Place.line;
        m_Place.column = 1;
        m_Place.lineStart = m_Offset;
        m_KnowsLineEnd = false;
        if (m_Offset == m_Text.size())
            break;
    }
    m_Place.column += CountCodePoints(m_Text.substr(m_Offset, offset - m_Offset));
    m_Offset = offset;
}

STextPlace CTextPlaces::Find(std::size_t offset)
{
    offset = std::min(offset, m_Text.size());
    if (offset < m_Offset) {
        m_Offset = 0;
        m_Place = {};
        m_KnowsLineEnd = false;
    }
    // Within the line at hand no line feed has to be looked for, however far its end is.
    if (m_KnowsLineEnd && offset <= m_Place.lineEnd) {
        m_Place.column += CountCodePoints(m_Text.substr(m_Offset, offset - m_Offset));
        m_Offset = offset;
        return m_Place;
    }
    Advance(offset);
    m_Place.lineEnd = std::min(m_Text.find('\n', m_Offset), m_Text.size());
    m_KnowsLineEnd = true;
    return m_Place;
}

void WriteUnexpectedTokens(CToolMessages& messages, std::ostream& stream, const std::string& file,
                           std::string_view text, std::vector<SUnexpectedToken> tokens)
{
    std::stable_sort(tokens.begin(), tokens.end(), [](const SUnexpectedToken& a, const SUnexpectedToken& b) {
        return a.offset < b.offset;
    });
    CTextPlaces places(text);
    for (const SUnexpectedToken& token : tokens) {
        const STextPlace place = places.Find(token.offset);
        const std::size_t offset = std::min(token.offset, text.size());
        const std::size_t begin = StepBack(text, offset, kShownBefore, place.lineStart);
        const std::size_t end = StepForward(text, offset, kShownBehind, place.lineEnd);

        SSourcePlace source;
        source.file = file;
        source.line = static_cast<int>(place.line);
        source.column = static_cast<int>(place.column);
        source.sourceLine = text.substr(begin, end - begin);
        const std::string shown = ShownToken(text, token);
        messages.Write(enSeverity::Error, source,
                       shown.empty() ? "unexpected end of text" : "unexpected token '" + shown + "'");
        if (!source.sourceLine.empty())
            stream << "    " << std::string(CountCodePoints(text.substr(begin, offset - begin)), ' ')
                   << "^\n";
    }
}

} // namespace uvparse
