// From the options to the prepared text, through the parser object. What each pass makes of its texts is
// tested with the pass.
#include "Tests/Parser/ParserFixture.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/ScratchFolder.h"

#include <tuple>

namespace {

class ScriptFormatters : public ParserTest
{
protected:
    // Without a grammar: none of these languages has one here.
    void StartPreparation(std::uint64_t kind)
    {
        SetDatabase(kind);
        SetOption("PREPARE_ONLY", "1");
        SetOption("REPORT_PREPARED_LINES", "1");
        SetOption("REPORT_PREPARATION_NOTES", "1");
    }

    int Prepare(const char* text)
    {
        EXPECT_EQ(m_Parser.set_DatabaseInfo(m_Info), UVDB_OK);
        EXPECT_EQ(m_Parser.Init(""), UVDB_OK);
        return Parse(text);
    }

    std::string Notes() { return Option<Uve::U8CString>("PREPARATION_NOTES"); }
};

struct SPassCase
{
    std::uint64_t kind;
    std::map<std::string, std::string> options;
    const char* source;
    const char* prepared;
    const char* pass;
    const char* lines; // runs: prepared line, source line, count
};

TEST_F(ScriptFormatters, OptionsReachThePass)
{
    using Options = std::map<std::string, std::string>;
    const Options ansi{{"COBOLFORMAT", "ansi"}};
    const Options collapsed{
        {"COBOLFORMAT", "ANSI"}, {"COBOL_TAB_WIDTH", "2"}, {"REMOVE_SRC_FORMATTING", "1"}};
    const Options jcl{{"JCLANSIFORMAT", "1"}};
    const Options rpg{{"IBMRPG_VERSION", "0"}};
    const Options pascal{{"UNIK_DEFINE", "yes"}};
    const Options macros{{"PREPROCESSOR", "0"}, {"PREPROCESSOR_FUNCTION", "2"}};
    const auto faithful = [](Options options) {
        options["SOURCE_FORMS"] = "Faithful";
        return options;
    };
    const SPassCase cases[] = {
        {UVDB_DB_COBOL, {}, "000100 A.\n", "000100 A.\n", "", ""},
        {UVDB_DB_COBOL, ansi, "000100 A.\n000200 B.\n", "       A.\n       B.\n", "FormatCOBOL", "1\t1\t2\n"},
        {UVDB_DB_COBOL, {{"COBOLFORMAT", "free"}}, "000100 A.", "       A.\n", "FormatCOBOL", "1\t1\t1\n"},
        {UVDB_DB_COBOL, collapsed, "000100 A\tB.", "       A B.", "FormatCOBOL", "1\t1\t1\n"},
        {UVDB_DB_COBOL, faithful(ansi), "       A\n      -B", "       AB", "FormatCOBOL", nullptr},
        {UVDB_DB_IBM_CL, {}, "A +\n  B\nC\n\n", "A B\nC\n", "FormatIBM_CL", "1\t1\t1\n2\t3\t1\n"},
        {UVDB_DB_IBM_CL, faithful({}), "A + \nB", "A B", "FormatIBM_CL", nullptr},
        {UVDB_DB_JCL, jcl, "//A\n\n//B", "//A\n//B", "FormatJCL", "1\t1\t1\n2\t3\t1\n"},
        {UVDB_DB_JCL, faithful(jcl), "//A\n\n//B", "//A\n\n//B", "FormatJCL", nullptr},
        {UVDB_DB_FOXPRO_PROGRAMS, {}, "a ;\n b", "a   b", "FormatFoxProPrograms", "1\t1\t1\n"},
        {UVDB_DB_FOXPRO_PROGRAMS, faithful({}), "\u00E9 ;\nb", "\u00E9  b", "FormatFoxProPrograms", nullptr},
        {UVDB_DB_IBM_RPG, rpg, "     FX\n", "FX\n$\n", "FormatIBM_RPG", nullptr},
        {UVDB_DB_IBM_RPG, faithful(rpg), "       a;\n", "  a;\n", "FormatIBM_RPG", nullptr},
        {UVDB_DB_PASCAL, pascal, "a\n{$IFDEF RELEASE}\nb\n{$ENDIF}\n", "a\nb\n", "FormatPASCAL", nullptr},
        {UVDB_DB_PASCAL, faithful(pascal), "{$IFDEF Release}b{$ENDIF}\n", "b\n", "FormatPASCAL", nullptr},
        {UVDB_DB_C, macros, "#define A 1\nA;\n", "\n1;", "FormatCPP", nullptr},
        {UVDB_DB_C, {}, "#define A 1\nA;\n", "#define A 1\nA;\n", "", ""},
    };
    for (const SPassCase& c : cases) {
        SCOPED_TRACE(c.source);
        StartPreparation(c.kind);
        for (const auto& [name, value] : c.options)
            SetOption(name.c_str(), value.c_str());
        EXPECT_EQ(Prepare(c.source), UVDB_OK);
        EXPECT_EQ(Tree(), c.prepared);
        EXPECT_EQ(Option<Uve::U8CString>("PREPARED_BY"), c.pass);
        if (c.lines != nullptr) {
            EXPECT_STREQ(Option<Uve::U8CString>("PREPARED_LINES").c_str(), c.lines);
        }
    }
}

TEST_F(ScriptFormatters, NotesAreThoseOfTheLastText)
{
    constexpr char kNote[] = "warning\t0\t\tnot prepared: COBOLFORMAT is not set\n";
    StartPreparation(UVDB_DB_COBOL);
    SetOption("REPORT_PREPARATION_NOTES", "1");
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(Prepare("000100 A.\n"), UVDB_OK);
        EXPECT_STREQ(Option<Uve::U8CString>("PREPARATION_NOTES").c_str(), kNote);
    }
    SetOption("COBOLFORMAT", "ansi");
    EXPECT_EQ(Prepare("000100 A.\n"), UVDB_OK);
    EXPECT_STREQ(Option<Uve::U8CString>("PREPARATION_NOTES").c_str(), "");
}

TEST_F(ScriptFormatters, PassThatLeavesNothingGivesNoText)
{
    StartPreparation(UVDB_DB_IBM_RPG); // no layout
    EXPECT_EQ(Prepare("     C                   EVAL      A = 1\n"), UVDB_NO_DATA);
    EXPECT_EQ(Tree(), "");
}

TEST_F(ScriptFormatters, CharacterThatCIsNotWrittenInIsAnError)
{
    StartPreparation(UVDB_DB_C);
    SetOption("PREPROCESSOR", "0");
    SetOption("PREPROCESSOR_FUNCTION", "2");
    EXPECT_EQ(Prepare("int a;\nint \xC3\xA4;\n"), UVDB_ERROR);
    EXPECT_TRUE(LastDescription().starts_with("2 ")) << LastDescription();
    EXPECT_NE(LastDescription().find("character code=195"), std::string::npos) << LastDescription();
    EXPECT_EQ(Tree(), "");
    EXPECT_EQ(Notes(), ""); // the error record says it

    // any other failure leaves the source to the parser
    EXPECT_EQ(Parse("#error no\nint a;\n"), UVDB_OK);
    EXPECT_EQ(Tree(), "#error no\nint a;\n");
    EXPECT_EQ(Option<Uve::U8CString>("PREPARED_BY"), "");
    EXPECT_EQ(Notes(), "error\t1\t\t#error no\n"
                       "error\t0\t\tthe macro processor failed: the whole text goes on unprepared\n");
}

TEST_F(ScriptFormatters, UndefinedNamesAreKeptForTheHost)
{
    StartPreparation(UVDB_DB_C);
    SetOption("PREPROCESSOR", "0");
    SetOption("PREPROCESSOR_FUNCTION", "2");
    SetOption("PREPROCESSOR_UNDEFINES", "X;Y");
    EXPECT_EQ(Prepare("#define X 1 2\nX Y\n"), UVDB_OK);
    const std::map<std::string, std::string> expected = {{"X", "12"}};
    EXPECT_EQ(*m_Parser.GetUndefinesTokens(), expected);
}

TEST_F(ScriptFormatters, ScriptBlocksBecomeOptions)
{
    StartPreparation(UVDB_DB_ASP);
    SetFilePath("page.asp");
    std::shared_ptr<IUVDBObjectInfo> object;
    m_Parser.get_ConvertingObject(object);
    Uve::U8CString number;
    ASSERT_TRUE(CUVDBOptionWrapper::GetParam(object, "ObjectID", number));
    EXPECT_EQ(Prepare("<html><% x = 1 %></html>"), UVDB_OK);
    Uve::U8CString block;
    EXPECT_TRUE(CUVDBOptionWrapper::GetParam(object, "'ORVANTA_VB_CODEBLOCK_0", block));
    EXPECT_EQ(block, " x = 1 ");
    EXPECT_EQ(Option<Uve::U8CString>((number + "VBPart").c_str()),
              "'ORVANTA_VB_CODEBLOCK_0\n x = 1 'ORVANTA_VB_CODEBLOCK_0\n");
}

TEST_F(ScriptFormatters, MissingFilesOfPagesAreLogged)
{
    class CLogOnly : public CMemoryLog
    {
        void WriteTrace(const char*) override {}
    };
    const auto log = std::make_shared<CLogOnly>();
    const auto earlier = CLogWrapper::GetLog();
    CLogWrapper::Init(log);
    StartPreparation(UVDB_DB_ASP);
    SetFilePath("page.asp");
    EXPECT_EQ(Prepare("a<!--#include file=\"no.inc\"-->"), UVDB_OK);
    CLogWrapper::Init(earlier);
    EXPECT_EQ(log->Text(), "\nError(parser): File no.inc does not exist.\n\n");
    EXPECT_EQ(Notes(), "warning\t1\t\tinclude file not found: no.inc\n");
}

TEST_F(ScriptFormatters, FaithfulFormsAreAskedFor)
{
    const CScratchFolder folder;
    folder.Write("lib/a.i", "[{1}]");
    const struct
    {
        std::uint64_t kind;
        const char *source, *literal, *faithful;
    } cases[] = {
        {UVDB_DB_4GL_PROGRESS, "{a.i x}{a.i y}", nullptr, "[x][y]"},
        {UVDB_DB_C, "$commit; $open c;", "$commit; EXEC SQL open c;", "EXEC SQL commit; EXEC SQL open c;"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        StartPreparation(c.kind);
        SetOption("INCLUDE_FILES", "YES");
        SetOption("PROPATH", ("none," + folder.Path("lib")).c_str());
        SetOption("PREPROCESSOR", "0");
        SetOption("API_SOURCE_DB", "ESQLC");
        EXPECT_EQ(Prepare(c.source), c.literal != nullptr ? UVDB_OK : UVDB_NO_DATA);
        EXPECT_EQ(Tree(), c.literal != nullptr ? c.literal : "");
        SetOption("SOURCE_FORMS", "Faithful");
        EXPECT_EQ(Prepare(c.source), UVDB_OK);
        EXPECT_EQ(Tree(), c.faithful);
    }
}

// As a host's text does.
TEST_F(ScriptFormatters, PreparedTextEndsAtANul)
{
    const CScratchFolder folder;
    folder.Write("a.i", "[{&v}]");
    StartPreparation(UVDB_DB_4GL_PROGRESS);
    SetFilePath(folder.Path("main.p").c_str());
    SetOption("INCLUDE_FILES", "YES");
    EXPECT_EQ(Prepare("{a.i &v=\\x00} rest"), UVDB_OK);
    EXPECT_EQ(Tree(), "[");
}

TEST_F(ScriptFormatters, IncludeFilesLieBelowTheRoot)
{
    const CScratchFolder folder;
    folder.Write("a.i", "a");
    folder.Write("a.h", "#define A 1\n");
    const std::string root = folder.Path("sub");
    for (const auto& [kind, extension, source] :
         std::initializer_list<std::tuple<std::uint64_t, const char*, const char*>>{
             {UVDB_DB_4GL_PROGRESS, "p", "{a.i}."},
             {UVDB_DB_ASP, "asp", "<!--#include file=\"a.i\"-->."},
             {UVDB_DB_C, "c", "#include \"a.h\"\nA."},
         }) {
        for (const bool isBound : {false, true}) {
            SCOPED_TRACE(testing::Message() << source << isBound);
            StartPreparation(kind);
            SetFilePath(folder.Path(std::string("main.") + extension).c_str());
            SetOption("INCLUDE_FILES", "YES");
            SetOption("PREPROCESSOR", "0");
            SetOption("PREPROCESSOR_FUNCTION", "2");
            SetOption("INCLUDE_ROOT", isBound ? root.c_str() : "");
            EXPECT_EQ(Prepare(source), UVDB_OK);
            EXPECT_EQ(Notes().find("not found below") != std::string::npos, isBound) << Notes();
        }
    }
}

} // namespace
