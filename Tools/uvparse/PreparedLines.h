// Which line of the source a line of the prepared text comes from.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace uvparse {

// Lines count from 1.
class CPreparedLines
{
public:
    // The lines of a text that no pass has changed: each is the source's own.
    CPreparedLines() = default;

    // Reads the library's list, a line for each run of lines: prepared line, source line and count, with tabs
    // between. `pass` names what prepared the text; empty: nothing did. A pass that doesn't keep the lines has
    // an empty list. A list of another form counts as none.
    CPreparedLines(std::string_view pass, std::string_view list);

    // Whether the source line of any prepared line can be told.
    bool IsKnown() const { return m_IsIdentity || !m_Runs.empty(); }

    // Nothing for a line that the pass keeps no source line of.
    std::optional<std::size_t> SourceLineOf(std::size_t preparedLine) const;

private:
    struct SRun
    {
        std::size_t prepared;
        std::size_t source;
        std::size_t count;
    };

    std::vector<SRun> m_Runs; // ascending and disjoint by prepared line
    bool m_IsIdentity = true;
};

// The lines of a text, one after the other, each without its line feed. A line feed at the end of the text
// starts no further line.
class CLineCursor
{
public:
    explicit CLineCursor(std::string_view text) : m_Rest(text) { Take(); }

    bool IsAtEnd() const { return m_Number == 0; }
    std::size_t Number() const { return m_Number; } // from 1
    std::string_view Text() const { return m_Line; }
    void Next() { Take(); }

private:
    void Take();

    std::string_view m_Rest;
    std::string_view m_Line;
    std::size_t m_Number = 0;
    std::size_t m_Taken = 0;
};

std::size_t CountLines(std::string_view text);

} // namespace uvparse
