// The token lists that the macro processor works on. White space and line continuations are tokens too, and
// each token knows what to print, so that a list written back looks like its source apart from what a macro
// changed. Everything else looks through such tokens by SkipWhenNextOrPrev().
#pragma once

#include "Preparation/MacroTokenPool.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <list>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace MacroPreprocessorChecker::internal {

using FileNames = std::vector<std::string>;

// Where a token starts. All tokens of a logical line, one with continued lines, stand on the line where it
// begins.
class Location
{
public:
    // Borrows `names`, which outlives the location.
    explicit Location(const FileNames& names, std::uint32_t file = 0, std::uint32_t firstLine = 1,
                      std::uint32_t firstColumn = 1)
        : fileIndex(file), line(firstLine), col(firstColumn), m_Names(&names)
    {}

    // Moves behind `text`. Line ends are "\n", "\r\n" and "\r".
    void adjust(std::string_view text);

    bool sameline(const Location& other) const { return line == other.line && fileIndex == other.fileIndex; }
    bool operator==(const Location& other) const { return sameline(other) && col == other.col; }

    // Empty if the list of names has no such entry.
    const std::string& file() const;

    std::uint32_t fileIndex;
    std::uint32_t line; // from 1; line directives move it
    std::uint32_t col;  // from 1, in bytes

private:
    const FileNames* m_Names;
};

class Token
{
public:
    Token(std::string text, const Location& where, bool isHidden = false);

    // Owner: the caller. A copy of the same type, in no list.
    virtual Token* getCopy() const;
    virtual ~Token() = default;
    virtual std::string strToFile() const;
    virtual bool IsNextLineToken() const { return false; }
    virtual bool IsHidenForHuman() const { return false; }
    virtual bool SkipWhenNextOrPrev() const { return false; }

    Token& operator=(const Token&) = delete;

    static void* operator new(std::size_t size) { return CTokenPool::Allocate(size); }
    static void operator delete(void* memory, std::size_t size) noexcept { CTokenPool::Free(memory, size); }

    // To be called whenever `str` has changed: sets op, comment, name and number.
    void flags();
    void setstr(std::string text);

    char op = 0;          // the character, if `str` is one character long
    bool comment = false; // "//..." or "/*...*/"
    bool name = false;    // begins with a letter, "_" or "$"
    bool number = false;  // begins with a digit, or with "-" and a digit
    // The line of the text itself where the token's logical line begins: line directives don't move it.
    std::uint32_t sourceLine;
    Location location;
    bool hidden; // from an include file: never written
    Token* previous = nullptr;
    Token* next = nullptr;
    std::string str;

protected:
    Token(const Token& other);
};

// A run of blanks.
class TokenSpaces : public Token
{
public:
    // Prints a line end for each line between the two, then the blanks up to the column of `end`.
    TokenSpaces(const Location& start, const Location& end, bool isHidden = false);

    Token* getCopy() const override;
    std::string strToFile() const override { return raw; }
    bool SkipWhenNextOrPrev() const override { return true; }

    Location GapStart() const { return location; }
    Location GapEnd() const;
    std::uint32_t Lines() const;
    std::uint32_t Columns() const;

    std::string raw;

protected:
    TokenSpaces(const char* text, std::string printed, const Location& start, bool isHidden);
    TokenSpaces(const TokenSpaces& other) = default;
};

class TokenTabs : public TokenSpaces
{
public:
    TokenTabs(const Location& start, const Location& end, bool isHidden = false);
    Token* getCopy() const override;
};

// A backslash and a line end: the logical line goes on.
class TokenSlash : public TokenSpaces
{
public:
    explicit TokenSlash(const Location& start, bool isHidden = false);
    Token* getCopy() const override;
    bool IsNextLineToken() const override { return true; }
    bool IsHidenForHuman() const override { return true; }
};

// What a continuation inside a macro becomes when the macro is expanded: a plain line end.
class TokenNewString : public TokenSpaces
{
public:
    explicit TokenNewString(const Location& start, bool isHidden = false);
    Token* getCopy() const override;
    bool IsNextLineToken() const override { return true; }
};

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

// The next or previous token that isn't white space; comments count as white space here. Null if there is
// none.
Token* NextSignificant(const Token* token);
Token* PreviousSignificant(const Token* token);

// A "#" that is the first significant token of its line.
bool StartsDirective(const Token* token);

// Where the joining of operators stands: what is told from the tokens behind it. Kept while going forward,
// since looking back over them at each token would take time in the square of their number.
class OperatorScope
{
public:
    // Inside of a function's braces.
    bool IsExecutable() const { return m_Executable.back(); }

    // "&" and "*" in front of a "=" may end an unnamed parameter's type: f(int *=0). In statements they
    // don't.
    bool IsParameterType(const Token& token) const;

    void Pass(const Token& token);

private:
    std::vector<bool> m_Executable{false};
    bool m_IsBehindParenthesis = false; // a ")" among the brackets and semicolons just passed
    bool m_IsBehindType = false;        // what was just passed may end a type's name
    std::size_t m_Depth = 0;            // parentheses open in the statement
};

// An owning doubly linked list. It stays in the thread that made its tokens.
class TokenList
{
public:
    // Borrows `names`, which outlives the list; the lists of a run share it.
    explicit TokenList(FileNames& names);
    TokenList(const TokenList& other);
    TokenList(TokenList&& other) noexcept;
    TokenList& operator=(const TokenList& other);
    TokenList& operator=(TokenList&& other) noexcept;
    ~TokenList();

    bool empty() const { return first == nullptr; }
    void clear();

    // Takes over `token`, which is in no list.
    void push_back(Token* token);
    void deleteToken(Token* token);
    // Takes `token` out of the list. Owner: the caller.
    Token* release(Token* token);

    // Replaces the list by the tokens of a text. The reader's messages are appended to `errors`; one that
    // ends reading leaves the list empty. `isHidden`: the text is an include file.
    void readfile(std::istream& stream, const std::string& fileName, ErrorList& errors, bool isHidden);
    void readtext(std::string_view text, const std::string& fileName, ErrorList& errors, bool isHidden);

    // The last tokens of the current line, at most `maxsize`, separated by blanks: "%str%" for a string,
    // "%num%" for a number, anything else as it stands. Comments and white space are left out.
    std::string lastLine(std::size_t maxsize) const;

    // What follows stands on `line` of the file; `location` is on the line of the directive itself. A
    // directive that moves the current file by at most 2 lines leaves the list.
    void lineDirective(std::uint32_t fileIndex, std::uint32_t line, Location& location);

    // The index of a name in the list of names, added if this list didn't have it.
    std::uint32_t fileIndex(const std::string& fileName);

    // Joins the characters of operators and floating literals that stand side by side.
    void combineOperators();
    // The same for the tokens from `from` on, which go on where `scope` ended.
    void combineOperators(Token* from, OperatorScope& scope);

    // Folds an expression of numbers and operators; a single number is left if it is well formed. There is no
    // white space in the list. Throws: std::runtime_error for what has no value.
    void constFold();

    // Writes the tokens that aren't hidden, on their lines.
    // `sourceLines`: if not null, gets for each written line the line of the source where it begins.
    void ToFile(std::ostream& stream, std::vector<std::uint32_t>* sourceLines = nullptr) const;
    std::string ToText(std::vector<std::uint32_t>* sourceLines = nullptr) const;

    FileNames& names() const { return *m_Names; }

    Token* first = nullptr;
    Token* last = nullptr;

private:
    void constFoldUnaryNotPosNeg(Token* from);
    void constFoldMulDivRem(Token* from);
    void constFoldAddSub(Token* from);
    void constFoldShift(Token* from);
    void constFoldComparison(Token* from);
    void constFoldBitwise(Token* from);
    void constFoldLogicalOp(Token* from);
    void constFoldQuestionOp(Token* from);
    void JoinNext(Token* token);
    void JoinFloatingLiteral(Token* token);

    FileNames* m_Names;
    std::map<std::string, std::uint32_t> m_FileIndex;
};

// Writes tokens that aren't hidden, on their lines.
class TokenWriter
{
public:
    // `sourceLines`: if not null, gets for each written line the line of the source where it begins.
    explicit TokenWriter(std::vector<std::uint32_t>* sourceLines = nullptr);
    void Write(const Token& token);
    std::string& Text() { return m_Text; }

private:
    void StartLine();

    std::string m_Text;
    std::vector<std::uint32_t>* m_SourceLines;
    std::uint32_t m_Line = 1; // of the source
};

// Numbers of conditions: hexadecimal behind "0x", binary behind "0b", octal behind "0", else decimal; the
// value is taken modulo 2^64, and what follows the digits isn't looked at.
long long stringToLL(std::string_view text);
std::string toString(long long value);

// Digits with an optional sign and integer suffix, as opposed to a floating literal.
bool IsIntegerText(std::string_view text);

// Value of a character constant such as 'a', L'\n' or '\x41'. Throws: std::runtime_error if it is empty.
long long CharacterValue(std::string_view constant);

// `text` with quotes around it, and with backslashes before what a string literal can't hold.
std::string escapeString(std::string_view text);

// What a "string" or 'character' token is, behind an encoding prefix.
bool IsStringText(std::string_view text);
bool IsCharacterText(std::string_view text);

// A text that the reader takes as one name, number, string or operator.
bool IsOneToken(std::string_view text);

// Two texts that would be read differently if nothing stood between them.
bool WouldJoin(std::string_view left, std::string_view right);

} // namespace MacroPreprocessorChecker::internal
