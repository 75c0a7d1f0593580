#include "Preparation/Formatters/IbmCl.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

namespace {

TEST(IbmClFormatter, CommandsAreJoined)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {"PGM\nENDPGM\n", "PGM\nENDPGM", {1, 2}},
             {"DCL +\n  VAR(&A) +\n\t TYPE(*CHAR)\nRETURN\n", "DCL VAR(&A) TYPE(*CHAR)\nRETURN", {1, 4}},
             {"SNDMSG 'A-\n  B'\n", "SNDMSG 'A  B'", {1}}, // "-" keeps the blanks
             {"A +\r\n \t\v\f\r B\r\nC\r\n", "A B\nC", {1, 3}},
             {"A -\r\n B\r\r\nC\n", "A  B\nC", {1, 3}},
             {"A +\n+\n-\n  B\n", "A   B", {1}},    // a line of nothing but its sign
             {"A +\n  \n  B\n", "A \n  B", {1, 3}}, // a blank line ends the command
             {"A +\n\n  B\n", "A B", {1}},          // an empty one isn't there
             {"A + \n  B\n", "A + \n  B", {1, 2}},  // a blank after it: no continuation
             {"A +\n", "A ", {1}},
             {"A ++\n", "A +", {1}},
             {"A\r\n\r\nB\r\n", "A\n\nB", {1, 2, 3}}, // "\r" alone makes a line
             {"\r\nA\n", "\nA", {1, 2}},
         })
        ExpectPrepared(c, FormatIbmCl(c.input));
}

TEST(IbmClFormatter, TheLastCharacterGoes)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"ABC", "AB", {1}},
             {"ABC\n\n\n", "ABC\n\n", {1, 2}},
             {"A", "", {}},
             {"A\nB", "A\n", {1}},
             {"\n", "", {}},
             {"\n\n", "\n", {1}},
             {"+", "", {}},
             {"+\n", "", {}},
             {"AB +", "AB", {1}}, // the sign goes first
             {"A\xE2\x82\xAC", "A", {1}},
             {"A\xF0\x9F\x98\x80", "A", {1}},
             {"A\xE2\x82", "A", {1}},
             {"A\x82\xAC", "A\x82", {1}}, // no sequence: one byte
         })
        ExpectPrepared(c, FormatIbmCl(c.input));
    EXPECT_EQ(FormatIbmCl(FormatIbmCl("PGM\n").text).text, "PG");
}

TEST(IbmClFormatter, FaithfulForm)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {"A + \n  B\nC -  \t\r\n  D\n", "A B\nC   D", {1, 3}},
             {"A +\n  \n  B\n", "A \n  B", {1, 3}},
             {"ENDPGM", "ENDPGM", {1}},
             {"A\nB\n\n", "A\nB\n", {1, 2}},
             {"A\n+", "A", {1}},
             {"+ ", "", {}},
         }) {
        const SPreparedText prepared = FormatIbmCl(c.input, {.isFaithful = true});
        ExpectPrepared(c, prepared);
        EXPECT_TRUE(prepared.notes.empty());
    }
    EXPECT_TRUE(FormatIbmCl("A\nB\n").notes.empty());
    const std::vector<SPreparationNote> notes = FormatIbmCl("PGM\nENDPGM").notes;
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_EQ(notes[0].line, 2U);
}

TEST(IbmClFormatter, AnySize)
{
    const std::size_t count = (20 << 20) / 16;
    const SPreparedText joined = FormatIbmCl(Repeated("       PARM(A) +\n", count));
    EXPECT_TRUE(joined.text == "       " + Repeated("PARM(A) ", count));
    EXPECT_EQ(joined.sourceLines, std::vector<std::uint32_t>{1});
    const std::string line(10 << 20, 'x');
    EXPECT_TRUE(FormatIbmCl(line + "-\n" + line + "\n").text == line + line);
}

} // namespace
