// A tree as lines that people read and write. An element stands on a line of its own, two blanks further in than the one
// that it is in. Elements with nothing in them but one other stand on that one's line, a slash between:
//
//     let_statement
//       T__LET "let"
//       name/T__NAME "total"
//       T__SPACE "# a comment"
//
//     line    = blanks ( path [ blank text ] | text )
//     path    = element { "/" element }
//     element = name { blank name "=" text }
//     text    = in double or single quotes, with \" \' \\ \n \r \t \xHH
//
// Left out are places and colors, the type of tokens, and the blanks that a space begins or ends with; a space of blanks
// alone is left out as a whole. Text beside elements is a text on a line of its own.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace uvtest {

using TLines = std::vector<std::string>;

// A line that isn't of the form above.
class COutlineError : public std::runtime_error
{
public:
    COutlineError(std::size_t index, const std::string& text) : std::runtime_error(text), m_Index(index) {}
    std::size_t Index() const { return m_Index; } // of the line, from 0

private:
    std::size_t m_Index;
};

// `tree` may be several trees, one after the other; what isn't in an element of them is passed over.
// Throws: std::runtime_error if it isn't well-formed.
TLines OutlineOfTree(std::string_view tree);

// The same tree as OutlineOfTree would write it: people may indent as they like, and give each element a line.
// Throws: COutlineError.
TLines OutlineOfLines(const TLines& lines);

// An element of an outline, or a text beside elements, which has no name.
struct SOutlineElement
{
    std::string name;
    std::string text;
    std::size_t parent = std::string_view::npos; // its index
};

// In the order of the lines.
// Throws: COutlineError.
std::vector<SOutlineElement> ElementsOfLines(const TLines& lines);

std::string QuotedText(std::string_view text);

} // namespace uvtest
