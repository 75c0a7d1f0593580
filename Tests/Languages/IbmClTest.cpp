// Control language: what holds for all statements, and what an error costs. Languages/IBMCL/Tests has trees of single ones.
#include "Preparation/Formatters/IbmCl.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageCases.h"
#include "Tests/Languages/LanguageFixture.h"
#include "Tree/TreeFlattener.h"

#include <gtest/gtest.h>

namespace {

CLanguage& IbmCl()
{
    static CLanguage language("IBMCL", UVDB_DB_IBM_CL);
    return language;
}

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(IbmCl(), text);
}

TEST(IbmCl, StatementsEndAtAnyLineEnd)
{
    for (const std::string& text : CaseTexts("IBMCL", "Commands"))
        ExpectOneStatement(IbmCl(), text, {"", "\n", "  /* note */ \r\n"});
}

// Wherever the bad line stands, those around it are whole, and its label is kept.
TEST(IbmCl, AMistakeCostsItsLine)
{
    const std::string good = "CHGVAR VAR(&A) VALUE(1)\n";
    for (const std::string& text : CaseTexts("IBMCL", "Mistakes"))
        for (const char* const label : {"", "HERE: "}) {
            const std::string bad = label + text;
            SCOPED_TRACE(bad);
            if (bad.find(':') != bad.rfind(':') && *label != '\0')
                continue; // a second label is the mistake
            const SLanguageParse parse = ParseWhole(good + bad + '\n' + good + good + bad);
            const CSyntaxTree tree(parse.tree);
            EXPECT_EQ(tree.Statements().size(), 5U) << tree.Shape();
            EXPECT_EQ(CountOf(tree, "chgvar_statement"), 3U);
            EXPECT_EQ(CountOf(tree, "pl_sql_statement_label"), bad.find(':') == bad.npos ? 0U : 2U);
            ASSERT_EQ(parse.unexpected.size(), 2U);
            EXPECT_GE(parse.unexpected[0].offset, good.size());
            EXPECT_LE(parse.unexpected[0].offset, good.size() + bad.size());
        }
}

TEST(IbmCl, MistakesInARowCostOneLineEach)
{
    const CSyntaxTree tree(ParseWhole(Repeated("CALL A(\n 'x'\nIF\nX: ENDDO Y\n", 50)).tree);
    EXPECT_EQ(tree.Statements().size(), 200U);
    EXPECT_EQ(CountOf(tree, "pl_sql_statement"), 0U);
    EXPECT_EQ(CountOf(tree, "pl_sql_statement_label"), 50U);
}

// A list of a few statements comes to the flattening in another form than a long one.
TEST(IbmCl, FlattenedStatementsHaveOneShape)
{
    for (const std::size_t count : {1u, 7u, 9u, 70u, 600u}) {
        SCOPED_TRACE(count);
        const std::string text =
            Repeated("A: CALL B /* c */\nD /* e */\nF: /* g */\n)\nH: ) /* i */\n", count) + "J";
        std::string flat;
        ASSERT_TRUE(FlattenTree(ParseWhole(text).tree, flat));
        EXPECT_TRUE(TextOfTree(flat) == text) << "text was lost";
        std::size_t wrapped = 0;
        for (std::size_t at = flat.find("<full_pl"); at != flat.npos; at = flat.find("<full_pl", at + 1))
            ++wrapped;
        EXPECT_EQ(wrapped, 5 * count + 1);
        EXPECT_EQ(flat.find("<delimited_pl"), flat.npos);
        EXPECT_EQ(flat.find("<labeled_pl"), flat.npos);
    }
}

TEST(IbmCl, ColorsFollowTheWords)
{
    EXPECT_EQ(ShownColors(IbmCl(), "L: chgvar var(&A) /* n */ value(*all + B/'x')\nCRTPF A/\"B\" 1.5 X'0'\n\n"
                                   "IF (%LEN(C))"),
              "2L 8: 1chgvar 1var 8( 9&A 8) 6/* n */ 1value 8( 1*all 7+ 2B 8/ 4'x' 8) / 1CRTPF 2A 8/ 3\"B\" "
              "51.5 4X'0' / 1IF 8( 1%LEN 8( 2C 8) 8) ");
}

// As they stand, and with their lines joined, as hosts prepare them.
TEST(IbmCl, SamplesHoldTheirStatements)
{
    std::size_t statements = 0;
    for (const std::string& text : SampleTexts("IBMCL"))
        for (const std::string& form : {text, std::string(FormatIbmCl(text + '\n').text) + '\n'}) {
            const SLanguageParse parse = ParseWhole(form);
            EXPECT_TRUE(parse.IsClean());
            statements += CSyntaxTree(parse.tree).Statements().size();
        }
    EXPECT_EQ(statements, 2U * 58);
}

// Set UV_CORPUS to a folder with cl/<project>/<program> to have real programs parsed too.
TEST(IbmCl, RealProgramsParse)
{
    ExpectRealTexts(IbmCl(), "cl");
}

TEST(IbmCl, PiecesAndSpoiledProgramsLoseNothing)
{
    ExpectPiecesLoseNothing(IbmCl(), SampleTexts("IBMCL"));
    ExpectSpoiledTextsLoseNothing(IbmCl(), SampleTexts("IBMCL"), "&%*/+-'\"()?:|<>=^.,; \r\nA1\xC3\xA4{");
}

TEST(IbmClLimits, ProgramsOfManyLines)
{
    constexpr std::size_t kCount = 100000;
    const SLanguageParse parse = ParseWhole(Repeated("CALL PGM(A) PARM(1)\n", kCount));
    EXPECT_TRUE(parse.IsClean());
    EXPECT_EQ(CSyntaxTree(parse.tree).Statements().size(), kCount);
    EXPECT_LT(DepthOf(parse.tree), kCount / 100);
    EXPECT_EQ(ParseWhole(Repeated("CALL PGM(\nCALL PGM(A)\n", kCount / 10)).unexpected.size(), kCount / 10);
}

TEST(IbmClLimits, LinesOfMegabytes)
{
    constexpr std::size_t kSize = 10 << 20;
    EXPECT_TRUE(ParseWhole("A '" + std::string(kSize, 'x') + "'").IsClean());
    EXPECT_TRUE(ParseWhole("A /*" + Repeated(" * /", kSize / 4) + "*/").IsClean());
    EXPECT_TRUE(ParseWhole("A " + std::string(kSize, ' ') + "+\n B").IsClean());
    EXPECT_TRUE(ParseWhole("A B(" + Repeated("*      ", kSize / 70) + ")").IsClean());
    for (const char* const piece : {"'",  "\"",  "(",     ")",     "&",  "*", "/",   "/*", "*/",
                                    "+",  "+ ",  "+\n",   "A:",    "A/", "?", "%",   "A(", "'\n",
                                    "1/", "IF ", "ELSE ", "*CAT ", "- ", "^", "\xC2"}) {
        SCOPED_TRACE(piece);
        ParseWhole("A " + Repeated(piece, 30000) + "\nRETURN\n");
        ParseWhole("A B(" + Repeated(piece, 30000) + "\nRETURN\n");
        ParseWhole(Repeated(piece, 30000));
    }
}

} // namespace
