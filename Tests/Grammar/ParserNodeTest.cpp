#include "Grammar/ParserNode.h"

#include "Tests/Support/EngineFixture.h"

#include <gtest/gtest.h>

namespace {

ParserNode FilledNode()
{
    ParserNode node;
    node.m_nStart = 3;
    node.m_nLength = 4;
    node.m_nLine = 5;
    node.m_pFirst = 6;
    node.m_pLast = 7;
    node.m_pPendingFirst = 8;
    node.m_pPendingLast = 9;
    node.m_strText = "text";
    node.m_strTemp = "temp";
    return node;
}

// Everything moves but the two work texts, which stay on both sides.
void ExpectMoved(const ParserNode& target)
{
    EXPECT_EQ(target.m_nStart, 3);
    EXPECT_EQ(target.m_nLength, 4);
    EXPECT_EQ(target.m_nLine, 5u);
    EXPECT_EQ(target.m_pFirst, 6u);
    EXPECT_EQ(target.m_pLast, 7u);
    EXPECT_EQ(target.m_pPendingFirst, 8u);
    EXPECT_EQ(target.m_pPendingLast, 9u);
    EXPECT_EQ(target.m_strText, "own");
    EXPECT_EQ(target.m_strTemp, "");
}

TEST(ParserNode, StacksCopyAsManyValuesAsTheyAreTold)
{
    CSQLGrammarParser parser;
    auto* const from = static_cast<ParserNode*>(parser.yynewattribute(3));
    auto* const to = static_cast<ParserNode*>(parser.yynewattribute(3));
    for (int i = 0; i < 3; ++i) {
        from[i] = FilledNode();
        to[i].m_strText = "own";
    }
    parser.yycopy_attributes(to, from, 2);
    ExpectMoved(to[0]);
    ExpectMoved(to[1]);
    EXPECT_EQ(to[2].m_nStart, -1);
    EXPECT_EQ(from[0].m_strText, "text");
    parser.yydeleteattribute(from);
    parser.yydeleteattribute(to);
}

} // namespace
