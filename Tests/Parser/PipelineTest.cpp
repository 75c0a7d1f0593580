// The pipeline by itself. What a host gets of it is in ParserObjectTest.cpp.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/UVDBResults.h"
#include "Parser/XmlHeader.h"
#include "Tests/Parser/PipelineFixture.h"
#include "Tree/TreeFlattener.h"

namespace {

const std::string kHeader = "<?xml version=\"1.0\" ?>";

class Pipeline : public PipelineTest
{};

TEST_F(Pipeline, TextGrowsIntoAValue)
{
    m_Options.reportsLostText = true;
    EXPECT_EQ(Parse("print\xE2\x80\x8B"
                    "1 1; /*"),
              UVDB_OK);
    EXPECT_EQ(m_Parsed.text, "print 1 1; /*");
    EXPECT_EQ(Result().substr(0, kHeader.size()), kHeader);
    const SParseFindings& findings = m_Parsed.findings;
    ASSERT_EQ(findings.unexpected.size(), 1u);
    EXPECT_EQ(findings.unexpected[0].offset, 8u);
    ASSERT_EQ(findings.discarded.size(), 1u);
    EXPECT_EQ(findings.discarded[0].end, 9u);
    ASSERT_TRUE(findings.unfinished);
    EXPECT_EQ(findings.unfinished->condition, "COMMENT");

    // the next text finds its own
    EXPECT_EQ(Parse("print 1;"), UVDB_OK);
    EXPECT_TRUE(findings.unexpected.empty());
    EXPECT_TRUE(findings.discarded.empty());
    EXPECT_FALSE(findings.unfinished);
    EXPECT_EQ(m_NewTexts, 2);
}

TEST_F(Pipeline, PassLeavesTextLinesAndNotes)
{
    m_Options.isPreparationOnly = true;
    m_Options.kind = UVDB_DB_IBM_CL;
    EXPECT_EQ(Parse("A +\n  B\nC\n\n"), UVDB_OK);
    EXPECT_EQ(m_Parsed.text, "A B\nC\n");
    EXPECT_EQ(Result(), m_Parsed.text);
    EXPECT_EQ(m_Parsed.sourceLines, (std::vector<std::uint32_t>{1, 3}));
    EXPECT_STREQ(m_Parsed.preparedBy, "FormatIBM_CL");
    EXPECT_TRUE(m_Parsed.notes.empty());

    m_Options.kind = UVDB_DB_ASP;
    m_Options.filePath = "a.asp";
    EXPECT_EQ(Parse("<% x %>"), UVDB_OK);
    EXPECT_NE(m_Script.find(" x "), std::string::npos);

    m_Options.kind = UVDB_DB_COBOL;
    EXPECT_EQ(Parse("000100 A.\n"), UVDB_OK);
    EXPECT_STREQ(m_Parsed.preparedBy, "");
    ASSERT_EQ(m_Parsed.notes.size(), 1u);
    EXPECT_EQ(m_Parsed.notes[0].text, "not prepared: COBOLFORMAT is not set");
}

// Not every text comes to its preparation.
TEST_F(Pipeline, LinesAndPassAreNeverThoseOfAnEarlierText)
{
    m_Options.kind = UVDB_DB_FOXPRO_PROGRAMS;
    for (const bool isProperties : {true, false}) {
        m_Options.filePath = "";
        m_Options.comesPrepared = false;
        Parse("print ;\n 1;");
        ASSERT_STREQ(m_Parsed.preparedBy, "FormatFoxProPrograms");
        m_Options.filePath = isProperties ? "a.properties" : "";
        m_Options.comesPrepared = !isProperties;
        Parse("print 1;");
        EXPECT_STREQ(m_Parsed.preparedBy, "");
        EXPECT_TRUE(m_Parsed.sourceLines.empty());
    }
}

TEST_F(Pipeline, TextsThatComePreparedStayAsTheyAre)
{
    m_Options.comesPrepared = true;
    EXPECT_EQ(Parse(""), UVDB_OK);
    EXPECT_NE(Result(), "");
    m_Log.Clear();
    Parse("print\xE2\x80\x8B 1;");
    EXPECT_EQ(TextOfTree(Result()), "print\xE2\x80\x8B 1;");
    EXPECT_EQ(m_Log.Text().find("Formatted query"), std::string::npos);
}

TEST_F(Pipeline, DirectivesOptionOverridesTheLanguage)
{
    for (const bool isOn : {true, false}) {
        m_Options.parsesDirectives = isOn;
        Parse("print 1;");
        EXPECT_EQ(m_Grammar.Scanner().m_Extension.m_bCppDirectiveParse, isOn);
        EXPECT_EQ(m_Grammar.ColoringScanner().m_Extension.m_bCppDirectiveParse, isOn);
    }
}

TEST_F(Pipeline, FlatteningThatFailsIsTold)
{
    m_Flatten = [] { return -7; };
    EXPECT_EQ(Parse("print 1;"), -7);
    EXPECT_EQ(Description(), "can't transform tree to serial");
    EXPECT_TRUE(m_Log.Text().ends_with("\nFAILED: can't transform tree to serial\n"));
    EXPECT_EQ(TextOfTree(Result()), "print 1;");

    m_Flatten = []() -> int { throw Uve::U8CString("no stylesheet"); };
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    EXPECT_TRUE(m_Log.Text().ends_with("\nFAILED: no stylesheet\n"));
    m_Flatten = []() -> int { throw 7; };
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    m_Flatten = []() -> int { throw std::bad_alloc(); };
    EXPECT_EQ(Parse("print 1;"), UVDB_ERROR);
    EXPECT_EQ(Description(), "out of memory");
}

// Who looks at the result before it is flattened finds the raw tree, and the outcome stays the same.
TEST_F(Pipeline, OwnerSeesTheRawTree)
{
    constexpr char kText[] = "print 1; print '<\r\n'; print 2;";
    SParseFindings ignored;
    m_Parsed.text = kText;
    const std::string raw = MakePipeline().FastParse(ignored);
    m_Grammar.ForgetTexts(); // the positions
    ASSERT_EQ(Parse(kText), UVDB_OK);
    const std::string flat = Result();

    std::string seen;
    const std::function<void()> kLooks[] = {
        [&] { seen = Result(); },
        [&] {
            MakePipeline().FastParse(ignored); // another tree in the parser's hands
            seen = Result();
        },
    };
    for (const auto& look : kLooks) {
        m_Grammar.ForgetTexts();
        m_Flatten = [&] {
            look();
            Uve::U8CString& text = m_Parsed.findings.result.Text();
            std::string flattened;
            EXPECT_TRUE(FlattenTree(text, flattened, kXmlHeader));
            text = flattened;
            return UVDB_OK;
        };
        EXPECT_EQ(Parse(kText), UVDB_OK);
        EXPECT_EQ(seen, raw);
        EXPECT_EQ(Result(), flat);
    }
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
        SetUp();
        m_Options.triesOtherQuoteRule = true;
        m_Parsed = {};
        m_FlattenCount = 0;
        m_Warnings = 0;
        EXPECT_EQ(Parse(c.text), c.result);
        EXPECT_EQ(TextOfTree(Result()), c.hasTree ? c.text : "");
        EXPECT_EQ(m_Grammar.Parser()->HasErrors(), c.hasErrors);
        EXPECT_EQ(m_Parsed.findings.unexpected.empty(), !c.hasErrors);
        EXPECT_EQ(IsQuotedIdentifier(), c.isIdentifier);
        EXPECT_EQ(m_FlattenCount, c.flattenCount);
        EXPECT_TRUE(Description().starts_with(c.description)) << Description();
        std::map<std::string, int> tokens;
        if (c.unexpectedToken)
            tokens[c.unexpectedToken] = 1;
        EXPECT_EQ(ErrorListOf(m_Parsed.error.get()), tokens);
        EXPECT_EQ(m_Warnings, c.warnings);
    }
}

TEST_F(Pipeline, ExceptionInTheSecondAttemptPutsEverythingBack)
{
    m_Options.triesOtherQuoteRule = true;
    m_Options.reportsLostText = true;
    int calls = 0;
    m_Flatten = [&] {
        if (++calls == 1) { // of the second attempt, as one that saw the text end in a comment
            m_Parsed.findings.unfinished = SUnfinishedText{"COMMENT", 0};
            throw std::bad_alloc();
        }
        return static_cast<int>(UVDB_OK);
    };
    EXPECT_EQ(Parse("print \"x\";"), UVDB_OK);
    EXPECT_EQ(m_Parsed.findings.discarded.size(), 1u);
    EXPECT_FALSE(m_Parsed.findings.unfinished);
    EXPECT_TRUE(IsQuotedIdentifier());
    EXPECT_TRUE(m_Grammar.Parser()->HasErrors());
    EXPECT_NE(Result().find("error_statement"), std::string::npos);
    EXPECT_EQ(Parse("print \"x\";"), UVDB_OK); // and the next parse has its second attempt again
    EXPECT_FALSE(m_Grammar.Parser()->HasErrors());
}

// By itself, after a parse: a host may ask for it.
TEST_F(Pipeline, SecondAttemptCanBeAskedFor)
{
    ASSERT_EQ(Parse("print \"x\";"), UVDB_OK);
    ASSERT_FALSE(m_Parsed.findings.unexpected.empty());
    MakePipeline().TryParseWithOtherOpts();
    EXPECT_TRUE(m_Parsed.findings.unexpected.empty());
    EXPECT_EQ(m_NewTexts, 1); // the text is the same one
    EXPECT_FALSE(IsQuotedIdentifier());
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
        m_Flatten = [] { return UVDB_OK; };
        EXPECT_EQ(Parse(text), UVDB_OK);
        EXPECT_TRUE(TextOfTree(Result()) == text) << text.substr(0, 20);
    }
}

} // namespace
