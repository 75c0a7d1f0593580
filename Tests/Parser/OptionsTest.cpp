#include "Parser/LoadedGrammar.h"
#include "Parser/ScannerOptions.h"
#include "Parser/UVAssessorOption.h"
#include "Tests/Parser/ParserFixture.h"
#include "Tests/Support/ScratchFolder.h"

#include <cstdlib>
#include <filesystem>

namespace {

// From the options of the database info to the scanners of a grammar.
class ParserOptions : public ParserTest
{
protected:
    void Load()
    {
        try {
            m_Grammar.Load(kFixtureGrammar, false);
        } catch (const Uve::U8CString& message) {
            FAIL() << message;
        }
    }
    int Take() { return TakeScannerOptions(m_Info, m_Grammar, m_Options); }

    const CSQLGrammarLexerImplementation& Scanner() { return m_Grammar.Scanner().m_Extension; }
    const CSQLGrammarLexerImplementation& ColoringScanner()
    {
        return m_Grammar.ColoringScanner().m_Extension;
    }

    CLoadedGrammar m_Grammar;
    SScannerOptions m_Options;
};

struct SQuoteCase
{
    std::uint64_t kind;
    std::uint64_t subType;
    std::uint64_t major;
    std::uint64_t minor;
    bool isIdentifier;
    const char* option; // ANSI_QUOTED_IDENTIFIERS, null if it isn't there
};

constexpr std::uint64_t kNone = UVDB_NO_VERSION_WORD;
constexpr std::uint64_t kAse = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE;

// clang-format off
constexpr SQuoteCase kQuotes[] = {
//   kind                  subtype major  minor  identifier option
    {UVDB_DB_SYBASE,       kAse,   10,    90,    true,      nullptr},
    {UVDB_DB_SYBASE,       kAse,   11,    0,     false,     nullptr},
    {UVDB_DB_SYBASE,       kAse,   12,    49,    true,      nullptr},
    {UVDB_DB_SYBASE,       kAse,   12,    50,    false,     nullptr},
    {UVDB_DB_SYBASE,       kAse,   15,    0,     false,     nullptr},
    {UVDB_DB_SYBASE,       kAse,   kNone, kNone, false,     nullptr}, // unknown counts as the newest
    {UVDB_DB_SYBASE,       kAse,   15,    0,     true,      "yes"},
    {UVDB_DB_SYBASE,       kAse,   12,    49,    false,     "0"},
    {UVDB_DB_SYBASE,       0,      15,    0,     true,      nullptr},
    {UVDB_DB_SYBASE,       0,      15,    0,     true,      "0"}, // these don't ask the option
    {UVDB_DB_INFORMIX,     kNone,  9,     0,     false,     nullptr},
    {UVDB_DB_INFORMIX,     kNone,  9,     0,     true,      "1"},
    {UVDB_DB_4GL_INFORMIX, kNone,  7,     0,     false,     nullptr},
    {UVDB_DB_4GL_INFORMIX, kNone,  7,     0,     true,      "1"},
    {UVDB_DB_POSTGRESQL,   kNone,  15,    0,     true,      nullptr},
    {UVDB_DB_POSTGRESQL,   kNone,  15,    0,     false,     "No"},
};
// clang-format on

TEST_F(ParserOptions, KindVersionAndOptionSettleTheQuoteRule)
{
    for (const SQuoteCase& c : kQuotes) {
        SCOPED_TRACE(testing::Message() << c.kind << '/' << c.subType << ' ' << c.major << '.' << c.minor
                                        << ' ' << (c.option ? c.option : "-"));
        SetDatabase(c.kind, c.subType, c.major, c.minor);
        if (c.option)
            SetOption("ANSI_QUOTED_IDENTIFIERS", c.option);
        Load();
        ASSERT_EQ(Take(), UVDB_OK);
        EXPECT_EQ(Scanner().m_bMSSQLQID, c.isIdentifier);
        EXPECT_EQ(ColoringScanner().m_bMSSQLQID, c.isIdentifier);
        EXPECT_EQ(m_Grammar.Scanner().m_nDBVersionMajor, static_cast<int>(c.major));
        EXPECT_EQ(m_Grammar.Scanner().m_nDBVersionMinor, static_cast<int>(c.minor));
    }
}

TEST_F(ParserOptions, DirectivesBelongToTwoLanguages)
{
    constexpr std::pair<std::uint64_t, bool> kKinds[] = {
        {UVDB_DB_CPP, true}, {UVDB_DB_SYBASE, false}, {UVDB_DB_C, true}, {UVDB_DB_JAVA, false}};
    for (const auto& [kind, hasDirectives] : kKinds) {
        SetDatabase(kind, 0);
        Load();
        m_Grammar.Scanner().m_Extension.m_bCppDirectiveParse = !hasDirectives;
        Take();
        EXPECT_EQ(Scanner().m_bCppDirectiveParse, hasDirectives) << kind;
    }
}

TEST_F(ParserOptions, OptionsReachBothScanners)
{
    SetOption("API_SOURCE_DB", "ESQLC");
    SetOption("SRC_UI_TYPE", "FORMS");
    SetOption("PERCENT_AS_COMMENT", "1");
    SetOption("OPTION_VARYING_PARSING", "yes");
    SetOption("EXT_PARSER_SIZE", "77");
    Load();
    EXPECT_EQ(Take(), UVDB_OK);
    EXPECT_TRUE(m_Options.triesOtherQuoteRule);
    EXPECT_EQ(m_Options.extParserSize, 77);
    for (const auto* scanner : {&Scanner(), &ColoringScanner()}) {
        EXPECT_EQ(scanner->m_strAPISourceDB, "ESQLC");
        EXPECT_EQ(scanner->m_strSrcUIType, "FORMS");
        EXPECT_EQ(scanner->m_mapOptions.at("PERCENT_AS_COMMENT"), "1");
        EXPECT_FALSE(scanner->m_bParserPR4GL);
    }

    SetOption("PERCENT_AS_COMMENT", "0");
    SetOption("PARSER_PR_4GL", "WIN");
    Take();
    EXPECT_EQ(Scanner().m_mapOptions.at("PERCENT_AS_COMMENT"), "1"); // the first value stays
    Load();
    Take();
    EXPECT_EQ(ColoringScanner().m_mapOptions.at("PERCENT_AS_COMMENT"), "0"); // until another Load
    EXPECT_TRUE(Scanner().m_bParserPR4GL);
    EXPECT_TRUE(ColoringScanner().m_bParserPR4GL);

    SetDatabase(UVDB_DB_COMMON); // another info, without a size
    Take();
    EXPECT_FALSE(m_Options.triesOtherQuoteRule);
    EXPECT_EQ(m_Options.extParserSize, 102400);
}

TEST_F(ParserOptions, UnknownStartStateLeavesTheLaterOptionsUnread)
{
    SetOption("API_SOURCE_DB", "ESQLC");
    SetOption("SRC_UI_TYPE", "FORMS");
    SetOption("ANSI_QUOTED_IDENTIFIERS", "0");
    Load();
    m_Grammar.Scanner().m_mapStartConditions.erase("SS_GENERAL");
    EXPECT_EQ(Take(), UVDB_INVALID_ARGUMENT);
    EXPECT_EQ(Scanner().m_strAPISourceDB, "ESQLC");
    EXPECT_EQ(Scanner().m_strSrcUIType, "");
    EXPECT_TRUE(Scanner().m_bMSSQLQID);
}

TEST_F(ParserOptions, EmptyDatabaseInfoIsStoredAndTold)
{
    ParserTest::Load();
    ASSERT_EQ(m_Parser.set_DatabaseInfo(m_Info), UVDB_OK);
    EXPECT_EQ(m_Parser.set_DatabaseInfo(nullptr), 1);
    std::shared_ptr<IUVDBDatabaseInfo2> info = m_Info;
    EXPECT_EQ(m_Parser.get_DatabaseInfo(info), UVDB_OK);
    EXPECT_EQ(info, nullptr);
}

// Runs in a directory of its own.
class PascalDefines : public ParserOptions
{
protected:
    PascalDefines()
    {
        std::filesystem::current_path(m_Folder.Path());
        SetDatabase(UVDB_DB_PASCAL);
        Load();
    }
    ~PascalDefines() override { std::filesystem::current_path(m_Earlier); }

    const std::filesystem::path m_Earlier = std::filesystem::current_path();
    const CScratchFolder m_Folder;
    const std::string m_File = "UVParserCmd.cfg\n";
};

TEST_F(PascalDefines, AreWrittenOverTheFileAndAppendedInOrder)
{
    m_Folder.Write(m_File, "0123456789012345678901234");
    SetOption("DEFINES", "one;;two;\xC3\xA9");
    const std::size_t known = Scanner().m_lstDefines.size();
    Take();

    EXPECT_EQ(m_Folder.Read(m_File), "DEFINES=ONE;;TWO;\xC3\x89"
                                     "901234"); // what the new text doesn't reach stays
    EXPECT_FALSE(Scanner().m_bIgnoreDefines);
    for (const auto* scanner : {&Scanner(), &ColoringScanner()}) {
        const std::list<Uve::U8CString> added(
            std::next(scanner->m_lstDefines.begin(), static_cast<long>(known)), scanner->m_lstDefines.end());
        EXPECT_EQ(added, (std::list<Uve::U8CString>{"ONE", "TWO", "\xC3\x89"}));
    }
}

TEST_F(PascalDefines, AreLeftAloneWhereTheOptionSaysNo)
{
    SetOption("DEFINES", "one");
    SetOption("USE_DEFINES", "no");
    const std::size_t known = Scanner().m_lstDefines.size();
    Take();
    EXPECT_TRUE(Scanner().m_bIgnoreDefines);
    EXPECT_EQ(Scanner().m_lstDefines.size(), known);
    EXPECT_FALSE(std::filesystem::exists(m_File));
}

TEST_F(ParserOptions, AssessorFlagFollowsTheOption)
{
    SetOption("AssessorIsParent", true);
    Load();
    Take();
    EXPECT_TRUE(GetAssessorIsParentOpt());
    SetOption("AssessorIsParent", false); // then the parent's name decides, and it is no wizard
    Take();
    EXPECT_FALSE(GetAssessorIsParentOpt());
}

// The test runs itself once more, as the child of a process that calls itself the wizard.
TEST(AssessorOption, ParentOfTheWizardsNameSetsTheFlag)
{
    constexpr char kIsChild[] = "UV_ASSESSOR_CHILD";
    if (std::getenv(kIsChild) != nullptr) {
        SetAssessorIsParentOpt(false);
        EXPECT_TRUE(GetAssessorIsParentOpt());
        return;
    }
    const std::string self = std::filesystem::read_symlink("/proc/self/exe");
    const std::string command = std::string(kIsChild) +
                                "=1 bash -c \"exec -a /opt/orvantaassessmentWZD bash -c '" + self +
                                " --gtest_filter=AssessorOption.* >&2; exit \\$?'\"";
    EXPECT_EQ(std::system(command.c_str()), 0);
    SetAssessorIsParentOpt(false);
    EXPECT_FALSE(GetAssessorIsParentOpt());
}

} // namespace
