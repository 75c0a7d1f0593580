// Reading a text into a token list, whole or piece by piece: a token takes many times the memory of its text.
#pragma once

#include "Preparation/MacroTokens.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace MacroPreprocessorChecker::internal {

// Brings a text into the form that the reader takes: without a byte order mark, one byte for a character,
// with "\n" at every line's end, which may have been "\r\n" or "\r". A wide character above 127 becomes the
// byte 255, which the reader refuses outside of comments and strings. For sources with macros and what they
// include alone: other passes keep line ends, and it is the flattened tree that has line feeds only.
std::string DecodeText(std::string bytes);

// Whether DecodeText() would change the text.
bool WantsDecoding(std::string_view bytes);

class TokenReader
{
public:
    // Borrows `list`, `errors` and the decoded `text`, which outlives the tokens. `isHidden`: the text is an
    // include file.
    TokenReader(TokenList& list, std::string_view text, std::string fileName, ErrorList& errors,
                bool isHidden);
    ~TokenReader();

    // Appends about `count` more tokens, or all for which there is no place to stop before. A piece ends with
    // a line, or inside one that is no directive; an operator or literal is never cut.
    // Returns: false at the end of the text, or if it can't be read: then the list is empty, and the reason
    //          among the errors.
    bool Read(std::size_t count);

    // The same for who wants messages and directives alone: operators aren't joined, names have no numbers.
    bool Skim(std::size_t count);

    // Begins with the text again.
    void Restart();

private:
    class Cursor;

    TokenList& m_List;
    std::string_view m_Text;
    std::string m_FileName;
    ErrorList& m_Errors;
    bool m_IsHidden;
    std::unique_ptr<Cursor> m_Cursor;
};

} // namespace MacroPreprocessorChecker::internal
