// Job control: what holds for all statements, and what an error costs. Languages/JCL/Tests has trees of single ones.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageCases.h"
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

CLanguage& Jcl()
{
    static CLanguage language("JCL", UVDB_DB_JCL);
    return language;
}

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(Jcl(), text);
}

// The names of the elements as they nest, without the texts of the tokens.
std::string Skeleton(const std::string& xml)
{
    const CSyntaxTree tree(xml);
    std::string names;
    for (const SElement& element : tree.Elements())
        names += element.name + ' ' + std::to_string(element.next) + '\n';
    return names;
}

TEST(Jcl, StatementsEndAtAnyLineEnd)
{
    for (const std::string& text : CaseTexts("JCL", "Statements"))
        ExpectOneStatement(Jcl(), text, {"", "\n", "  \r\n"});
}

// Wherever the bad statement stands, those around it are whole.
TEST(Jcl, AMistakeCostsItsStatement)
{
    const std::string good = "//GOOD DD A=B,\n//  C=(D,'E')\n";
    for (const std::string& bad : CaseTexts("JCL", "Mistakes")) {
        SCOPED_TRACE(bad);
        const SLanguageParse parse = ParseWhole(good + bad + '\n' + good + good + bad + '\n' + good + bad);
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Statements().size(), 7U) << tree.Shape();
        EXPECT_EQ(CountOf(tree, "dd_statement"), 4U);
        EXPECT_EQ(CountOf(tree, "error_statement"), 3U);
        ASSERT_EQ(parse.unexpected.size(), 3U);
        EXPECT_GE(parse.unexpected[0].offset, good.size());
        EXPECT_LE(parse.unexpected[0].offset, good.size() + bad.size());
        EXPECT_EQ(parse.unexpected[1].offset, parse.unexpected[0].offset + bad.size() + 1 + 2 * good.size());
        EXPECT_EQ(parse.unexpected[2].offset, parse.unexpected[1].offset + bad.size() + 1 + good.size());
        // the end of the text is a line end
        EXPECT_EQ(parse.unexpected[2].length == 0, parse.unexpected[0].text == "\n");
    }
}

TEST(Jcl, MistakesInARowAreAllMarked)
{
    const CSyntaxTree tree(ParseWhole(Repeated("// FOO\n//BAD DD (\n/*FOO\n", 50)).tree);
    EXPECT_EQ(CountOf(tree, "error_statement"), 150U);
    EXPECT_EQ(tree.Statements().size(), 150U);
}

std::string Changed(const std::string& text, std::size_t width, const char* lineEnd)
{
    std::string changed;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        if (width > line.size())
            line.append(width - line.size(), ' ').append("00012300");
        changed += line + lineEnd;
        at = end + 1;
    }
    return changed;
}

TEST(Jcl, SequenceNumbersAndLineEndsMakeNoDifference)
{
    std::size_t statements = 0;
    for (const std::string& path : SamplePaths("JCL")) {
        SCOPED_TRACE(path);
        std::string text = ReadFile(path);
        const SLanguageParse parse = ParseWhole(text);
        EXPECT_TRUE(parse.IsClean());
        statements += CSyntaxTree(parse.tree).Statements().size();
        ExpectPiecesLoseNothing(Jcl(), {text});
        const std::string skeleton = Skeleton(parse.tree);
        EXPECT_EQ(Skeleton(ParseWhole(Changed(text, 0, "\r\n")).tree), skeleton);
        // an empty record of data would be one of a number
        for (std::size_t at = text.find("\n\n"); at != text.npos; at = text.find("\n\n"))
            text.erase(at, 1);
        const SLanguageParse numbered = ParseWhole(Changed(text, 72, "\n"));
        EXPECT_TRUE(numbered.IsClean());
        EXPECT_EQ(Skeleton(numbered.tree), skeleton);
    }
    for (const std::string& text : CaseTexts("JCL", "Lines"))
        EXPECT_EQ(Skeleton(ParseWhole(Changed(text, 0, "\r\n")).tree),
                  Skeleton(ParseWhole(Changed(text, 0, "\n")).tree))
            << text;
    EXPECT_EQ(statements, 48U);
}

// Set UV_CORPUS to a folder with jcl/<project>/<job> to have real jobs parsed too.
TEST(Jcl, RealJobsParse)
{
    ExpectRealTexts(Jcl(), "jcl");
}

TEST(Jcl, ColorsFollowTheFields)
{
    EXPECT_EQ(ShownColors(Jcl(), "//A EXEC PGM=B,C=('D',4) E\n//* F\n//G DD *,H=&I\nJ\n/* K\n"),
              "8// 2A 1EXEC 1PGM 7= 2B 8, 1C 7= 8( 4'D' 8, 54 8) 6 E / 6//* F 8// 2G 1DD 8* 8, 1H 7= "
              "9&I / 4J 8/* 6 K ");
}

TEST(JclLimits, JobsOfManyLines)
{
    constexpr std::size_t kCount = 50000;
    const SLanguageParse statements = ParseWhole(Repeated("//A DD B=(C,1) d\n", kCount));
    EXPECT_TRUE(statements.IsClean());
    EXPECT_EQ(CSyntaxTree(statements.tree).Statements().size(), kCount);
    EXPECT_LT(DepthOf(statements.tree), kCount / 100);

    const SLanguageParse lines = ParseWhole("//A DD *\n" + Repeated("some data\n", kCount) + "/*\n");
    EXPECT_TRUE(lines.IsClean());
    EXPECT_EQ(CountOf(CSyntaxTree(lines.tree), "T__DATA"), kCount);
    EXPECT_LT(DepthOf(lines.tree), kCount / 100);

    EXPECT_TRUE(ParseWhole("//A DD " + Repeated("B=C,\n// ", kCount) + "B=C\n").IsClean());
    EXPECT_GE(ParseWhole(Repeated("//A DD (\n//A DD B\n", kCount / 10)).unexpected.size(), kCount / 10);
}

TEST(JclLimits, LinesOfMegabytes)
{
    constexpr std::size_t kSize = 10 << 20;
    const std::string junk = Repeated("long & ' , ( ", kSize / 13);
    EXPECT_TRUE(ParseWhole("//A DD *\n" + junk + "\n/*\n").IsClean());
    EXPECT_TRUE(ParseWhole("//A DD *,DLM=XX\n" + Repeated("a ", kSize / 2) + "\nXX\n").IsClean());
    EXPECT_TRUE(ParseWhole("//A DD *,DLM=XX\na" + Repeated(" ", kSize) + "\nXX\n").IsClean());
    EXPECT_TRUE(ParseWhole("//A DD B " + junk).IsClean());
    EXPECT_TRUE(ParseWhole("//* " + junk).IsClean());
    EXPECT_TRUE(ParseWhole("//*MAIN A=B" + Repeated(",\n//*C=D", kSize / 80)).IsClean());
    EXPECT_TRUE(ParseWhole("//A EXEC B,C='" + Repeated("''\n//             x", kSize / 180) + "'").IsClean());
    for (const char* const piece :
         {"'", "(", "=", "&", "*", "'\n//             ", ",\n// ", "A=", "//", "/*", "."}) {
        SCOPED_TRACE(piece);
        ParseWhole("//A DD " + Repeated(piece, 100000) + "\n// SET A=B\n");
        ParseWhole("// IF " + Repeated(piece, 100000) + " THEN\n");
        ParseWhole(Repeated(piece, 100000));
    }
}

} // namespace
