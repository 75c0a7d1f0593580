#include "Preparation/Formatters/Jcl.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

namespace {

TEST(JclFormatter, LinesEndAtColumn71)
{
    const std::string seventyTwo = "//" + std::string(70, 'A');
    const std::string wide = Repeated("é", 72);
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {seventyTwo, seventyTwo, {1}},
             {seventyTwo + "00010000", seventyTwo, {1}},
             {seventyTwo + "00010000\r\n//X\r\n",
              seventyTwo + "\n//X\r\n",
              {1, 2}},                                                        // only the cut takes a "\r"
             {wide + "x\n", wide + "\n", {1}},                                // characters, not bytes
             {"//A\n\n\n//B", "//A\n//B", {1, 4}},                            // empty lines vanish
             {"\n\n//A\n \n//B\n\n\n", "//A\n \n//B\n\n\n", {3, 4, 5, 6, 7}}, // but for those at the end
             {"\n\n", "\n\n", {1, 2}},
         })
        ExpectPrepared(c, FormatJcl(c.input));
}

TEST(JclFormatter, EmptyRecordsStayInTheFaithfulForm)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {"\n\n//A\n\n\n//B" + std::string(80, ' '),
              "\n\n//A\n\n\n//B" + std::string(69, ' '),
              {1, 2, 3, 4, 5, 6}},
             {"//A\n\nB\n\n\n", "//A\n\nB\n\n\n", {1, 2, 3, 4, 5}},
             {"\n\n", "\n\n", {1, 2}},
         })
        ExpectPrepared(c, FormatJcl(c.input, {.isFaithful = true}));
}

TEST(JclFormatter, EightBitTextKeepsItsColumns)
{
    // a byte each: what looks like the first byte of a sequence takes nothing from what follows it
    const std::string line = "//* \xC9" + std::string(67, 'x');
    EXPECT_EQ(FormatJcl(line + "\xE9\n//B").text, line + "\n//B");
    EXPECT_EQ(FormatJcl("//* \xE9\n//B").text, "//* \xE9\n//B");
}

TEST(JclFormatter, AnySize)
{
    const std::string line = "//STEP01   EXEC PGM=A" + std::string(51, ' ');
    const std::size_t count = (20 << 20) / 81;
    EXPECT_TRUE(FormatJcl(Repeated(line + "00010000\n", count)).text == Repeated(line + "\n", count));
    EXPECT_EQ(FormatJcl(std::string(10 << 20, 'x') + "\ny").text, std::string(72, 'x') + "\ny");
}

} // namespace
