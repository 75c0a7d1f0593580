#pragma once

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
};

// What a grammar parser holds of one query.
class CSQLGrammarParserImplementation
{
public:
    // Takes the text and forgets the last result and message. The unexpected tokens stay until their reader
    // clears them.
    void set_Query(std::string query);
    // In development mode rules with an error symbol don't recover.
    void set_DevelopmentMode(bool on) { m_bDevelopmentMode = on; }

    // Line `line` of the query, from 1, without its end; empty beyond the text.
    std::string_view LineText(unsigned long line);

    std::string m_strLastError;
    std::string m_strParsedXml;
    bool m_bPlainTree = false; // FlattenTreeInPlace can take the tree: names and characters are of its form
    std::string m_strQuery;
    bool m_bDevelopmentMode = false;
    bool m_bShowErrors = true; // errors go to the log, not only to the trace
    // Line to token, for one line in order of arrival.
    std::multimap<unsigned long, std::string> m_mapErrors;
    // The same errors in order of arrival, with their places.
    std::vector<SUnexpectedToken> m_lstUnexpected;
    bool m_bErrDisplayed = false; // an error of this tree has been reported

private:
    std::vector<std::size_t>
        m_lstLineEnds; // offsets of the query's LFs, filled when a message asks for a line
    bool m_bLineEndsKnown = false;
};
