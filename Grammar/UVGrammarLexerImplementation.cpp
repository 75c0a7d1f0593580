#include "Grammar/UVGrammarLexerImplementation.h"

namespace {

constexpr const char* kFirstDefines[] = {
    "EAGL",   "EAGLSERVER", "EAGLSERVERISAPI", "EAGLSERVERHTTP", "EAGLSERVERAF", "AGL570D",
    "AGL580", "AGL590",     "ERADIO",          "GCGC",           "FOS5",         "SANSCOMPTA",
    "CHR",    "STK",        "DEBUG",           "MSWINDOWS",
};

} // namespace

CSQLGrammarLexerImplementation::CSQLGrammarLexerImplementation()
    : m_lstDefines(std::begin(kFirstDefines), std::end(kFirstDefines))
{}

void CSQLGrammarLexerImplementation::clean()
{
    m_strQuery = "";
    m_dequeIndents.clear();
    m_dequePseudoTokens.clear();
    m_mapStacks.clear();
    m_mapConditions.clear();
    m_nChar = 0;
    m_nCurColor = 0;
    m_nBrackets = 0;
}
