// What the rewrite of embedded SQL looks for in a text. All searches are linear in the text, whatever it
// holds. Positions count bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Esql {

constexpr std::size_t kNowhere = std::string_view::npos;

struct SSpan
{
    std::size_t from = 0;
    std::size_t end = 0; // after the last byte
};

inline bool IsSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

inline char Lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

inline std::size_t SkipSpace(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsSpace(text[at]))
        ++at;
    return at;
}

// `word` is in small letters; the text may be in any.
bool BeginsWith(std::string_view text, std::size_t at, std::string_view word);
// The same, and white space follows it.
bool BeginsWithWord(std::string_view text, std::size_t at, std::string_view word);

// The next place of one character. Questions from ascending places cost no more than one walk over the text.
class CNextOf
{
public:
    CNextOf(std::string_view text, char character)
        : m_Text(text), m_Character(character), m_Last(text.rfind(character))
    {}

    std::size_t From(std::size_t at)
    {
        if (m_Last == kNowhere || at > m_Last)
            return kNowhere;
        if (at < m_Asked || at > m_Found) {
            m_Asked = at;
            m_Found = m_Text.find(m_Character, at);
        }
        return m_Found;
    }

private:
    std::string_view m_Text;
    char m_Character;
    std::size_t m_Last;
    std::size_t m_Asked = 1; // nothing asked yet
    std::size_t m_Found = 0;
};

// Block comments, over lines too, and line comments that a line feed or "\r\n" ends; neither looks for the
// other. One that nothing ends is none.
class CComments
{
public:
    CComments() = default;
    explicit CComments(std::string_view text);

    bool Contains(std::size_t at) const { return Contains(m_Blocks, at) || Contains(m_Lines, at); }

private:
    static bool Contains(const std::vector<SSpan>& spans, std::size_t at);

    std::vector<SSpan> m_Blocks;
    std::vector<SSpan> m_Lines;
};

// The types of host variables: those that are always there, and the source's own. A text begins with a type
// whatever follows the name.
class CTypeNames
{
public:
    // Adds names of the source. One of more than kLongestName bytes is passed over.
    void Add(std::vector<std::string> names);

    // Some type but a binary one, which isn't a single word, stands at `at`.
    bool BeginsAt(std::string_view text, std::size_t at) const;

    static constexpr std::size_t kLongestName = 256;

private:
    std::vector<std::string> m_Names; // in small letters, ascending, none the beginning of another
};

// `word` is one of the types that are always there.
bool IsStartingType(std::string_view word);

// One of those that a declaration with any ending may have.
bool BeginsWithBuiltInType(std::string_view text, std::size_t at);

// "fixed binary" or "var binary", and white space after it.
// Returns: the place of that white space, or kNowhere.
std::size_t BinaryTypeEnd(std::string_view text, std::size_t at);

enum class enDollar
{
    Nothing,
    Preprocessor,
    Statement
};

// What the text after a "$" makes of it, declarations aside. `isAdjacent` is false if white space between
// the "$" and `behind` has been passed already.
enDollar ClassifyDollar(std::string_view behind, bool isAdjacent = true);

// The text after a "$" ends a declare section.
bool EndsDeclareSection(std::string_view behind);

// The next "exec sql" that isn't in a comment.
// Returns: `end` is after the white space that follows it; kNowhere twice if there is none.
SSpan FindExecSql(std::string_view text, std::size_t from, const CComments& comments);

// The statements of both notations, up to and without their ";".
std::vector<SSpan> FindStatements(std::string_view text, const CComments& comments);

// The declare sections of both notations that have an end.
std::vector<SSpan> FindDeclareSections(std::string_view text, const CComments& comments);

// Appends the names of one typedef, [from, end) without its ";": of each declarator after the braces the
// last name that isn't in brackets, or the one of a pointer to a function.
void AddDeclaratorNames(std::string_view text, std::size_t from, std::size_t end, const CComments& comments,
                        std::vector<std::string>& names);

// The names that the "$typedef" declarations of the text give.
std::vector<std::string> FindTypeNames(std::string_view text, const CComments& comments);

struct SDeclaration
{
    std::size_t dollar = 0;
    std::size_t end = 0; // after its ";"
    bool isInSection = false;
};

std::vector<SDeclaration> FindDeclarations(std::string_view text, const CComments& comments,
                                           const CTypeNames& types);

// A position of ascending questions in ascending spans that don't overlap.
class CSpanCursor
{
public:
    explicit CSpanCursor(const std::vector<SSpan>& spans) : m_Spans(spans) {}

    // The position lies after the first byte of a span.
    bool IsInside(std::size_t at)
    {
        while (m_Current < m_Spans.size() && m_Spans[m_Current].end <= at)
            ++m_Current;
        return m_Current < m_Spans.size() && m_Spans[m_Current].from < at;
    }

private:
    const std::vector<SSpan>& m_Spans;
    std::size_t m_Current = 0;
};

} // namespace Esql
