#include "Parser/LostQuotes.h"

#include "Interfaces/UVDBResults.h"

#include <algorithm>

namespace {

// From the end of a string to an unexpected token that has to do with it.
constexpr unsigned long kNearLines = 2;

// Of a delimiter, blanks left out.
constexpr std::ptrdiff_t kDelimiterBytes = 2;

bool IsDelimiter(std::string_view between)
{
    return std::ranges::count_if(between, [](char c) {
               return std::string_view(" \t\r\n\f\v").find(c) == std::string_view::npos;
           }) <= kDelimiterBytes;
}

} // namespace

SReading ReadingOf(int parsed, const std::vector<SUnexpectedToken>& unexpected,
                   const std::vector<SDiscardedText>& lost, const std::optional<SUnfinishedText>& unfinished,
                   std::string_view text)
{
    SReading reading{parsed != UVDB_OK, 0, unexpected.size()};
    std::size_t last = std::string_view::npos; // where the piece before ends
    for (const SDiscardedText& piece : lost) {
        const bool isJoined = last <= piece.begin && IsDelimiter(text.substr(last, piece.begin - last));
        reading.lostBytes += piece.end - (isJoined ? last : piece.begin);
        last = piece.end;
    }
    // An open comment is no token that anybody could miss, and takes in all that follows.
    if (unfinished)
        reading.lostBytes += text.size() - std::min(unfinished->read, text.size());
    return reading;
}

std::vector<std::size_t> SuspectPlaces(const std::vector<SLongText>& longTexts,
                                       const std::vector<SUnexpectedToken>& unexpected,
                                       const std::vector<SDiscardedText>& lost)
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
        if (after == longTexts.end())
            continue;
        const bool isLostWithToken = std::ranges::any_of(lost, [&](const SDiscardedText& piece) {
            return piece.begin <= token.offset && token.offset < after->begin && after->begin < piece.end;
        });
        if (after->begin <= token.offset || isLostWithToken)
            take(*after);
    }
    // Soon after another one an unexpected token isn't told.
    for (const SDiscardedText& piece : lost) {
        const auto after = std::ranges::upper_bound(longTexts, piece.begin, {}, &SLongText::end);
        if (!piece.isReported && after != longTexts.end() && after->begin < piece.end)
            take(*after);
    }
    return places;
}
