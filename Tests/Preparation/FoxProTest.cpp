#include "Preparation/Formatters/FoxPro.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

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
             // anything else behind it stays, and so does the rest of the line
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
             {"é; ü", "`; ü", {1}},                    // not behind the ";" that stays
             {"a = '\xE9;' ;\nb", "a = '`;'  b", {1}}, // a byte of some other encoding hides no quote
         })
        ExpectPrepared(c, FormatFoxPro(c.input));
}

std::string Trimmed(std::string text)
{
    text.erase(0, std::min(text.find_first_not_of(" \t\r"), text.size()));
    text.erase(text.find_last_not_of(" \t\r") + 1);
    return text;
}

// The plain way: a statement is one growing line, and the walk starts anew when a literal takes in the next
// one.
std::string JoinByWalkingAgain(const std::string& source)
{
    const std::vector<std::string> lines = LinesOf(source);
    std::string text;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        std::string line = lines[at], out;
        const std::string trimmed = Trimmed(line);
        if (trimmed.starts_with('*')) {
            text += line.substr(line.find('*')) + "\n";
            continue;
        }
        if (line.find(';') == line.npos) {
            text += line + "\n";
            continue;
        }
        char quote = 0;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const char c = line[i];
            if (c == ';' && !(quote != 0 && line.find(quote, i) != line.npos)) {
                const std::string behind = line.substr(i + 1);
                if (!Trimmed(behind.substr(0, behind.find("&&"))).empty()) {
                    out += line.substr(i);
                    break;
                }
                if (quote != 0) {
                    line.erase(i);
                    if (++at < lines.size())
                        line += lines[at];
                    out.clear();
                    quote = 0;
                    i = static_cast<std::size_t>(-1);
                    continue;
                }
                line.erase(line.find_last_not_of(" \t\r") + 1);
                if (i + 1 != line.size() || at + 1 >= lines.size()) {
                    line.erase(i, 1);
                    --i;
                    continue;
                }
                line[i] = ' ';
                out += ' ';
                line += lines[++at];
                continue;
            }
            if (c == '\'' || c == '"')
                quote = quote == 0 ? c : quote == c ? '\0' : quote;
            out += c;
        }
        text += out + "\n";
    }
    text.erase(text.find_last_not_of('\n') + 1);
    return text;
}

TEST(FoxProFormatter, AgreesWithWalkingAgain)
{
    std::mt19937 random(25);
    const std::vector<std::string> pieces = {";", ";\n", "\n", "'", "\"", " ", "&&", "a", "*", "\r\n"};
    for (int round = 0; round < 6000; ++round) {
        const std::string source = RandomText(random, pieces, 28);
        const SPreparedText prepared = FormatFoxPro(source);
        ASSERT_EQ(static_cast<const std::string&>(prepared.text), JoinByWalkingAgain(source)) << source;
        ASSERT_NO_FATAL_FAILURE(ExpectLinesAreKept(source, prepared)) << source;
    }
}

TEST(FoxProFormatter, RealSources)
{
    for (const SCorpusFile& file : CorpusFiles("foxpro")) {
        SCOPED_TRACE(file.path);
        const SPreparedText prepared = FormatFoxPro(file.text);
        ExpectLinesAreKept(file.text, prepared);
        if (std::ranges::all_of(file.text, [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
            EXPECT_EQ(prepared.text, JoinByWalkingAgain(file.text));
        }
    }
}

TEST(FoxProFormatter, AnySize)
{
    const std::size_t count = 20 << 16; // of 16 bytes
    const auto text = [](std::string_view head, std::string_view piece, std::size_t times) {
        return std::string(FormatFoxPro(std::string(head) + Repeated(piece, times)).text);
    };
    EXPECT_TRUE(text("", "statement = 12 \n", count) + "\n" == Repeated("statement = 12 \n", count));
    EXPECT_TRUE(text("", "statement + 12;\n", count) + " " == Repeated("statement + 12 ", count));
    EXPECT_TRUE(text("'", "statement + 12;\n", count) == "'" + Repeated("statement + 12", count));
    // every ";" asks what is behind it
    EXPECT_TRUE(text("'", ";", 2 << 20) == "'" + std::string(2 << 20, ';'));
    EXPECT_TRUE(text("'", ";&&", 1 << 20) == "'");
    EXPECT_TRUE(text("", "; && ", 1 << 20) == Repeated(" && ", (1 << 20) - 1) + " &&");
    EXPECT_TRUE(FormatFoxPro("'" + std::string(10 << 20, ';') + "' ;\n2").text ==
                "'" + std::string(10 << 20, ';') + "'  2");
    const std::string line(10 << 20, 'x'), blanks(10 << 20, ' ');
    EXPECT_TRUE(FormatFoxPro(line + ";" + blanks + "\n" + line).text == line + " " + line);
}

} // namespace
