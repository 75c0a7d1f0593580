#pragma once

#include <string_view>

// The words of the action language: the one list that the reader of action files, the interpreters of scanner
// and parser and the grammar tool share. A word that isn't in here doesn't exist.

// In the byte order of the words, which is the order in which the operations of one record run.
enum class enGrammarKeyword
{
    ActionByOption,
    Begin,
    BracketsAction,
    CodeAction,
    ConditionalBegin,
    ConditionalTokenAction,
    CpyTokenAction,
    CreateNode,
    CreateNodeWithError,
    ColoringFunc,
    Empty,
    GetFirstIfCppDirectiveParseOn,
    IfStrcmpAction,
    IfBracketsAction,
    PatternsAction,
    PatternAction,
    SetCondition,
    SqlReduced,
    StackAction,
    StringAction,
    SelecTokenByAPISourceDBVal,
    TextAction,
    TokenAction,
    TokenActionE,
    TokenIndentAction,
    Strcpy,
    StrtmpFormat,
    YylexerptrYybegin,
    Yytext,
};

inline constexpr int kGrammarKeywordCount = static_cast<int>(enGrammarKeyword::Yytext) + 1;
inline constexpr int kMostOperands = 5; // of a keyword

// What an operand names, so that a grammar can be checked before it is used.
//   t token, without its leading T     s start condition     p token of the parser that holds a start
//   condition k node name     c number of right-hand symbols     e index of the error symbol     n number w
//   any word
struct SGrammarKeyword
{
    const char* name = "";
    int operands = 0; // up to kMostOperands
    enGrammarKeyword keyword = enGrammarKeyword::ActionByOption;
    bool isLexer = false;   // the scanner's interpreter executes it
    bool isParser = false;  // the parser's interpreter accepts it
    const char* roles = ""; // one letter for each operand
};

// Exact, case-sensitive.
// Returns: a record that lives as long as the program, or null for a word that no grammar may use.
const SGrammarKeyword* FindGrammarKeyword(std::string_view word);

// Always a record: every enumerator has one.
const SGrammarKeyword& GetGrammarKeyword(enGrammarKeyword keyword);
