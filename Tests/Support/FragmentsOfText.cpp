#include "Tests/Support/FragmentsOfText.h"

#include "Tree/TextEvents.h"

#include <iterator>
#include <vector>

namespace {

// What comes to a text now and then.
constexpr std::string_view kAdditions[] = {
    "'",
    "\"",
    "\f",
    "\r\n",
    "\r\f\n",
    "\r",
    "\x10",
    "\x01",
    "\x7F",
    "]]>",
    "&amp;",
    "<a/>",
    "\t\n",
    "\xC3\xA9",
    "\xEF\xBF\xBE",
    "\xEF\xBF\xBF",
    "\xEF\xBC\x81",
    "\xEF\xBB\xBF",
    "\xF0\x9F\x98\x80",
};
// What no tree can hold.
constexpr std::string_view kOddities[] = {"\xC3", "\xA9", std::string_view("\0", 1), "\xED\xA0\x80"};

} // namespace

class CFragmentsOfText::CMaker
{
public:
    CMaker(std::string_view text, CFragmentsOfText& owner, bool canBeOdd)
        : m_Events(text), m_Owner(owner), m_CanBeOdd(canBeOdd),
          m_Varied(static_cast<std::uint32_t>(text.size()))
    {}

    FragmentRef Make()
    {
        for (std::uint64_t at = 0; m_Events.At(at).kind != enTreeEvent::Finish; ++at) {
            const STreeEvent event = m_Events.At(at);
            switch (event.kind) {
            case enTreeEvent::Start:
                Open(event);
                break;
            case enTreeEvent::End:
                Close();
                break;
            case enTreeEvent::Leaf:
                Leaf(event);
                break;
            case enTreeEvent::Text:
                Token(Once(2) ? "T__a" : "T__SPACE", Text(event));
                break;
            case enTreeEvent::Comment:
            case enTreeEvent::Finish:
                break;
            }
        }
        return m_First;
    }

private:
    // The same text varies in the same way each time.
    std::uint32_t Below(std::uint32_t count)
    {
        m_Varied = m_Varied * 1664525 + 1013904223;
        return (m_Varied >> 8) % count;
    }
    bool Once(std::uint32_t in) { return Below(in) == 0; }

    std::uint32_t Element(std::string_view name) { return m_Owner.m_Pool.Names().Intern(std::string(name)); }
    void Append(FragmentRef fragment)
    {
        SpliceFragments(m_Owner.m_Pool, m_First, m_Last, fragment, fragment);
    }
    void AppendChild(FragmentRef child)
    {
        CFragmentPool& pool = m_Owner.m_Pool;
        if (!m_Open.empty())
            pool[m_Open.back()].Mark(pool.TakeChild(pool[m_Open.back()].Element(), child));
        Append(child);
    }
    // A space that holds elements isn't plain.
    std::uint32_t ElementOf(const STreeEvent& event)
    {
        const std::string_view name = m_Events.Name(event.name);
        return Element(name == "T__SPACE" ? "T__b" : name);
    }
    void Open(const STreeEvent& event)
    {
        const FragmentRef tag = m_Owner.m_Pool.NewTag(enFragment::Open, ElementOf(event));
        AppendChild(tag);
        m_Open.push_back(tag);
    }
    void Close()
    {
        CFragmentPool& pool = m_Owner.m_Pool;
        Append(pool.NewTag(enFragment::Close, pool[m_Open.back()].Element()));
        m_Open.pop_back();
    }

    void Leaf(const STreeEvent& event)
    {
        const std::string_view name = m_Events.Name(event.name);
        if (name.starts_with("T__")) {
            Token(name, Text(event));
        } else if (event.extent == 0 && Once(2)) {
            AppendChild(m_Owner.m_Pool.NewTag(enFragment::Empty, ElementOf(event)));
        } else {
            Open(event);
            if (event.extent != 0)
                Token("T__a", Text(event));
            Close();
        }
    }

    std::string Text(const STreeEvent& event)
    {
        std::string text;
        m_Events.AppendCharactersOf(event, text);
        for (std::uint32_t left = Once(4) ? 1 + Below(3) : 0; left > 0; --left)
            text += kAdditions[Below(std::size(kAdditions))];
        if (m_CanBeOdd && Once(300))
            text += kOddities[Below(std::size(kOddities))];
        return text;
    }

    void Token(std::string_view name, const std::string& text)
    {
        CFragmentPool& pool = m_Owner.m_Pool;
        const auto start = static_cast<std::uint32_t>(m_Owner.m_Query.size());
        const auto length = static_cast<std::uint32_t>(text.size());
        const std::uint32_t line = 1 + Below(2000000);
        const std::int32_t pos = static_cast<std::int32_t>(Below(200)) - 1;
        const bool isOwnText = name != "T__SPACE" && Once(8);
        if (!isOwnText)
            m_Owner.m_Query += text;
        if (name == "T__SPACE")
            Append(pool.NewSpace(start, length));
        else if (isOwnText)
            AppendChild(pool.NewTokenText(Element(name), text, line, pos));
        else
            AppendChild(pool.NewToken(Element(name), start, length, line, pos));
        if (!isOwnText)
            pool.TakeSlice(m_Owner.m_Query.c_str(), start, length);
    }

    CTextEvents m_Events;
    CFragmentsOfText& m_Owner;
    bool m_CanBeOdd;
    std::uint32_t m_Varied;
    FragmentRef m_First = kNoFragment, m_Last = kNoFragment;
    std::vector<FragmentRef> m_Open; // start tags without their end tags
};

CFragmentsOfText::CFragmentsOfText(std::string_view text, bool canBeOdd)
{
    try {
        m_Tree.first = CMaker(text, *this, canBeOdd).Make();
        m_Tree.pool = &m_Pool;
        m_Tree.query = m_Query;
    } catch (const STreeDeclined&) {
        m_Tree = {};
    }
}
