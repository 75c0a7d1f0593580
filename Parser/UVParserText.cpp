#include "Parser/UVParserText.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::string_view kZeroWidthSpace = "\xE2\x80\x8B";

std::string_view ViewOf(const Uve::U8CString& text)
{
    return {text.data(), text.size()};
}

// Where the line ends that contains `offset`: at its line feed, or at the end of the text.
std::size_t LineEnd(std::string_view text, std::size_t offset)
{
    return std::min(text.find('\n', offset), text.size());
}

} // namespace

std::optional<Uve::U8CString> TextAfterLastDot(const Uve::U8CString& path)
{
    const std::size_t dot = ViewOf(path).rfind('.');
    if (dot == std::string_view::npos)
        return std::nullopt;
    return Uve::U8CString(ViewOf(path).substr(dot + 1));
}

void ReplaceZeroWidthSpaces(Uve::U8CString& text)
{
    const std::string_view view = ViewOf(text);
    std::size_t found = view.find(kZeroWidthSpace);
    if (found == std::string_view::npos)
        return;
    // Only shrinks, so what is written never reaches what is still to be read.
    char* const bytes = text.data();
    std::size_t written = found;
    while (found != std::string_view::npos) {
        bytes[written++] = ' ';
        const std::size_t start = found + kZeroWidthSpace.size();
        found = view.find(kZeroWidthSpace, start);
        const std::size_t count = std::min(found, view.size()) - start;
        std::memmove(bytes + written, bytes + start, count);
        written += count;
    }
    text.resize(written);
}

std::optional<std::string> QuoteLinesAround(unsigned long lineNumber, std::string_view text)
{
    if (lineNumber == 0)
        return std::nullopt;
    std::size_t previousStart = 0;
    std::size_t start = 0;
    for (unsigned long line = 1; line < lineNumber; ++line) {
        const std::size_t end = LineEnd(text, start);
        if (end == text.size())
            return std::nullopt;
        previousStart = start;
        start = end + 1;
    }
    const std::size_t end = LineEnd(text, start);
    const std::size_t quoteEnd = end == text.size() ? end : LineEnd(text, end + 1);
    return "Code lines:\n<<<<\n" + std::string(text.substr(previousStart, quoteEnd - previousStart)) +
           "\n>>>>\n";
}

Uve::U8CString FormatPreparedLines(const std::vector<std::uint32_t>& sourceLines)
{
    std::string list;
    for (std::size_t first = 0; first < sourceLines.size();) {
        std::size_t next = first + 1;
        while (next < sourceLines.size() && sourceLines[next] == sourceLines[next - 1] + 1)
            ++next;
        list += std::to_string(first + 1) + '\t' + std::to_string(sourceLines[first]) + '\t' +
                std::to_string(next - first) + '\n';
        first = next;
    }
    return list;
}
