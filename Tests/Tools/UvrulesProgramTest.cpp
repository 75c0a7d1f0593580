#include "Tests/Support/ProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using namespace std::string_literals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr const char* kHead = "<?xml version=\"1.0\"?>\n"
                              "<xslt:stylesheet version=\"1.0\" "
                              "xmlns:xslt=\"http://www.w3.org/1999/XSL/Transform\">\n";
constexpr const char* kFoot = "</xslt:stylesheet>\n";

std::string Stylesheet(const std::string& inside)
{
    return kHead + inside + kFoot;
}

class Uvrules : public CProgramFixture
{
protected:
    Uvrules() : CProgramFixture("uvrules") {}

    // A rule file of the host that stands in the folder "host".
    void PutRule(const std::string& name, const std::string& inside)
    {
        Put("host/rules/" + name, Stylesheet(inside));
    }
    void PutImported(const std::string& name, const std::string& inside)
    {
        PutRule(".Precompiled/" + name, inside);
    }

    SRunResult Resolve(const std::string& arguments) const { return Run("resolve --host host " + arguments); }

    std::size_t FileCount() const
    {
        const fs::recursive_directory_iterator files(m_Folder);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }
};

TEST_F(Uvrules, PackedFilesComeBackAsTheyWere)
{
    const std::string texts[] = {"x",
                                 "\0"s,
                                 "no XML, 1.2.3",
                                 "\xEF\xBB\xBF<a/>",
                                 Stylesheet("<!-- THIS_XSLT_IS_UNUSED -->\r\n"),
                                 std::string(100000, 'a')};
    for (const std::string& text : texts) {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 50)));
        Put("rule.xslt", text);
        fs::permissions(m_Folder / "rule.xslt", fs::perms(0640));
        const SRunResult packed = Run("pack rule.xslt");
        ASSERT_EQ(packed.code, 0) << packed.err;
        EXPECT_EQ(packed.err, "");
        EXPECT_THAT(packed.out,
                    StartsWith("rule.xslt: " + std::to_string(text.size()) + " bytes packed to "));
        const std::string image = Get("rule.xslt");
        EXPECT_NE(image, text);
        EXPECT_EQ(fs::status(m_Folder / "rule.xslt").permissions(), fs::perms(0640));
        EXPECT_EQ(FileCount(), 3u); // nothing is left beside it

        const bool isUnused = text.find("UNUSED") != std::string::npos;
        EXPECT_EQ(packed.out.ends_with(", marked as unused\n"), isUnused);
        const SRunResult shown = Run("show rule.xslt");
        EXPECT_EQ(shown.code, 0);
        EXPECT_THAT(shown.out, StartsWith("unpacked size: " + std::to_string(text.size()) +
                                          " bytes\nunused: " + (isUnused ? "yes" : "no") + "\nheader: "));
        EXPECT_THAT(shown.out, HasSubstr("\nunpacks: yes\n"));

        EXPECT_EQ(Run("unpack rule.xslt").out, text);
        EXPECT_EQ(Run("unpack - < rule.xslt").out, text);
        EXPECT_EQ(Run("unpack rule.xslt --output rule.xslt --force").code, 0);
        EXPECT_EQ(Get("rule.xslt"), text);
    }
}

TEST_F(Uvrules, PackingTwiceChangesNothing)
{
    Put("a.xslt", Stylesheet(""));
    Put("b.xslt", Stylesheet("<!-- b -->"));
    Put("empty.xslt", "");
    ASSERT_EQ(Run("pack a.xslt").code, 0);
    const std::string image = Get("a.xslt");

    const SRunResult again = Run("pack a.xslt empty.xslt b.xslt");
    EXPECT_EQ(again.code, 1);
    EXPECT_EQ(Get("a.xslt"), image);
    EXPECT_EQ(Get("empty.xslt"), "");
    EXPECT_THAT(again.err, HasSubstr("error: a.xslt: is packed already\n"));
    EXPECT_THAT(again.err, HasSubstr("error: empty.xslt: is empty"));
    EXPECT_THAT(again.out, StartsWith("b.xslt: "));

    // A damaged one isn't plain either.
    Put("a.xslt", image.substr(0, image.size() - 1));
    EXPECT_EQ(Run("pack a.xslt").code, 1);
}

TEST_F(Uvrules, LinksToPackedFilesStayLinks)
{
    Put("real.xslt", Stylesheet(""));
    fs::create_symlink("real.xslt", m_Folder / "link.xslt");
    EXPECT_EQ(Run("pack link.xslt").code, 0);
    EXPECT_TRUE(fs::is_symlink(m_Folder / "link.xslt"));
    EXPECT_EQ(Run("unpack real.xslt").out, Stylesheet(""));
}

TEST_F(Uvrules, NothingIsOverwrittenUnasked)
{
    Put("a.xslt", Stylesheet(""));
    Put("old.xslt", "old");
    ASSERT_EQ(Run("pack a.xslt").code, 0);
    const SRunResult refused = Run("unpack a.xslt -o old.xslt");
    EXPECT_EQ(refused.code, 2);
    EXPECT_THAT(refused.err, HasSubstr("old.xslt: is there already"));
    EXPECT_EQ(Get("old.xslt"), "old");
    EXPECT_EQ(Run("unpack a.xslt -o new.xslt").code, 0);
    EXPECT_EQ(Get("new.xslt"), Stylesheet(""));
    EXPECT_EQ(Run("unpack a.xslt -o old.xslt --force").code, 0);
    EXPECT_EQ(Get("old.xslt"), Stylesheet(""));
}

TEST_F(Uvrules, DamagedAndForeignFilesAreRefused)
{
    Put("good", Stylesheet(std::string(1000, ' ')));
    ASSERT_EQ(Run("pack good").code, 0);
    const std::string image = Get("good");
    const std::size_t headerLength = image.find('.') + 3;
    const std::string sizeOfOneMore = std::to_string(Stylesheet(std::string(1001, ' ')).size());
    struct SCase
    {
        std::string content;
        bool hasHeader;
    };
    const SCase cases[] = {
        {image.substr(0, image.size() - 1), true},
        {image.substr(0, headerLength), true},
        {sizeOfOneMore + image.substr(image.find('.')), true},
        {"4294967295.0." + image.substr(headerLength), true},
        {"0" + image, false},
        {Stylesheet("<!-- 1.0. -->"), false},
        {"12", false},
        {"", false},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(c.content.substr(0, 20));
        Put("bad", c.content);
        const SRunResult unpacked = Run("unpack bad -o out.xslt");
        EXPECT_EQ(unpacked.code, 1);
        EXPECT_FALSE(Has("out.xslt"));
        EXPECT_THAT(unpacked.err, HasSubstr(c.hasHeader ? "bad: damaged" : "bad: isn't packed"));
        const SRunResult shown = Run("show bad");
        EXPECT_EQ(shown.code, 1);
        EXPECT_EQ(shown.out.empty(), !c.hasHeader);
        EXPECT_THAT(shown.out + shown.err,
                    HasSubstr(c.hasHeader ? "unpacks: no, damaged\n" : "isn't packed"));
    }
}

TEST_F(Uvrules, ImportsAreResolvedAndConditionsDecided)
{
    PutRule("Main.xslt",
            "<xslt:import href=\"GlobalVariables.xslt\"/><main/><xslt:include href=\"Sub.xslt\"/>\n");
    PutImported("GlobalVariables.xslt", "<!--Condition:One--><one/><!--End Condition-->"
                                        "<!--Condition:Two/A--><twoA/><!--End Condition-->"
                                        "<!--Condition: Two/*[x; y]--><twoXY/><!--End Condition-->");
    PutImported("Sub.crs", "<sub/>");
    ASSERT_EQ(Run("pack host/rules/Main.xslt host/rules/.Precompiled/Sub.crs").code, 0);

    struct SCase
    {
        const char* arguments;
        const char* variables;
    };
    const SCase cases[] = {
        {"", ""},
        {"--first one", "<one/>"},
        {"--first Two --second a", "<twoA/>"},
        {"--first Two --second B --third Y", "<twoXY/>"},
        {"--first Two --second A --third X", "<twoA/><twoXY/>"},
    };
    const std::string opening =
        "\n<!--" + std::string(kHead).substr(22, std::string(kHead).size() - 23) + "-->\n";
    for (const SCase& c : cases) {
        SCOPED_TRACE(c.arguments);
        const SRunResult run = Resolve("Main.xslt "s + c.arguments);
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out, Stylesheet(opening + c.variables + "\n<main/>" + opening + "<sub/>\n\n"));
    }
    const SRunResult alone = Resolve(".Precompiled/GlobalVariables.xslt --first ONE");
    EXPECT_EQ(alone.out, Stylesheet("<one/>"));
}

TEST_F(Uvrules, RulesStandBesideTheProgramUnlessAHostIsGiven)
{
    Put("in", "");
    fs::create_directories(m_Folder / "bin");
    fs::create_hard_link(UV_BIN_DIR "/uvrules", m_Folder / "bin/uvrules");
    Put("bin/crs/.Precompiled/Sub.xslt", Stylesheet("wrong"));
    Put("bin/crs/Sub.xslt", Stylesheet("<sub/>"));
    Put("bin/crs/Main.xslt", "<xslt:import href=\"Sub.xslt\"/>");
    const std::string program = (m_Folder / "bin/uvrules").string();
    EXPECT_THAT(RunProgram(program, "resolve Main.xslt").out, HasSubstr("<sub/>"));

    // Even an empty folder of rules is the one that counts.
    fs::create_directories(m_Folder / "bin/rules");
    const SRunResult missing = RunProgram(program, "resolve Main.xslt");
    EXPECT_EQ(missing.code, 2);
    EXPECT_THAT(missing.err, HasSubstr("bin/rules/Main.xslt: there is no such rule file"));
}

TEST_F(Uvrules, ConditionsThatAreNeverMetAreShownWithTheirPlace)
{
    PutRule("Main.xslt",
            "<xslt:import href=\"GlobalVariables.xslt\"/><xslt:include href=\"GlobalVariables.xslt\"/>");
    PutImported("GlobalVariables.xslt", "<!-- Condition: One -->\n<one/>\n<!--End Condition-->\n"
                                        "  <!--Condition:Two [x]--><two/><!--End Condition-->\n"
                                        "<!--Condition:*/A--><any/><!--End Condition-->\n"
                                        "<!--Condition:Good/* --><good/><!--End Condition-->\n");
    const SRunResult run = Resolve("Main.xslt --first Good --second A --third x");
    EXPECT_EQ(run.code, 0);
    const std::string file = "host/rules/.Precompiled/GlobalVariables.xslt:";
    EXPECT_EQ(run.err,
              file +
                  "3: warning: this condition is never met: no blank may stand after a name alone\n"
                  "    <!-- Condition: One -->\n" +
                  file +
                  "6: warning: this condition is never met: a list needs a second name before it, which "
                  "may be *\n"
                  "      <!--Condition:Two [x]--><two/><!--End Condition-->\n" +
                  file +
                  "7: warning: this condition is never met: it is none of NAME, NAME/NAME and "
                  "NAME/NAME [ITEM; ITEM]\n"
                  "    <!--Condition:*/A--><any/><!--End Condition-->\n");
    EXPECT_THAT(run.out, HasSubstr("<good/>"));
    EXPECT_EQ(Run("resolve --host host .Precompiled/GlobalVariables.xslt").err, run.err);
}

TEST_F(Uvrules, FaultyConditionsAreShownWithTheirPlace)
{
    struct SCase
    {
        const char* text;
        int line;
        const char* message;
    };
    const SCase cases[] = {
        {"<!-- of old, -->\n\n<!-- stray -->\n<!-- and -->", 5, "Expected End Condition comment."},
        {"<!--Condition:A-->\n<!-- x. -->\n<!--Condition:B-->\n<!--End Condition-->", 5,
         "The previous Condition comment is not closed."},
        {"<!--Condition:A-->\n<!--End Condition-->\n<!--End Condition-->", 5,
         "The Condition comment should be before End Condition comment."},
    };
    PutRule("Main.xslt", "<xslt:import href=\"GlobalVariables.xslt\"/>");
    for (const SCase& c : cases) {
        SCOPED_TRACE(c.text);
        PutImported("GlobalVariables.xslt", c.text);
        for (const char* name : {"Main.xslt", ".Precompiled/GlobalVariables.xslt"}) {
            const SRunResult run = Resolve(name + " --first A"s);
            EXPECT_EQ(run.code, 1);
            EXPECT_EQ(run.out, "");
            EXPECT_THAT(run.err, StartsWith("host/rules/.Precompiled/GlobalVariables.xslt:" +
                                            std::to_string(c.line) + ": error: " + c.message + "\n"));
        }
    }
}

TEST_F(Uvrules, WhatCannotBeResolvedSaysWhy)
{
    PutRule("Main.xslt", "<xslt:import href=\"Sub.xslt\"/>");
    const SRunResult missing = Resolve("Main.xslt");
    EXPECT_EQ(missing.code, 1);
    EXPECT_EQ(missing.out, "");
    EXPECT_THAT(missing.err, HasSubstr("\".Precompiled/Sub.xslt\"... FAILED: can't be loaded"));
    EXPECT_THAT(missing.err, HasSubstr("host/rules/Main.xslt: can't be resolved\n"));

    PutImported("Sub.xslt", "<xslt:include href=\"Sub.xslt\"/>");
    EXPECT_EQ(Resolve("Main.xslt").code, 1);

    // The library takes such a file for an empty one; its author should hear of it.
    Put("host/rules/.Precompiled/Sub.xslt", " " + Stylesheet(""));
    const SRunResult blank = Resolve("Main.xslt");
    EXPECT_EQ(blank.code, 1);
    EXPECT_EQ(blank.out, Stylesheet(""));
    EXPECT_THAT(blank.err, HasSubstr("host/rules/.Precompiled/Sub.xslt\"... FAILED: "));

    ASSERT_EQ(Run("pack host/rules/Main.xslt").code, 0);
    const std::string image = Get("host/rules/Main.xslt");
    Put("host/rules/Main.xslt", image.substr(0, image.size() - 1));
    const SRunResult damaged = Resolve("Main.xslt");
    EXPECT_EQ(damaged.code, 1);
    EXPECT_THAT(damaged.err, HasSubstr("the archive is damaged"));
}

constexpr const char* kCopy = "<xslt:param name=\"p\" select=\"'none'\"/>\n"
                              "<xslt:param name=\"x\" select=\"'none'\"/>\n"
                              "<xslt:template match=\"/\"><r p=\"{$p}\" x=\"{$x}\"><xslt:copy-of "
                              "select=\"/*/node()\"/></r></xslt:template>\n";

TEST_F(Uvrules, ApplyPrintsTheResultDocument)
{
    Put("copy.xslt", Stylesheet(kCopy));
    Put("tree.xml", "<t><a/>\xC3\xA9</t>");
    Put("x.xml", "<x>from a file</x>");
    struct SCase
    {
        const char* arguments;
        const char* attributes;
    };
    const SCase cases[] = {
        {"", "p=\"none\" x=\"none\""},
        {"--param \"p='a text'\"", "p=\"a text\" x=\"none\""},
        {"--param p=1+1", "p=\"2\" x=\"none\""},
        {"--param \"p='a=b'\" --param-xml x=x.xml", "p=\"a=b\" x=\"from a file\""},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(c.arguments);
        const SRunResult run = Run("apply copy.xslt tree.xml "s + c.arguments);
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out,
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r "s + c.attributes + "><a/>\xC3\xA9</r>\n");
    }

    Put("telling.xslt", Stylesheet("<xslt:template match=\"/\"><xslt:message>two\nlines</xslt:message><r/>"
                                   "</xslt:template>"));
    const SRunResult telling = Run("apply telling.xslt tree.xml");
    EXPECT_EQ(telling.code, 0);
    EXPECT_THAT(telling.err, testing::MatchesRegex("uvrules: note: .*two\n    lines\n"));

    const std::string plain = Run("apply copy.xslt tree.xml").out;
    ASSERT_EQ(Run("pack copy.xslt").code, 0);
    EXPECT_EQ(Run("apply copy.xslt tree.xml").out, plain);
    EXPECT_EQ(Run("apply copy.xslt - < tree.xml").out, plain);
    EXPECT_EQ(Run("apply - tree.xml < copy.xslt").out, plain);
}

TEST_F(Uvrules, ApplySaysWhyItFailed)
{
    Put("copy.xslt", Stylesheet(kCopy));
    Put("tree.xml", "<t/>");
    Put("open.xml", "<t>");
    Put("bad.xslt", Stylesheet("<xslt:template match=\"a[\"/>"));
    Put("open.xslt", kHead);
    Put("endless.xslt",
        Stylesheet("<xslt:template match=\"/\"><xslt:call-template name=\"n\"/></xslt:template>"
                   "<xslt:template name=\"n\"><xslt:call-template name=\"n\"/></xslt:template>"));
    Put("reading.xslt",
        Stylesheet("<xslt:template match=\"/\"><xslt:copy-of select=\"document('tree.xml')\"/>"
                   "</xslt:template>"));
    for (const char* arguments : {"bad.xslt tree.xml", "open.xslt tree.xml", "copy.xslt open.xml",
                                  "endless.xslt tree.xml", "copy.xslt tree.xml --param-xml x=open.xml"}) {
        SCOPED_TRACE(arguments);
        const SRunResult run = Run("apply "s + arguments);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, StartsWith("uvrules: error: "));
    }
    EXPECT_THAT(Run("apply reading.xslt tree.xml").out, testing::Not(HasSubstr("<t/>")));
    EXPECT_EQ(Run("apply copy.xslt missing.xml").code, 2);
    EXPECT_EQ(Run("apply missing.xslt tree.xml").code, 2);
    EXPECT_EQ(Run("apply copy.xslt tree.xml --param-xml x=missing.xml").code, 2);
}

TEST_F(Uvrules, WhatCannotRunIsNeverASuccess)
{
    Put("a.xslt", Stylesheet(""));
    for (const char* arguments :
         {"", "repack a.xslt", "pack", "pack missing.xslt", "pack .", "pack -", "pack --force a.xslt",
          "unpack", "unpack a.xslt b.xslt", "unpack a.xslt --force", "show missing.xslt", "resolve",
          "resolve --fir A a.xslt", "apply a.xslt", "apply - -", "apply a.xslt a.xslt --param p",
          "apply a.xslt a.xslt --param-xml =a.xslt", "--help >/dev/full"})
        ExpectRefused({{arguments}});
    EXPECT_EQ(Get("a.xslt"), Stylesheet(""));
    for (const char* arguments : {"--help", "pack --help", "--version"}) {
        const SRunResult run = Run(arguments);
        EXPECT_EQ(run.code, 0);
        EXPECT_THAT(run.out, HasSubstr("uvrules"));
    }
    ASSERT_EQ(Run("pack a.xslt").code, 0);
    EXPECT_EQ(Run("unpack a.xslt >/dev/full").code, 2);
}

} // namespace
