#include "Preparation/ESQLPreprocessor.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <boost/regex.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace {

const std::string kBegin = "EXEC SQL BEGIN DECLARE SECTION;\n";
const std::string kEnd = "\nEXEC SQL END DECLARE SECTION;";

struct SCase
{
    std::string input, output;
};

void ExpectRewritten(const std::vector<SCase>& cases)
{
    for (const SCase& c : cases) {
        SCOPED_TRACE(testing::Message() << "source:\n" << c.input);
        EXPECT_EQ(static_cast<const std::string&>(RewriteEmbeddedSql(c.input).text), c.output);
    }
}

TEST(ESQLPreprocessor, StatementsAndTheirVariables)
{
    ExpectRewritten({
        {"$select a into $b from t;", "EXEC SQL select a into :b from t;"},
        {"$ FETCH c into $x, $y:$i;", "EXEC SQL  FETCH c into :x, :y::i;"},
        {"$\n\tOpen\nc;", "EXEC SQL \n\tOpen\nc;"},
        {"$select;", "$select;"}, // white space has to follow
        {"$selection x;", "$selection x;"},
        {"$begin work; $free s;", "EXEC SQL begin work; EXEC SQL free s;"},
        {"exec\n SQL open $c; f($c);", "exec\n SQL open :c; f($c);"},
        {"$open $c", "EXEC SQL open $c"},                         // no ";": not known where it ends
        {"$fetch c into $date;", "EXEC SQL fetch c into :date;"}, // a variable is no declaration
        {"$fetch c into $int_x,\n $row;\n", "EXEC SQL fetch c into :int_x,\n :row;\n"},
        {"EXEC SQL fetch c into $date;", "EXEC SQL fetch c into :date;"},
        {"$5 + $x;", "$5 + $x;"},
        // what a replacement leaves makes hits of the dollars before it
        {"$$open c;", "$EXEC SQL open c;"},
        {"$ex$set x;", "$exEXEC SQL set x;"},
        {"$$ifdef X", "ifdef X"},
    });
}

TEST(ESQLPreprocessor, PreprocessorLinesLoseTheDollar)
{
    ExpectRewritten({
        {"$ifdef X\n$define N 3\n$endif\n", "ifdef X\ndefine N 3\nendif\n"},
        {"$include|a\n$INCLUDE\ta\n", "include|a\nINCLUDE\ta\n"},
        {"$ ifdef X\n", "$ ifdef X\n"}, // the word stands right after it
        {"$include\n$else\n", "$include\n$else\n"},
        {"$endif_x", "endif_x"},
    });
}

TEST(ESQLPreprocessor, DeclarationsGetSections)
{
    ExpectRewritten({
        {"$int x;", kBegin + "int x;" + kEnd},
        {"  $ int x; f();\n", "  " + kBegin + " int x;" + kEnd + " f();\n"},
        {"$int a;\n\t$char b[3];\nf(); $date d;",
         kBegin + "int a;\n\tchar b[3];" + kEnd + "\nf(); " + kBegin + "date d;" + kEnd},
        {"$int x;\r\n", "EXEC SQL BEGIN DECLARE SECTION;\r\nint x;\r\nEXEC SQL END DECLARE SECTION;\r\n"},
        {"$int a,\n    b;", kBegin + "int a,\n    b;" + kEnd},
        {"$VARCHAR v[9];$varchar w[9];", kBegin + "VARCHAR v[9];varchar w[9];" + kEnd},
        {"$parameter\n char *p;", kBegin + "parameter\n char *p;" + kEnd},
        {"$var binary 'a;b' x;", kBegin + "var binary 'a;b' x;" + kEnd},
        {"$int a[] = {1, 2};", kBegin + "int a[] = {1, 2};" + kEnd},
        {"$struct s { int a; int b; } x;", kBegin + "struct s { int a; int b; } x;" + kEnd},
        {"$struct s\n{\n int a;\n} x;",
         kBegin + "struct s\n{\n int a;\n} x;" + kEnd}, // the brace in its own line
        {"$typedef struct s\n{\n int a;\n} x;", kBegin + "typedef struct s\n{\n int a;\n} x;" + kEnd},
        {"$mytype x;", "$mytype x;"},
        {"$int x", "int x"}, // nothing ends it: no section
        {"$date x\n", "date x\n"},
        {"$date x", "$date x"},
        {"$date x\n{ 1 };", "date x\n{ 1 };"}, // braces belong to it if they begin in its line
    });
}

TEST(ESQLPreprocessor, DeclarationsInSectionsOnlyLoseTheDollar)
{
    const std::string begin = "EXEC SQL begin declare section;\n";
    const std::string end = "EXEC SQL end declare section;\n";
    ExpectRewritten({
        {"$begin declare section;\n$int x;\n$date d;\n$end declare section;\n",
         begin + "int x;\ndate d;\n" + end},
        {begin + "$int x;\n" + end, begin + "int x;\n" + end},
        {begin + "$int x;\n", begin + kBegin + "int x;" + kEnd + "\n"}, // nothing ends the section
        {begin + end + "$int x;\n", begin + end + kBegin + "int x;" + kEnd + "\n"},
        {"/*" + begin + "*/$int x;\n" + end, "/*" + begin + "*/" + kBegin + "int x;" + kEnd + "\n" + end},
    });
}

TEST(ESQLPreprocessor, OwnTypes)
{
    ExpectRewritten({
        {"$typedef int myint;\nf();\n$myint y;",
         kBegin + "typedef int myint;" + kEnd + "\nf();\n" + kBegin + "myint y;" + kEnd},
        {"$typedef struct { int a, b; } one, *two;$ONE x;$two y;$b z;",
         kBegin + "typedef struct { int a, b; } one, *two;ONE x;two y;" + kEnd + "$b z;"},
        {"$typedef char name[20], (*fn)(int);$name n;$fn f;",
         kBegin + "typedef char name[20], (*fn)(int);name n;fn f;" + kEnd},
        {"$typedef char *a[(;$a x;$[(y;", kBegin + "typedef char *a[(;a x;" + kEnd + "$[(y;"},
        {"$typedef int a,;$zz y;", kBegin + "typedef int a,;" + kEnd + "$zz y;"}, // no name is no type
        {"$typedef int cl;\n$close c;", kBegin + "typedef int cl;" + kEnd + "\nEXEC SQL close c;"},
        {"/* $typedef int t; */ $t x;", "/* $typedef int t; */ $t x;"},
        {"$typedef " + std::string("int ") + std::string(300, 'n') + ";" + "$" + std::string(300, 'n') +
             " x;",
         kBegin + "typedef int " + std::string(300, 'n') + ";" + kEnd + "$" + std::string(300, 'n') + " x;"},
    });
}

TEST(ESQLPreprocessor, CommentsStay)
{
    ExpectRewritten({
        {"/* $int x; */ // $select a\n", "/* $int x; */ // $select a\n"},
        {"/*\n$int x;\n*/$int y;", "/*\n$int x;\n*/" + kBegin + "int y;" + kEnd},
        {"/* $int */ $int y;",
         "/* $int */ " + kBegin + "int y;" + kEnd}, // it takes nothing that follows along
        {"/* exec sql open */ exec sql open $c;", "/* exec sql open */ exec sql open :c;"},
        {"exec sql open /* $5 */ $c;", "exec sql open /* $5 */ :c;"},
        {"/* $int x;", "/* " + kBegin + "int x;" + kEnd}, // nothing ends the comment
        {"// $int x;", "// " + kBegin + "int x;" + kEnd},
        {"// $int x;\r\n", "// $int x;\r\n"},
    });
}

TEST(ESQLPreprocessor, LinesKeepTheirSource)
{
    for (const auto& [input, lines] : std::vector<std::pair<std::string, std::vector<std::uint32_t>>>{
             {"", {}},
             {"a\nb\n", {1, 2}},
             {"\n\n$x", {1, 2, 3}},
             {"a\n$int x;\nb\n", {1, 2, 2, 2, 3}},
             {"a\n$int x,\ny;", {1, 2, 2, 3, 3}},
             {"$int x; f();\r\n$select a into $b\r\nfrom t;\r\n", {1, 1, 1, 2, 3}},
             {"$int x;\n\n$int y;\n", {1, 1, 2, 3, 3}},
             {"$begin declare section;\n$int x;\n$end declare section;\n", {1, 2, 3}},
         }) {
        SCOPED_TRACE(input);
        EXPECT_EQ(RewriteEmbeddedSql(input).sourceLines, lines);
    }
}

// Whatever the text: dollars and colons aside, it loses nothing and gets nothing but the marks.
TEST(ESQLPreprocessor, NothingButDollarsChanges)
{
    // clang-format off
    const std::vector<std::string> pieces = {
        "$", "$", "$int ", "$int x;", "$ date d", "$struct s", "{", "}", ";", "\n", " ", "/*", "*/", "//",
        "$typedef int ab;", "$typedef struct { int q; } ", "$ab ", "$select a into ", "exec sql ", "$define X ",
        "exec sql begin declare section ;", "exec sql end declare section;", "$endif", "$var binary ",
        "$fixed binary 'a;b' ", "$parameter ", "set ", "ex", "ec ", "if", "x"};
    // clang-format on
    std::mt19937 random(20);
    for (int i = 0; i < 4000; ++i) {
        const std::string source = RandomText(random, pieces, 14);
        SCOPED_TRACE(source);
        const SPreparedText prepared = RewriteEmbeddedSql(source);
        ASSERT_EQ(prepared.sourceLines.size(), LinesOf(prepared.text).size());
        EXPECT_TRUE(std::ranges::is_sorted(prepared.sourceLines));
        std::string plain = prepared.text;
        for (const std::string& mark : {kBegin, kEnd, std::string("EXEC SQL ")})
            for (std::size_t at = plain.find(mark); at != plain.npos; at = plain.find(mark, at))
                plain.erase(at, mark.size());
        const auto isMark = [](char c) { return c == '$' || c == ':'; };
        std::erase_if(plain, isMark);
        std::string expected = source;
        std::erase_if(expected, isMark);
        ASSERT_EQ(plain, expected);
    }
}

TEST(ESQLPreprocessor, TheClassAnswersForItsSource)
{
    ESQLPreprocessor rewrite;
    std::string output = "untouched";
    EXPECT_FALSE(rewrite.CheckESQL("int x;\n", output));
    EXPECT_EQ(output, "untouched");
    EXPECT_EQ(rewrite.WrapVarDeclaration("$int x;"),
              "EXEC SQL BEGIN DECLARE SECTION;\r\nint x;\r\nEXEC SQL END DECLARE SECTION;");

    ASSERT_TRUE(rewrite.CheckESQL("$typedef int t; /* $ */\n", output));
    EXPECT_EQ(output, kBegin + "typedef int t;" + kEnd + " /* $ */\n");
    EXPECT_EQ(rewrite.SourceLines(), (std::vector<std::uint32_t>{1, 1, 1}));
    const auto comment = static_cast<std::int64_t>(output.find("/*"));
    EXPECT_FALSE(rewrite.CheckComment(-1));
    EXPECT_FALSE(rewrite.CheckComment(comment - 1));
    EXPECT_TRUE(rewrite.CheckComment(comment));
    EXPECT_TRUE(rewrite.CheckComment(comment + 6));
    EXPECT_FALSE(rewrite.CheckComment(comment + 7));
    EXPECT_EQ(rewrite.WrapVarDeclaration("$t x;"),
              kBegin + "t x;" + kEnd); // it knows the type and the line end
}

TEST(ESQLPreprocessor, RegexSearchGivesAllHits)
{
    const auto hits = ESQLPreprocessor::RegexSearch_st("a1\nB22", "([a-z])(\\d)+", boost::regex::icase);
    ASSERT_EQ(hits.size(), 2u);
    EXPECT_EQ(hits[1].text, "B22");
    EXPECT_EQ(hits[1].position, 3);
    EXPECT_EQ(hits[1].length, 3);
    EXPECT_EQ(ESQLPreprocessor::RegexSearch_st("a1\nB22", "[a-z]\\d").size(), 1u);
    EXPECT_TRUE(ESQLPreprocessor::RegexSearch_st("/*\n*/", "/\\*(.*?)\\*/").empty());
    EXPECT_THROW(ESQLPreprocessor::RegexSearch_st("", "("), std::exception);
}

// Whatever bounds a search is far away or isn't there.
TEST(ESQLPreprocessor, AnySize)
{
    const std::string line = Repeated("$int x; f(" + std::string(88, 'x') + ");", (10 << 20) / 100);
    EXPECT_EQ(std::ranges::count(RewriteEmbeddedSql(line).text, '\n'),
              2 * static_cast<long>(line.size() / 100));

    const std::size_t size = 1 << 20;
    const auto filled = [&](const std::string& piece) { return Repeated(piece, size / piece.size()); };
    const auto lengthOf = [](const std::string& source) { return RewriteEmbeddedSql(source).text.size(); };
    EXPECT_EQ(lengthOf(filled("$ ") + "int x"), size / 2 + 5); // each goes because of what follows it
    EXPECT_EQ(lengthOf(filled("$int ")), size / 5 * 4);        // none of them ends
    EXPECT_EQ(lengthOf("/* $x" + filled("$fetch c into $date /*")), 5 + size / 22 * 30);
    EXPECT_EQ(lengthOf(filled("exec sql $x '")), size / 13 * 13);
    EXPECT_EQ(lengthOf("$" + std::string(size, ' ') + "int x"), size + 5);
    EXPECT_EQ(lengthOf("$typedef int a" + filled(",q") + ";$q x;\n"),
              size + 20 + kBegin.size() + kEnd.size() - 1);
}

} // namespace
