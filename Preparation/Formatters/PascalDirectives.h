// The directives of a Pascal source that decide what is compiled, found where a compiler finds them: in
// braces or in "(*$ *)", on one line or on several, and not within comments and literals.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

enum class enPascalDirective
{
    Condition, // $IFDEF, $IFNDEF, $IF, $IFOPT
    ElseIf,
    Else,
    End, // $ENDIF, $IFEND
    Undefine
};

// What a condition says of a symbol, if it is about a single one.
enum class enSymbolCondition
{
    None,
    IsDefined,
    IsNotDefined
};

struct SPascalDirective
{
    enPascalDirective kind = enPascalDirective::Condition;
    enSymbolCondition condition = enSymbolCondition::None;
    bool isBalanced = true;    // it belongs to a construct that begins and ends; an Undefine to none
    bool isStray = false;      // no condition is open before it, and it needs one
    std::size_t begin = 0;     // bytes of the source, from brace ...
    std::size_t end = 0;       // ... to after the other brace
    std::size_t nameBegin = 0; // after the "$"
    std::uint32_t line = 0;    // from 1
    std::string_view text;     // all of it
    std::string_view symbol;   // the word after the name, or empty
};

// In order of the source, which they borrow.
std::vector<SPascalDirective> FindPascalDirectives(std::string_view source);
