#pragma once

#include "Tree/FragmentPool.h"

#include <string>

// The semantic value of scanner and parser: a token, or a node of the tree under construction.
//
// Positions and lengths are bytes of the query; they are signed, since a node without source text starts at
// -1.
struct ParserNodeValue
{
    int m_nStart = -1;    // first byte; -1 while unknown
    int m_nLength = 0;    // bytes covered, the gaps between tokens included; 0 for a node without source text
    unsigned m_nLine = 0; // line of the first token, from 1; all ones while unknown
    // The node's XML text, as fragments of the parser's pool.
    FragmentRef m_pFirst = kNoFragment;
    FragmentRef m_pLast = kNoFragment;
    // Children of length 0, held back until the next child with text is there.
    FragmentRef m_pPendingFirst = kNoFragment;
    FragmentRef m_pPendingLast = kNoFragment;
};

struct ParserNode : ParserNodeValue
{
    std::string m_strText; // work texts, which stay where they are when a value moves
    std::string m_strTemp;

    // What a value stack does: everything but the work texts.
    void MoveFrom(const ParserNode& other)
    {
        static_cast<ParserNodeValue&>(*this) = static_cast<const ParserNodeValue&>(other);
    }
};
