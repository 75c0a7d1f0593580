// The parser by itself, with values of another kind than the grammar parser's.
#include "Grammar/UVGrammarTables.h"
#include "Tests/Support/EngineFixture.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

// A value is how many tokens it covers. Keeps account of what the main loop asks for.
class CCountingParser : public yyBisonParser
{
public:
    explicit CCountingParser(const std::string& grammar)
    {
        SParserFiles files;
        ReadParserFiles(GrammarFolder(grammar, "Parser"), files);
        m_Numbers = files.tokens;
        yyset_tables(files.tables);
        yyinitdepth = 4;
        yycreate();
    }
    ~CCountingParser() override { yydestroy(); }

    // One letter for each token: w for a word, and the signs.
    int Parse(std::string_view text)
    {
        m_Text = text;
        m_nRelocations = m_nPopped = m_nPushed = 0;
        return yyparse();
    }

    int yygettoken() override
    {
        if (m_Text.empty())
            return 0;
        const std::map<char, std::string> names = {
            {'w', "TWORD"}, {'(', "TOPEN"}, {')', "TCLOSE"}, {',', "TCOMMA"}, {';', "TSEMI"}};
        const int token = m_Numbers.at(names.at(m_Text.front()));
        m_Text.remove_prefix(1);
        *static_cast<int*>(yylval) = 1;
        return token;
    }
    void yyaction(int) override
    {
        const int* const top = static_cast<int*>(yyvsp);
        *static_cast<int*>(yyval) = std::accumulate(top + 1 - yylen, top + 1, 0);
        m_nRoot = *static_cast<int*>(yyval);
    }
    void yysyntaxerror() override { ++m_nErrors; }
    void yyset_last_error(const char*) override {}
    void yylvaltostack() override { Push(yylval); }
    void yyvaltostack() override { Push(yyval); }
    void yystacktoval(int index) override
    {
        *static_cast<int*>(yyval) = index > 0 ? 0 : static_cast<int*>(yyvsp)[index];
    }
    void yyshift_attributes(std::size_t index) override { yyvsp = static_cast<int*>(yyvs) + index; }
    void yypop_attributes(int count) override
    {
        m_nPopped += count;
        yyvsp = static_cast<int*>(yyvsp) - count;
        yyssp -= count;
    }
    void yycopy_attributes(void* to, const void* from, std::size_t count) override
    {
        ++m_nRelocations;
        std::copy_n(static_cast<const int*>(from), count, static_cast<int*>(to));
    }
    void* yynewattribute(std::size_t count) override { return new int[count](); }
    void yydeleteattribute(void* values) override { delete[] static_cast<int*>(values); }

    int m_nRoot = 0;
    int m_nErrors = 0;
    int m_nRelocations = 0;
    int m_nPushed = 0;
    int m_nPopped = 0;

private:
    void Push(const void* value)
    {
        ++m_nPushed;
        auto* const top = static_cast<int*>(yyvsp) + 1;
        *top = *static_cast<const int*>(value);
        yyvsp = top;
    }

    std::map<std::string, int> m_Numbers;
    std::string_view m_Text;
};

TEST(ParserDriver, ValuesOfAnyKindRideOnTheStack)
{
    const struct
    {
        std::string_view text;
        int result, errors, relocations;
    } cases[] = {
        {"", 0, 0, 0},           {"w;", 0, 0, 1}, // the stack takes four entries
        {"w,w,(w);w;", 0, 0, 1}, {"((((((((((w))))))))));", 0, 0, 2},
        {"w,;", 1, 1, 1}, // no rule of the grammar has an error symbol
    };
    CCountingParser parser("Nesting");
    for (int round = 0; round < 2; ++round)
        for (const auto& entry : cases) {
            SCOPED_TRACE(entry.text);
            parser.m_nErrors = 0;
            EXPECT_EQ(parser.Parse(entry.text), entry.result);
            EXPECT_EQ(parser.m_nErrors, entry.errors);
            EXPECT_EQ(parser.m_nRelocations, entry.relocations);
            EXPECT_EQ(parser.m_nPushed, parser.m_nPopped); // the stack ends as it began
            if (entry.result == 0) {
                EXPECT_EQ(parser.m_nRoot, static_cast<int>(entry.text.size()));
            }
        }
}

} // namespace
