// What the log hears of unexpected tokens.
#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/MemoryLog.h"

#include <gtest/gtest.h>

namespace {

struct SReportCase
{
    const char *name, *text;
    bool showErrors;
    const char* report; // all that is written about errors, in order
};

constexpr SReportCase kReports[] = {
    {"a gap inside a node reports the lines it covers", "say a;\n< a\n b > c", true,
     "\n/*PARSER ERROR: Recovery (2,3) :\n    line 2 - unexpected token a\n    Code lines:\n<<<<\n< "
     "a\n>>>>\n*/\n"
     "\n\nWARNING: 1 unexpected token(s) found\n"
     "\n\nWARNING: 1 unexpected token(s) found\n<<<<\nsay a;\n< a\n b > c>>>>\n"},
    {"an error in the gap's last line counts", "say a; < x >b", true,
     "\n/*PARSER ERROR: Recovery (1,1) :\n    line 1 - unexpected token x\n    Code lines:\n<<<<\nsay a; < x "
     ">b\n"
     ">>>>\n*/\n"
     "\n\nWARNING: 1 unexpected token(s) found\n"
     "\n\nWARNING: 1 unexpected token(s) found\n<<<<\nsay a; < x >b>>>>\n"},
    {"also one that a token without an element begins", "say a; < ! >b", true,
     "\n/*PARSER ERROR: Recovery (1,1) :\n    line 1 - unexpected token !\n    Code lines:\n<<<<\nsay a; < ! "
     ">b\n"
     ">>>>\n*/\n"
     "\n\nWARNING: 1 unexpected token(s) found\n"
     "\n\nWARNING: 1 unexpected token(s) found\n<<<<\nsay a; < ! >b>>>>\n"},
    // what the trace alone hears doesn't count as displayed, so the root tells it again
    {"hidden errors are traced twice", "< x >b", false,
     "\n/*PARSER ERROR: Recovery (1,1) :\n    line 1 - unexpected token x\n    Code lines:\n<<<<\n< x "
     ">b\n>>>>\n*/\n"
     "\n/*PARSER ERROR: Recovery ()\n    line 1 - unexpected token x\n    Code lines:\n<<<<\n< x "
     ">b\n>>>>\n\n*/\n"
     "\n\nWARNING: 1 unexpected token(s) found\n<<<<\n< x >b>>>>\n"},
    {"a gap in front of a node is reported at the root", "say a;\nsay\n; say b;", true,
     "\n/*PARSER ERROR: Recovery ()\n    line 3 - unexpected token ;\n    Code lines:\n<<<<\n; say "
     "b;\n>>>>\n\n*/\n"
     "\n\nWARNING: 1 unexpected token(s) found\n"
     "\n\nWARNING: 1 unexpected token(s) found\n<<<<\nsay a;\nsay\n; say b;>>>>\n"},
    {"an error in front of everything", "; say a;", true,
     "\n/*PARSER ERROR: Recovery ()\n    line 1 - unexpected token ;\n    Code lines:\n<<<<\n; say "
     "a;\n>>>>\n\n*/\n"
     "\n\nWARNING: 1 unexpected token(s) found\n"
     "\n\nWARNING: 1 unexpected token(s) found\n<<<<\n; say a;>>>>\n"},
    {"a clean text reports nothing", "say a;", true, ""},
    {"a failed parse reports nothing", "say", true, ""},
};

class EngineReports : public testing::Test
{
protected:
    // What was written about errors; the engine traces more than that.
    std::string Report(const std::vector<std::string>& lines) const
    {
        std::string text;
        for (const std::string& line : lines)
            if (!line.starts_with("\nUVGrammarParser: Empty action") &&
                line.find("ComputeNativeStartState") == std::string::npos)
                text += line;
        return text;
    }
};

TEST_F(EngineReports, NameLinesTokensAndSource)
{
    for (const SReportCase& entry : kReports) {
        SCOPED_TRACE(entry.name);
        CEngine engine("Recovery");
        CLogCapture log;
        engine.m_Parser.m_Extension.m_bShowErrors = entry.showErrors;
        engine.Parse(entry.text);
        EXPECT_EQ(Report(log.Lines()), entry.report);
    }
}

// The outcome for a reader doesn't hang on who listens: with reports off they go to the trace alone.
TEST_F(EngineReports, WithErrorsHiddenOnlyTheTraceHears)
{
    class CLogOnly : public CMemoryLog
    {
        void WriteTrace(const char*) override {}
    };
    const std::shared_ptr<ILog> earlier = CLogWrapper::GetLog();
    for (const bool showErrors : {true, false}) {
        const auto log = std::make_shared<CLogOnly>();
        CLogWrapper::Init(log);
        CEngine engine("Recovery");
        engine.m_Parser.m_Extension.m_bShowErrors = showErrors;
        engine.Parse("< a > b < c > d");
        EXPECT_EQ(log->Text().find("WARNING: 2 unexpected") != std::string::npos, showErrors);
        // the report of a gap goes by the switch too
        EXPECT_EQ(log->Text().find("PARSER ERROR") != std::string::npos, showErrors);
    }
    CLogWrapper::Init(earlier);
}

TEST_F(EngineReports, TwoErrorsOfOneLineKeepTheirOrder)
{
    CEngine engine("Recovery");
    // three words after the first error make the second one worth a report
    const SParseOutcome outcome = engine.Parse("? say a; b ; say c; a;");
    std::string tokens;
    for (const auto& [line, text] : outcome.errors)
        tokens += std::to_string(line) + text + ' ';
    EXPECT_EQ(tokens, "1say 1b 1a ");
    ASSERT_EQ(engine.m_Parser.m_Extension.m_lstUnexpected.size(), 3u);
    EXPECT_EQ(engine.m_Parser.m_Extension.m_lstUnexpected[1].offset, 9u);
    EXPECT_EQ(engine.m_Parser.m_Extension.m_lstUnexpected[1].length, 1u);
}

TEST_F(EngineReports, AnUnexpectedEndLiesBehindTheText)
{
    CEngine engine("Recovery");
    engine.Parse("say a \n");
    ASSERT_EQ(engine.m_Parser.m_Extension.m_lstUnexpected.size(), 1u);
    EXPECT_EQ(engine.m_Parser.m_Extension.m_lstUnexpected[0].offset, 7u);
    EXPECT_EQ(engine.m_Parser.m_Extension.m_lstUnexpected[0].length, 0u);
    // the message shows the last match again, white space as it may be
    EXPECT_EQ(engine.m_Parser.m_Extension.m_strLastError, "2 ' \n'");
}

TEST_F(EngineReports, EarlierErrorsStayUntilTheirReaderClearsThem)
{
    CEngine engine("Recovery");
    engine.Parse("; say a;");
    EXPECT_TRUE(engine.m_Parser.HasErrors());
    const std::string next = "say b;";
    engine.m_Parser.m_Extension.set_Query(next);
    EXPECT_TRUE(engine.m_Parser.HasErrors());
    EXPECT_EQ(engine.m_Parser.m_Extension.m_strLastError, "");
    EXPECT_EQ(engine.m_Parser.m_Extension.m_strParsedXml, "");
}

} // namespace
