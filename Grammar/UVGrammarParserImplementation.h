#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// A syntax error's token and its place in the query.
struct SUnexpectedToken
{
    unsigned long line = 0; // from 1
    std::size_t offset = 0; // bytes
    std::size_t length = 0; // bytes; 0 at the end of the text
    std::string text;
    int state = 0; // of the parser's tables
    // Both only if what was expected is asked for.
    std::string terminal = {};              // the token's name in the grammar; empty at the end of the text
    std::vector<std::string> expected = {}; // what the parser would have taken
};

// Text that the recovery from one error has thrown away. Offsets are bytes of the query.
struct SDiscardedText
{
    bool isReported = false; // an unexpected token stands for it
    std::size_t begin = 0;
    std::size_t end = 0; // `begin` if it is empty

    // Adds what a symbol covers; one that starts nowhere covers nothing.
    void Take(int start, int length)
    {
        if (start < 0 || length <= 0)
            return;
        const auto from = static_cast<std::size_t>(start);
        begin = begin == end ? from : std::min(begin, from);
        end = std::max(end, from + static_cast<std::size_t>(length));
    }
};

// What a grammar parser holds of one query.
class CSQLGrammarParserImplementation
{
public:
    // Forgets the last result and message. The unexpected tokens stay until their reader clears them.
    // Borrows: the query, until the next one comes, as long as anything is asked for here or the tree is
    //          there.
    void set_Query(const std::string& query);
    void set_Query(std::string&& query) = delete;
    // In development mode rules with an error symbol don't recover.
    void set_DevelopmentMode(bool on) { m_bDevelopmentMode = on; }

    // Line `line` of the query, from 1, without its end; empty beyond the text.
    std::string_view LineText(unsigned long line);

    // The stretches of the query that were thrown away, ascending and apart: what several errors threw away
    // without a token read between is one stretch, reported if one of them was.
    std::vector<SDiscardedText> DiscardedStretches() const;

    // Forgets the errors of the texts before.
    void ClearErrors();

    std::string m_strLastError;
    std::string m_strParsedXml;
    std::string_view m_strQuery = ""; // borrowed, with the NUL after it
    bool m_bDevelopmentMode = false;
    bool m_bShowErrors = true; // errors go to the log, not only to the trace
    // Line to token, for one line in order of arrival.
    std::multimap<unsigned long, std::string> m_mapErrors;
    // The same errors in order of arrival, with their places.
    std::vector<SUnexpectedToken> m_lstUnexpected;
    // One for each error, reported or not, in order of arrival.
    std::vector<SDiscardedText> m_lstDiscarded;
    bool m_bErrDisplayed = false; // an error of this tree has been reported

private:
    std::vector<std::size_t>
        m_lstLineEnds; // offsets of the query's LFs, filled when a message asks for a line
    bool m_bLineEndsKnown = false;
};
