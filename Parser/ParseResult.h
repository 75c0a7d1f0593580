// What a parse has made.
#pragma once

#include "Grammar/UVGrammarParser.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <memory>

// A text, or a tree that is still in fragments: most results are flattened as they are, and only then become
// a text, once. Whoever asks for the text before gets the raw tree's.
class CParseResult
{
public:
    bool IsEmpty() const { return !m_Parser && m_Text.IsEmpty(); }

    // Takes over a text.
    void SetText(Uve::U8CString text);
    // Takes over what yyparse has made. Shares the parser as long as the fragments are needed.
    void TakeTree(const std::shared_ptr<CSQLGrammarParser>& parser);

    // Throws: std::bad_alloc if the fragments have to become text first; the result is empty then.
    Uve::U8CString& Text();

    // Puts the flattened tree in the place of fragments, if the result is some.
    // Returns: whether it was.
    // Throws:  as FlattenTree; the result is empty then.
    bool FlattenFragments(std::string_view declaration);

    void swap(CParseResult& other) noexcept;

private:
    Uve::U8CString m_Text;
    std::shared_ptr<CSQLGrammarParser>
        m_Parser; // holds the tree, which lasts until its next text; null: m_Text
};
