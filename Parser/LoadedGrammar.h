// A grammar as a parser object has it: the parser, the scanner that feeds it, and a second scanner over the
// same tables, without a parser, for coloring maps. Empty until Load.
#pragma once

#include "Grammar/UVGrammarExpected.h"
#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"

#include <memory>

class CLoadedGrammar
{
public:
    // Reads the tables of the folder `parserName`. All or nothing: what fails leaves the earlier grammar.
    // Throws: Uve::U8CString with the message; std::bad_alloc.
    void Load(const char* parserName, bool isPatternVersion);
    bool IsLoaded() const { return m_Parser != nullptr; }
    // The tables are those for patterns, whose texts come prepared.
    bool IsPatternVersion() const { return m_IsPatternVersion; }

    // Links scanner and parser, and makes what they work in. Comes after each Load. That it fails shows in
    // IsConnected alone.
    // Throws: std::bad_alloc, and isn't connected.
    void Connect();
    // Texts can be parsed.
    bool IsConnected() const { return m_IsConnected; }

    // The next text is parsed as the first one, and the switches of the scanners have to be written again.
    void ForgetTexts();

    // Once loaded. The parser is shared by results that are still in fragments.
    const std::shared_ptr<CSQLGrammarParser>& Parser() const { return m_Parser; }
    CSQLGrammarLexer& Scanner() { return *m_Scanner; }
    CSQLGrammarLexer& ColoringScanner() { return m_ColoringScanner; }
    // What the parser holds of the text.
    CSQLGrammarParserImplementation& Found() { return m_Parser->m_Extension; }

    // What the parser would have taken, for set_Expected. Made when it is first asked for; as good as the grammar.
    CExpectedTokens& Expected();

    // Runs `write` on both scanners: their fields follow the same options. Nothing before Load.
    template <class Write>
    void WriteScanners(Write&& write)
    {
        if (!IsLoaded())
            return;
        write(*m_Scanner);
        write(m_ColoringScanner);
    }

private:
    std::unique_ptr<CSQLGrammarLexer> m_Scanner;
    std::shared_ptr<CSQLGrammarParser> m_Parser;
    CSQLGrammarLexer m_ColoringScanner;
    std::unique_ptr<CExpectedTokens> m_Expected;
    bool m_IsPatternVersion = false;
    bool m_IsConnected = false;
};
