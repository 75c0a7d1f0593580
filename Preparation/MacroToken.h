// The token of the macro processor: a small value that points into the text it was read from. White space and
// line continuations are tokens too, so that what is written back looks like its source apart from what a
// macro changed. Everything else looks through such tokens by SkipWhenNextOrPrev().
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <string_view>

namespace MacroPreprocessorChecker::internal {

// Where a token starts. All tokens of a logical line, one with continued lines, stand on the line where it
// begins.
struct Location
{
    // Moves after `text`. Line ends are "\n", "\r\n" and "\r".
    void adjust(std::string_view text);

    std::uint32_t fileIndex = 0; // the file's name is that of TokenStore::FileName()
    std::uint32_t line = 1;      // from 1; line directives move it
    std::uint32_t col = 1;       // from 1, in bytes
};

enum enTokenKind : std::uint8_t
{
    TOKEN_INK,    // what can be seen
    TOKEN_SPACES, // a run of blanks
    TOKEN_TABS,
    TOKEN_SLASH // a backslash and a line end: the logical line goes on
};

// Made and deleted by the list that holds it.
struct Token
{
    bool IsNextLineToken() const { return kind == TOKEN_SLASH; }
    bool SkipWhenNextOrPrev() const { return kind != TOKEN_INK; }

    // Comments count as white space where a macro or directive is read.
    bool IsWhite() const { return comment || SkipWhenNextOrPrev(); }

    // To be called whenever the text of ink has changed: sets op, comment, name and number.
    void flags();
    void setstr(std::string_view text)
    {
        str = text;
        flags();
    }

    std::string_view str;     // as it is printed; lives as long as the list, or longer
    Token* previous;          // in the list
    Token* next;              // in the list
    std::uint32_t nameNumber; // see NameTable; 0: not looked up
    // The line of the text itself where the token's logical line begins: line directives don't move it.
    std::uint32_t sourceLine;
    Location location;
    enTokenKind kind;
    char op;      // the character, if `str` is one character long
    bool comment; // "//..." or "/*...*/"
    bool name;    // begins with a letter, "_" or "$"
    bool number;  // begins with a digit, or with "-" and a digit
    bool hidden;  // from an include file: never written
};

// The next or previous token that isn't white space; comments count as white space here. Null if there is
// none.
Token* NextSignificant(const Token* token);
Token* PreviousSignificant(const Token* token);

// The next significant token of the same logical line, or null.
const Token* NextOnLine(const Token* token);

// A "#" that is the first significant token of its line.
bool StartsDirective(const Token* token);

enum enErrorType
{
    ERROR_DIRECTIVE = 0,
    WARNING_DIRECTIVE = 1,
    MISSING_HEADER = 2,
    INCLUDE_NESTED_TOO_DEEPLY = 3,
    SYNTAX_ERROR = 4,
    PORTABILITY = 5,
    UNHANDLED_CHARACTER = 6,
    EXPLICIT_INCLUDE_NOT_FOUND = 7
};

struct ErorrOutput
{
    enErrorType type;
    Location location;
    std::string msg;
};

using ErrorList = std::list<ErorrOutput>;

// What a "string" or 'character' token is, after an encoding prefix.
bool IsStringText(std::string_view text);
bool IsCharacterText(std::string_view text);

// A text that the reader takes as one name, number, string or operator.
bool IsOneToken(std::string_view text);

// Two texts that would be read differently if nothing stood between them.
bool WouldJoin(std::string_view left, std::string_view right);

// `text` with quotes around it, and with backslashes before what a string literal can't hold.
std::string escapeString(std::string_view text);

} // namespace MacroPreprocessorChecker::internal
