// What a host can see while a parse runs: from its log, and from its database info, whose operations are the
// host's own. The order is part of what hosts rely on.
#include "Tests/Parser/ParserFixture.h"

#include <algorithm>
#include <map>

namespace {

// Tells which options are read and written.
class CObservedInfo : public CUVDBDatabaseInfo
{
public:
    explicit CObservedInfo(std::uint64_t kind)
        : CUVDBDatabaseInfo(
              MakeDbVersionInfo(kind, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD))
    {}

    int GetOptValue(const char* name, const char* typeName, void** value) override
    {
        ++m_Reads[name];
        return CUVDBDatabaseInfo::GetOptValue(name, typeName, value);
    }
    int SetOptValue(const char* name, const char* typeName, const void* value) override
    {
        if (m_Events != nullptr)
            *m_Events += std::string("set ") + name + '\n';
        return CUVDBDatabaseInfo::SetOptValue(name, typeName, value);
    }

    std::map<std::string, int> m_Reads;
    std::string* m_Events = nullptr;
};

// Looks at the parser with each trace record.
class CLookingLog : public CMemoryLog
{
public:
    CLookingLog(CUVDBSQLParser& parser, std::string& events) : m_Looked(parser), m_Events(events) {}

    void WriteTrace(const char* text) override
    {
        std::string event = text;
        std::erase(event, '\n');
        m_Events += event.substr(0, event.find(" elapsed ")) + State() + '\n';
    }

private:
    // The result as a host would get it now, the error, and whether tokens were unexpected.
    std::string State()
    {
        const std::string result = m_Looked.GetParsedXml();
        std::string state = result.empty() ? "" : result.starts_with("<?xml") ? " [flat]" : " [raw]";
        std::shared_ptr<IUVDBErrorInfo> error;
        m_Looked.get_LastError(error);
        std::size_t length = 0;
        if (error && error->get_Description(nullptr, 0, &length) == UVDB_OK && length > 0)
            state += " [error]";
        return state + (m_Looked.IsParseHasErrors() ? " [tokens]" : "");
    }

    CUVDBSQLParser& m_Looked;
    std::string& m_Events;
};

class ObservedParse : public ParserTest
{
protected:
    void TearDown() override { CLogWrapper::Init(m_Earlier); }

    void UseInfo(std::uint64_t kind)
    {
        m_Observed = UVDBMakeObject<CObservedInfo>(kind);
        m_Info = m_Observed;
        for (const char* const wish :
             {"REPORT_UNEXPECTED_TOKENS", "REPORT_PREPARED_LINES", "REPORT_PREPARATION_NOTES"})
            SetOption(wish, "1");
    }

    std::string Observe(const char* text)
    {
        m_Parser.set_Query(text);
        return ObserveAgain();
    }

    std::string ObserveAgain()
    {
        std::string events;
        m_Observed->m_Events = &events;
        m_Observed->m_Reads.clear();
        CLogWrapper::Init(std::make_shared<CLookingLog>(m_Parser, events));
        m_Parser.Parse(false);
        CLogWrapper::Init(m_Earlier);
        m_Observed->m_Events = nullptr;
        return events;
    }

    const std::shared_ptr<ILog> m_Earlier = CLogWrapper::GetLog();
    std::shared_ptr<CObservedInfo> m_Observed;
};

// The reports come last, whatever became of the text.
const std::string kReports = "set PREPARED_BY\n"
                             "set PREPARED_LINES\n"
                             "set PREPARATION_NOTES\n"
                             "set UNEXPECTED_TOKENS\n";

std::string Warnings(const std::string& token, const std::string& text)
{
    return "/*PARSER ERROR: Common ()    line 1 - unexpected token " + token + "    Code lines:<<<<" + text +
           ">>>>*/ [tokens]\nWARNING: 1 unexpected token(s) found<<<<" + text +
           ">>>> [tokens]\nset WARNINGS_COUNT\nset WARNINGS_TYPES\n";
}

// `found`: what is known by then besides the result.
std::string Flattening(const std::string& found = "", const char* before = " [raw]")
{
    return "OK" + (before + found) + "\nExecuteTree2Serial: execution..." + before + found +
           "\nExecuteTree2Serial: used internal execution" + before + found + "\nExecuteTree2Serial: [flat]" +
           found + "\nOK [flat]" + found + '\n';
}

TEST_F(ObservedParse, StepsShowInOrderWithWhatEachHasMade)
{
    UseInfo(UVDB_DB_COMMON);
    Start();
    EXPECT_EQ(Observe("print 1;"), "Parsing...\nFormatted query:print 1;\n"
                                   "set WARNINGS_COUNT\nset WARNINGS_TYPES\n" +
                                       Flattening() + kReports);
    EXPECT_EQ(Observe("print 1"), "Parsing...\nFormatted query:print 1\n"
                                  "FAILED: 1 '1' Code lines:<<<<print 1>>>> [error] [tokens]\n" +
                                      kReports);
    EXPECT_EQ(Observe(""), "Parsing... [tokens]\nFormatted query is empty.\n" + kReports);
}

TEST_F(ObservedParse, SecondAttemptBeginsWithoutTheFirstOnesFindings)
{
    UseInfo(UVDB_DB_COMMON);
    SetOption("OPTION_VARYING_PARSING", "YES");
    Start();
    std::string text = "print \"x\";";
    EXPECT_EQ(Observe(text.c_str()), "Parsing...\nFormatted query:" + text + '\n' + Warnings("\"x\"", text) +
                                         "Formatted query:" + text +
                                         "\nset WARNINGS_COUNT\nset WARNINGS_TYPES\n" + Flattening() +
                                         Flattening("", " [flat]") + kReports);
    m_Parser.set_DatabaseInfo(m_Info);
    text += " use \"y\";"; // refused under both rules; the first tree comes back, with the second error
    EXPECT_EQ(Observe(text.c_str()), "Parsing...\nFormatted query:" + text + '\n' + Warnings("\"y\"", text) +
                                         "Formatted query:" + text + '\n' + Warnings("\"x\"", text) +
                                         Flattening(" [tokens]") + "FAILED: 1 '\"x\"' Code lines:<<<<" +
                                         text + ">>>> [raw] [error] [tokens]\n" +
                                         Flattening(" [error] [tokens]") + kReports);
}

// What is changed in the middle of a parse has no effect half way, and no option is looked up per attempt.
TEST_F(ObservedParse, OptionsAreReadOnce)
{
    UseInfo(UVDB_DB_COMMON);
    SetOption("OPTION_VARYING_PARSING", "YES");
    SetOption("TREE2SERIAL_STYLESHEET", "0");
    Start();
    Observe("print \"x\"; use \"y\";");
    for (const char* const option :
         {"PARSE_DIRECTIVES", "ORVA_CHILD", "CONVERTED_OBJECT_TYPE", "RESTART_POSITIONS", "PREPARE_ONLY",
          "TREE2SERIAL_STYLESHEET", "REPORT_PREPARED_LINES", "REPORT_UNEXPECTED_TOKENS"})
        EXPECT_EQ(m_Observed->m_Reads[option], 1) << option;
    // a language without a pass asks for none of theirs
    EXPECT_EQ(m_Observed->m_Reads.count("SOURCE_FORMS"), 0u);
}

TEST_F(ObservedParse, ScriptOfAPageIsHandedOverBeforeItsText)
{
    UseInfo(UVDB_DB_ASP);
    SetOption("PREPARE_ONLY", "1");
    SetOption("REPORT_UNEXPECTED_TOKENS", "0");
    SetFilePath("page.asp");
    m_Parser.set_DatabaseInfo(m_Info);
    m_Parser.Init("");
    std::shared_ptr<IUVDBObjectInfo> object;
    m_Parser.get_ConvertingObject(object);
    Uve::U8CString number;
    CUVDBOptionWrapper::GetParam(object, "ObjectID", number);
    EXPECT_EQ(Observe("<% x %>"), "Parsing...\nset " + number +
                                      "VBPart\nFormatted query:<%'ORVANTA_VB_CODEBLOCK_0 x "
                                      "'ORVANTA_VB_CODEBLOCK_0%>\nset PREPARED_BY\nset PREPARED_LINES\n"
                                      "set PREPARATION_NOTES\n");
}

// A text that a pass has rewritten is a new text. Otherwise the result of the parse before is there until the
// next one.
TEST_F(ObservedParse, EarlierResultGoesWithAPreparedText)
{
    UseInfo(UVDB_DB_FOXPRO_PROGRAMS);
    SetOption("PREPARE_ONLY", "1");
    Start();
    Observe("a");
    EXPECT_TRUE(ObserveAgain().starts_with("Parsing... [raw]\nFormatted query:a\n"));
    UseInfo(UVDB_DB_COMMON);
    Start();
    Observe("print 1;");
    EXPECT_TRUE(ObserveAgain().starts_with("Parsing... [flat]\nFormatted query:print 1; [flat]\n"));
}

} // namespace
