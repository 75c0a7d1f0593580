#include "Preparation/Formatters/FoxPro.h"

#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Preparation/ToldNotes.h"

#include <gtest/gtest.h>

namespace {

TEST(FoxProFormatter, StatementsAreJoined)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {"a = 1\n\n\n  b = 2\n\n", "a = 1\n\n\n  b = 2", {1, 2, 3, 4}}, // blank lines stay
             {"\n\na\n", "\n\na", {1, 2, 3}},
             {"\n\n", "", {}},
             {"a = 1 + ;\n  2\nb", "a = 1 +    2\nb", {1, 3}},
             {"a;  \r\n\tb ; \t\r\nc\r\nd\r\n", "a \tb  c\r\nd\r", {1, 4}},
             {"a ;\n\nb", "a  \nb", {1, 3}}, // an empty line ends the statement
             {"a ;", "a ", {1}},
             {"a ;\n", "a ", {1}},
             {"a ;\n\n", "a  ", {1}},
             {";\n;\na", "  a", {1}},
             // comments
             {"  * note ;\n\t*;x\nb", "* note ;\n*;x\nb", {1, 2, 3}},
             {"a ;\n* b", "a  * b", {1}}, // none within a statement
             {"a = 1 ; && note\nb = 2", "a = 1  && note\nb = 2", {1, 2}},
             {"a ;&& x ; && y  \nb", "a && x  && y\nb", {1, 2}},
             {"a && note ;\nb", "a && note  b", {1}},
             // anything else after it stays, and so does the rest of the line
             {"a ; b ;\nc", "a ; b ;\nc", {1, 2}},
             {"a ;; && x\nb", "a ;; && x\nb", {1, 2}},
         })
        ExpectPrepared(c, FormatFoxPro(c.input));
}

TEST(FoxProFormatter, LiteralsKeepTheirSemicolons)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"a = 'x;y' + ;\n\"z;\" + ;\nb", "a = 'x;y' +  \"z;\" +  b", {1}},
             {"a = 'x\";' ;\nb", "a = 'x\";'  b", {1}},         // the other quote closes nothing
             {"a = 'x;\n  y;z'\nb", "a = 'x  y;z'\nb", {1, 3}}, // within a literal nothing comes in between
             {"a = 'x; \n;\ny' + ;\nz", "a = 'xy' +  z", {1}},
             {"a = 'x; && note\ny'", "a = 'xy'", {1}},   // a comment there goes
             {"a = 'x; y\nb'", "a = 'x; y\nb'", {1, 2}}, // it isn't at the end
             {"a = 'x;", "a = 'x", {1}},
             {"a = [it's] + ;\n  b", "a = [it's] +   b", {1}}, // brackets aren't known as quotes
         })
        ExpectPrepared(c, FormatFoxPro(c.input));
}

TEST(FoxProFormatter, OtherCharactersOnLinesWithSemicolons)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"é = 'ü'\n", "é = 'ü'", {1}},
             {"* é;\n", "* é;", {1}},
             {"é = '€😀;' + ;\nü\nä", "` = '``;' +  `\nä", {1, 3}},
             {"a = 'é;\nü'", "a = '``'", {1}},
             {"é; ü", "`; ü", {1}},                    // not after the ";" that stays
             {"a = '\xE9;' ;\nb", "a = '`;'  b", {1}}, // a byte of some other encoding hides no quote
         })
        ExpectPrepared(c, FormatFoxPro(c.input));
}

TEST(FoxProFormatter, FaithfulForm)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {"a ;\n  b\n\nc\n", "a    b\n\nc", {1, 3, 4}},
             // comments go on, whatever is in them
             {"  * don't ;\n\t'do' ; \r\n && it\nb", "* don't  \t'do'   && it\nb", {1, 4}},
             {"* a;\n\nb", "* a \nb", {1, 3}},
             {"* a ;", "* a ;", {1}},
             // how the line ends is what counts
             {"x = [a;b] + ;\n  c", "x = [a;b] +    c", {1}},
             {"a ; b ;\nc", "a ; b  c", {1}},
             {"a = 1 ; && note\nb = 2", "a = 1  && note\nb = 2", {1, 2}},
             {"a = 'x; && y ;\nz'", "a = 'x; && y z'", {1}},
             {"a = 'x; y\nb'", "a = 'x; y\nb'", {1, 2}},
             {"é = '€😀;' + ;\nü\nä; ö", "é = '€😀;' +  ü\nä; ö", {1, 3}},
         }) {
        const SPreparedText prepared = FormatFoxPro(c.input, {.isFaithful = true});
        ExpectPrepared(c, prepared);
        EXPECT_TRUE(prepared.notes.empty());
    }
    EXPECT_TRUE(FormatFoxPro("x" + Repeated("; ", 1 << 20) + "y", {.isFaithful = true}).text ==
                "x" + Repeated("; ", 1 << 20) + "y");
    EXPECT_TRUE(FormatFoxPro(Repeated("*a;\n", 1 << 18), {.isFaithful = true}).text ==
                "*a" + Repeated(" *a", (1 << 18) - 1) + ";");
}

TEST(FoxProFormatter, LossesAreTold)
{
    EXPECT_EQ(Told(FormatFoxPro("é;\nä ü;\nb\n* é;\n'ö;&& n\nx'\n").notes),
              "W :1 2 lines lost characters beyond ASCII: \"`\" stands in their places\n"
              "W :5 1 line lost characters beyond ASCII: \"`\" stands in their places\n"
              "W :5 1 line lost what follows a \";\" within a literal that goes on\n");
}

TEST(FoxProFormatter, AnySize)
{
    const std::size_t count = 1 << 18;
    const auto text = [](std::string_view head, std::string_view piece, std::size_t times) {
        return std::string(FormatFoxPro(std::string(head) + Repeated(piece, times)).text);
    };
    EXPECT_TRUE(text("", "statement + 12;\n", count) + " " == Repeated("statement + 12 ", count));
    EXPECT_TRUE(text("'", "statement + 12;\n", count) == "'" + Repeated("statement + 12", count));
    // every ";" asks what is after it
    EXPECT_TRUE(text("'", ";", 2 << 20) == "'" + std::string(2 << 20, ';'));
    EXPECT_TRUE(text("'", ";&&", 1 << 20) == "'");
    EXPECT_TRUE(text("", "; && ", 1 << 20) == Repeated(" && ", (1 << 20) - 1) + " &&");
    EXPECT_TRUE(FormatFoxPro("'" + std::string(10 << 20, ';') + "' ;\n2").text ==
                "'" + std::string(10 << 20, ';') + "'  2");
}

} // namespace
