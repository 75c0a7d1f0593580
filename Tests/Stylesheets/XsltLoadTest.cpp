#include "Stylesheets/XsltLoad.h"

#include "Tests/Stylesheets/PackedText.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/ScratchFolder.h"
#include "UVEnvironment/FileHelper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Uve::U8CString;

std::string Packed(const std::string& text, bool unused = false)
{
    return PackedText(std::to_string(text.size()) + (unused ? ".1." : ".0."), text);
}

std::string Import(const std::string& name)
{
    return "<xslt:import href=\"" + name + "\"/>";
}

std::string Include(const std::string& name)
{
    return "<xslt:include href=\"" + name + "\" />";
}

// A host's directory. Its rules are in CRS mode unless the folder is there.
class RuleFiles : public testing::Test
{
protected:
    void TearDown() override { SetRulesForAssessment(false); }

    void Put(const std::string& path, const std::string& text) const { m_Folder.Write(path, text); }

    CRuleFiles Files() const { return CRuleFiles(m_Host.string()); }

    std::string Load(const std::string& name) const
    {
        std::string out = "old";
        const int result = Files().LoadStylesheet(out, name);
        return result == 0 ? out : std::to_string(result) + ":" + out;
    }

    // The text with its imports; on failure the code, and the text in any case.
    std::string Resolve(const std::string& text, const U8CString& first = "a", const U8CString& second = "b",
                        const U8CString& third = "c") const
    {
        U8CString resolved = text;
        const int result = Files().ResolveImports(resolved, first, second, third);
        return (result == 0 ? "" : std::to_string(result) + ":").append(resolved);
    }

    const CScratchFolder m_Folder;
    const fs::path m_Host = fs::path(m_Folder.Path()).parent_path();
};

TEST_F(RuleFiles, FolderBesideTheHostDecidesTheMode)
{
    EXPECT_TRUE(Files().IsCrsMode());
    EXPECT_EQ(Files().BaseFolder(), m_Host.string() + "/crs/");
    Put("rules", "a file is no folder");
    EXPECT_TRUE(Files().IsCrsMode());
    fs::remove(m_Host / "rules");
    fs::create_directory(m_Host / "rules");
    EXPECT_FALSE(Files().IsCrsMode());
    EXPECT_EQ(Files().BaseFolder(), m_Host.string() + "/rules/");

    SetRulesForAssessment(true);
    EXPECT_EQ(GetRulesFolder(), "rules_KEL");
    EXPECT_TRUE(Files().IsCrsMode());
    fs::create_directory(m_Host / "rules_KEL");
    EXPECT_EQ(Files().BaseFolder(), m_Host.string() + "/rules_KEL/");
    SetRulesForAssessment(false);
    EXPECT_EQ(GetRulesFolder(), "rules");
}

TEST_F(RuleFiles, NamesAreTriedInTurn)
{
    const char* const names[] = {"x.y.xslt", "x.y.xslt_", "x.y.crs", "x.y.crs_", "x.y.cr", "x.y.cr_"};
    for (const char* name : names)
        Put(std::string("crs/sub/") + name, std::string("<") + name);
    for (const char* name : names) {
        EXPECT_EQ(Load("sub/x.y.xslt"), std::string("<") + name);
        // What stands in the place of a file but can't be read as one is passed over.
        fs::remove(m_Host / "crs/sub" / name);
        fs::create_directory(m_Host / "crs/sub" / name);
    }
    EXPECT_EQ(Load("sub/x.y.xslt"), "-1:");
}

TEST_F(RuleFiles, XmlIsTriedAsGivenOnly)
{
    Put("crs/a.crs", "<other/>");
    U8CString out = "old";
    EXPECT_EQ(Files().LoadXml(out, "a.xml"), -1);
    EXPECT_TRUE(out.empty());
    Put("crs/a.xml_", Packed("<b/>"));
    EXPECT_EQ(Files().LoadXml(out, "a.xml"), 0);
    EXPECT_EQ(out, "<b/>");
    Put("crs/a.xml", "<a/>");
    EXPECT_EQ(Files().LoadXml(out, "a.xml"), 0);
    EXPECT_EQ(out, "<a/>");
}

TEST_F(RuleFiles, FirstByteTellsArchives)
{
    const std::string text = "<xslt:stylesheet>" + std::string(3000, 'x') + "THIS_XSLT_IS_UNUSED";
    std::string damaged = Packed(text);
    damaged.back() ^= 1;
    struct SCase
    {
        std::string bytes, loaded;
        const char* trace;
        bool unused;
    };
    const SCase cases[] = {
        {text, text, "", false}, // a plain file doesn't say
        {Packed(text, true), text, "", true},
        {Packed(text, false), text, "", false},
        {"", "", "", false},
        {" <a/>", "", "taken as empty", false},
        {"9999999.1.x", "", "taken as empty", true},
        {damaged, "-1:", "the archive is damaged", false},
        {Packed(text, true).substr(0, 30), "-1:", "the archive is damaged", true},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.bytes.substr(0, 40)));
        Put("crs/a.xslt", c.bytes);
        CLogCapture log;
        EXPECT_EQ(Load("a.xslt"), c.loaded);
        EXPECT_THAT(log.Text(), HasSubstr(c.trace));
        EXPECT_EQ(log.Text().empty(), *c.trace == '\0');
        if (*c.trace != '\0') {
            EXPECT_THAT(log.Text(), HasSubstr("a.xslt"));
        }
        bool unused = !c.unused;
        EXPECT_EQ(Files().ReadUnusedFlag(unused, "a.xslt"), 0);
        EXPECT_EQ(unused, c.unused);
    }
    bool unused = true;
    EXPECT_EQ(Files().ReadUnusedFlag(unused, "none.xslt"), -1);
    EXPECT_FALSE(unused);
}

TEST_F(RuleFiles, TemplatesOfASubStylesheetComeBehindTheLast)
{
    constexpr char kSub[] = "<s></xslt:template><!-- From: a --><t></xslt:template>-<u></xslt:template></s>";
    constexpr char kTaken[] = "\n<!-- From: a --><t></xslt:template>-<u></xslt:template>";
    struct SCase
    {
        std::string main, sub, result;
    };
    const SCase cases[] = {
        {"1</xslt:template>2</xslt:template>3", kSub,
         "1</xslt:template>2</xslt:template>" + std::string(kTaken) + "3"},
        {"no template", kSub, "no template"},
        {"</xslt:template>", "<s></xslt:template></s>", "</xslt:template>"},
        {"</xslt:template>", "<s><!-- From: a --></s>", "</xslt:template>"},
        {"</xslt:template>", "<s></xslt:template><!-- From: a --></s>", "</xslt:template>"},
        {"</xslt:template>", Packed(kSub), "</xslt:template>" + std::string(kTaken)},
    };
    for (const SCase& c : cases) {
        Put("crs/sub.xslt", c.sub);
        std::string main = c.main;
        EXPECT_EQ(Files().AddTemplates(main, "sub.xslt"), 0);
        EXPECT_EQ(main, c.result);
    }
    std::string main = "</xslt:template>";
    EXPECT_EQ(Files().AddTemplates(main, "none.xslt"), -1);
    EXPECT_EQ(main, "</xslt:template>");
}

TEST_F(RuleFiles, ImportsGiveWayToTheirText)
{
    Put("crs/leaf.xslt", "<?xml version=\"1.0\"?><xslt:stylesheet id=\"1\"><leaf/></xslt:stylesheet>");
    Put("crs/packed.crs", Packed("<xslt:stylesheet><packed/></xslt:stylesheet>"));
    Put("crs/plain.xslt", "<plain/>");
    Put("crs/odd.xslt", "<odd/></xslt:stylesheet><xslt:stylesheet");
    Put("crs/middle.xslt", "<m>" + Include("leaf.xslt") + Import("plain.xslt") + "</m>");
    const std::string leaf = "<!--<xslt:stylesheet id=\"1\">--><leaf/>";
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"\xC3\xA9" + Import("plain.xslt") + "\xE2\x82\xAC" + Include("plain.xslt") + "\xC3\xA9",
         "\xC3\xA9<plain/>\xE2\x82\xAC<plain/>\xC3\xA9"},
        {Import("leaf.xslt"), leaf},
        {Import("packed.xslt"), "<!--<xslt:stylesheet>--><packed/>"},
        {Import("odd.xslt"), "<odd/><xslt:stylesheet"},
        {"a" + Include("middle.xslt") + "b" + Import("middle.xslt"),
         "a<m>" + leaf + "<plain/></m>b<m>" + leaf + "<plain/></m>"},
        {"<xslt:import href=\"plain.xslt\" x='/'\n>y", "<plain/>y"},
        {"<xslt:import  href=\"plain.xslt\"/>", "<xslt:import  href=\"plain.xslt\"/>"}, // two blanks: no line
        {"a" + Import("none.xslt"), "-1:a" + Import("none.xslt")},
        {"a<xslt:import href=\"plain.xslt", "-1:a<xslt:import href=\"plain.xslt"},
        {"a<xslt:import href=\"plain.xslt\"", "-1:a<xslt:import href=\"plain.xslt\""},
        // Imports are done when an include fails.
        {Import("plain.xslt") + Include("none.xslt"), "-1:<plain/>" + Include("none.xslt")},
    };
    for (const auto& [text, result] : cases)
        EXPECT_EQ(Resolve(text), result) << text;

    U8CString one = Import("plain.xslt") + Include("plain.xslt");
    EXPECT_EQ(Files().ResolveImports(one, "<xslt:include href=\"", "", "", ""), 0);
    EXPECT_EQ(one, Import("plain.xslt") + "<plain/>");
}

TEST_F(RuleFiles, RulesFolderKeepsPrecompiledImportsApart)
{
    fs::create_directory(m_Host / "rules");
    Put("rules/.Precompiled/a.xslt", "<a/>");
    Put("rules/.Precompiled/b.crs", "<b/>");
    Put("rules/.Precompiled/.Precompiled/c.crs.xslt", "<c/>");
    Put("rules/d.xml", "<d/>");
    EXPECT_EQ(Resolve(Import("a.xslt") + Import("b.crs") + Import("c.crs.xslt") + Import("d.xml")),
              "<a/><b/><c/><d/>");
    EXPECT_EQ(Load("a.xslt"), "-1:"); // a host names the folder itself
    fs::rename(m_Host / "rules", m_Host / "crs");
    EXPECT_EQ(Resolve(Import(".Precompiled/a.xslt")), "<a/>");
    EXPECT_EQ(Resolve(Import("a.xslt")), "-1:" + Import("a.xslt"));
}

TEST_F(RuleFiles, GlobalVariablesAreDecidedWhereTheyAreTakenIn)
{
    const std::string sections =
        "<v><!--Condition:a/b[c]-->1<!--End Condition--><!--Condition:z -->2<!--End Condition--></v>";
    Put("crs/MyGlobalVariables.xslt", sections);
    Put("crs/Other.xslt", sections);
    Put("crs/BadGlobalVariables.xslt", "<!--words-->");
    EXPECT_EQ(Resolve(Import("MyGlobalVariables.xslt")), "<v>1</v>");
    EXPECT_EQ(Resolve(Import("MyGlobalVariables.xslt"), "a", "b", "other"), "<v></v>");
    EXPECT_EQ(Resolve(Import("Other.xslt")), sections);

    CLogCapture log;
    EXPECT_EQ(Resolve(Import("BadGlobalVariables.xslt")), "-1:" + Import("BadGlobalVariables.xslt"));
    EXPECT_THAT(log.Text(), HasSubstr("BadGlobalVariables.xslt"));
    EXPECT_THAT(log.Text(), HasSubstr("Expected End Condition comment."));

    std::string seen;
    U8CString text = Import("MyGlobalVariables.xslt") + Import("Other.xslt");
    EXPECT_EQ(Files().ResolveImports(
                  text, "", "", "",
                  [&](const std::string& name, const std::string& content) { seen += name + ":" + content; }),
              0);
    EXPECT_EQ(seen, "MyGlobalVariables.xslt:" + sections);
}

TEST_F(RuleFiles, RunawayImportsFail)
{
    Put("outside.xslt", "<outside/>");
    Put("crs/self.xslt", Import("self.xslt"));
    Put("crs/left.xslt", Include("right.xslt"));
    Put("crs/right.xslt", Import("left.xslt"));
    // Each takes in the next one twice.
    for (int i = 0; i < 30; ++i)
        Put("crs/double" + std::to_string(i) + ".xslt",
            "<d/>" + Import("double" + std::to_string(i + 1) + ".xslt") +
                Include("double" + std::to_string(i + 1) + ".xslt"));
    Put("crs/double30.xslt", "<end/>");
    // A row of files, each taking in the one after it.
    for (int i = 0; i < 101; ++i)
        Put("crs/row" + std::to_string(i) + ".xslt",
            "<r/>" + Import("row" + std::to_string(i + 1) + ".xslt"));
    Put("crs/row101.xslt", "<end/>");
    Put("crs/sub/plain.xslt", "<plain/>");
    const std::pair<std::string, const char*> cases[] = {
        {"self.xslt", "it takes in itself"},
        {"right.xslt", "it takes in itself"},
        {"double0.xslt", "too many imports"},
        {"row1.xslt", "too many imports"},
        {"../outside.xslt", "the name leads out of the folder"},
        {"sub/../../outside.xslt", "the name leads out of the folder"},
        {std::string("sub/plain.xslt\0x", 16), "the name leads out of the folder"},
        {std::string(5000, 'x'), "the name is too long"},
        {"/etc/passwd", "can't be loaded"}, // counts from the folder like any other
    };
    for (const auto& [name, reason] : cases) {
        CLogCapture log;
        EXPECT_EQ(Resolve(Import(name)), "-1:" + Import(name));
        EXPECT_THAT(log.Text(), HasSubstr(reason));
    }
    EXPECT_THAT(Resolve(Import("row2.xslt")), HasSubstr("<end/>"));
    EXPECT_EQ(Resolve(Import("sub/../sub/./plain.xslt")), "<plain/>");
}

// Neither a name nor a link gets at what isn't below the base folder. Folders are told apart by their whole
// name.
TEST_F(RuleFiles, StayInTheirFolder)
{
    Put("rules/x.xslt", "<inside/>");
    Put("rules2/x.xslt", "<beside/>");
    Put("x.xslt", "<above/>");
    fs::create_symlink("x.xslt", m_Host / "rules/link.xslt");
    fs::create_symlink("../rules2/x.xslt", m_Host / "rules/beside.xslt");
    fs::create_symlink("../x.xslt", m_Host / "rules/above.xslt_");
    fs::create_directory_symlink("../rules2", m_Host / "rules/folder");
    EXPECT_EQ(Load("x.xslt"), "<inside/>");
    EXPECT_EQ(Load("link.xslt"), "<inside/>");
    EXPECT_EQ(Load("../rules/x.xslt"), "<inside/>");
    for (const char* name : {"beside.xslt", "above.xslt", "folder/x.xslt", "../x.xslt", "../rules2/x.xslt"}) {
        SCOPED_TRACE(name);
        const CLogCapture log;
        EXPECT_EQ(Load(name), "-1:");
        EXPECT_THAT(log.Text(), HasSubstr("it leads out of the folder"));
        U8CString xml;
        EXPECT_EQ(Files().LoadXml(xml, U8CString(name)), -1);
        EXPECT_TRUE(xml.empty());
    }
}

TEST(RuleFilesOfThisProcess, StandBesideTheProgram)
{
    const fs::path crs = fs::path(Uve::GetPathOfExe().c_str()) / "crs";
    const std::string name = "XsltLoadTest" + std::to_string(getpid());
    const std::string file = name + ".xslt";
    ASSERT_TRUE(isCRSmode()) << "no rules folder stands beside the tests";
    fs::create_directory(crs);
    std::ofstream(crs / file) << Packed("<a><!-- From: x --></xslt:template></a>", true);

    std::string text;
    EXPECT_EQ(LoadXSLTFromFile(text, file), 0);
    EXPECT_EQ(text, "<a><!-- From: x --></xslt:template></a>");
    U8CString xml;
    EXPECT_EQ(LoadXMLFromFile(xml, U8CString(file)), 0);
    EXPECT_EQ(xml, text);
    bool unused = false;
    EXPECT_EQ(LoadXSLTFromFileEx(unused, file), 0);
    EXPECT_TRUE(unused);
    std::string main = "</xslt:template>";
    EXPECT_EQ(LoadSubXSLT(main, file), 0);
    EXPECT_EQ(main, "</xslt:template>\n<!-- From: x --></xslt:template>");
    U8CString imports = Import(file);
    EXPECT_EQ(ImportResolveFile(imports, "a", "b", "c"), 0);
    EXPECT_EQ(imports, text);
    EXPECT_EQ(ReadFromFile(text, crs.string()), -1);
    EXPECT_TRUE(text.empty());

    fs::remove(crs / file);
    std::error_code error;
    fs::remove(crs, error); // unless another run still has its file there
}

} // namespace
