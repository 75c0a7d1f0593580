#include "Tools/uvparse/FilePlaces.h"

#include "Tools/uvparse/SourcePlaces.h"

#include <algorithm>
#include <numeric>

namespace uvparse {

namespace {

// The lead of a sequence of four bytes: UTF-16 has two units for it.
bool IsBeyondFirstPlane(char byte)
{
    return static_cast<unsigned char>(byte) >= 0xF0;
}

class CWalk
{
public:
    explicit CWalk(std::string_view text) : m_Text(text) {}

    // Never back.
    void MoveTo(const SLineColumn& wanted)
    {
        while (m_Offset < m_Text.size() && m_At < wanted && !IsAtEndOfLine(wanted.line))
            Step();
    }

    SFilePlace Place(const SFileBytes& bytes) const { return {m_Offset, m_Characters, FileOffset(bytes)}; }

private:
    bool IsAtEndOfLine(std::size_t line) const { return m_At.line == line && m_Text[m_Offset] == '\n'; }

    void Step()
    {
        const char lead = m_Text[m_Offset];
        m_Offset = StepForward(m_Text, m_Offset, 1, m_Text.size());
        ++m_Characters;
        if (IsBeyondFirstPlane(lead))
            ++m_Pairs;
        if (lead == '\n')
            m_At = {m_At.line + 1, 1};
        else
            ++m_At.column;
    }

    std::optional<std::size_t> FileOffset(const SFileBytes& bytes) const
    {
        switch (bytes.form) {
        case enFileBytes::Unknown:
            return std::nullopt;
        case enFileBytes::Utf16:
            return bytes.markLength + 2 * (m_Characters + m_Pairs);
        case enFileBytes::Utf32:
            return bytes.markLength + 4 * m_Characters;
        case enFileBytes::Utf8:
        case enFileBytes::One:
            break;
        }
        const std::size_t offset = bytes.form == enFileBytes::Utf8 ? m_Offset : m_Characters;
        if (bytes.recordLength == 0)
            return bytes.markLength + offset;
        const std::size_t line = bytes.recordLength + 1;
        return offset / line * bytes.recordLength + offset % line;
    }

    std::string_view m_Text;
    std::size_t m_Offset = 0;
    std::size_t m_Characters = 0;
    std::size_t m_Pairs = 0;
    SLineColumn m_At{1, 1};
};

} // namespace

std::vector<std::optional<SFilePlace>> FindFilePlaces(std::string_view text, const SFileBytes& bytes,
                                                      const std::vector<SLineColumn>& places)
{
    std::vector<std::size_t> order(places.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t index) { return places[index]; });

    std::vector<std::optional<SFilePlace>> found(places.size());
    CWalk walk(text);
    for (const std::size_t index : order) {
        if (places[index].line == 0 || places[index].column == 0)
            continue;
        walk.MoveTo(places[index]);
        found[index] = walk.Place(bytes);
    }
    return found;
}

} // namespace uvparse
