#include "Preparation/Formatters/Cobol.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr SCobolOptions kFixed{.format = enCobolFormat::Fixed};
constexpr SCobolOptions kCollapsed{.format = enCobolFormat::Fixed, .removesFormatting = true};
constexpr SCobolOptions kDebug{.format = enCobolFormat::Fixed, .savesDebugInfo = true};
constexpr SCobolOptions kFree{.format = enCobolFormat::Free};

void ExpectAll(const std::vector<SPassCase>& cases, const SCobolOptions& options)
{
    for (const SPassCase& c : cases)
        ExpectPrepared(c, FormatCobol(c.input, options));
}

TEST(CobolFormatter, OtherFormatsGiveNothing)
{
    const SPreparedText prepared = FormatCobol("000100 A.\n", SCobolOptions{});
    EXPECT_EQ(prepared.text, "");
    EXPECT_TRUE(prepared.sourceLines.empty());
}

TEST(CobolFixedForm, ColumnsAndIndicators)
{
    const std::string code = Padded("000100 MOVE A TO B", 72), comment = Padded("000100* NOTE", 72);
    const std::string wide = "000100 '" + Repeated("é", 64);
    ExpectAll(
        {{"", "", {}},
         {"000100 A.\n000200 B.", "       A.\n       B.", {1, 2}},
         {code + "PROGRAM1\n", "      " + code.substr(6) + "\n", {1}},
         {wide + "x\n", "       '" + Repeated("é", 64) + "\n", {1}}, // characters, not bytes
         {"éééééé A\n", "       A\n", {1}},
         {comment + "PROGRAM1", "      " + comment.substr(6), {1}},
         {"000100/ PAGE", "      / PAGE", {1}},
         {Padded("000100$ SET", 72) + "BEHIND", Padded("      $ SET", 72) + "BEHIND", {1}},
         {"000100D A.\n000100d B.\n000100X C.\n000100\xC3\xA9 D.", // letters go, but for D
          "      D A.\n      d B.\n       C.\n       D.",
          {1, 2, 3, 4}},
         {"0001001A", "      1A", {1}},
         {"000100 \n000100\n0001\n\n000100X\n", "       \n      \n      \n      \n", {1, 2, 3, 5}},
         {"0001\t A.\tB", "         A.    B", {1}},
         {"000100 A.\r\n000200\r\n", "       A.\r\n      \r\n", {1, 2}}, // a "\r" is a column like others
         {"\n\n000100 A.\n\n\n000200 B.\n\n\n", "       A.\n       B.\n\n\n", {3, 6, 7, 8}},
         {"\n\n", "\n\n", {1, 2}}},
        kFixed);
}

TEST(CobolFixedForm, CommentsStayWholeForDebugging)
{
    const std::string comment = Padded("000100* NOTE", 72) + "BEHIND",
                      code = Padded("000100 CODE", 72) + "BEHIND";
    ExpectAll({{comment, "      " + comment.substr(6), {1}}, {code, Padded("       CODE", 72), {1}}}, kDebug);
}

TEST(CobolFixedForm, TabsHaveTheWidthThatIsAskedFor)
{
    for (const auto& [width, output] :
         {std::pair{8, "        A"}, {7, "       A"}, {6, "      "}, {0, "      "}})
        EXPECT_EQ(
            FormatCobol(width == 6 ? "\t" : "\tA", {.format = enCobolFormat::Fixed, .tabWidth = width}).text,
            output)
            << width;
    EXPECT_EQ(FormatCobol("000\t100 A\tB", {.format = enCobolFormat::Fixed, .tabWidth = -3}).text,
              "       AB");
}

TEST(CobolFixedForm, IncludeLinesAreOnlyCut)
{
    const std::string longLine = Padded("-INC MEMBER", 80);
    ExpectAll({{"-INC A-B\nZMEMBER ,\n-inc A B\n", "-INC A-B\nZMEMBER ,\n       B\n", {1, 2, 3}},
               {longLine, longLine.substr(0, 72), {1}},
               {"-INC A*" + std::string(80, 'x'), "-INC A*" + std::string(80, 'x'), {1}},
               {"-INC\n-INC A", "      \n      ", {1, 2}}}, // too short for that
              kFixed);
    ExpectAll({{"-INC  A  B", "-INC  A  B", {1}}}, kCollapsed);
}

TEST(CobolFixedForm, CommaBehindAConditionGoes)
{
    const std::string cut = Padded("000100 IF A = B", 71) + ",";
    ExpectAll({{"000100 IF A = B,", "       IF A = B", {1}},
               {"000100     if A,\n000100 IFA,\n000100 ELSE IF A,\n000100 IF A, ",
                "           if A\n       IFA,\n       ELSE IF A,\n       IF A, ",
                {1, 2, 3, 4}},
               {"000100XIF A,", "      IF A", {1}},
               {"000100DIF A,", "      DIF A,", {1}},
               {cut + "SEQUENCE", "      " + cut.substr(6, 65), {1}}}, // the columns are cut first
              kFixed);
}

TEST(CobolFixedForm, ContinuationsGoOnBehindColumn71)
{
    const std::string full = Padded("000100     MOVE 'AB", 71) + "C";
    const std::string first = Padded("           MOVE 'AB", 72);
    ExpectAll({{"000200     MOVE 'AB\n000300-    'CD' TO X.\n", first + "CD' TO X.\n", {1}},
               {"000200     MOVE 'AB\n000300-    \"CD\n000400-  E\n000500 F.\n",
                first + Padded("CD", 2 + 72 - 14) + "E\n       F.\n",
                {1, 4}},
               {full + "SEQUENCE\n000300-    'D'.\n", "      " + full.substr(6) + "D'.\n", {1}},
               {full.substr(0, 70) + "\t\n000300-X", "      " + full.substr(6, 64) + "   X", {1}},
               {"000100 '" + Repeated("é", 4) + "\n000200-'x",
                "       '" + Repeated("é", 4) + std::string(60, ' ') + "x",
                {1}},
               {"000100 A\n\n000200-" + Padded("    B", 65) + "SEQUENCE",
                Padded("       A", 72) + Padded("B", 61),
                {1}},
               {"000100 A\n000150* N\n000200-''B,", "       A\n" + Padded("      * N", 72) + "'B,", {1, 2}},
               {"000100-    'A,\n000200 B.", "A,\n       B.", {1, 2}}, // nothing to go on with
               {"000100-\n000200 B.", "       B.", {2}}},
              kFixed);
}

TEST(CobolFixedForm, SourceFormattingGoes)
{
    ExpectAll({{"000100 MOVE   'A  B'   TO  X.\n0001\n000100\n000200*  NOTE  \n000300X*  A  \n000400\t  A",
                "       MOVE 'A  B' TO X.\n      *  NOTE  \n      *  A  \n       A",
                {1, 4, 5, 6}},
               {"0001\n0002\n", "\n", {2}},
               {"0001\n000200-B  C", std::string(68, ' ') + "B  C", {2}}, // what goes on isn't collapsed
               {"000100   A\n000200-B", "       A" + std::string(62, ' ') + "B", {1}}},
              kCollapsed);
}

TEST(CobolFreeForm, LinesAndContinuations)
{
    ExpectAll({{"", "", {}},
               {"000100 A.\n\n000200 B.", "       A.\n       B.\n", {1, 3}},
               {"A.\n\n\n", "A.\n", {1}},
               {"ABCDEF\nABCDE\n", "      \nABCDE\n", {1, 2}},
               {"éééééé A", "       A\n", {1}},
               {std::string(80, 'x'), Padded("", 6) + std::string(74, 'x') + "\n", {1}}, // nothing is cut
               {"\t\tA\tB", "        A    B\n", {1}},
               {"       A 'x\n      -  'y'\n      -\"z", "       A 'xy'z\n", {1}},
               {"       A\r\n      -B\r\n", "       A\rB\r\n", {1}},
               {"       A\n      -*B\n      -C", "       A*BC\n", {1}},
               {"       IF A,\n      -B,\n       if C,", "       IF AB,\n       if C\n", {1, 3}},
               // comments in between stay where they are
               {"       A\n      * n\n *m\n      - B\n      -C\n       D\n      -E",
                "       ABC\n      * n\n *m\n       DE\n",
                {1, 2, 3, 6}},
               // with nothing to go on with, the line stands for itself
               {"      * n\n000100-X\n      -Y", "      * n\n000100-XY\n", {1, 2}},
               // a blank line that becomes a comment is one from there on
               {"       A\n        \n      -*B\n      -C", "       AC\n        *B\n", {1, 2}}},
              kFree);
    ExpectPrepared({"\t\n A", " A\n", {2}},
                   FormatCobol("\t\n A", {.format = enCobolFormat::Free, .tabWidth = 0}));
}

// A program with a bit of all of these.
TEST(CobolFixedForm, LinesOfAWholeProgram)
{
    const std::string rule(70, '=');
    ExpectAll(
        {{"      *HEADER" + rule + "\n000100 ID DIVISION." + std::string(60, ' ') +
              "PROG\n\n000200 01 A VALUE \"x" + std::string(40, 'y') + "\n000300-    \"z\n000400-  '\".\n" +
              "000500\tIF A,\n000600D B\n000700E C\n0008\n-INC MEMBER\n000900$ S" + rule +
              "\n001000/ ä\n\n\n",
          "      *HEADER" + rule.substr(0, 59) + "\n       ID DIVISION." + std::string(53, ' ') +
              "\n       01 A VALUE \"x" + std::string(40, 'y') + std::string(12, ' ') + "z" +
              std::string(59, ' ') +
              "\".\n          IF A\n      D B\n       C\n      \n-INC MEMBER\n      $ S" + rule +
              "\n      / ä\n\n\n",
          {1, 2, 4, 7, 8, 9, 10, 11, 12, 13, 14, 15}}},
        kFixed);
}

TEST(CobolFormatter, AnySize)
{
    // comments as far as the eye reaches, and every continuation goes before them
    const std::string comments = Repeated("      *\n", 1 << 18);
    EXPECT_TRUE(
        FormatCobol("       A\n" + comments + Repeated("      -B\n", 1 << 18) + comments + "      -C", kFree)
            .text == "       A" + std::string(1 << 18, 'B') + "C\n" + comments + comments);
    const std::string line(10 << 20, 'x');
    EXPECT_EQ(FormatCobol("000100 " + line + "\nA", kFixed).text,
              "       " + std::string(65, 'x') + "\n      ");
    EXPECT_TRUE(FormatCobol("000100 A\n" + Repeated("000200- B\n", 1 << 18), kFixed).text.ends_with("B\n"));
    EXPECT_TRUE(FormatCobol("000100 " + line, kFree).text == "       " + line + "\n");
    EXPECT_TRUE(FormatCobol("000100$" + std::string(10 << 20, '\t'), kCollapsed).text == "      $ ");
}

} // namespace
