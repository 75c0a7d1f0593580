// The token lists that the macro processor works on: reading, joining operators, folding, writing back.
#pragma once

#include "Preparation/MacroToken.h"
#include "Preparation/MacroTokenStore.h"

#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <iosfwd>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace MacroPreprocessorChecker::internal {

// Where the joining of operators stands: what the tokens that it has passed tell. Kept while going forward,
// since looking back over them at each token would take time in the square of their number.
class OperatorScope
{
public:
    // Inside of a function's braces.
    bool IsExecutable() const { return m_Executable.back(); }

    // "&" and "*" before a "=" may end an unnamed parameter's type: f(int *=0). In statements they
    // don't.
    bool IsParameterType(const Token& token) const;

    void Pass(const Token& token);

private:
    std::vector<bool> m_Executable{false};
    bool m_IsBehindParenthesis = false; // a ")" among the brackets and semicolons just passed
    bool m_IsBehindType = false;        // what was just passed may end a type's name
    std::size_t m_Depth = 0;            // parentheses open in the statement
};

// An owning doubly linked list.
class TokenList
{
public:
    // Borrows `store`, which outlives the list; the lists of a run share it.
    explicit TokenList(TokenStore& store) : m_Store(&store) {}
    ~TokenList() { clear(); }
    TokenList(const TokenList&) = delete;
    TokenList& operator=(const TokenList&) = delete;

    bool empty() const { return first == nullptr; }
    // Deletes the tokens, and the texts that the list has kept for them.
    void clear();

    // Appends ink. Borrows `text`, which lives as long as the token.
    Token* push_back(std::string_view text, const Location& where, bool isHidden = false);
    // Appends white space of the kind.
    Token* push_back(enTokenKind kind, std::string_view text, const Location& where, bool isHidden = false);
    // Appends a copy of a token, with the same text.
    Token* push_back(const Token& token);
    // Appends a token of which only the links are set.
    Token* AppendRaw()
    {
        Token* const token = m_Store->pool.Take();
        token->previous = last;
        token->next = nullptr;
        (last != nullptr ? last->next : first) = token;
        last = token;
        return token;
    }

    // Keeps a text that isn't the source's as long as the list's tokens.
    std::string_view Keep(std::string text) { return m_Texts.emplace_front(std::move(text)); }

    void deleteToken(Token* token);
    // Deletes all tokens before `token`, which is in the list.
    void DeleteBefore(Token* token);

    // Replaces the list by the tokens of a text. The reader's messages are appended to `errors`; one that
    // ends reading leaves the list empty. `isHidden`: the text is an include file.
    void readfile(std::istream& stream, const std::string& fileName, ErrorList& errors, bool isHidden);
    void readtext(std::string text, const std::string& fileName, ErrorList& errors, bool isHidden);

    // The last tokens of the current line, at most `maxsize`, separated by blanks: "%str%" for a string,
    // "%num%" for a number, anything else as it stands. Comments and white space are left out.
    std::string lastLine(std::size_t maxsize) const;

    // What follows stands on `line` of the file; `location` is on the line of the directive itself. A
    // directive that moves the current file by at most 2 lines leaves the list.
    void lineDirective(std::uint32_t fileIndex, std::uint32_t line, Location& location);

    // The index of a name in the store's list of files, added if this list didn't have it.
    std::uint32_t fileIndex(const std::string& fileName);

    // Joins the characters of operators and floating literals that stand side by side.
    void combineOperators();
    // The same for the tokens from `from` on, which go on where `scope` ended.
    void combineOperators(Token* from, OperatorScope& scope);

    // Folds an expression of numbers and operators; a single number is left if it is well formed. There is no
    // white space in the list.
    // Throws: std::runtime_error for what has no value.
    void constFold();

    // Writes the tokens that aren't hidden, on their lines.
    // `sourceLines`: if not null, gets for each written line the line of the source where it begins.
    void ToFile(std::ostream& stream, std::vector<std::uint32_t>* sourceLines = nullptr) const;
    std::string ToText(std::vector<std::uint32_t>* sourceLines = nullptr) const;

    TokenStore& store() const { return *m_Store; }

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
    void JoinNumberOrPoints(Token* token);
    void JoinOperator(Token* token, char next, const OperatorScope& scope);

    TokenStore* m_Store;
    std::forward_list<std::string> m_Texts;
    std::map<std::string, std::uint32_t> m_FileIndex;
};

// Writes tokens that aren't hidden, on their lines. What stood side by side in the source is copied as one
// piece: most of a source is no macro's.
class TokenWriter
{
public:
    // `sourceLines`: if not null, gets for each written line the line of the source where it begins.
    explicit TokenWriter(std::vector<std::uint32_t>* sourceLines = nullptr);

    // Makes room for a text of `size` bytes.
    void Reserve(std::size_t size) { m_Text.reserve(size); }

    // Borrows the token's text until Flush().
    void Write(const Token& token)
    {
        if (token.hidden)
            return;
        Write(token.str, token.sourceLine);
        if (token.comment || token.IsNextLineToken())
            CountLineEnds(token.str);
    }

    // Writes a text without line ends for which there is no token, and borrows it as well.
    void Write(std::string_view text, std::uint32_t sourceLine)
    {
        if (sourceLine > m_Line)
            GoToLine(sourceLine);
        if (text.data() == m_Pending.data() + m_Pending.size()) {
            m_Pending = {m_Pending.data(), m_Pending.size() + text.size()};
        } else {
            Flush();
            m_Pending = text;
        }
    }

    // Writes a line end that the source doesn't have.
    void EndLine(std::uint32_t sourceLine)
    {
        Write("\n", sourceLine);
        StartLine();
    }

    // Ends the borrowing of texts.
    void Flush()
    {
        m_Text += m_Pending;
        m_Pending = {};
    }

    std::string TakeText();

private:
    void GoToLine(std::uint32_t sourceLine);
    void CountLineEnds(std::string_view written);
    void StartLine();

    std::string m_Text;
    std::string_view m_Pending; // written, but not yet in m_Text
    std::vector<std::uint32_t>* m_SourceLines;
    std::uint32_t m_Line = 1; // of the source
};

// Numbers of conditions: hexadecimal after "0x", binary after "0b", octal after "0", else decimal; the
// value is taken modulo 2^64, and what follows the digits isn't looked at.
long long stringToLL(std::string_view text);
std::string toString(long long value);

// Digits with an optional sign and integer suffix, as opposed to a floating literal.
bool IsIntegerText(std::string_view text);

// Value of a character constant such as 'a', L'\n' or '\x41'.
// Throws: std::runtime_error if it is empty.
long long CharacterValue(std::string_view constant);

} // namespace MacroPreprocessorChecker::internal
