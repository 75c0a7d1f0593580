#include "Tools/uvparse/UnexpectedTokens.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace uvparse {

namespace {

constexpr std::size_t kShownOfToken = 60;

// The first line of a token, cut if it is long. A token's bytes come from a file: what would move the cursor
// is shown as a blank.
std::string ShownToken(std::string_view text, const SUnexpectedToken& token)
{
    const std::size_t begin = std::min(token.offset, text.size());
    const std::size_t end = begin + std::min(token.length, text.size() - begin);
    const std::size_t lineEnd = std::min(text.find('\n', begin), end);
    if (lineEnd == begin)
        return {};
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

void WriteUnexpectedTokens(CToolMessages& messages, std::ostream& stream, CSourcePlaces& places,
                           std::string_view prepared, std::vector<SUnexpectedToken> tokens)
{
    std::stable_sort(tokens.begin(), tokens.end(), [](const SUnexpectedToken& a, const SUnexpectedToken& b) {
        return a.offset < b.offset;
    });
    for (const SUnexpectedToken& token : tokens) {
        const SMessagePlace found = places.Find(token.offset);
        const std::string shown = ShownToken(prepared, token);
        messages.Write(enSeverity::Error, found.place,
                       (!shown.empty()                   ? "unexpected token '" + shown + "'"
                        : token.offset < prepared.size() ? "unexpected end of line"
                                                         : "unexpected end of text") +
                           found.remark);
        if (found.caret && !found.place.sourceLine.empty())
            stream << "    " << std::string(*found.caret, ' ') << "^\n";
    }
}

} // namespace uvparse
