// Fragments for comparing: what a parse could have made, in the shape of a tree that is there as text.
#pragma once

#include "Tree/FragmentTree.h"

#include <string>
#include <string_view>

class CFragmentsOfText
{
public:
    // Follows `text` as far as fragments can hold what it does: elements keep their names and lose their
    // attributes, texts become spaces and tokens, comments go. To the texts come, here and there, bytes that
    // a source may hold and XML can't, or holds otherwise. A text that isn't a plain tree gives no fragments.
    // `canBeOdd`: a text in some hundred has bytes that no tree can hold.
    explicit CFragmentsOfText(std::string_view text, bool canBeOdd = true);

    // False without fragments. Borrows from this object.
    const SFragmentTree& Tree() const { return m_Tree; }

private:
    class CMaker;

    CFragmentPool m_Pool;
    std::string m_Query;
    SFragmentTree m_Tree;
};
