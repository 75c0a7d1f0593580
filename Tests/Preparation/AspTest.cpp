#include "Preparation/Formatters/Asp.h"

#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Preparation/ToldNotes.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const std::string kMarker = "'ORVANTA_VB_CODEBLOCK_";

SAspPage Format(const std::string& source)
{
    return FormatAsp(source, {});
}

TEST(Asp, BlocksOfScript)
{
    for (const auto& [source, blocks] :
         std::initializer_list<std::pair<const char*, std::vector<const char*>>>{
             {"", {}},
             {"<% a %>\n\n<%b%><%%>", {" a ", "b", ""}},
             {"<%@ language=vbscript %><%= v %><% \n\t= v %><%\n@x%>", {}},
             {"<% option explicit %><%\nOption Explicit\na%><% option  explicit %>", {" option  explicit "}},
             {"<%= \"<%a%>", {"a"}}, // the search goes on inside
             {"<% a", {}},
             {"<% a %> <% b", {" a "}},
             {"<%>", {}},
             {"<% a\r\n\r\nb %>", {" a\r\n\r\nb "}},
             {"<script language=vbscript>a</script>", {"a"}},
             {"<SCRIPTlanguage\n=\nVBScript runat=server>\r\na\n</Script>\n", {"\r\na\n"}},
             {"<script language=vbscript\n>a</script>", {}}, // the tag ends on the line of its language
             {"<script language=\"vbscript\">a</script>", {}},
             {"<script language=javascript>a</script><script language=vbscript>b</script>", {"b"}},
             {"<script language=vbscript a<script language=vbscript>b</script>", {"b"}},
             {"<script language=vbscript>b", {}},
         }) {
        SCOPED_TRACE(source);
        const SAspPage page = Format(source);
        ASSERT_EQ(page.blocks.size(), blocks.size());
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            EXPECT_EQ(page.blocks[i].text, blocks[i]);
            EXPECT_EQ(page.blocks[i].marker, kMarker + std::to_string(i));
        }
    }
}

TEST(Asp, MarkersAndLines)
{
    const SAspPage page = Format("<p>\n<script language=vbscript>s\n</script>\n<% a\nb %>x<%c%>\n");
    EXPECT_EQ(page.prepared.text, "<p>\n<script language=vbscript>\n" + kMarker + "2\ns\n" + kMarker +
                                      "2\n</script>\n<%\n" + kMarker + "0\n a\nb " + kMarker + "0\n%>x<%\n" +
                                      kMarker + "1\nc" + kMarker + "1\n%>\n");
    EXPECT_EQ(page.prepared.sourceLines,
              (std::vector<std::uint32_t>{1, 2, 2, 2, 3, 3, 4, 4, 4, 5, 5, 5, 5, 5}));
    // the numbers go on from the first kind of block to the second
    EXPECT_EQ(page.script, kMarker + "0\n a\nb " + kMarker + "0\n" + kMarker + "1\nc" + kMarker + "1\n" +
                               kMarker + "2\ns\n" + kMarker + "2\n");
    // a block inside a script element has its markers there
    const SAspPage nested = Format("<script language=vbscript>a<%b%></script>");
    ASSERT_EQ(nested.blocks.size(), 2U);
    EXPECT_EQ(nested.blocks[1].text, "a<%\n" + kMarker + "0\nb" + kMarker + "0\n%>");
}

TEST(Asp, IncludeFiles)
{
    const CScratchFolder folder;
    const SAspOptions options{folder.Write("page.asp", "")};
    folder.Write("a.inc", "1\r\n2\n<!--#include file=\"b.inc\"-->\n<% x\n%>");
    folder.Write("inc/b c.inc", "b");
    folder.Write("q\".inc", "q");
    folder.Write("empty.inc", "");
    folder.Write("binary.inc", std::string("a\0\xFF\n", 4));
    std::filesystem::create_directories(folder.Path("folder.inc"));

    struct SIncludeCase
    {
        const char* source;
        std::string text;
        std::vector<const char*> messages;
    };
    for (const SIncludeCase& c : std::vector<SIncludeCase>{
             {"<<!--#include file=\"inc/b c.inc\"-->>", "<b>", {}},
             {"<!-- x --><!--#include file=\"inc/b c.inc\"-->", "<!-- x -->b", {}},
             {"<!--\n#include\t file\n=\r\n\"inc/../inc/b c.inc\" \n-->\nx", "b\nx", {}},
             {"<!--#include file=\"q\".inc\"-->", "q", {}}, // a quote that ends nothing
             {"<!--#include file=\"empty.inc\"--><!--#include file=\"empty.inc\"-->", "", {}},
             // a text ends at a NUL byte
             {"<!--#include file=\"binary.inc\"-->", "", {"File %/binary.inc does not exist.\n"}},
             {"<!--#include virtual=\"a.inc\"--><!--#Include file=\"a.inc\"--><!--#includefile=\"a.inc\"-->",
              "<!--#include virtual=\"a.inc\"--><!--#Include file=\"a.inc\"--><!--#includefile=\"a.inc\"-->",
              {}},
             {"<!--#include file=\"a\n.inc\"--><!--#include file=\"a.inc\" x-->",
              "<!--#include file=\"a\n.inc\"--><!--#include file=\"a.inc\" x-->",
              {}},
             {"a<!--#include file=\"no.inc\"-->b<!--#include file=\"folder.inc\"-->c",
              "abc",
              {"File %/no.inc does not exist.\n", "Can't open file %/folder.inc\n"}},
             {"<!--#include file=\"\"-->", "", {"Can't open file %\n"}},
             {"<!--#include file=\"x<!--#include file=\"inc/b c.inc\"-->",
              "",
              {"File %/x<!--#include file=\"inc/b c.inc does not exist.\n"}},
         }) {
        SCOPED_TRACE(c.source);
        const SAspPage page = FormatAsp(c.source, options);
        EXPECT_EQ(page.prepared.text, c.text);
        ASSERT_EQ(page.messages.size(), c.messages.size());
        for (std::size_t i = 0; i < c.messages.size(); ++i) {
            std::string message = c.messages[i];
            message.replace(message.find('%'), 1, folder.Path("").substr(0, folder.Path("").size() - 1));
            EXPECT_EQ(page.messages[i], "\nError(parser): " + message + "\n");
        }
    }
    // line feeds go, what the file includes stays, and its blocks count
    const SAspPage page = FormatAsp("x\n<!--#include\nfile=\"a.inc\"-->\ny", options);
    EXPECT_EQ(page.prepared.text,
              "x\n1\r2<!--#include file=\"b.inc\"--><%\n" + kMarker + "0\n x" + kMarker + "0\n%>\ny");
    EXPECT_EQ(page.prepared.sourceLines, (std::vector<std::uint32_t>{1, 2, 2, 2, 2, 4}));
}

TEST(Asp, IncludeFilesHaveABound)
{
    const CScratchFolder folder;
    folder.Write("a.inc", "0123456789");
    const std::string source = Repeated("<!--#include file=\"a.inc\"-->", 3);
    const SAspPage page = FormatAsp(source, {folder.Path("page.asp"), 25});
    EXPECT_EQ(page.prepared.text, "01234567890123456789");
    ASSERT_EQ(page.messages.size(), 1U);
    EXPECT_NE(page.messages[0].find("too long"), std::string::npos);
    EXPECT_EQ(FormatAsp(source, {folder.Path("page.asp"), 5}).messages.size(), 3U);
    EXPECT_EQ(Told(page.prepared.notes), "E :1 include file that makes the page too long: a.inc\n");
    folder.Write("big.inc", std::string(1 << 20, 'x'));
    EXPECT_LE(FormatAsp(Repeated("<!--#include file=\"big.inc\"-->", 1000), {folder.Path("page.asp")})
                  .prepared.text.size(),
              std::size_t{64} << 20);
}

TEST(Asp, NotesTellWhatIsMissing)
{
    const CScratchFolder folder;
    folder.Write("out.inc", "out");
    folder.Write("site/in.inc", "in");
    std::filesystem::create_directories(folder.Path("site/folder"));
    const auto directive = [](const std::string& name) { return "<!--#include file=\"" + name + "\"-->\n"; };
    const std::string source = "\n" + directive("in.inc") + directive("../out.inc") + directive("no.inc") +
                               directive("folder") + directive("no.inc");
    SAspOptions options{folder.Path("site/page.asp")};
    const std::string missing =
        "W :4 include file not found: no.inc (2 times)\nW :5 include file that can't be opened: folder\n";
    EXPECT_EQ(Told(FormatAsp(source, options).prepared.notes), missing);
    options.includeRoot = folder.Path("site");
    const SAspPage page = FormatAsp(source, options);
    EXPECT_EQ(page.prepared.text, "\nin\n\n\n\n\n");
    EXPECT_EQ(Told(page.prepared.notes),
              "W :3 include file not found below the folder of INCLUDE_ROOT: ../out.inc\n" + missing);
    EXPECT_EQ(page.messages.front(),
              "\nError(parser): File " + folder.Path("site/../out.inc") + " does not exist.\n\n");
}

TEST(Asp, AnySize)
{
    EXPECT_EQ(Format(Repeated("<p>\n<% a = 1 %>\n", 1 << 18)).blocks.size(), std::size_t{1} << 18);
    for (const char* open : {"<%", "<% ", "<script language=vbscript ", "<script language=vbscript>",
                             "<!--#include file=\"", "\" ", "<!-- "}) {
        SCOPED_TRACE(open);
        const std::string line =
            "<!--#include file=\"" + Repeated(open, (10 << 20) / std::string(open).size());
        EXPECT_TRUE(Format(line).prepared.text == line);
    }
}

} // namespace
