#include "Grammar/UVGrammarParser.h"

#include <algorithm>
#include <stdexcept>

// How a reduction makes its node.

namespace {

// A node that starts nowhere yet.
ParserNodeValue NewNode()
{
    ParserNodeValue node;
    node.m_nStart = -1;
    node.m_nLine = static_cast<unsigned>(-1);
    return node;
}

} // namespace

// Joins one child to the node. The gap before it goes in as space; an empty child waits, so that it comes out
// after the space that follows it and doesn't split a gap.
[[gnu::always_inline]] inline void
CSQLGrammarParser::CreateNode(ParserNodeValue& node, const ParserNode& child, SJoin& join, bool show)
{
    if (node.m_nStart == -1)
        node.m_nStart = child.m_nStart;
    if (node.m_nLine >= static_cast<unsigned>(-2))
        node.m_nLine = child.m_nLine;
    if (join.lastChildStartPos != -1 && child.m_nStart != -1 && child.m_nStart != -2) {
        const std::string_view query = m_Extension.m_strQuery;
        const int gapLength = child.m_nStart - join.lastChildStartPos;
        const auto from = static_cast<std::size_t>(join.lastChildStartPos);
        if (from > query.size())
            throw std::out_of_range("a gap begins after the text");
        node.m_nLength += gapLength;
        if (gapLength > 0 && from < query.size()) {
            const auto length = std::min(static_cast<std::size_t>(gapLength), query.size() - from);
            if (join.lastChildErrorPos != -1 && join.lastChildErrorPos <= child.m_nStart)
                ReportErrors(child, query.substr(from, length), show);
            Append(node, m_Fragments.NewSpace(static_cast<std::uint32_t>(from),
                                              static_cast<std::uint32_t>(length)));
            if (m_bFragmentsWanted)
                m_Fragments.TakeSlice(query.data(), from, length);
        }
    }
    if (m_bFragmentsWanted && child.m_pFirst != kNoFragment)
        join.marks |= m_Fragments.TakeChild(join.element, child.m_pFirst);
    if (child.m_nLength != 0) {
        node.m_nLength += child.m_nLength;
        SpliceFragments(m_Fragments, node.m_pFirst, node.m_pLast, node.m_pPendingFirst, node.m_pPendingLast);
        node.m_pPendingFirst = kNoFragment;
        node.m_pPendingLast = kNoFragment;
        SpliceFragments(m_Fragments, node.m_pFirst, node.m_pLast, child.m_pFirst, child.m_pLast);
        join.lastChildStartPos = child.m_nStart + child.m_nLength;
    } else {
        SpliceFragments(m_Fragments, node.m_pPendingFirst, node.m_pPendingLast, child.m_pFirst,
                        child.m_pLast);
    }
}

void CSQLGrammarParser::CreateNodeExt(const SOperation& operation)
{
    ParserNodeValue node = NewNode();
    if (operation.childCount == 0) {
        Append(node, m_Fragments.NewTag(enFragment::Empty, operation.element));
    } else {
        Append(node, m_Fragments.NewTag(enFragment::Open, operation.element));
        SJoin join{.element = operation.element};
        for (int child = 0; child < operation.childCount; ++child)
            CreateNode(node, StackEntry(1 - operation.childCount + child), join, true);
        if (join.marks != 0)
            m_Fragments[node.m_pFirst].Mark(join.marks);
        SpliceFragments(m_Fragments, node.m_pFirst, node.m_pLast, node.m_pPendingFirst, node.m_pPendingLast);
        node.m_pPendingFirst = kNoFragment;
        node.m_pPendingLast = kNoFragment;
        Append(node, m_Fragments.NewTag(enFragment::Close, operation.element));
    }
    auto& value = *static_cast<ParserNode*>(yyval);
    static_cast<ParserNodeValue&>(value) = node;
    if (operation.isRoot)
        addRootSpaces(value);
}

void CSQLGrammarParser::CreateErrorNodeExt(const SOperation& operation)
{
    if (m_Extension.m_bDevelopmentMode)
        yythrowerror(1);
    ParserNodeValue node = NewNode();
    Append(node, m_Fragments.NewTag(enFragment::Open, operation.element));
    SJoin join{.element = operation.element};
    for (int child = 0; child < operation.childCount; ++child) {
        const ParserNode& entry = StackEntry(1 - operation.childCount + child);
        if (child == operation.errorIndex) {
            // what was skipped isn't joined: the gap before the next child covers it
            join.lastChildErrorPos = join.lastChildStartPos != -1 ? join.lastChildStartPos : entry.m_nStart;
            continue;
        }
        CreateNode(node, entry, join, m_Extension.m_bShowErrors);
    }
    m_Fragments[node.m_pFirst].Mark(join.marks);
    Append(node, m_Fragments.NewTag(enFragment::Close, operation.element));
    static_cast<ParserNodeValue&>(*static_cast<ParserNode*>(yyval)) = node;
}

// The tree is complete: what stands before and after it goes around it, and unless the fragments are wanted,
// or if they aren't of the form that flattening takes, they become text.
void CSQLGrammarParser::addRootSpaces(ParserNodeValue& root)
{
    const std::string_view query = m_Extension.m_strQuery;
    const auto end = static_cast<std::size_t>(std::max(root.m_nStart + root.m_nLength, 0));
    if (end > query.size())
        throw std::out_of_range("the tree ends after the text");
    const auto lead = static_cast<std::uint32_t>(std::max(root.m_nStart, 0));
    const auto outer = [&](std::size_t from, std::size_t length) {
        m_Fragments.TakeSlice(query.data(), from, std::min(length, query.size() - from));
        return m_Fragments.NewSpace(static_cast<std::uint32_t>(from), static_cast<std::uint32_t>(length));
    };
    ParserNodeValue whole = NewNode();
    Append(whole, m_Fragments.NewTag(enFragment::Open, m_nRootElement));
    m_Fragments[whole.m_pFirst].Mark(m_Fragments.TakeChild(m_nRootElement, root.m_pFirst));
    Append(whole, outer(0, lead));
    SpliceFragments(m_Fragments, whole.m_pFirst, whole.m_pLast, root.m_pFirst, root.m_pLast);
    Append(whole, outer(end, query.size() - end));
    Append(whole, m_Fragments.NewTag(enFragment::Close, m_nRootElement));

    m_Tree = {};
    m_Extension.m_strParsedXml.clear();
    const SFragmentTree tree{&m_Fragments, whole.m_pFirst, query};
    if (m_bFragmentsWanted && IsPlainTree(tree))
        m_Tree = tree;
    else
        WriteTree(tree, m_Extension.m_strParsedXml);
    // a rule above the root sees a node without text
    root.m_pFirst = kNoFragment;
    root.m_pLast = kNoFragment;
    root.m_pPendingFirst = kNoFragment;
    root.m_pPendingLast = kNoFragment;
    ReportRemainingErrors();
}
