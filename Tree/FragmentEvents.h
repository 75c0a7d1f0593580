// The events of a tree that is a list of fragments: one event for each fragment. Names are numbers there
// already, what an element will hold is marked in it, and texts are escaped once, into the result.
#pragma once

#include "Tree/FragmentTree.h"
#include "Tree/TextBlock.h"
#include "Tree/TreeAttributes.h"
#include "Tree/TreeEvents.h"

#include <string>
#include <string_view>
#include <vector>

class CFragmentEvents final : public CTreeEvents
{
public:
    // Of a tree that is plain by IsPlainTree. Uses the fragments up: their memory goes as their events are
    // forgotten.
    explicit CFragmentEvents(const SFragmentTree& tree) : m_Tree(tree), m_Next(tree.first) {}

    // Whether one of `flags` is set on the element at `index`.
    bool Knows(std::uint64_t index, std::uint8_t flags) { return (At(index).flags & flags) != 0; }

    std::string_view Name(std::uint32_t name) const { return Names()[name].Name(); }
    bool IsTerminal(std::uint32_t name) const { return Names()[name].isTerminal; }

    // What a serialiser writes after it has read the raw tree: a whole leaf, a start tag without its closing
    // bracket, an end tag, the characters of a leaf.
    void WriteLeaf(const STreeEvent& event, CTextBlock& out);
    void WriteStart(const STreeEvent& event, CTextBlock& out) const;
    void WriteEnd(std::uint32_t name, CTextBlock& out) const { out.Markup(Names()[name].close); }
    void WriteCharacters(const STreeEvent& event, CTextBlock& out)
    {
        const SFragment& fragment = Fragment(event);
        WriteText(TextOf(fragment), fragment.Kind() == enFragment::Space, out);
    }
    // A parse makes no comments.
    void WriteComment(const STreeEvent&, CTextBlock&) const {}

    TreeAttributes Attributes(const STreeEvent& event) const;
    // The characters that a reader of the raw tree finds in a leaf.
    void AppendCharactersOf(const STreeEvent& event, std::string& out);

private:
    const CElementNames& Names() const { return m_Tree.pool->Names(); }
    const SFragment& Fragment(const STreeEvent& event) const
    {
        return (*m_Tree.pool)[static_cast<FragmentRef>(event.offset)];
    }
    std::string_view TextOf(const SFragment& fragment) const;
    void ReadOn() override;
    void ReadFragment();
    void WriteText(std::string_view text, bool isSpace, CTextBlock& out);
    void Forgotten(const STreeEvent* events) override;

    SFragmentTree m_Tree;
    FragmentRef m_Next;
    std::vector<std::uint64_t> m_Open; // start events without their ends
    std::string m_Raw, m_Piece;        // of text that is more than escaped
};
