#include "Preparation/Formatters/BlankRuns.h"

#include <cstddef>

namespace {

bool IsBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\f' || character == '\v';
}

// The byte after the run of equal characters that begins at `from`.
std::size_t EndOfRun(std::string_view line, std::size_t from)
{
    std::size_t end = from + 1;
    while (end != line.size() && line[end] == line[from])
        ++end;
    return end;
}

} // namespace

std::string RemoveDuplicatedDelimiters(std::string_view line)
{
    std::string collapsed;
    collapsed.reserve(line.size());
    bool inLiteral = false;
    for (std::size_t at = 0; at != line.size();) {
        std::size_t end = at + 1;
        if (line[at] == '\'' || line[at] == '"') {
            end = EndOfRun(line, at);
            const std::size_t length = end - at;
            if (length % 2 != 0)
                inLiteral = !inLiteral;
            else if (length > 2)
                inLiteral = false;
        } else if (IsBlank(line[at])) {
            while (end != line.size() && IsBlank(line[end]))
                ++end;
            if (end - at > 1 && !inLiteral) {
                collapsed += ' ';
                at = end;
                continue;
            }
        }
        collapsed.append(line, at, end - at);
        at = end;
    }
    return collapsed;
}
