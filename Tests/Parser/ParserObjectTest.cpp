#include "Tests/Parser/ParserFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

const std::string kHeader = "<?xml version=\"1.0\" ?>";

class ParserObject : public ParserTest
{};

// The second object is a new one for each text; the retry flips the quoting rule of the first.
TEST_F(ParserObject, RestartedPositionsGiveTheTreesOfANewObject)
{
    constexpr const char* kTexts[] = {"print 'a';\n\n print 'b';", "print \"a\";", "use \"a\";", "print ;",
                                      "print 1; print 2;"};
    SetOption("OPTION_VARYING_PARSING", "YES");
    SetOption("ANSI_QUOTED_IDENTIFIERS", "No"); // is read again with each text
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
}

TEST_F(ParserObject, CallsOutOfOrderFailAndNothingElse)
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

TEST_F(ParserObject, GrammarThatIsMissingLeavesTheEarlierOne)
{
    Start();
    for (const char* name : {"NoSuchGrammar", "../Common", ""})
        EXPECT_THROW(m_Parser.Load(name), Uve::U8CString) << name;
    EXPECT_EQ(Parse("print 1;"), UVDB_OK);
}

TEST_F(ParserObject, ResultFollowsTheText)
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
        EXPECT_EQ(TextOfTree(Tree()), c.prepared ? c.prepared : c.text);
        EXPECT_EQ(m_Parser.GetParsedXml(), Tree());
    }
}

TEST_F(ParserObject, ResultIsGivenAwayOnceWhereTheHostAsksForThat)
{
    Start();
    Parse("print 1;");
    const std::string tree = Tree();
    ASSERT_FALSE(tree.empty());
    SetOption("HAND_OVER_RESULT", "1");
    EXPECT_EQ(Tree(), tree);
    EXPECT_EQ(Tree(), "");
    ASSERT_EQ(Parse("print 2;"), UVDB_OK);
    EXPECT_EQ(TextOfTree(Tree()), "print 2;");
}

TEST_F(ParserObject, TraceTellsTheSteps)
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

TEST_F(ParserObject, QueryStaysAndResultGoesWithANullText)
{
    Start();
    ASSERT_EQ(Parse("print 1;"), UVDB_OK);
    EXPECT_EQ(m_Parser.set_Query(nullptr), UVDB_OK);
    EXPECT_EQ(Tree(), "");
    EXPECT_EQ(m_Parser.Parse(false), UVDB_OK);
    EXPECT_EQ(TextOfTree(Tree()), "print 1;");
}

TEST_F(ParserObject, FastParseGivesTheTreeAndKeepsTheResult)
{
    Start();
    ASSERT_EQ(Parse("print 1;"), UVDB_OK);
    m_Parser.set_Query("print\xE2\x80\x8B 2;"); // isn't prepared: the space of no width is no token
    EXPECT_EQ(TextOfTree(m_Parser.FastParse()), "print\xE2\x80\x8B 2;");
    EXPECT_TRUE(m_Parser.IsParseHasErrors());
    EXPECT_EQ(Tree(), "");
    m_Parser.set_Query("print 3");
    EXPECT_EQ(m_Parser.FastParse(), "");
    EXPECT_EQ(Parse("print 4;"), UVDB_OK);
}

TEST_F(ParserObject, PropertiesFilesAreWrapped)
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
}

TEST_F(ParserObject, ChildProcessTakesUnexpectedTokensForFailure)
{
    SetOption("ORVA_CHILD", true);
    Start();
    EXPECT_EQ(Parse("print 1 1;"), UVDB_ERROR);
    EXPECT_TRUE(LastDescription().starts_with("1 '1' Code lines:"));
    EXPECT_EQ(Parse("print 1;"), UVDB_OK);
}

// ---- The flattening ----

TEST_F(ParserObject, TreeIsFlattened)
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

// Bytes that no tree can hold are the stylesheet's business, which refuses them.
TEST_F(ParserObject, BadBytesLeaveTheRawTree)
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

TEST_F(ParserObject, TextThatIsNoDocumentStaysAsItIs)
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
    CUVDBSQLParser withoutInit;
    EXPECT_EQ(withoutInit.Tree2Serial(m_Info, xml), UVDB_ERROR);
    EXPECT_TRUE(m_Log.Text().ends_with("FAILED: unable to find resource\n")) << m_Log.Text();
}

// ---- Modes ----

TEST_F(ParserObject, ModesFollowInit)
{
    struct
    {
        const char* mode;
        const char* map; // of a word and a comment; null: a tree is made, which the word alone isn't
        bool isWrapped;
    } constexpr kCases[] = {
        {"-CL", "5 0 0\n6 2 4\n", true}, {"-cb", "6 2 4\n", true},  {"", nullptr, false},
        {"-cb", "6 2 4\n", false},       {"-cl", "6 2 4\n", true},  {"-x", nullptr, false},
        {"-cl", "5 0 0\n6 2 4\n", true}, {nullptr, nullptr, false},
    };
    Start();
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.mode ? c.mode : "null");
        EXPECT_EQ(m_Parser.Init(c.mode), UVDB_OK);
        Parse("1 --x");
        EXPECT_EQ(m_Parser.GetParsedXml(), c.map ? kHeader + c.map : "");
        EXPECT_EQ(Tree().starts_with("<Coloring>"), c.isWrapped);
    }
}

TEST_F(ParserObject, ColoringMapsTheTokens)
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
    EXPECT_EQ(TextOfTree(Tree()), "print 1;");
}

TEST_F(ParserObject, CommentModeFindsCommentsAlone)
{
    Start("-cb");
    ASSERT_EQ(Parse("a -- b\nc'--d"), UVDB_ERROR);
    EXPECT_EQ(Tree(), kHeader + "6 2 5\n6 9 11\n");
}

} // namespace
