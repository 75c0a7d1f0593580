// What the parser would have taken where it met a token that it couldn't.
#include "Grammar/UVGrammarExpected.h"
#include "Tests/Support/EngineFixture.h"

#include <gtest/gtest.h>

namespace {

// The first error's list, joined.
class CExpectedOf
{
public:
    explicit CExpectedOf(const std::string& grammar)
        : m_Engine(grammar), m_Tokens(m_Engine.m_Parser.Tables(), m_Engine.m_Lexer.Tables(),
                                      m_Engine.m_Lexer.Actions(), m_Engine.m_Parser.m_mapDefines)
    {
        m_Engine.m_Parser.set_Expected(
            [this](std::span<const short> stack, int found) { return m_Tokens.Find(stack, found, m_Most); });
    }

    std::string operator()(const std::string& text, std::size_t most = 4)
    {
        m_Most = most;
        m_Engine.m_Parser.ForgetTexts();
        m_Engine.Parse(text);
        const auto& found = m_Engine.m_Parser.m_Extension.m_lstUnexpected;
        if (found.empty())
            return "nothing unexpected";
        std::string shown;
        for (const std::string& token : found.front().expected)
            shown += (shown.empty() ? "" : " ") + token;
        return shown;
    }

private:
    CEngine m_Engine;
    CExpectedTokens m_Tokens;
    std::size_t m_Most = 8;
};

struct SExpectedCase
{
    const char *text, *expected;
};

TEST(EngineExpected, NamesWhatTheTextMightHaveGoneOnWith)
{
    CExpectedOf expected("PostgreSQL");
    constexpr SExpectedCase kCases[] = {
        {"select 1;", "nothing unexpected"},
        {"drop table t cascade cascade;", "';' client send end of text"},
        // what the unexpected token could follow comes first, marks before words
        {"create table t (a int b int);", "',' 'COLLATE' 'COMPRESSION' 'CONSTRAINT'"},
        {"insert into t values (1, 2;", "')' '::' operator operator symbol"},
        {"select (1", "')' '::' operator operator symbol"},
        // many words are one, and so are the forms of a name
        {"select a from;", "name '(' 'CAST' 'LATERAL'"},
        {"alter table t add column;", "name"},
        {"grant select on t;", "',' 'TO'"},
        {"select 'a' from t where x between 1 or 2;", "'::' operator operator symbol 'AND'"},
    };
    for (const SExpectedCase& entry : kCases) {
        EXPECT_EQ(expected(entry.text), entry.expected) << entry.text;
    }
    EXPECT_EQ(expected("alter table t add column;", 1), "name");
    EXPECT_EQ(expected("insert into t values (1, 2;", 2), "')' '::'");
}

} // namespace
