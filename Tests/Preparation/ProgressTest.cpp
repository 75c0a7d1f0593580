#include "Preparation/Formatters/Progress.h"

#include "Preparation/Formatters/IncludeFile.h"
#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Preparation/ToldNotes.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

class ProgressFormatter : public testing::Test
{
protected:
    void File(const std::string& name, const std::string& text) { m_Folder.Write(name, text); }

    SPreparedText Prepare(const std::string& source, std::size_t limit = std::size_t{64} << 20)
    {
        return FormatProgress(source, {m_Folder.Path("main.p"), limit});
    }
    std::string Text(const std::string& source) { return Prepare(source).text; }

    CScratchFolder m_Folder;
    CLogCapture m_Log;
};

struct SProgressCase
{
    const char* file; // the text of a.i
    const char *source, *text;
};

TEST_F(ProgressFormatter, ArgumentsFillThePlaceholders)
{
    for (const SProgressCase& c : std::initializer_list<SProgressCase>{
             {"x", "p {a.i} q", "p x q"},
             {"", "p {a.i} q", "p  q"},
             {"{&x} {&y} {&z}", "{a.i &x=1 \"two\"}", "1 two {&z}"},
             {"{&x}{ &x }{&x }{& x}", "{a.i &x = \"a b\"}", "a ba ba b{& x}"},
             {"{&a}{&b}", "{a.i  first\n\t\"second one\" third}", "firstsecond one"},
             {"{&a.b}{&c&d}{&e}", "{a.i 1}", "{&a.b}{&c&d}1"}, // names of no such form
             {"{&a}{&b}", "{a.i &b=\"\" x}", "x"},
             {"{&a}{&b}", "{a.i &a x}", "{&a}{&b}"},            // "&" without "=" ends the arguments
             {"{&a}{&b}", "{a.i 1 \"x}", "1{&b}"},              // so does a quote without its partner
             {"{&a}", "{a.i &a={&b}}", "{a.i &a={&b}}"},        // braces inside: no reference
             {"{&(}{&a+}{&aa}", "{a.i &(=1 &a+=2}", "12{&aa}"}, // names aren't patterns
             {"{&A}{&a}", "{a.i &a=1}", "{&A}1"},
             {"{&a}", "{a.i &a=x&b=y}", "x&b=y"},
             // format strings, the value twice: an escape sequence, the match, a group that isn't there, a
             // dollar sign
             {"[{&a}]", "{a.i &a=x\\ty$&z$1$$$q}", "[x\ty{&a}z$q]"},
             {"a\\x41$1b$", "{a.i 1}", "aAb$"},
         }) {
        SCOPED_TRACE(testing::Message() << c.file << " in " << c.source);
        File("a.i", c.file);
        EXPECT_EQ(Text(c.source), c.text);
    }
}

TEST_F(ProgressFormatter, TheNameTellsTheFile)
{
    File("a.i", "a");
    File("a.I", "capital");
    File("a.i.i", "twice");
    File("src/a.i", "deep");
    EXPECT_EQ(Text("{ a.i}{\n src/b\\a.i }{a.I x}"), "aacapital"); // the last part, beside the source
    EXPECT_EQ(Text("{a.i.i}{a.i}"), "twicea");
    EXPECT_EQ(Text("{a.i}{a.i.i}{a.ii}"), "aaa");                  // every reference that begins so
    EXPECT_EQ(Text("{a.include x}{&a.i}{b.p}{a.i"), "a{b.p}{a.i"); // up to the last ".i"
    EXPECT_EQ(Text("{" + m_Folder.Path("src/a.i") + "}"), "a");    // with "\" for "/" there is no such file
    EXPECT_EQ(FormatProgress("{a.i}", {m_Folder.Path("src\\main.p")}).text, "");
    EXPECT_EQ(FormatProgress("{x/a.i}", {m_Folder.Path("src/main.p")}).text, "deep");
}

TEST_F(ProgressFormatter, TheFirstReferenceCountsForAll)
{
    File("a.i", "<{&x}>");
    EXPECT_EQ(Text("{a.i 1} {a.i 2}\n{ a.i}"), "<1> <1>\n<1>");
    File("b.i", "{a.i 3}{c.i}");
    EXPECT_EQ(Text("{b.i} {a.i 4}"), "<3> <3>");
}

TEST_F(ProgressFormatter, ReferencesThatComeTogetherCount)
{
    File("a.i", "[{&x}]");
    File("b.i", "b");
    File("open.i", "{a.i ");
    EXPECT_EQ(Text("{a.i &x=\"{b.i}\"}"), "[b]");
    EXPECT_EQ(Text("1{{b.i}.i}2"), "1b2"); // "{b.i}" gives "b": "{b.i}" again
    EXPECT_EQ(Text("1{open.i}y}2"), "1[y]2");
    EXPECT_EQ(Text("{a.i {none.i}{b.i}{none.i} }{b.i}"), "[b]b");
    EXPECT_EQ(Text("{ {b.i} } {b.i}"), "{ b } b");
    const SPreparedText prepared = Prepare("x\n{a.i\n{b.i}\n}\ny {b.i}\n");
    EXPECT_EQ(prepared.text, "x\n[b]\ny b\n");
    EXPECT_EQ(prepared.sourceLines, (std::vector<std::uint32_t>{1, 2, 5}));
}

TEST_F(ProgressFormatter, LinesOfTheSourceAreKept)
{
    File("a.i", "1\n2\n");
    File("b.i", "b1\n{a.i}b2");
    const SPreparedText prepared = Prepare("p\n{b.i\n}\nq {a.i} r\ns");
    EXPECT_EQ(prepared.text, "p\nb1\n1\n2\nb2\nq 1\n2\n r\ns");
    EXPECT_EQ(prepared.sourceLines, (std::vector<std::uint32_t>{1, 2, 2, 2, 2, 4, 4, 4, 5}));
}

TEST_F(ProgressFormatter, FilesThatAreNone)
{
    std::filesystem::create_directories(m_Folder.Path("folder.i"));
    ASSERT_EQ(mkfifo(m_Folder.Path("pipe.i").c_str(), 0600), 0);
    std::filesystem::create_symlink(m_Folder.Path("loop.i"), m_Folder.Path("loop.i"));
    File("binary.i", std::string("a\0{missing.i}\xFF\n", 15));
    File("mark.i", "\xEF\xBB\xBFx");
    EXPECT_EQ(Text("1{folder.i}2{pipe.i}3{loop.i}4{missing.i}5{/dev/zero.i}6"), "123456");
    EXPECT_EQ(Text("1{binary.i}2"), "12"); // a text ends at a NUL byte
    EXPECT_EQ(Text("{mark.i}"), "x");
    EXPECT_EQ(Text("{" + std::string(10 << 20, 'n') + ".i}x"), "x");
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(ProgressFormatter, AFileThatIsOpenIsNotTakenInAgain)
{
    File("self.i", "<{self.i}>");
    File("ping.i", "{pong.i}.");
    File("pong.i", "{ping.i};");
    File("twice.i", "{twice.i}{twice.i}x{b.i}");
    File("b.i", "b");
    File("b.i.i", "long");
    File("main.p", "main");
    File("comment.i", "/* {lib/comment.i} */ {main.i}");
    File("main.i", "{comment.i &x=1}{b.i}");
    for (const auto& [source, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"{self.i}{self.i x}", "<{self.i}><{self.i}>"},
             {"{ping.i} {pong.i}", "{ping.i};. {pong.i}.;"},
             {"{twice.i} {b.i}", "{twice.i}{twice.i}xb b"}, // what follows is still taken in
             {"{b.i}{b.i}", "bb"},
             {"{./self.i}{self.i}", "<{self.i}><{self.i}>"},
             {"{comment.i}", "/* {lib/comment.i} */ {comment.i &x=1}b"},
         }) {
        SCOPED_TRACE(source);
        EXPECT_EQ(Text(source), text);
    }
    // the source is open too, by whichever path
    EXPECT_EQ(FormatProgress("/* {lib/self.i} */{b.i}", {m_Folder.Path("./self.i")}).text,
              "/* {lib/self.i} */b");
    std::filesystem::create_symlink(m_Folder.Path("self.i"), m_Folder.Path("link.i"));
    EXPECT_EQ(FormatProgress("{link.i}", {m_Folder.Path("self.i")}).text, "{link.i}");
    EXPECT_EQ(m_Log.Text(), "");
    // the text around a match, after a reference that stays
    File("around.i", "{around.i}{next.i}");
    File("next.i", "{around.i}[$`]");
    EXPECT_EQ(Text("{around.i}"), "{around.i}{around.i}[{around.i}]");
}

TEST_F(ProgressFormatter, Bounds)
{
    for (int i = 0; i < 1100; ++i)
        File("chain" + std::to_string(i) + ".i", "x{chain" + std::to_string(i + 1) + ".i}");
    const SPreparedText chain = Prepare("\n{chain0.i}");
    EXPECT_EQ(chain.text, "\n" + std::string(1000, 'x') + "{chain1000.i}");
    EXPECT_NE(m_Log.Text().find("1000 rounds"), std::string::npos);
    EXPECT_EQ(Told(chain.notes), "E :2 include files: references are left after 1000 rounds\n");
    m_Log.Clear();

    File("two.i", "[{two1.i}{two1.i}]");
    for (int i = 1; i < 40; ++i)
        File("two" + std::to_string(i) + ".i", Repeated("{two" + std::to_string(i + 1) + ".i}", 2));
    const SPreparedText bomb = Prepare("{two.i}");
    EXPECT_LE(bomb.text.size(), (std::size_t{64} << 20) + 9);
    EXPECT_GE(bomb.text.size(), std::size_t{8} << 20);
    EXPECT_NE(m_Log.Text().find("too long"), std::string::npos);
    EXPECT_EQ(Told(bomb.notes), "E :1 include files: the text becomes too long, or takes too long\n");
    m_Log.Clear();

    EXPECT_EQ(Prepare("{two.i}", 20).text, "[{two1.i}{two1.i}]");
    EXPECT_NE(m_Log.Text().find("too long"), std::string::npos);
}

TEST_F(ProgressFormatter, NotesTellWhatIsMissing)
{
    File("a.i", "\n{none.i}");
    File("binary.i", std::string("a\0b", 3));
    File("self.i", "{self.i}");
    const std::string named = ", which " + RealIncludePath(m_Folder.Path("a.i")) + " names\n";
    EXPECT_EQ(Told(Prepare("x\n{no.i}\n{no.i 1}\n{a.i}{binary.i}").notes),
              "W :2 include file not found: no.i\nW :4 include file not found: none.i" + named +
                  "W :4 include file that is no text: binary.i\n");
    EXPECT_EQ(Told(Prepare("\n{self.i}\n{self.i}").notes),
              "W :2 include file that is open already isn't taken in again: self.i, which " +
                  RealIncludePath(m_Folder.Path("self.i")) + " names (2 times)\n");
    EXPECT_EQ(Told(Prepare("{&x}{a.p}\n").notes), "");
}

TEST_F(ProgressFormatter, FilesOutsideOfTheRootAreMissing)
{
    File("src/in.i", "in");
    File("out.i", "out");
    std::filesystem::create_symlink(m_Folder.Path("out.i"), m_Folder.Path("src/link.i"));
    std::filesystem::create_symlink(m_Folder.Path("src"), m_Folder.Path("lib"));
    SProgressOptions options{m_Folder.Path("src/main.p")};
    EXPECT_EQ(FormatProgress("{in.i}{link.i}", options).text, "inout");
    options.includeRoot = m_Folder.Path("lib/../src/");
    const SPreparedText prepared = FormatProgress("{in.i}{link.i}", options);
    EXPECT_EQ(prepared.text, "in");
    EXPECT_EQ(Told(prepared.notes), "W :1 include file not found below the folder of INCLUDE_ROOT: link.i\n");
    options.includeRoot = m_Folder.Path("sr"); // no folder, and no beginning of a name
    EXPECT_EQ(FormatProgress("{in.i}", options).text, "");
    options.includeRoot = "/";
    EXPECT_EQ(FormatProgress("{in.i}{link.i}", options).text, "inout");
}

TEST_F(ProgressFormatter, FormatsThatGrow)
{
    File("rest.i", Repeated("$'", 1000));
    EXPECT_EQ(Text("{rest.i}ab"), Repeated("ab", 1000) + "ab");
    EXPECT_EQ(Text("{rest.i}" + std::string(1 << 20, 'a')), "{rest.i}" + std::string(1 << 20, 'a'));
    EXPECT_NE(m_Log.Text().find("too long"), std::string::npos);
    File("before.i", "<$`>");
    EXPECT_EQ(Text("a{before.i}b{before.i}c"), "a<a>b<b>c"); // back to the match before
    File("digits.i", Repeated("$1\\x41", 1 << 14));
    EXPECT_TRUE(Text("{digits.i}") == std::string(1 << 14, 'A'));
    m_Log.Clear();
    File("digits.i", Repeated("$1", 1 << 20)); // the library's time grows with the square
    EXPECT_EQ(Text("{digits.i}"), "{digits.i}");
    EXPECT_NE(m_Log.Text().find("takes too long"), std::string::npos);
    File("x.i", Repeated("{&x}", 1 << 16));
    EXPECT_EQ(Text("{x.i &x=" + Repeated("$1", 1 << 16) + "}").front(), '{');
}

TEST_F(ProgressFormatter, AnySize)
{
    File("a.i", "x\n");
    EXPECT_TRUE(Text(Repeated("{a.i ", 2 << 20)) == Repeated("{a.i ", 2 << 20));
    EXPECT_EQ(Text("{a.i " + Repeated("&x=\"y\" ", 1 << 20) + "}"), "x\n");
    File("many.i", Repeated("{&x}", 1 << 16));
    EXPECT_TRUE(Text("{many.i " + Repeated("1 ", 1 << 20) + "}").starts_with("1111"));
    EXPECT_NE(m_Log.Text().find("too many arguments"), std::string::npos);
    std::string distinct;
    for (int i = 0; i < 10000; ++i)
        distinct += "{none" + std::to_string(i) + ".i}";
    EXPECT_TRUE(distinct.ends_with(Text(distinct)));
}

} // namespace
