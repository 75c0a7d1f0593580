// A real language: the engine against the model, over texts that grow until the model gets slow, and over
// what is left of them when bytes change.
#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/ModelEngine.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace {

constexpr int kPostgreSql = 8;
constexpr int kMutations = 60;
constexpr std::size_t kLongestText = 6000;

constexpr const char* kTexts[] = {
    "",
    "select 1",
    ("SELECT a.b, \"c d\" as x, count(*) FROM t1 JOIN t2 USING (id) WHERE a <> 'it''s' AND b >= 1.5e-3 -- "
     "end\n;"),
    "insert into t (a, b) values (1, $$x;y$$), ($tag$ $$ $tag$, E'\\n\\''), (DEFAULT, U&'\\0041');\ncommit;",
    ("with recursive w(n) as (select 1 union all select n + 1 from w where n < 10) select * from w order by "
     "n "
     "desc limit 3;"),
    ("create table s.t (id bigserial primary key, v numeric(10,2) not null default 0 check (v >= 0), /* a /* "
     "b */ c */ "
     "t timestamp with time zone);"),
    ("select 1; selekt 2; select 3;\nupdate t set a = b::text where (a, b) in (select 1, 2); drop table if "
     "exists x cascade;"),
    "explain analyze select case when a is null then 'x' else b end from (values (1, 2)) as v(a, b);",
    "do $body$ begin raise notice 'x'; end $body$ language plpgsql;",
    "select 'open\n; select 2",
    "select $1 + :x, a->>'k', @ 3 !~ '^a', x'1F' || b'01'; \\d t\n",
};

std::string Sample()
{
    std::ifstream file(UV_SOURCE_DIR "/Languages/PostgreSQL/Samples/orders.sql", std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    text.resize(std::min(text.size(), kLongestText));
    return text;
}

class EngineLanguage : public testing::Test
{
protected:
    EngineLanguage() { m_Settings.db = kPostgreSql; }

    void ExpectAgreement(const std::string& text)
    {
        SCOPED_TRACE(text);
        const SParseOutcome outcome = m_Engine.Parse(text, m_Settings);
        ASSERT_EQ(m_Model.Parse(text, m_Settings), outcome);
        ASSERT_EQ(m_Compressed.Parse(text, m_Settings), outcome);
        EXPECT_FALSE(outcome.hasThrown) << m_Engine.m_strException;
        if (!outcome.tree.empty() && FitsIntoXml(text)) {
            ASSERT_EQ(TextOfTree(outcome.tree), text);
        }
    }

    void SetUp() override { m_Compressed.UseCompressedTables(); }

    SEngineSettings m_Settings;
    CEngine m_Engine{"PostgreSQL"};
    CEngine m_Compressed{"PostgreSQL"};
    CModelEngine m_Model{"PostgreSQL"};
};

TEST_F(EngineLanguage, AgreesWithTheModel)
{
    for (const char* const text : kTexts)
        ExpectAgreement(text);
    ExpectAgreement(Sample());
    EXPECT_FALSE(m_Engine.m_Parser.m_Extension.m_strParsedXml.empty());
}

TEST_F(EngineLanguage, AgreesWithTheModelInDevelopmentMode)
{
    m_Settings.isDevelopmentMode = true;
    for (const char* const text : kTexts)
        ExpectAgreement(text);
}

TEST_F(EngineLanguage, AgreesWithTheModelWhenBytesChange)
{
    std::mt19937 random(2);
    for (const char* const original : kTexts)
        for (int i = 0; i < kMutations; ++i) {
            std::string text = original;
            for (std::size_t changes = random() % 3; changes > 0 && !text.empty(); --changes)
                text[random() % text.size()] = static_cast<char>(1 + random() % 255);
            if (random() % 2 == 0)
                text.resize(random() % (text.size() + 1));
            ExpectAgreement(text);
        }
}

} // namespace
