// A finished tree before any text is made of it: what a parse hands over. Flattening takes it as it stands;
// its own text, the raw tree, is written when somebody has to see that.
#pragma once

#include "Tree/FragmentPool.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

// Borrows everything.
struct SFragmentTree
{
    CFragmentPool* pool = nullptr;
    FragmentRef first = kNoFragment; // the root's start tag
    std::string_view query;          // what the fragments name by position

    explicit operator bool() const { return first != kNoFragment; }

    // The source of a space or a token.
    std::string_view TextOf(const SSpaceFragment& space) const
    {
        return query.substr(space.start, space.length);
    }
    std::string_view TextOf(const STokenFragment& token) const
    {
        return token.Kind() == enFragment::TokenText ? std::string_view(pool->Text(token.start))
                                                     : query.substr(token.start, token.length);
    }
};

// Whether the fragments are in the plain form of names, characters and nesting which CTextEvents reads in the
// raw tree: otherwise its text is for the stylesheet. See the note on plain trees.
[[nodiscard]] bool IsPlainTree(const SFragmentTree& tree);

// Puts the XML text of the tree in the place of `out`. Token text has the five special characters of XML
// escaped; of the space between tokens, form feeds go and data link escapes become a word as well.
// Throws: as ForEachFragment.
void WriteTree(const SFragmentTree& tree, std::string& out);

// At least the bytes of that text, and few more, so that room for it is reserved in one step.
std::size_t MeasureTree(const SFragmentTree& tree);

// Appends the text of a single space or token as it stands in the raw tree.
void AppendRawText(std::string_view text, bool isSpace, std::string& out);

// Walks a list, and doesn't walk for ever.
// Throws: std::runtime_error if the list runs in a circle, which only damaged tables can bring about.
template <class Visit>
void ForEachFragment(const SFragmentTree& tree, Visit&& visit)
{
    std::size_t left = tree.pool->Count();
    for (FragmentRef at = tree.first; at != kNoFragment; at = (*tree.pool)[at].next) {
        if (left-- == 0)
            throw std::runtime_error("the tree's fragments run in a circle");
        visit(at);
    }
}
