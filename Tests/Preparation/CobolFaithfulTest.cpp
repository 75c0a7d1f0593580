// The faithful forms of COBOL: rows of cases, and a compiler that is asked whether it reads the prepared text
// as it reads the source.
#include "Preparation/Formatters/Cobol.h"
#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Preparation/SourceJudge.h"
#include "Tests/Preparation/ToldNotes.h"

#include <boost/regex.hpp>
#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

namespace {

constexpr SCobolOptions kFixed{.format = enCobolFormat::Fixed, .isFaithful = true, .tabWidth = 8};
constexpr SCobolOptions kCollapsed{
    .format = enCobolFormat::Fixed, .removesFormatting = true, .isFaithful = true};
constexpr SCobolOptions kFree{.format = enCobolFormat::Free, .isFaithful = true};

void ExpectAll(const std::vector<SPassCase>& cases, const SCobolOptions& options)
{
    for (const SPassCase& c : cases)
        ExpectPrepared(c, FormatCobol(c.input, options));
}

TEST(CobolFaithfulFixed, LinesGoOnWithCode)
{
    const std::string open = Padded("           MOVE 'AB", 72);
    const std::string full = Padded("           MOVE 'AB", 71) + "'";
    ExpectAll({{"", "", {}},
               {"\n\n", "\n\n", {1, 2}},
               {"000100 A.\r\n000200XB.\r\n", "       A.\n      B.\n", {1, 2}},
               {"000200     MOVE 'AB\n000300-    'CD' TO X.\n", open + "CD' TO X.\n", {1}},
               // words and numbers
               {"000100     MOVE WS-FI\n000200-      ELD TO X\n000300-    .\n",
                "           MOVE WS-FIELD TO X.\n",
                {1}},
               {"000100 X VALUE\n000200-    'A' 'B'   \n000300-    'C'", "       X VALUE'A' 'B' 'C'", {1}},
               // comments and blank lines in between
               {"000100 A 'B\n000150* it's\n0001\n       \n000200/\n000300-   'C'.\n000400 D\n\n",
                Padded("       A 'B", 72) + "C'.\n      * it's\n      \n       \n      /\n       D\n\n",
                {1, 2, 3, 4, 5, 7, 8}},
               {"000100* A\n000200-B\n000300-C", "      * A\n      -BC", {1, 2}}, // nothing to go on with
               {"-INC AB\n000200-B\n000300-C\n", "-INC AB\n      -BC\n", {1, 2}},
               // quotes in the last column
               {full + "PROGRAM1\n      -    '' C'.", full + "' C'.", {1}},
               {full + "\n      -    B", full + "B", {1}},
               {Padded("           MOVE 'AB", 70) + "''\n      -   'C'.",
                Padded("           MOVE 'AB", 70) + "''C'.",
                {1}},
               {open + "PROGRAM1\n      -    ''C'.", open + "'C'.", {1}},
               // an inline comment stays at the end
               {"       A 'x *>' *> n\n      -    B\n      -    C *> m", "       A 'x *>'BC *> n *> m", {1}},
               {"       *> n\n      -    B\n", "      B *> n\n", {1}}, // nothing but one: the margin stays
               {"       IF A,\n       IF B,\n      -    C", "       IF A\n       IF B,C", {1, 2}},
               {"      $ SET\n      -A", "      $ SET\n      -A", {1, 2}}},
              kFixed);
}

TEST(CobolFaithfulFixed, TabsAreColumns)
{
    const std::string open = "        A 'B   C" + std::string(56, ' ');
    ExpectAll({{"\tA\tB\n", "        A       B\n", {1}},
               {"12\tA\n123456\tA\n1234567\tA\n", "        A\n        A\n      7 A\n", {1, 2, 3}},
               {"      *\tA\n      -\tB", "      * A\n      - B", {1, 2}},
               {"\tA 'B\tC\n      -\t'D'.", Padded("        A 'B    C", 72) + "D'.", {1}},
               {"\tA 'é\n      -\t'D'.", Padded("        A 'é", 73) + "D'.", {1}}},
              kFixed);
    for (const auto& [width, blanks] : {std::pair{4, 8U}, {3, 9U}, {7, 7U}, {1, 7U}, {0, 7U}, {-5, 7U}}) {
        SCobolOptions options = kFixed;
        options.tabWidth = width;
        EXPECT_EQ(FormatCobol("\tA", options).text, std::string(blanks, ' ') + "A") << width;
    }
}

TEST(CobolFaithfulFixed, BlanksCollapseInCompleteLines)
{
    ExpectAll({{"000100  A   'B  \n0001\n000200-  'C  D'   E.\n000300*  F\n",
                "       A 'B" + std::string(58, ' ') + "C  D' E.\n      *  F\n",
                {1, 4}}},
              kCollapsed);
}

TEST(CobolFaithfulFree, LinesGoOnWithCode)
{
    ExpectAll({{"000100 A 'B\n       \n      * n\n      -   'C'\n      -  D.\n",
                "       A 'BC'D.\n       \n      * n\n",
                {1, 2, 3}},
               {"      * n\n000100-X\n      -Y", "      * n\n000100-XY\n", {1, 2}},
               {"ABCDE\nABCDEF\n\n", "ABCDE\n      \n", {1, 2}}},
              kFree);
}

TEST(CobolNotes, FormsAndShortLines)
{
    EXPECT_EQ(Told(FormatCobol("A\n", {.formatName = "YES"}).notes),
              "E :0 COBOLFORMAT YES is no form: the text is empty\n");
    EXPECT_TRUE(FormatCobol("", {.formatName = "YES"}).notes.empty());
    for (const bool isFaithful : {false, true})
        EXPECT_EQ(Told(FormatCobol("0001\n\nSTOP.\n RUN  \n\n       A\nEND\n",
                                   {.format = enCobolFormat::Fixed, .isFaithful = isFaithful})
                           .notes),
                  "W :3 2 lines vanished: no text after the columns of the line number\n"
                  "W :7 1 line vanished: no text after the columns of the line number\n");
}

TEST(CobolFaithful, AnySize)
{
    const std::size_t count = 1 << 17;
    EXPECT_TRUE(FormatCobol("       A\n" + Repeated("      *\n      -B\n", count), kFixed).text ==
                "       A" + std::string(count, 'B') + "\n" + Repeated("      *\n", count));
    const std::string open = FormatCobol("       'A\n" + Repeated("      -'B\n", 1 << 12), kFixed).text;
    EXPECT_EQ(open.size(), 72U + ((1U << 12) - 1) * 64 + 2);
}

// ---- What a compiler reads ----

class CobolCompiler : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!HasProgram("cobc"))
            GTEST_SKIP() << "cobc is not installed";
    }

    // The words, literals and signs of the text that the compiler's preprocessor makes of a source, a line
    // each.
    std::string Read(const std::string& source)
    {
        return Words(m_Judge.Ask("t.cbl", source, "cobc -E t.cbl 2>/dev/null"));
    }

    static std::string Words(std::string text)
    {
        static const boost::regex lineMark("^#line.*?$");
        static const boost::regex word(R"re('(?:[^'\n]|'')*'?|"(?:[^"\n]|"")*"?|[\w-]+|[^\s,;])re");
        text = boost::regex_replace(text, lineMark, "");
        std::string words;
        for (boost::sregex_iterator at(text.begin(), text.end(), word), end; at != end; ++at)
            words += at->str() + '\n';
        return words;
    }

    // A compiler doesn't show comments.
    static std::string WithoutComments(const std::string& prepared)
    {
        std::string code;
        for (const std::string& line : LinesOf(prepared)) {
            if (line.size() < 7 || (line[6] != '*' && line[6] != '/'))
                code += line.substr(0, line.find(" *>")) + '\n';
        }
        return code;
    }

    void ExpectReadAlike(const std::string& source)
    {
        const SPreparedText prepared = FormatCobol(source, kFixed);
        ExpectLinesAreKept(source, prepared);
        const std::string expected = Read(source);
        EXPECT_FALSE(expected.empty());
        EXPECT_EQ(Words(WithoutComments(prepared.text)), expected);
    }

    CSourceJudge m_Judge;
};

// The compiler takes members in, replaces words, leaves paragraphs of comments out, and knows fewer letters
// in the indicator column. That is no matter of columns.
std::string WithoutDirectives(const std::string& source)
{
    static const boost::regex statement(R"re((\b)(COPY|REPLACE)(\s))re", boost::regex::icase);
    static const boost::regex division("^.{6} +(ENVIRONMENT|DATA|PROCEDURE) +DIVISION.*");
    const bool hasParagraphs = source.find("IDENTIFICATION DIVISION") != source.npos;
    std::string text;
    for (std::string line : LinesOf(source)) {
        if (hasParagraphs && text.empty() && !boost::regex_match(line, division))
            continue;
        if (line.size() > 6 && std::isalpha(static_cast<unsigned char>(line[6])) != 0)
            line[6] = ' ';
        if (line.size() < 7 || line[6] != '-')
            line = boost::regex_replace(line, statement,
                                        "$1XX"
                                        "$3");
        text += line + '\n';
    }
    return text;
}

TEST_F(CobolCompiler, RealSourcesAreReadAlike)
{
    for (const SCorpusFile& file : CorpusFiles("cobol-fixed")) {
        SCOPED_TRACE(file.path);
        ExpectReadAlike(WithoutDirectives(file.text));
    }
}

TEST_F(CobolCompiler, AnyContinuationIsReadAlike)
{
    const std::vector<std::string> lines = {"           MOVE 'AB",
                                            "           MOVE WS-FIE",
                                            "      -    LD TO X",
                                            "      -    'CD' TO Y",
                                            "      * it's a comment",
                                            "      / \"",
                                            "",
                                            "           ",
                                            "123456",
                                            "\tDISPLAY \"A\tB",
                                            "      -\t\"C\" \"D\"",
                                            "      -      123.",
                                            "           DISPLAY 'A''B' 12",
                                            "000100     DISPLAY \"it's\"",
                                            "      -    'A' *> note",
                                            "           X. *> it's a note",
                                            "      -    \"\"",
                                            "           Y VALUE 'it''s",
                                            "           MOVE \"" + std::string(54, 'x') + "\"PROGRAM1",
                                            "      -    \"\" Z\"."};
    std::mt19937 random(11);
    int judged = 0;
    for (int i = 0; i != 400; ++i) {
        std::string source = "       A.\n";
        for (auto left = 2 + random() % 5; left != 0; --left)
            source += lines[random() % lines.size()] + '\n';
        source += "       Z.\n";
        // what the compiler refuses has no meaning to keep
        if (m_Judge.Ask("t.cbl", source, "cobc -E t.cbl 2>&1 >/dev/null").find("error") != std::string::npos)
            continue;
        SCOPED_TRACE(source);
        ++judged;
        ExpectReadAlike(source);
        if (HasFailure())
            return;
    }
    EXPECT_GT(judged, 50);
}

} // namespace
