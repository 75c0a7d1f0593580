#include "Tests/Parser/ParserFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

const std::string kHeader = "<?xml version=\"1.0\" ?>";

class Pipeline : public ParserTest
{};

// The second object is a new one for each text; the retry flips the quoting rule of the first.
TEST_F(Pipeline, RestartedPositionsGiveTheTreesOfANewObject)
{
    constexpr const char* kTexts[] = {"print 'a';\n\n print 'b';", "print \"a\";", "use \"a\";", "print ;",
                                      "print 1; print 2;"};
    SetOption("OPTION_VARYING_PARSING", "YES");
    SetOption("PERCENT_AS_COMMENT", "1");
    using Uses = std::function<std::string(CUVDBSQLParser&, const char*)>;
    const auto raw = [](CUVDBSQLParser& parser, const char* text) {
        parser.set_Query(text);
        return parser.FastParse();
    };
    const auto flat = [](CUVDBSQLParser& parser, const char* text) {
        parser.set_Query(text);
        parser.Parse(false);
        return parser.GetParsedXml();
    };
    Start();
    EXPECT_NE(raw(m_Parser, kTexts[0]), raw(m_Parser, kTexts[0])); // what the option is for
    SetOption("RESTART_POSITIONS", "1");
    for (const char* const text : kTexts) {
        SCOPED_TRACE(text);
        for (const auto& parse : {Uses(raw), Uses(flat)}) {
            CUVDBSQLParser fresh;
            fresh.Load(kFixtureGrammar);
            fresh.set_DatabaseInfo(m_Info);
            fresh.Init("");
            EXPECT_EQ(parse(m_Parser, text), parse(fresh, text));
            EXPECT_EQ(m_Parser.IsParseHasErrors(), fresh.IsParseHasErrors());
        }
    }
    EXPECT_EQ(m_Parser.m_Lexer->m_Extension.m_mapOptions.at("PERCENT_AS_COMMENT"), "1");
}

TEST_F(Pipeline, CallsOutOfOrderFailAndNothingElse)
{
    EXPECT_EQ(m_Parser.GetUndefinesTokens(), nullptr);
    EXPECT_EQ(m_Parser.set_DatabaseInfo(m_Info), UVDB_ERROR);
    EXPECT_EQ(m_Parser.Init(""), UVDB_ERROR);
    EXPECT_EQ(m_Parser.set_ParserDevelopmentMode(true), UVDB_ERROR);
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    EXPECT_EQ(LastDescription(), "Parse before Load and Init");
    EXPECT_EQ(m_Parser.FastParse(), "");
    m_Parser.TryParseWithOtherOpts(false);
    m_Parser.SetLastError();
    EXPECT_FALSE(m_Parser.IsParseHasErrors());
    EXPECT_EQ(m_Parser.Load(nullptr), UVDB_INVALID_ARGUMENT);

    Load();
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    m_Parser.Init("");
    m_Parser.set_DatabaseInfo(nullptr);
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    EXPECT_EQ(LastDescription(), "");
    EXPECT_TRUE(m_Log.Text().ends_with("\nFAILED: DatabaseInfo or query is empty\n"));
    m_Parser.set_DatabaseInfo(m_Info);
    EXPECT_EQ(Parse("print 1;"), UVDB_OK);
    Load(); // undoes the connection
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
}

TEST_F(Pipeline, GrammarThatIsMissingLeavesTheEarlierOne)
{
    Start();
    for (const char* name : {"NoSuchGrammar", "../Common", ""})
        EXPECT_THROW(m_Parser.Load(name), Uve::U8CString) << name;
    EXPECT_EQ(Parse("print 1;"), UVDB_OK);
}

TEST_F(Pipeline, ResultFollowsTheText)
{
    struct
    {
        const char* text;
        int result;
        bool hasErrors;
        const char* prepared; // null: the text as it stands
    } constexpr kCases[] = {
        {"print 1;", UVDB_OK, false, nullptr},
        {" -- only a comment <&>\n", UVDB_OK, false, nullptr},
        {"print\xE2\x80\x8B'\xE2\x80\x8B';", UVDB_OK, false, "print ' ';"},
        {"print 1 1; use \"a\";", UVDB_OK, true, nullptr},
        {"begin print (1 + 'a''b'); end;\n", UVDB_OK, false, nullptr},
        {"print 1", UVDB_ERROR, true, ""},
        {"", UVDB_NO_DATA, false, ""},
    };
    Start();
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Parse(c.text), c.result);
        EXPECT_EQ(m_Parser.IsParseHasErrors(), c.hasErrors);
        EXPECT_EQ(TreeText(Tree()), c.prepared ? c.prepared : c.text);
        EXPECT_EQ(m_Parser.GetParsedXml(), Tree());
    }
}

TEST_F(Pipeline, ResultIsGivenAwayOnceWhereTheHostAsksForThat)
{
    Start();
    Parse("print 1;");
    const std::string tree = Tree();
    ASSERT_FALSE(tree.empty());
    SetOption("HAND_OVER_RESULT", "1");
    EXPECT_EQ(Tree(), tree);
    EXPECT_EQ(Tree(), "");
    ASSERT_EQ(Parse("print 2;"), UVDB_OK);
    EXPECT_EQ(TreeText(Tree()), "print 2;");
}

TEST_F(Pipeline, TraceTellsTheSteps)
{
    Start();
    m_Log.Clear();
    Parse("print 1;");
    EXPECT_THAT(m_Log.Text(),
                testing::MatchesRegex("\nParsing...\nFormatted query:\nprint 1;\nOK\n\nExecuteTree2Serial: "
                                      "execution...\nExecuteTree2Serial: used internal execution\n"
                                      "ExecuteTree2Serial: elapsed [0-9]+ ms\nOK\n"));
    m_Log.Clear();
    Parse("");
    EXPECT_EQ(m_Log.Text(), "\nParsing...\nFormatted query is empty.\n");
}

TEST_F(Pipeline, QueryStaysAndResultGoesWithANullText)
{
    Start();
    ASSERT_EQ(Parse("print 1;"), UVDB_OK);
    EXPECT_EQ(m_Parser.set_Query(nullptr), UVDB_OK);
    EXPECT_EQ(Tree(), "");
    EXPECT_EQ(m_Parser.Parse(false), UVDB_OK);
    EXPECT_EQ(TreeText(Tree()), "print 1;");
}

TEST_F(Pipeline, FastParseGivesTheTreeAndKeepsTheResult)
{
    Start();
    ASSERT_EQ(Parse("print 1;"), UVDB_OK);
    m_Parser.set_Query("print\xE2\x80\x8B 2;"); // isn't prepared: the space of no width is no token
    EXPECT_EQ(TreeText(m_Parser.FastParse()), "print\xE2\x80\x8B 2;");
    EXPECT_TRUE(m_Parser.IsParseHasErrors());
    EXPECT_EQ(Tree(), "");
    m_Parser.set_Query("print 3");
    EXPECT_EQ(m_Parser.FastParse(), "");
    EXPECT_EQ(Parse("print 4;"), UVDB_OK);
}

TEST_F(Pipeline, PropertiesFilesAreWrapped)
{
    struct
    {
        const char* path;
        bool isWrapped;
    } constexpr kCases[] = {
        {"a.PROPERTIES", true},      {"a.sql.properties", true}, {"properties", false},
        {"a.properties.sql", false}, {".properties", true},      {"", false},
    };
    Start();
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.path);
        SetFilePath(c.path);
        const int result = Parse("print <a> 1");
        EXPECT_EQ(result, c.isWrapped ? UVDB_OK : UVDB_ERROR);
        EXPECT_EQ(Tree(), c.isWrapped ? "<?xml version=\"1.0\" ?><SQL>print <a> 1</SQL>" : "");
    }
    EXPECT_EQ(m_Parser.m_FlattenCount, 0);
}

TEST_F(Pipeline, PatternProcessSkipsThePreparation)
{
    Start();
    m_Parser.m_PatternProcess = true;
    EXPECT_EQ(Parse(""), UVDB_OK);
    EXPECT_NE(Tree(), "");
    m_Log.Clear();
    Parse("print\xE2\x80\x8B 1;");
    EXPECT_EQ(TreeText(Tree()), "print\xE2\x80\x8B 1;");
    EXPECT_EQ(m_Log.Text().find("Formatted query"), std::string::npos);
}

TEST_F(Pipeline, DirectivesOptionOverridesTheLanguage)
{
    Start();
    Parse("print 1;");
    EXPECT_TRUE(m_Parser.m_Lexer->m_Extension.m_bCppDirectiveParse);
    SetOption("PARSE_DIRECTIVES", "0");
    Parse("print 1;");
    EXPECT_FALSE(m_Parser.m_Lexer->m_Extension.m_bCppDirectiveParse);
}

TEST_F(Pipeline, ChildProcessTakesUnexpectedTokensForFailure)
{
    SetOption("ORVA_CHILD", true);
    Start();
    EXPECT_EQ(Parse("print 1 1;"), UVDB_ERROR);
    EXPECT_TRUE(LastDescription().starts_with("1 '1' Code lines:"));
    EXPECT_EQ(Parse("print 1;"), UVDB_OK);
}

TEST_F(Pipeline, FlatteningThatFailsIsTold)
{
    Start();
    m_Parser.m_Flatten = [] { return -7; };
    EXPECT_EQ(Parse("print 1;"), -7);
    EXPECT_EQ(LastDescription(), "can't transform tree to serial");
    EXPECT_TRUE(m_Log.Text().ends_with("\nFAILED: can't transform tree to serial\n"));
    EXPECT_EQ(TreeText(Tree()), "print 1;");

    m_Parser.m_Flatten = []() -> int { throw Uve::U8CString("no stylesheet"); };
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    EXPECT_TRUE(m_Log.Text().ends_with("\nFAILED: no stylesheet\n"));
    m_Parser.m_Flatten = []() -> int { throw 7; };
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    m_Parser.m_Flatten = []() -> int { throw std::bad_alloc(); };
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    EXPECT_EQ(LastDescription(), "out of memory");
}

// ---- The flattening ----

TEST_F(Pipeline, TreeIsFlattened)
{
    constexpr char kText[] = "print 1; print 2;";
    constexpr char kChain[] = "<statements><statements>";
    Start();
    ASSERT_EQ(Parse(kText), UVDB_OK);
    const std::string tree = Tree();
    EXPECT_TRUE(tree.starts_with(kHeader + "\n<SQL>")) << tree;
    EXPECT_TRUE(tree.ends_with("</SQL>\n")) << tree;
    EXPECT_EQ(tree.find(kChain), std::string::npos) << tree;

    // the stylesheet itself gives the same
    SetOption("TREE2SERIAL_STYLESHEET", "1");
    Start();
    ASSERT_EQ(Parse(kText), UVDB_OK);
    EXPECT_EQ(Tree(), tree);

    Start();
    m_Parser.set_Query(kText);
    Uve::U8CString xml = m_Parser.FastParse();
    EXPECT_NE(xml.find(kChain), std::string::npos) << xml;
    EXPECT_EQ(m_Parser.Tree2Serial(nullptr, xml), UVDB_OK);
    EXPECT_TRUE(xml.ends_with(tree.substr(kHeader.size()))) << xml;
}

// Who looks at the result before it is flattened finds the raw tree, and the outcome stays the same.
TEST_F(Pipeline, HooksSeeTheRawTree)
{
    constexpr char kText[] = "print 1; print '<\r\n'; print 2;";
    Start();
    m_Parser.set_Query(kText);
    const std::string raw = m_Parser.FastParse();
    Start();
    ASSERT_EQ(Parse(kText), UVDB_OK);
    const std::string flat = Tree();

    std::string seen;
    const std::function<void()> kLooks[] = {
        [&] { seen = m_Parser.GetParsedXml(); },
        [&] { seen = Tree(); },
        [&] {
            m_Parser.FastParse(); // another tree in the parser's hands
            seen = Tree();
        },
    };
    for (const auto& look : kLooks) {
        Start();
        m_Parser.m_Flatten = [&] {
            look();
            return m_Parser.CUVDBSQLParser::ExecuteTree2Serial();
        };
        EXPECT_EQ(Parse(kText), UVDB_OK);
        EXPECT_EQ(seen, raw);
        EXPECT_EQ(Tree(), flat);
    }
}

// Bytes that no tree can hold are the stylesheet's business, which refuses them.
TEST_F(Pipeline, BadBytesLeaveTheRawTree)
{
    for (const char* const text : {"print '\xC3';", "print 1; -- \xED\xA0\x80\n"}) {
        SCOPED_TRACE(text);
        Start();
        m_Parser.set_Query(text);
        const std::string raw = m_Parser.FastParse();
        Start();
        EXPECT_EQ(Parse(text), UVDB_ERROR);
        EXPECT_EQ(LastDescription(), "can't transform tree to serial");
        EXPECT_EQ(Tree(), kHeader + raw);
    }
}

TEST_F(Pipeline, TextThatIsNoDocumentStaysAsItIs)
{
    Start();
    for (const char* const option : {"0", "1"}) {
        SetOption("TREE2SERIAL_STYLESHEET", option);
        for (const char* const text :
             {"1 2 3\n", "<SQL>", "<a></b>", "<a>\xC3</a>", "<a>&x;</a>", "<a/><b/>"}) {
            SCOPED_TRACE(text);
            m_Log.Clear();
            Uve::U8CString xml = text;
            EXPECT_EQ(m_Parser.Tree2Serial(m_Info, xml), UVDB_ERROR);
            EXPECT_EQ(xml, text);
            EXPECT_TRUE(m_Log.Text().ends_with("UVParser> ERROR: Tree2Serial error.")) << m_Log.Text();
        }
    }
    Uve::U8CString xml = "<SQL/>";
    CParserProbe withoutInit;
    EXPECT_EQ(withoutInit.Tree2Serial(m_Info, xml), UVDB_ERROR);
    EXPECT_TRUE(m_Log.Text().ends_with("FAILED: unable to find resource\n")) << m_Log.Text();
}

// ---- The second attempt ----

struct SRetryCase
{
    const char* text;
    int result;
    bool hasTree;
    bool hasErrors;
    bool isIdentifier; // the quote rule afterwards
    int flattenCount;
    const char* description;     // how it begins
    const char* unexpectedToken; // in the error record; null: none
    unsigned long warnings;
};

// The rule at the start is "identifier".
// clang-format off
constexpr SRetryCase kRetries[] = {
//   text                          result      tree   errors identifier flattened description             token      warnings
    // clean at once: no second attempt
    {"use \"x\";",                 UVDB_OK,    true,  false, true,      1,        "",                     nullptr,   0},
    // clean under the other rule, which stays
    {"print \"x\";",               UVDB_OK,    true,  false, false,     2,        "",                     nullptr,   1},
    // the first tree stays; the message is the second attempt's, the tokens are the first one's
    {"print \"x\"; use \"y\";",    UVDB_OK,    true,  true,  true,      2,        "1 '\"y\"' Code lines:", "\"x\"", 2},
    // no tree under either rule
    {"print 1",                    UVDB_ERROR, false, true,  true,      0,        "1 '1' Code lines:",    "1",       0},
};
// clang-format on

TEST_F(Pipeline, SecondAttemptTriesTheOtherQuoteRule)
{
    for (const SRetryCase& c : kRetries) {
        SCOPED_TRACE(c.text);
        SetDatabase(UVDB_DB_COMMON);
        SetOption("OPTION_VARYING_PARSING", "YES");
        Start();
        m_Parser.m_FlattenCount = 0;
        EXPECT_EQ(Parse(c.text), c.result);
        EXPECT_EQ(TreeText(Tree()), c.hasTree ? c.text : "");
        EXPECT_EQ(m_Parser.IsParseHasErrors(), c.hasErrors);
        EXPECT_EQ(m_Parser.m_Lexer->m_Extension.m_bMSSQLQID, c.isIdentifier);
        EXPECT_EQ(m_Parser.m_FlattenCount, c.flattenCount);
        EXPECT_TRUE(LastDescription().starts_with(c.description)) << LastDescription();
        std::map<std::string, int> tokens;
        if (c.unexpectedToken)
            tokens[c.unexpectedToken] = 1;
        EXPECT_EQ(LastErrorList(), tokens);
        EXPECT_EQ((Option<std::map<int, unsigned long>>("WARNINGS_COUNT")[0]), c.warnings);
    }
}

TEST_F(Pipeline, ExceptionInTheSecondAttemptPutsEverythingBack)
{
    SetOption("OPTION_VARYING_PARSING", "YES");
    SetOption("REPORT_LOST_TEXT", "1");
    Start();
    int calls = 0;
    m_Parser.m_Flatten = [&] {
        if (++calls == 1) { // of the second attempt, as one that saw the text end in a comment
            m_Parser.m_Unfinished = SUnfinishedText{"COMMENT", 0};
            throw std::bad_alloc();
        }
        return static_cast<int>(UVDB_OK);
    };
    EXPECT_EQ(Parse("print \"x\";"), UVDB_OK);
    EXPECT_EQ(Option<Uve::U8CString>("LOST_TEXT"), "skipped\t1\t1\t0\t9\t1\t\n");
    EXPECT_TRUE(m_Parser.m_Lexer->m_Extension.m_bMSSQLQID);
    EXPECT_TRUE(m_Parser.IsParseHasErrors());
    EXPECT_NE(Tree().find("error_statement"), std::string::npos);
    EXPECT_EQ(Parse("print \"x\";"), UVDB_OK); // and the next parse has its second attempt again
    EXPECT_FALSE(m_Parser.IsParseHasErrors());
}

// ---- Modes ----

TEST_F(Pipeline, ModesFollowInit)
{
    struct
    {
        const char* mode;
        bool isColoring;
        bool isComment;
    } constexpr kCases[] = {
        {"-CL", true, false}, {"-cb", true, true},  {"", false, false},      {"-cb", false, true},
        {"-cl", true, true},  {"-x", false, false}, {nullptr, false, false},
    };
    Load();
    for (const auto& c : kCases) {
        EXPECT_EQ(m_Parser.Init(c.mode), UVDB_OK);
        EXPECT_EQ(m_Parser.m_ColoringMode, c.isColoring);
        EXPECT_EQ(m_Parser.m_CommentMode, c.isComment);
    }
}

TEST_F(Pipeline, ColoringMapsTheTokens)
{
    Start("-cl");
    EXPECT_EQ(Tree(), "<Coloring></Coloring>");
    // a map is no document: the flattening refuses it, and it is there all the same
    ASSERT_EQ(Parse("print 12 --x\n;"), UVDB_ERROR);
    EXPECT_EQ(LastDescription(), "can't transform tree to serial");
    Uve::U8CString map;
    m_Parser.get_ColoringMap(map);
    EXPECT_EQ(map, kHeader + "1 0 4\n5 6 7\n6 9 11\n8 13 13\n");
    EXPECT_EQ(Tree(), "<Coloring>" + map + "</Coloring>");
    ASSERT_EQ(Parse("12"), UVDB_ERROR); // a map of its own
    EXPECT_EQ(m_Parser.GetParsedXml(), kHeader + "5 0 1\n");
    ASSERT_EQ(Parse(" "), UVDB_OK); // an empty one
    EXPECT_EQ(m_Parser.GetParsedXml(), kHeader);

    ASSERT_EQ(m_Parser.Init(""), UVDB_OK);
    ASSERT_EQ(Parse("print 1;"), UVDB_OK);
    EXPECT_EQ(TreeText(Tree()), "print 1;");
}

TEST_F(Pipeline, CommentModeFindsCommentsAlone)
{
    Start("-cb");
    ASSERT_EQ(Parse("a -- b\nc'--d"), UVDB_ERROR);
    EXPECT_EQ(Tree(), kHeader + "6 2 5\n6 9 11\n");
}

// ---- Large and odd texts ----

TEST_F(Pipeline, TextOfAnyBytesSurvives)
{
    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != 12 && byte != 16) // have no place in XML
            everyByte += static_cast<char>(byte);
    }
    std::string brackets(20000, '(');
    for (const std::string& text :
         {"print 1; " + everyByte + ";", "print " + brackets + "1" + std::string(20000, ')') + ";",
          "-- " + std::string(1 << 20, 'x')}) {
        Start();
        m_Parser.m_Flatten = [] { return UVDB_OK; };
        EXPECT_EQ(Parse(text.c_str()), UVDB_OK);
        EXPECT_TRUE(TreeText(Tree()) == text) << text.substr(0, 20);
    }
}

} // namespace
