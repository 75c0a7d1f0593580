#include "Preparation/Formatters/IbmRpg.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

// A line with `letter` at column 5 and `fields` from column 6 on.
std::string Line(char letter, const std::string& fields)
{
    return std::string(5, ' ') + letter + fields + "\n";
}

// The fields of a C line: the operation stands where the layout has it.
std::string Operation(int layout, const std::string& operation)
{
    return std::string(layout == 0 ? 19 : 21, ' ') + operation;
}

struct SRpgCase
{
    int layout;
    std::string source, text;
};

std::string Digits(std::size_t count)
{
    std::string digits;
    while (digits.size() < count)
        digits += static_cast<char>('0' + digits.size() % 10);
    return digits;
}

TEST(IbmRpg, LinesAreCutByColumns)
{
    const std::string wide = Digits(94); // columns 6 to 99
    for (const SRpgCase& c : std::vector<SRpgCase>{
             {0, Line('F', wide),
              "F" + wide.substr(0, 29) + "\nFD" + wide.substr(29, 8) + "\nFO" + wide.substr(37, 37) +
                  "\n$\n"},
             {0, Line('d', wide), "D" + wide.substr(0, 36) + "\nDK" + wide.substr(36, 38) + "\n$\n"},
             {0, Line('P', wide), "P" + wide.substr(0, 37) + "\nPK" + wide.substr(37, 37) + "\n$\n"},
             {0, Line('C', wide),
              "C" + wide.substr(0, 74) + "\nCOM\n$\n"}, // what lies after column 79 is cut
             {0, Line('I', wide), "I" + wide.substr(0, 74) + "\n\n$\n"},
             {0, Line('O', wide), "O" + wide.substr(0, 74) + "\n\n$\n"},
             {0, Line('C', wide.substr(0, 74)), "C" + wide.substr(0, 74) + "\n$\n"}, // 80 columns: no more
             {1, Line('F', wide),
              "F" + wide.substr(0, 33) + "\nFD" + wide.substr(33, 33) + "\nFO" + wide.substr(66, 8) +
                  "\n$\n"},
             {1, Line('c', wide), "C" + wide.substr(0, 53) + "\nCOM" + wide.substr(53, 21) + "\n$\n"},
             {1, Line('I', wide),
              "I" + wide.substr(0, 36) + "\nIF" + wide.substr(36, 32) + "\nCOM" + wide.substr(68, 6) +
                  "\n$\n"},
             {1, Line('O', wide),
              "O" + wide.substr(0, 31) + "\nOF" + wide.substr(31, 37) + "\nCOM" + wide.substr(68, 6) +
                  "\n$\n"},
             {0, Line('D', wide.substr(0, 36)), "D" + wide.substr(0, 36) + "\n$\n"},
             {0, Line('D', wide.substr(0, 37)),
              "D" + wide.substr(0, 36) + "\nDK" + wide.substr(36, 1) + "\n$\n"},
         }) {
        SCOPED_TRACE(testing::Message() << c.layout << ' ' << c.source);
        EXPECT_EQ(FormatIbmRpg(c.source, {c.layout}).text, c.text);
    }
}

TEST(IbmRpg, WhatIsCopiedAndWhatIsDropped)
{
    for (const SRpgCase& c : std::vector<SRpgCase>{
             {2, Line('C', "A"), ""},
             {-1, Line('H', "A"), ""},
             {0, Line('h', "DEBUG") + Line('E', "A") + Line('L', "A") + Line('X', "A"), "HDEBUG\n"},
             {1, Line('H', "A") + Line('e', "B") + Line('L', "C") + Line('D', "A") + Line('P', "A"),
              "HA\nEB\nLC\n"},
             {0, Line('c', "* x") + Line('C', "/copy y") + Line('m', "*z") + Line(' ', "// a"),
              "C* x\nC/copy y\n *z\n // a\n"},
             {1, Line('C', "* x") + Line('C', "/copy y"), "C* x\nC/copy y\n$\n"},
             {0, "     \n     C\n\n     H\n", ""}, // too short, or nothing after the letter
             {0, Line('C', "A") + "    \n" + Line('C', "B"), "CA\n$\nCB\n$\n"},
             {0, "     CA\r\n", "CA\r\n$\n"}, // a column like any other
             {0, Line('C', "\xE9\xFF"), "C\xE9\xFF\n$\n"},
             {0, "     CA", "CA\n$\n"},
         }) {
        SCOPED_TRACE(testing::Message() << c.layout << ' ' << c.source);
        EXPECT_EQ(FormatIbmRpg(c.source, {c.layout}).text, c.text);
    }
}

TEST(IbmRpg, FreeFormAndEmbeddedStatementsAreCopied)
{
    const std::string free =
        Line(' ', "/Free") + Line(' ', "  if a;") + "     C\nabc\n" + Line('D', "X") + Line('h', " y");
    for (const SRpgCase& c : std::vector<SRpgCase>{
             {0, Line('C', "A") + free + Line(' ', "/END-FREE ") + Line('C', "B"),
              "CA\n$\n /Free\n   if a;\nDX\nh y\n /END-FREE \nCB\n$\n"},
             {0, free, " /Free\n   if a;\nDX\nh y\n"},
             {1,
              Line('C', "/EXEC sql") + Line('C', "+ select") + Line('D', "x") + Line('I', "/end-exec") +
                  Line('c', "/End-Exec") + Line('C', "A"),
              "C/EXEC sql\nC+ select\nDx\nI/end-exec\nc/End-Exec\nCA\n$\n"}, // another letter doesn't end it
             {1, Line('D', "/exec sql") + Line('C', "A"), "CA\n$\n"},
             {0, Line('C', "/exec sql") + Line('C', "+ select"), "C/exec sql\nC+ select\n$\n"},
             {1, Line('C', " /exec sql"), "C /exec sql\n$\n"},
         }) {
        SCOPED_TRACE(testing::Message() << c.layout << ' ' << c.source);
        EXPECT_EQ(FormatIbmRpg(c.source, {c.layout}).text, c.text);
    }
}

TEST(IbmRpg, CompileTimeDataIsCopiedWhole)
{
    // ahead of the rows that wait
    EXPECT_EQ(FormatIbmRpg(Line('C', "A") + "**CTDATA X\n     Cdata\n123456\nabc\n1234567\n", {0}).text,
              "**CTDATA X\n     Cdata\nCA\n$\n1234567\n");
    EXPECT_EQ(FormatIbmRpg(Line('C', "A") + "**CTDATA X\n     Cdata\n", {0}).sourceLines,
              (std::vector<std::uint32_t>{2, 3, 1, 1}));
    EXPECT_EQ(FormatIbmRpg("**\n" + Line('C', "A"), {0}).text, "CA\n$\n"); // too short to begin it
    EXPECT_EQ(FormatIbmRpg("**FREE\n  x = 1;\n", {0}).text, "  x = 1;\n");
    EXPECT_EQ(FormatIbmRpg("**CTDATA\n" + Line('C', "A"), {1}).text, "CA\n$\n"); // the older layout has none
}

TEST(IbmRpg, FaithfulForm)
{
    const std::string fields = Repeated("\xC3\xA9", 60);
    for (const SRpgCase& c : std::vector<SRpgCase>{
             // columns are characters, wherever the others stand
             {0, "\xC2\xA3\xC2\xA3   D" + fields,
              "D" + Repeated("\xC3\xA9", 36) + "\nDK" + Repeated("\xC3\xA9", 24) + "\n$\n"},
             {1, Line('C', "\xC3\xA9" + Operation(1, "IF").substr(1)),
              "C\xC3\xA9" + Operation(1, "VelmoraBegIF").substr(1) + "\n$\n"},
             {0, "12345c* x\n00010C/copy y\n" + Line('h', "z"), "C* x\nC/copy y\nHz\n"},
             // free form without a switch; only one layout has it
             {0,
              Line(' ', " if a;") + Line('C', "A") + Line(' ', "   // b") + Line(' ', "x") + Line('X', " y") +
                  "      \n",
              "  if a;\nCA\n$\n    // b\n"},
             {1, Line(' ', " if a;"), ""},
             // a whole source, short lines included
             {0, "**FREE\nend;\n\n  if a;\nC x\n", "**FREE\nend;\n\n  if a;\nC x\n"},
             // data comes after the rows that wait; a single "*" doesn't begin it
             {0, "*    CA\n** TXT\nJAN\n", "CA\n$\n** TXT\nJAN\n"},
         }) {
        SCOPED_TRACE(testing::Message() << c.layout << ' ' << c.source);
        const SPreparedText prepared = FormatIbmRpg(c.source, {c.layout, true});
        EXPECT_EQ(prepared.text, c.text);
        EXPECT_TRUE(std::ranges::is_sorted(prepared.sourceLines));
    }
}

struct SRpgNoteCase
{
    SIbmRpgOptions options;
    std::string source, notes;
};

TEST(IbmRpg, LinesThatVanishAreTold)
{
    const std::string unknown = " vanished: the letter of the line is unknown, or there is none;";
    for (const SRpgNoteCase& c : std::vector<SRpgNoteCase>{
             {{},
              Repeated(Line('C', "A"), 100),
              "0: IBMRPG_VERSION names no column layout: the text is empty;"},
             {{}, "", ""},
             {{0},
              "00010\n00020C\n     \n" + Line(' ', " a;") + "\n" + Line('X', "a") + Line('C', "A") +
                  "     X\n",
              "4: 2 lines" + unknown + "8: 1 line" + unknown},
             {{0, true}, Line(' ', " a;") + Line('X', "a"), "2: 1 line" + unknown},
             {{0}, "**FREE\n  x(1);\nend;\n", "1: 1 line" + unknown + "3: 1 line" + unknown},
             {{1},
              Repeated(Line('D', "a") + Line('D', "b") + Line('C', "A"), 9),
              "1: 2 lines" + unknown + "4: 2 lines" + unknown + "7: 2 lines" + unknown + "10: 2 lines" +
                  unknown + "13: from here on 10 more lines in 5 places" + unknown},
         }) {
        SCOPED_TRACE(c.source);
        std::string notes;
        for (const SPreparationNote& note : FormatIbmRpg(c.source, c.options).notes)
            notes += std::to_string(note.line) + ": " + note.text + ';';
        EXPECT_EQ(notes, c.notes);
    }
}

TEST(IbmRpg, BlocksAreMarked)
{
    for (const int layout : {0, 1}) {
        SCOPED_TRACE(layout);
        std::string source, text;
        const auto add = [&](const char* operation, const char* marker, const char* end) {
            source += Line('C', Operation(layout, operation));
            text += "C" + Operation(layout, std::string(marker) + operation) + "\n" + end + "\n";
        };
        add("begsr", "VelmoraBeg", "$");
        add("IFEQ", "VelmoraBeg", "$");
        add("ELSE", "", "$");
        add("SELECT", "VelmoraBeg", "$");
        add("SELE", "", "$"); // four letters of the five
        add("ENDSL", "VelmoraEnd", "$");
        add("End", "VelmoraEnd", "$");
        add("ENDSR", "VelmoraEnd", "#"); // the outermost block
        add("DOW", "VelmoraBeg", "$");
        add("CASEQ", "VelmoraBeg", "$");
        add("ENDCS", "VelmoraEnd", "$");
        add("ENDDO", "VelmoraEnd", "#");
        add("END", "VelmoraEnd", "#"); // too many: each closes one
        add("EVAL", "", "$");
        EXPECT_EQ(FormatIbmRpg(source, {layout}).text, text);
    }
    std::string piece = "C" + std::string(19, ' ');
    int depth = 0;
    format_section(piece, 0, depth);
    EXPECT_EQ(piece.size(), 20U);
    piece += "IF";
    format_section(piece, 1, depth); // the other layout looks further on
    EXPECT_EQ(depth, 0);
    format_section(piece, 0, depth);
    EXPECT_EQ(depth, 1);
    // comments and lines without an operation close nothing
    EXPECT_EQ(
        FormatIbmRpg(Line('C', Operation(0, "IF")) + Line('C', "*" + Operation(0, "END").substr(1)), {0})
            .text,
        "C" + Operation(0, "VelmoraBegIF") + "\n$\nC*" + Operation(0, "END").substr(1) + "\n");
}

// Each line's rows stand together, and a cut line is still in them: one row after the other, between labels
// and markers.
void ExpectColumnsSurvive(const std::string& source, int layout)
{
    const SPreparedText prepared = FormatIbmRpg(source, {layout});
    const std::vector<std::string> rows = LinesOf(prepared.text), lines = LinesOf(source);
    ASSERT_EQ(prepared.sourceLines.size(), rows.size());
    std::vector<bool> hasRows(lines.size() + 1);
    for (std::size_t i = 0; i < rows.size();) {
        const std::uint32_t number = prepared.sourceLines[i];
        ASSERT_FALSE(hasRows[number]) << "rows of line " << number << " are apart";
        hasRows[number] = true;
        const std::string& line = lines.at(number - 1);
        std::size_t column = 6;
        bool isCut = false;
        for (; i < rows.size() && prepared.sourceLines[i] == number; ++i) {
            isCut = rows[i] == "$" || rows[i] == "#";
            for (const char c : rows[i])
                column += column < line.size() && line[column] == c;
        }
        EXPECT_GE(column, std::min<std::size_t>(line.size(), isCut ? 80 : line.size())) << line;
    }
    for (std::size_t i = 0; i < lines.size(); ++i) // what left no row holds nothing that belongs there
        EXPECT_TRUE(hasRows[i + 1] || lines[i].size() <= 6 ||
                    std::string("CcFfIiOo").find(lines[i][5]) == std::string::npos)
            << lines[i];
}

TEST(IbmRpg, EveryColumnSurvives)
{
    for (const SCorpusFile& file : CorpusFiles("rpg"))
        for (const int layout : {0, 1}) {
            SCOPED_TRACE(file.path);
            ASSERT_NO_FATAL_FAILURE(ExpectColumnsSurvive(file.text, layout));
        }
    const std::vector<std::string> pieces = {"     C", "     f", "     I", "     o",    "     m", "\n",
                                             "\n",     "*",      "/free",  "/end-free", " ",      Digits(75)};
    std::mt19937 random(7);
    for (int i = 0; i < 1000; ++i)
        ASSERT_NO_FATAL_FAILURE(ExpectColumnsSurvive(RandomText(random, pieces, 60), i % 2));
}

TEST(IbmRpg, AnySize)
{
    const std::size_t count = 1 << 17;
    const std::string ends = Line('C', Operation(1, "END"));
    EXPECT_TRUE(FormatIbmRpg(Repeated(ends, count), {1}).text ==
                Repeated("C" + Operation(1, "VelmoraEndEND") + "\n#\n", count));
    const std::string longLine(10 << 20, 'x');
    EXPECT_EQ(FormatIbmRpg(Line('D', longLine), {0}).text,
              "D" + std::string(36, 'x') + "\nDK" + std::string(38, 'x') + "\n$\n");
    EXPECT_TRUE(FormatIbmRpg(Line('H', longLine), {0}).text == "H" + longLine + "\n");
}

} // namespace
