#include "Grammar/UVGrammarKeywords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace {

using enum enGrammarKeyword;

constexpr SGrammarKeyword Lexer(const char* name, int operands, enGrammarKeyword keyword, const char* roles)
{
    return {name, operands, keyword, true, false, roles};
}

constexpr SGrammarKeyword Parser(const char* name, int operands, enGrammarKeyword keyword, const char* roles)
{
    return {name, operands, keyword, false, true, roles};
}

constexpr SGrammarKeyword Neither(const char* name, int operands, enGrammarKeyword keyword, const char* roles)
{
    return {name, operands, keyword, false, false, roles};
}

// Order is meaning: by the bytes of the word, which is the order of the enumerators.
// clang-format off
constexpr SGrammarKeyword kKeywords[] = {
    //      word                                operands  enumerator                     roles
    Lexer  ("ACTION_BY_OPTION",                    5, ActionByOption,                "wwwww"),
    Lexer  ("BEGIN",                               1, Begin,                         "s"    ),
    Lexer  ("BRACKETS_ACTION",                     1, BracketsAction,                "n"    ),
    Lexer  ("CODE_ACTION",                         3, CodeAction,                    "nww"  ),
    Lexer  ("CONDITIONAL_BEGIN",                   3, ConditionalBegin,              "wss"  ),
    Lexer  ("CONDITIONAL_TOKEN_ACTION",            4, ConditionalTokenAction,        "wwww" ),
    Lexer  ("CPY_TOKEN_ACTION",                    2, CpyTokenAction,                "tw"   ),
    Parser ("CREATE_NODE",                         2, CreateNode,                    "kc"   ),
    Parser ("CREATE_NODE_WITH_ERROR",              3, CreateNodeWithError,           "kce"  ),
    Lexer  ("ColoringFunc",                        1, ColoringFunc,                  "n"    ),
    Parser ("EMPTY",                               1, Empty,                         "k"    ),
    Lexer  ("GET_FIRST_IF_CPP_DIRECTIVE_PARSE_ON", 2, GetFirstIfCppDirectiveParseOn, "ss"   ),
    Lexer  ("IFSTRCMP_ACTION",                     3, IfStrcmpAction,                "wnt"  ),
    Lexer  ("IF_BRACKETS_ACTION",                  1, IfBracketsAction,              "n"    ),
    Lexer  ("PATTERNS_ACTION",                     2, PatternsAction,                "ss"   ),
    Lexer  ("PATTERN_ACTION",                      2, PatternAction,                 "ws"   ),
    Lexer  ("SET_CONDITION",                       1, SetCondition,                  "w"    ),
    Parser ("SQL_REDUCED",                         1, SqlReduced,                    "w"    ),
    Lexer  ("STACK_ACTION",                        2, StackAction,                   "ww"   ),
    Lexer  ("STRING_ACTION",                       1, StringAction,                  "n"    ),
    Lexer  ("SelecTokenByAPISourceDBVal",          3, SelecTokenByAPISourceDBVal,    "ntt"  ),
    Neither("TEXT_ACTION",                         1, TextAction,                    "w"    ),
    Lexer  ("TOKEN_ACTION",                        1, TokenAction,                   "t"    ),
    Lexer  ("TOKEN_ACTIONE",                       2, TokenActionE,                  "tn"   ),
    Lexer  ("TOKEN_INDENT_ACTION",                 0, TokenIndentAction,             ""     ),
    Lexer  ("strcpy",                              2, Strcpy,                        "ww"   ),
    Lexer  ("strtmp.Format",                       2, StrtmpFormat,                  "ww"   ),
    Parser ("yylexerptr->yybegin",                 1, YylexerptrYybegin,             "p"    ),
    Lexer  ("yytext",                              1, Yytext,                        "n"    ),
};
// clang-format on

constexpr bool IsInOrder()
{
    for (std::size_t i = 0; i < std::size(kKeywords); ++i) {
        const SGrammarKeyword& row = kKeywords[i];
        if (static_cast<std::size_t>(row.keyword) != i)
            return false;
        if (std::string_view(row.roles).size() != static_cast<std::size_t>(row.operands))
            return false;
        if (i > 0 && !(std::string_view(kKeywords[i - 1].name) < std::string_view(row.name)))
            return false;
    }
    return true;
}

static_assert(std::size(kKeywords) == kGrammarKeywordCount);
static_assert(IsInOrder(), "words ascend, stand at their enumerator and have one role for each operand");

// Loading a language looks thousands of words up, so each word has a slot of its own.
constexpr std::size_t kSlots = 64;

constexpr std::size_t SlotOf(std::string_view word)
{
    const auto byte = [&](std::size_t at) { return std::size_t{static_cast<unsigned char>(word[at])}; };
    return (word.size() * 31 + byte(0) * 14 + byte(word.size() - 1) + byte(word.size() / 2) * 3) % kSlots;
}

struct SSlot
{
    std::string_view word;
    const SGrammarKeyword* keyword = nullptr;
};

constexpr std::array<SSlot, kSlots> FillSlots()
{
    std::array<SSlot, kSlots> slots{};
    for (const SGrammarKeyword& keyword : kKeywords)
        slots[SlotOf(keyword.name)] = {keyword.name, &keyword};
    return slots;
}

constexpr std::array<SSlot, kSlots> kWords = FillSlots();
static_assert(std::ranges::count_if(kWords, [](const SSlot& slot) { return slot.keyword != nullptr; }) ==
                  kGrammarKeywordCount,
              "no two words share a slot");

} // namespace

const SGrammarKeyword* FindGrammarKeyword(std::string_view word)
{
    if (word.empty())
        return nullptr;
    const SSlot& slot = kWords[SlotOf(word)];
    return slot.word == word ? slot.keyword : nullptr;
}

const SGrammarKeyword& GetGrammarKeyword(enGrammarKeyword keyword)
{
    return kKeywords[static_cast<std::size_t>(keyword)];
}
