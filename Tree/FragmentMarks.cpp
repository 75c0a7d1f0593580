#include "Tree/FragmentTree.h"
#include "Tree/TreeCharacters.h"
#include "Tree/TreeEvents.h"

#include <algorithm>
#include <vector>

namespace {

// No byte of it is a NUL, or belongs to a character of several bytes.
bool IsAscii(std::string_view text)
{
    signed char least = 1;
    for (const char c : text)
        least = std::min(least, static_cast<signed char>(c));
    return least == 1;
}

class CMarker
{
public:
    explicit CMarker(const SFragmentTree& tree)
        : m_Tree(tree), m_IsAscii(IsAscii(tree.query)), m_IsQueryValid(m_IsAscii || IsTreeText(tree.query)),
          m_IsPlain(tree.pool->Names().AreTreeNames())
    {}

    void Take(FragmentRef ref)
    {
        SFragment& fragment = (*m_Tree.pool)[ref];
        m_Tree.pool->FetchAhead(ref);
        if (fragment.Kind() == enFragment::Close) {
            Close(fragment);
            return;
        }
        Enter(fragment.Element());
        switch (fragment.Kind()) {
        case enFragment::Open:
            m_Open.push_back({ref, fragment.Element(), 0});
            break;
        case enFragment::Space: {
            const std::string_view text = m_Tree.TextOf(static_cast<const SSpaceFragment&>(fragment));
            const bool hasCharacters =
                !text.empty() &&
                (text.front() != '\f' || text.find_first_not_of('\f') != std::string_view::npos);
            Hold(fragment, IsSlicePlain(text), hasCharacters);
            break;
        }
        case enFragment::Token: {
            const std::string_view text = m_Tree.TextOf(static_cast<const STokenFragment&>(fragment));
            Hold(fragment, IsSlicePlain(text), !text.empty());
            break;
        }
        case enFragment::TokenText: {
            const std::string_view text = m_Tree.TextOf(static_cast<const STokenFragment&>(fragment));
            Hold(fragment, IsTreeText(text), !text.empty());
            break;
        }
        case enFragment::Empty:
        case enFragment::Close:
            break;
        }
    }

    bool IsPlain() const { return m_IsPlain && m_HasRoot && m_Open.empty(); }

private:
    struct SOpen
    {
        FragmentRef tag;
        std::uint32_t element;
        std::uint32_t marks;
    };

    void Enter(std::uint32_t element)
    {
        if (m_Open.empty()) {
            m_IsPlain = m_IsPlain && !m_HasRoot;
            m_HasRoot = true;
            return;
        }
        SOpen& parent = m_Open.back();
        parent.marks |= parent.element == element ? STreeEvent::kHasItsName : 0U;
        parent.marks |= element == TreeNames::kLabeledStatement ? STreeEvent::kHasLabeled : 0U;
    }

    void Hold(SFragment& fragment, bool isPlain, bool hasCharacters)
    {
        m_IsPlain = m_IsPlain && isPlain;
        if (!hasCharacters)
            return;
        fragment.Mark(STreeEvent::kHasCharacters);
        if (!m_Open.empty())
            m_Open.back().marks |= STreeEvent::kHasCharacters;
    }

    void Close(const SFragment& fragment)
    {
        if (m_Open.empty() || m_Open.back().element != fragment.Element()) {
            m_IsPlain = false;
            return;
        }
        const SOpen open = m_Open.back();
        m_Open.pop_back();
        (*m_Tree.pool)[open.tag].Mark(open.marks);
        if (!m_Open.empty())
            m_Open.back().marks |= open.marks & STreeEvent::kHasCharacters;
    }

    // A slice of good text is good unless an end of it cuts a character.
    bool IsSlicePlain(std::string_view slice) const
    {
        if (m_IsAscii)
            return true;
        if (!m_IsQueryValid)
            return IsTreeText(slice);
        const char* const end = slice.data() + slice.size();
        const bool isLast = end == m_Tree.query.data() + m_Tree.query.size();
        return slice.empty() || (!IsContinuation(slice.front()) && (isLast || !IsContinuation(*end)));
    }
    static bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

    const SFragmentTree& m_Tree;
    const bool m_IsAscii;
    const bool m_IsQueryValid;
    bool m_IsPlain;
    bool m_HasRoot = false;
    std::vector<SOpen> m_Open; // start tags without their end tags
};

} // namespace

bool MarkTree(const SFragmentTree& tree)
{
    CMarker marker(tree);
    ForEachFragment(tree, [&](FragmentRef ref) { marker.Take(ref); });
    return marker.IsPlain();
}
