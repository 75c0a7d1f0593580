#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <deque>
#include <list>
#include <map>
#include <stack>
#include <string>
#include <string_view>

// What a grammar lexer holds of one query, and the switches that the front door sets from the options.
// Positions are bytes of the query.
class CSQLGrammarLexerImplementation
{
public:
    CSQLGrammarLexerImplementation();

    // Prepares for another query. The defines, the skip flags, the coloring text, the options and the
    // recorded line start outlive it.
    void clean();

    std::string_view m_strQuery = ""; // borrowed, with the NUL after it
    Uve::U8CString m_strAPISourceDB;  // option API_SOURCE_DB
    Uve::U8CString m_strSrcUIType;    // option SRC_UI_TYPE
    int m_nQueryLength = 0;
    int m_nChar = 0;       // bytes consumed so far
    int m_nStartState = 0; // start condition for this query, as its number
    int m_nBrackets = 0;
    // Conditional symbols; also the terminators of the here-documents that are open.
    std::list<Uve::U8CString> m_lstDefines;
    bool m_bCppDirectiveParse = false;
    bool m_bMSSQLQID = true;    // double-quoted text is an identifier
    bool m_bParserPR4GL = true; // chooses between the two Progress start states
    bool m_bIgnoreDefines = true;
    int m_nCurColor = 0;
    Uve::U8CString m_strColoring;  // a line for each token: color, first byte, last byte
    int m_nLineStart = 0;          // the LF that ends the line before the current one
    int m_nPrevChar = 0;           // m_nChar at the last token
    std::deque<bool> m_dequeSkips; // open conditional directives: true if the branch is skipped
    std::deque<unsigned long> m_dequeIndents;
    std::deque<std::string> m_dequePseudoTokens; // tokens still owed to the parser
    std::map<std::string, std::stack<short>> m_mapStacks;
    std::map<Uve::U8CString, Uve::U8CString> m_mapOptions;
    std::map<std::string, Uve::U8CString> m_mapConditions; // texts that SET_CONDITION saved
};
