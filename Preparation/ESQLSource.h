// Embedded SQL in a C source as its compiler reads it: strings and comments of both languages are known, and
// a word counts as a whole.
#pragma once

#include "Preparation/PreparedText.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Esql {

enum class enEmbedded
{
    Statement, // with a "$", or with "exec sql"
    Declaration
};

struct SEmbedded
{
    enEmbedded kind = enEmbedded::Statement;
    std::size_t from = 0;     // the "$", or the first letter of "exec sql"
    std::size_t behind = 0;   // what follows the mark
    std::size_t end = 0;      // after the ";", or at the line's end for a directive without one
    bool isDollar = false;    // else "exec sql"
    bool isInSection = false; // between the statements that begin and end a declare section
    bool isClosed = true;     // false: no ";" ends it, and `end` is `behind`
};

struct SEmbeddedSource
{
    std::vector<SEmbedded> pieces;                    // in their order; they don't overlap
    std::size_t openSection = std::string_view::npos; // the statement of a declare section that never ends
};

// A "$" begins a piece where a word follows it and a statement of C may begin: at a line's begin, after ";",
// a brace, ")", ":", "else" or "do". It is a declaration if the word is a type: one of those that are always
// there, one that a typedef before it names, or any word but a statement's with a declarator after it.
SEmbeddedSource ReadEmbeddedSource(std::string_view text);

// The places of the "$" that stand for ":" in the statement [from, end).
std::vector<std::size_t> FindHostMarks(std::string_view text, std::size_t from, std::size_t end);

} // namespace Esql

// The rewrite of RewriteEmbeddedSql() by these rules. "EXEC SQL " stands for the "$" of every statement, also
// of those for the preprocessor ("$ifdef X;"); a piece that has no end stays as it is.
SPreparedText RewriteEmbeddedSqlFaithfully(const Uve::U8CString& text);

// What can't be read in a text of either notation: statements, declarations and declare sections without an
// end.
std::vector<SPreparationNote> FindEmbeddedSqlNotes(std::string_view text);
