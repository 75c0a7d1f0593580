#include "Parser/LostQuotes.h"

#include "Interfaces/UVDBResults.h"

#include <algorithm>

SReading ReadingOf(int parsed, const std::vector<SUnexpectedToken>& unexpected,
                   const std::vector<SDiscardedText>& lost)
{
    SReading reading{parsed != UVDB_OK, 0, unexpected.size()};
    for (const SDiscardedText& text : lost)
        reading.lostBytes += text.end - text.begin;
    return reading;
}

std::vector<std::size_t> SuspectLineEnds(std::string_view text, const std::vector<SLongText>& longTexts,
                                         const std::vector<SUnexpectedToken>& unexpected)
{
    std::vector<std::size_t> ends;
    const auto take = [&](const SLongText& suspect) {
        const std::size_t end = text.find('\n', suspect.begin) + 1;
        if (end != 0 && std::ranges::find(ends, end) == ends.end())
            ends.push_back(end);
    };
    for (const SUnexpectedToken& token : unexpected) {
        const auto after = std::ranges::upper_bound(longTexts, token.offset, {}, &SLongText::end);
        if (after != longTexts.begin() && std::prev(after)->lastLine == token.line)
            take(*std::prev(after));
        if (after != longTexts.end() && after->begin <= token.offset)
            take(*after);
    }
    return ends;
}
