#include "Tree/FragmentEvents.h"

#include "Tree/TreeCharacters.h"

namespace {

// How many fragments are read in one go.
constexpr int kBatch = 32;

// The escapes of the raw tree, read and written again: quotes stand for themselves. What a reader changes,
// line ends and control characters among them, is left, and so is what could be U+FFFE or U+FFFF.
constexpr SEscapes FlatEscapes()
{
    SEscapes escapes;
    for (std::size_t byte = 0; byte < ' '; ++byte)
        escapes.kind[byte] = SEscapes::Left;
    escapes.kind['\t'] = SEscapes::Plain;
    escapes.kind['\n'] = SEscapes::Plain;
    escapes.kind[0xEF] = SEscapes::Left;
    escapes.Replace('&', "&amp;");
    escapes.Replace('<', "&lt;");
    escapes.Replace('>', "&gt;");
    return escapes;
}

constexpr SEscapes kFlatEscapes = FlatEscapes();

void MakeLeaf(STreeEvent& event, std::size_t bytes)
{
    event.kind = enTreeEvent::Leaf;
    event.extent = static_cast<std::uint32_t>(bytes);
    event.flags = bytes != 0 ? STreeEvent::kHasCharacters : 0;
}

} // namespace

inline void CFragmentEvents::ReadFragment()
{
    const SFragment& fragment = (*m_Tree.pool)[m_Next];
    m_Tree.pool->FetchAhead(m_Next);
    STreeEvent& event = Append();
    event.offset = m_Next;
    event.name = fragment.Element();
    event.length = 0;
    event.extent = 0;
    event.flags = 0;
    m_Next = fragment.next;
    switch (fragment.Kind()) {
    case enFragment::Open:
        event.kind = enTreeEvent::Start;
        event.flags = fragment.Marks();
        m_Open.push_back(End() - 1);
        return;
    case enFragment::Close: {
        event.kind = enTreeEvent::End;
        const std::uint64_t start = m_Open.back();
        m_Open.pop_back();
        if (IsRetained(start))
            Stored(start).extent = static_cast<std::uint32_t>(End() - 1 - start);
        return;
    }
    case enFragment::Empty:
        MakeLeaf(event, 0);
        return;
    case enFragment::Space: {
        const std::string_view text = m_Tree.TextOf(static_cast<const SSpaceFragment&>(fragment));
        // form feeds are none in the raw tree
        const bool hasCharacters =
            !text.empty() && (text.front() != '\f' || text.find_first_not_of('\f') != std::string_view::npos);
        MakeLeaf(event, hasCharacters ? text.size() : 0);
        return;
    }
    case enFragment::Token:
    case enFragment::TokenText:
        MakeLeaf(event, static_cast<const STokenFragment&>(fragment).length);
        return;
    }
}

void CFragmentEvents::ReadOn()
{
    for (int i = 0; i < kBatch && m_Next != kNoFragment; ++i)
        ReadFragment();
    if (m_Next == kNoFragment)
        Append() = {.offset = 0,
                    .name = TreeNames::kNoName,
                    .length = 0,
                    .extent = 0,
                    .kind = enTreeEvent::Finish,
                    .flags = 0};
}

void CFragmentEvents::Forgotten(const STreeEvent* events)
{
    // the end, which has no fragment, is never forgotten
    const STreeEvent* const end = events + kBlockMask + 1;
    while (events != end) {
        // neighbours stand in one piece of memory, mostly
        const auto first = static_cast<FragmentRef>(events->offset);
        std::uint32_t count = 0;
        while (events != end &&
               CFragmentPool::AreInOnePiece(first, static_cast<FragmentRef>(events->offset))) {
            ++events;
            ++count;
        }
        m_Tree.pool->Drop(first, count);
    }
}

std::string_view CFragmentEvents::TextOf(const SFragment& fragment) const
{
    switch (fragment.Kind()) {
    case enFragment::Space:
        return m_Tree.TextOf(static_cast<const SSpaceFragment&>(fragment));
    case enFragment::Token:
    case enFragment::TokenText:
        return m_Tree.TextOf(static_cast<const STokenFragment&>(fragment));
    default:
        return {};
    }
}

void CFragmentEvents::WriteStart(const STreeEvent& event, CTextBlock& out) const
{
    const SFragment& fragment = Fragment(event);
    switch (fragment.Kind()) {
    case enFragment::Space:
        out.Write(kSpaceOpen.substr(0, kSpaceOpen.size() - 1));
        break;
    case enFragment::Token:
    case enFragment::TokenText: {
        const auto& token = static_cast<const STokenFragment&>(fragment);
        out.TokenTag(Names()[event.name], token.line - 1, token.pos);
        break;
    }
    default:
        out.Markup(Names()[event.name].open, 1);
    }
}

void CFragmentEvents::WriteLeaf(const STreeEvent& event, CTextBlock& out)
{
    const SFragment& fragment = Fragment(event);
    const enFragment kind = fragment.Kind();
    const SElementName& name = Names()[event.name];
    if (event.extent == 0) {
        WriteStart(event, out);
        out.Write("/>");
    } else if (kind == enFragment::Space) {
        out.Write(kSpaceOpen);
        WriteText(m_Tree.TextOf(static_cast<const SSpaceFragment&>(fragment)), true, out);
        out.Write(kSpaceClose);
    } else {
        const auto& token = static_cast<const STokenFragment&>(fragment);
        out.TokenTag(name, token.line - 1, token.pos);
        out.Write('>');
        WriteText(m_Tree.TextOf(token), false, out);
        out.Markup(name.close);
    }
}

void CFragmentEvents::WriteText(std::string_view text, bool isSpace, CTextBlock& out)
{
    const std::size_t written = out.Escaped(text, kFlatEscapes);
    if (written == text.size())
        return;
    // What was written has no effect on the rest: it doesn't end within a character or a line end.
    m_Raw.clear();
    m_Piece.clear();
    AppendRawText(text.substr(written), isSpace, m_Raw);
    AppendSerialised(m_Raw, enRun::Text, m_Piece);
    out.Write(m_Piece);
}

TreeAttributes CFragmentEvents::Attributes(const STreeEvent& event) const
{
    const SFragment& fragment = Fragment(event);
    const enFragment kind = fragment.Kind();
    if (kind == enFragment::Space)
        return {{"type", "TOKEN"}};
    if (kind != enFragment::Token && kind != enFragment::TokenText)
        return {};
    const auto& token = static_cast<const STokenFragment&>(fragment);
    return {{"type", "TOKEN"}, {"line", std::to_string(token.line - 1)}, {"pos", std::to_string(token.pos)}};
}

void CFragmentEvents::AppendCharactersOf(const STreeEvent& event, std::string& out)
{
    const SFragment& fragment = Fragment(event);
    m_Raw.clear();
    AppendRawText(TextOf(fragment), fragment.Kind() == enFragment::Space, m_Raw);
    AppendCharacters(m_Raw, enRun::Text, out);
}
