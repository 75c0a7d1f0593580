#include "Tools/Support/ToolTerminal.h"
#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/LineAlignment.h"
#include "Tools/uvparse/MessageForms.h"
#include "Tools/uvparse/PreparedDiff.h"
#include "Tools/uvparse/PreparedLines.h"
#include "Tools/uvparse/SourcePlaces.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace uvparse;
using namespace std::string_literals;

namespace {

// The source line of each line from 1 to `count`, "-" where none is known.
std::string SourceLines(const CPreparedLines& lines, std::size_t count)
{
    std::string text;
    for (std::size_t line = 1; line <= count; ++line) {
        const auto source = lines.SourceLineOf(line);
        text += (line > 1 ? " " : "") + (source ? std::to_string(*source) : "-");
    }
    return text;
}

struct SLinesCase
{
    const char* pass;
    const char* list;
    const char* lines; // of lines 1 to 6
};

TEST(UvparsePreparedLines, RunsLeadBackAndWhatIsNoListCountsAsNone)
{
    const SLinesCase cases[] = {
        {"", "", "1 2 3 4 5 6"},
        {"P", "", "- - - - - -"},
        {"P", "1\t3\t2\n3\t9\t1\n", "3 4 9 - - -"},
        {"P", "1\t3\t2\n3\t9\t1", "3 4 9 - - -"},   // the last line feed is missing
        {"P", "2\t5\t1\n4\t2\t2\n", "- 5 - 2 3 -"}, // gaps, and a source line after
        {"P", "1\t3\t2\n2\t9\t1\n", "- - - - - -"}, // runs that overlap
        {"P", "3\t3\t1\n1\t9\t1\n", "- - - - - -"}, // no order
        {"P", "0\t1\t1\n", "- - - - - -"},          // lines count from 1
        {"P", "1\t1\t0\n", "- - - - - -"},          // a run of nothing
        {"P", "1\t1\n", "- - - - - -"},
        {"P", "1\t1\t1\t1\n", "- - - - - -"},
        {"P", "1 1 1\n", "- - - - - -"},
        {"P", "2\t1\t18446744073709551615\n", "- - - - - -"}, // its end can't be counted
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.list);
        const CPreparedLines lines(c.pass, c.list);
        EXPECT_EQ(SourceLines(lines, 6), c.lines);
        EXPECT_EQ(lines.IsKnown(), c.lines != "- - - - - -"s);
    }
}

TEST(UvparsePreparedLines, CursorAndCountAgreeAboutTheEnd)
{
    for (const char* text : {"", "a", "a\n", "a\n\n", "\n", "\n\nb", "a\r\nb"}) {
        SCOPED_TRACE(testing::PrintToString(text));
        std::size_t last = 0;
        std::string joined;
        for (CLineCursor line(text); !line.IsAtEnd(); line.Next()) {
            last = line.Number();
            joined.append(line.Text()).append(1, '\n');
        }
        EXPECT_EQ(last, CountLines(text));
        if (std::string_view(text).ends_with('\n') || *text == '\0')
            EXPECT_EQ(joined, text);
        else
            EXPECT_EQ(joined, std::string(text) + '\n');
    }
}

// Each row as "source sign prepared", with the numbers.
std::string Rows(std::string_view source, std::string_view prepared, const CPreparedLines& lines)
{
    constexpr char kSigns[] = "=|&<>";
    std::string text;
    AlignLines(source, prepared, lines, [&](const SLineRow& row) {
        text += row.sourceNumber > 0 ? std::to_string(row.sourceNumber) : "";
        text += kSigns[static_cast<std::size_t>(row.fate)];
        text += row.preparedNumber > 0 ? std::to_string(row.preparedNumber) : "";
        text += ' ';
    });
    return text;
}

struct SRowsCase
{
    const char* source;
    const char* prepared;
    const char* list; // null: the pass keeps no lines
    const char* rows;
};

const SRowsCase kRowsCases[] = {
    {"a\nb\n", "a\nB\n", "1\t1\t2\n", "1=1 2|2 "},
    {"a\n\nb\n", "a\nb\n", "1\t1\t1\n2\t3\t1\n", "1=1 2< 3=2 "},
    // The first line goes on with the second and third; the fourth is blank.
    {"CHGVAR VAR(&A) +\n  VALUE('x' +\n 'y')\n\nRETURN\n", "CHGVAR VAR(&A) VALUE('x' 'y')\nRETURN\n",
     "1\t1\t1\n2\t5\t1\n", "1|1 2& 3& 4< 5=2 "},
    // Without words the signs count, and they stand after what went before.
    {"A(x +\n)\n*\n", "A(x )\n", "1\t1\t1\n", "1|1 2& 3< "},
    // After a line that is unchanged nothing can have been joined.
    {"a b\nb\n", "a b\n", "1\t1\t1\n", "1=1 2< "},
    {"C x\nd\n", "C\nx\n$\nd\n", "1\t1\t1\n2\t1\t1\n3\t1\t1\n4\t2\t1\n", "1|1 >2 >3 2=4 "},
    {"x\na\n", "inc\na\n", "2\t2\t1\n", ">1 1< 2=2 "},
    {"a\n", "a\nb\n", "1\t1\t1\n2\t9\t1\n", "1=1 >2 "}, // a source line that isn't there
    {"", "a\n", "1\t1\t1\n", ">1 "},
    {"a\nb", "", nullptr, "1< 2< "},
    {"a\nb\nc\n", "a\nB\nc\n", nullptr, "1=1 2|2 3=3 "},
    {"a\nc\n", "a\nx\ny\nc\n", nullptr, "1=1 >2 >3 2=4 "},
    {"a\nx\ny\nc\n", "a\nc\n", nullptr, "1=1 2< 3< 4=2 "},
    {"a\n\nb\n", "\nq\nb\n", nullptr, "1<1 2|2 3=3 "}, // blank lines are no meeting place
    {"a\n", "a\nb\n", nullptr, "1=1 >2 "},
    {"#if\n\nb\n", "\n\nb\n", "1\t1\t3\n", "1<1 2=2 3=3 "}, // emptied
};

TEST(UvparseAlignment, EachLineIsGivenOnceWithItsFate)
{
    for (const auto& c : kRowsCases) {
        SCOPED_TRACE(testing::PrintToString(c.source) + testing::PrintToString(c.prepared));
        const CPreparedLines lines("P", c.list == nullptr ? "" : c.list);
        EXPECT_EQ(Rows(c.source, c.prepared, lines), c.rows);
    }
}

// Both texts come out whole and in order, whatever the lists of lines say.
TEST(UvparseAlignment, NoLineIsLostHoweverTheLinesLead)
{
    unsigned int seed = 1;
    const auto random = [&](unsigned int below) {
        seed = seed * 1103515245 + 12345;
        return (seed >> 16) % below;
    };
    for (int round = 0; round < 500; ++round) {
        std::string texts[2];
        for (std::string& text : texts)
            for (unsigned int line = random(150); line > 0; --line)
                text += (random(9) == 0 ? "" : std::string(1, static_cast<char>('a' + random(9)))) + '\n';
        std::string list;
        for (std::size_t prepared = 1, source = 0; prepared < 160; ++prepared) {
            source = random(20) == 0 ? random(160) : source + random(3);
            list += std::to_string(prepared) + '\t' + std::to_string(source + 1) + "\t1\n";
        }
        SCOPED_TRACE(round);
        for (const std::string& used : {list, ""s}) {
            std::string got[2];
            std::size_t numbers[2] = {0, 0};
            AlignLines(texts[0], texts[1], CPreparedLines("P", used), [&](const SLineRow& row) {
                if (row.sourceNumber > 0) {
                    got[0].append(row.source).append(1, '\n');
                    EXPECT_EQ(row.sourceNumber, ++numbers[0]);
                }
                if (row.preparedNumber > 0) {
                    got[1].append(row.prepared).append(1, '\n');
                    EXPECT_EQ(row.preparedNumber, ++numbers[1]);
                }
                EXPECT_EQ(row.fate == enLineFate::Unchanged,
                          row.sourceNumber > 0 && row.preparedNumber > 0 && row.source == row.prepared);
            });
            ASSERT_EQ(got[0], texts[0]);
            ASSERT_EQ(got[1], texts[1]);
        }
    }
}

// Work that grew with the square of either would not end.
TEST(UvparseAlignment, LongLinesAndManyLinesAreNoDanger)
{
    const std::string longLine(4000000, 'x');
    std::string many;
    std::string other;
    for (int line = 0; line < 400000; ++line) {
        many += "y" + std::to_string(line) + '\n';
        other += "z" + std::to_string(line) + '\n';
    }
    std::size_t rows = 0;
    const TRowSink count = [&](const SLineRow&) { ++rows; };
    AlignLines("x +\n" + many, longLine, CPreparedLines("P", "1\t1\t1\n"), count);
    EXPECT_EQ(rows, 400001u);
    AlignLines(longLine + '\n' + many, longLine + "y " + longLine, CPreparedLines("P", "1\t1\t1\n"), count);
    EXPECT_EQ(rows, 800002u);
    AlignLines(many.substr(0, 500000), other.substr(0, 500000), CPreparedLines("P", ""), count);
    EXPECT_GT(rows, 850000u);
}

struct SCellCase
{
    std::string text;
    std::size_t width;
    std::string shown;
    std::size_t cells;
};

TEST(UvparseCells, TextsFillCellsAndNothingMovesTheCursor)
{
    const CCellText cells;
    const SCellCase cases[] = {
        {"", 4, "", 0},
        {"abcd", 4, "abcd", 4},
        {"abcde", 4, "abc\xE2\x80\xA6", 4},
        {"a\tb", 20, "a       b", 9},
        {"a\tb", 8, "a\xE2\x80\xA6", 2},
        {"a\rb\x1B[2J", 20,
         "a\xE2\x90\x8D"
         "b\xE2\x90\x9B[2J",
         7},
        {"\x7F", 4, "\xE2\x90\xA1", 1},
        {"\xC2\x9B", 4, "\xEF\xBF\xBD", 1}, // a control sequence in one character
        {"a\xE2\x80\xAE"
         "b",
         4,
         "a\xEF\xBF\xBD"
         "b",
         3}, // would turn the line around
        {"\xE6\xBC\xA2\xE6\xBC\xA2", 4, "\xE6\xBC\xA2\xE6\xBC\xA2", 4},
        {"\xE6\xBC\xA2\xE6\xBC\xA2", 3, "\xE6\xBC\xA2\xE2\x80\xA6", 3},
        {"x\xE6\xBC\xA2\xE6\xBC\xA2", 3, "x\xE2\x80\xA6", 2}, // a wide character doesn't fit after
        {"e\xCC\x81"
         "a",
         2,
         "e\xCC\x81"
         "a",
         2}, // a combining one takes no cell
        {"\xC3\xA9\xFF\xC3", 4, "\xC3\xA9\xEF\xBF\xBD\xEF\xBF\xBD", 3},
        {"\xED\xA0\x80", 4, "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD", 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.text));
        std::string out = ">";
        EXPECT_EQ(cells.Append(c.text, c.width, out), c.cells);
        EXPECT_EQ(out, ">" + c.shown);
    }
}

std::string Diff(const char* source, const char* prepared, const char* list, SDiffLook look)
{
    look.sourceTitle = "f";
    look.preparedTitle = "by P";
    std::string out;
    WriteDiff(source, prepared, CPreparedLines("P", list), look,
              [&](std::string_view piece) { out += piece; });
    return out;
}

TEST(UvparseDiff, TextsStandSideBySideWithTheirNumbers)
{
    EXPECT_EQ(Diff("same\n\nfrom line +\n  two\nlast of the lines\n", "same\nfrom line two\nlast\n$\n",
                   "1\t1\t1\n2\t3\t1\n3\t5\t1\n", {.width = 31}),
              "  f                by P\n"
              "1 same           1 same\n"
              "2              <\n"
              "3 from line +  | 2 from line t\xE2\x80\xA6\n"
              "4   two        &\n"
              "5 last of the\xE2\x80\xA6 | 3 last\n"
              "               > 4 $\n");
}

TEST(UvparseDiff, ColorsTellTheFates)
{
    const std::string out = Diff("a\nb\nc\n", "a\nB\n$\n", "1\t1\t2\n", {.width = 40, .isColored = true});
    EXPECT_NE(out.find("\033[33mb"), std::string::npos) << out;
    EXPECT_NE(out.find("\033[33mB\033[0m\n"), std::string::npos) << out;
    EXPECT_NE(out.find("\033[31mc"), std::string::npos) << out;
    EXPECT_NE(out.find("\033[32m$\033[0m\n"), std::string::npos) << out;
    // Every color is taken back before the line ends.
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);)
        EXPECT_GE(line.rfind("\033[0m") + 1, line.rfind("\033[3") + 1) << line;
}

TEST(UvparseDiff, NarrowTerminalsGetTheLeastLayout)
{
    EXPECT_EQ(Diff("abcdefghij\n", "abcdefghij\n", "1\t1\t1\n", {.width = 1}),
              "  f            by P\n"
              "1 abcdefg\xE2\x80\xA6   1 abcdefg\xE2\x80\xA6\n");
}

TEST(UvparseLines, NumbersStandAloneOrInFrontOfTheText)
{
    const CPreparedLines lines("P", "1\t3\t1\n3\t9\t1\n");
    const auto write = [&](const std::string& prefix, bool isText) {
        std::string out;
        WriteLines("a\n\nb", lines, prefix, isText, [&](std::string_view piece) { out += piece; });
        return out;
    };
    EXPECT_EQ(write("", false), "1\t3\n2\t-\n3\t9\n");
    EXPECT_EQ(write("f:", true), "f:3:a\nf:-:\nf:9:b\n");
}

// Messages about the word "bad" in a prepared text.
std::string MessagesAboutBad(const char* source, const char* prepared, const char* pass, const char* list)
{
    const SPreparation preparation{source, prepared, CPreparedLines(pass, list), pass};
    const std::string_view text = prepared;
    std::vector<SFinding> tokens;
    for (std::size_t at = text.find("bad"); at != std::string_view::npos; at = text.find("bad", at + 1))
        tokens.push_back({enFinding::UnexpectedToken, at, 3});
    std::string written;
    const auto writer = MakeTextWriter([&](std::string_view piece) { written += piece; });
    for (const SMessage& message : MessagesOf({"f", "L", source, {}}, preparation, std::move(tokens)))
        writer->Write(message);
    return written;
}

struct SMessageCase
{
    const char* source;
    const char* prepared;
    const char* pass;
    const char* list;
    const char* messages;
};

const SMessageCase kMessageCases[] = {
    {"a\nx bad\n", "a\nx bad\n", "", "",
     "f:2:3: error: unexpected token 'bad'\n"
     "    x bad\n"
     "      ^\n"},
    // The line is the source's own, moved.
    {"\n\nx bad\n", "x bad\n", "P", "1\t3\t1\n",
     "f:3:3: error: unexpected token 'bad'\n"
     "    x bad\n"
     "      ^\n"},
    // Columns were cut: the place is where the source has it.
    {"000100     \xC3\xA9 bad.      IDENT\n", "           \xC3\xA9 bad.\n", "P", "1\t1\t1\n",
     "f:1:14: error: unexpected token 'bad'\n"
     "    000100     \xC3\xA9 bad.      IDENT\n"
     "                 ^\n"},
    {"bad bad\n", "  bad\n", "P", "1\t1\t1\n", // which one it was can't be told
     "f:1: error: unexpected token 'bad' (1:3 in the text that P prepared)\n"
     "    bad bad\n"},
    // Several source lines were joined.
    {"\nbad  CALL +\n  bad   +\r\n\n bad\nx\n", "bad  CALL bad   bad\nx\n", "P", "1\t2\t1\n2\t6\t1\n",
     "f:2:1: error: unexpected token 'bad'\n"
     "    bad  CALL +\n"
     "    ^\n"
     "f:3:3: error: unexpected token 'bad'\n"
     "      bad   + \n"
     "      ^\n"
     "f:5:2: error: unexpected token 'bad'\n"
     "     bad\n"
     "     ^\n"},
    {"A 'x\n-    'y bad\nz\n", "A 'x       y bad\nz\n", "P", "1\t1\t1\n2\t3\t1\n", // more than a sign is gone
     "f:1: error: unexpected token 'bad' (1:14 in the text that P prepared)\n"
     "    A 'x\n"},
    {"x\n", "a\nb bad\n", "P", "",
     "f: error: unexpected token 'bad' (2:3 in the text that P prepared)\n"
     "    b bad\n"
     "      ^\n"},
    {"x\n", "bad\n", "P", "1\t7\t1\n", // a source line that isn't there
     "f: error: unexpected token 'bad' (1:1 in the text that P prepared)\n"
     "    bad\n"
     "    ^\n"},
};

TEST(UvparseMessages, PlacesAreOfTheSource)
{
    for (const auto& c : kMessageCases) {
        SCOPED_TRACE(testing::PrintToString(c.source));
        EXPECT_EQ(MessagesAboutBad(c.source, c.prepared, c.pass, c.list), c.messages);
    }
}

} // namespace
