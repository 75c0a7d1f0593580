// Include files by the rules of the language.
#include "Preparation/Formatters/IncludeFile.h"
#include "Preparation/Formatters/Progress.h"
#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Preparation/ToldNotes.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class ProgressFaithful : public testing::Test
{
protected:
    void SetUp() override { m_Options.filePath = m_Folder.Path("src/main.p"); }

    void File(const std::string& name, const std::string& text) { m_Folder.Write(name, text); }
    SPreparedText Prepare(const std::string& source) { return FormatProgressFaithfully(source, m_Options); }
    std::string Text(const std::string& source) { return Prepare(source).text; }

    CScratchFolder m_Folder;
    SProgressOptions m_Options;
};

TEST_F(ProgressFaithful, EachReferenceHasItsArguments)
{
    struct
    {
        const char *file, *source, *text;
    } const cases[] = {
        {"<{1}>", "{a.i 1} {a.i 2}{ a.i }", "<1> <2><>"},
        {"{2}{1}{3}", "{a.i x \"y \"\"z\"\"\"}", "y \"z\"x"},
        {"[{1}]", "{a.i 'a b'}", "['a b']"}, // single quotes are part of the value
        {"{&x}{ &X }{&y}", "{a.i &x = \"a b\" &Z}", "a ba b{&y}"},
        {"<{&x}>", "{a.i &x &y=1}", "<>"},
        {"{&x}", "{a.i &x=$1\\n$&}", "$1\\n$&"}, // no format
        {"a$&\\1{1}", "{a.i $0}", "a$&\\1$0"},
        {"{0} {*} {&*}", "{a.i 1 \"2 3\" &b=c &a=\"d e\"}", "a.i 1 2 3 &a=\"d e\" &b=\"c\""},
        {"{b.i {1} &y={&x}}", "{a.i one &x=two}", "(one two)"},
        {"{{1}.i {2}}", "{a.i b z}", "(z {&y})"},
        {"{{&f} 1}", "{a.i &f=b.i}", "(1 {&y})"},
        {"x", "{1}{&a}{&a-b}", "{1}{&a}{&a-b}"}, // the source has no arguments
        {"'{1}' \"{&x}\" ~{1}", "{a.i y &x=z}", "'y' \"z\" ~{1}"},
        {"/* {1} /* {b.i} */ {1} */{1}", "{a.i y}", "/* {1} /* {b.i} */ {1} */y"},
        {"// {1}\nhttp:{1}//{1}", "{a.i y}", "// {1}\nhttp:y//y"},
        {"\"/*\" {1}", "{a.i y}", "\"/*\" y"},
        {"/*", "{a.i} {a.i} */ {b.i q}", "/* {a.i} */ (q {&y})"}, // one text
        {"{1}", "{a.i \"/*\"} {b.i} */", "/* {b.i} */"},
        {"x", "{a.i", "{a.i"},
        {"x", "{get y}{%a b}{ }{}{\"q\"}}", "{get y}{%a b}{ }{}{\"q\"}}"}, // no such files
        {"x", "{\"a.i\"}{'a.i'}", "xx"},
    };
    File("src/b.i", "({1} {&y})");
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.file << " in " << c.source);
        File("src/a.i", c.file);
        EXPECT_EQ(Text(c.source), c.text);
    }
}

TEST_F(ProgressFaithful, FilesAreLookedForAlongThePath)
{
    File("src/x.i", "beside");
    File("src/sub/x.i", "below");
    File("one/x.i", "one");
    File("one/sub/y.i", "y");
    File("two/x.i", "two");
    File("two/get", "get {1}");
    EXPECT_EQ(Text("{x.i}{sub/x.i}{sub\\x.i}{other/x.i}{get a}"), "beside"
                                                                  "below"
                                                                  "below"
                                                                  "beside{get a}");
    for (const char* const separator : {",", ";", ":"}) {
        m_Options.propath =
            m_Folder.Path("none") + separator + m_Folder.Path("one") + separator + m_Folder.Path("two");
        EXPECT_EQ(Text("{x.i}{sub/y.i}{get a}"), "oneyget a") << separator;
    }
    EXPECT_EQ(Text("{" + m_Folder.Path("two/x.i") + "}"), "two");
    m_Options.includeRoot = m_Folder.Path("two");
    const SPreparedText bound = Prepare("{x.i}{sub/y.i}{get a}");
    EXPECT_EQ(bound.text, "twoget a");
    EXPECT_EQ(Told(bound.notes), "W :1 include file not found below the folder of INCLUDE_ROOT: sub/y.i\n");
}

TEST_F(ProgressFaithful, LinesAndNotes)
{
    File("src/a.i", "1\n{no.i}{none}\n");
    File("src/self.i", "s{self.i {1}}");
    const std::string names = " names\n";
    const SPreparedText prepared = Prepare("p\n{a.i\n}\nq {no.i}{no.i}\n{self.i x}\n");
    EXPECT_EQ(prepared.text, "p\n1\n{none}\n\nq \ns{self.i x}\n");
    EXPECT_EQ(prepared.sourceLines, (std::vector<std::uint32_t>{1, 3, 3, 3, 4, 5}));
    EXPECT_EQ(Told(prepared.notes),
              "W :3 include file not found: no.i, which " + RealIncludePath(m_Folder.Path("src/a.i")) +
                  names +
                  "W :4 include file not found: no.i (2 times)\n"
                  "W :5 include file that is open already isn't taken in again: self.i, which " +
                  RealIncludePath(m_Folder.Path("src/self.i")) + names);
    m_Options.filePath = m_Folder.Path("src/self.i");
    EXPECT_EQ(Text("{self.i}"), "{self.i}");
}

TEST_F(ProgressFaithful, Bounds)
{
    for (int i = 0; i < 40; ++i) {
        File("src/e" + std::to_string(i) + ".i", Repeated("{e" + std::to_string(i + 1) + ".i}", 2));
        File("src/f" + std::to_string(i) + ".i",
             Repeated("{f" + std::to_string(i + 1) + ".i {1}{1}}", 2) + "{1}");
    }
    File("src/e40.i", "");
    m_Options.expansionLimit = 1 << 20;
    for (const char* const source : {"a\n{e0.i}\nb{e39.i}", "a\n{f0.i x}\nb{e39.i}"}) {
        const SPreparedText prepared = Prepare(source);
        EXPECT_LE(prepared.text.size(), (std::size_t{1} << 20) + 100);
        EXPECT_TRUE(prepared.text.ends_with("\nb{e39.i}"));
        EXPECT_EQ(Told(prepared.notes), "E :2 include files: the text becomes too long, or takes too long\n");
    }
    for (const char* const piece : {"{", "{{&a}", "{a ", "}", "{&a}", "{\"", "~", "{1}"}) {
        const std::string source = Repeated(piece, (1 << 15) / std::string(piece).size());
        EXPECT_EQ(Text(source), source);
        Text(source + std::string(source.size(), '}'));
    }
}

} // namespace
