#include "Parser/LostQuotes.h"

#include "Interfaces/UVDBResults.h"

#include <algorithm>

namespace {

// From the end of a string to an unexpected token that has to do with it.
constexpr unsigned long kNearLines = 2;

} // namespace

SReading ReadingOf(int parsed, const std::vector<SUnexpectedToken>& unexpected,
                   const std::vector<SDiscardedText>& lost, const std::optional<SUnfinishedText>& unfinished,
                   std::size_t size)
{
    SReading reading{parsed != UVDB_OK, 0, unexpected.size()};
    for (const SDiscardedText& text : lost)
        reading.lostBytes += text.end - text.begin;
    // An open comment is no token that anybody could miss, and takes in all that follows.
    if (unfinished)
        reading.lostBytes += size - std::min(unfinished->read, size);
    return reading;
}

std::vector<std::size_t> SuspectPlaces(const std::vector<SLongText>& longTexts,
                                       const std::vector<SUnexpectedToken>& unexpected)
{
    std::vector<std::size_t> places;
    const auto take = [&](const SLongText& suspect) {
        if (std::ranges::find(places, suspect.opened) == places.end())
            places.push_back(suspect.opened);
    };
    for (const SUnexpectedToken& token : unexpected) {
        const auto after = std::ranges::upper_bound(longTexts, token.offset, {}, &SLongText::end);
        if (after != longTexts.begin() && token.line - std::prev(after)->lastLine <= kNearLines)
            take(*std::prev(after));
        if (after != longTexts.end() && after->begin <= token.offset)
            take(*after);
    }
    return places;
}
