// The text of a tree cut into tags and what stands between them, in one pass and without a document.
#pragma once

#include <cstddef>
#include <string_view>

namespace uvparse {

enum class enMarkup
{
    Text, // character data, references, CDATA sections
    Start,
    End,
    Empty, // <a/>
    Other  // comments, processing instructions, the declaration
};

// Views into the tree's text.
struct SMarkup
{
    enMarkup kind = enMarkup::Text;
    std::string_view text; // as it stands there; never empty
    std::string_view name; // of an element
};

class CMarkupScanner
{
public:
    explicit CMarkupScanner(std::string_view tree) : m_Tree(tree) {}

    // Tags are not matched with each other.
    // Returns: false at the end, or before a tag that has no end or no name.
    bool Next(SMarkup& markup);

    bool IsAtEnd() const { return m_Offset == m_Tree.size(); }
    // In bytes, after what Next gave last.
    std::size_t GetOffset() const { return m_Offset; }
    std::size_t GetOffsetOf(const SMarkup& markup) const
    {
        return static_cast<std::size_t>(markup.text.data() - m_Tree.data());
    }

private:
    bool ReadTag(SMarkup& markup);
    bool ReadUpTo(std::string_view close, enMarkup kind, SMarkup& markup);
    std::size_t FindTagEnd() const;

    std::string_view m_Tree;
    std::size_t m_Offset = 0;
};

} // namespace uvparse
