#include "Interfaces/ILog.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Parser/ParseOptions.h"
#include "Parser/UVParser.h"
#include "Parser/UVParserGuard.h"
#include "Parser/UVParserText.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVECompat.h"

#include <utility>

namespace {

// What yycreate answers when the stacks and buffers are there.
constexpr int kConnected = 1;

bool IsPatternProcess()
{
    const Uve::U8CString path = Uve::Compat::GetCurrentProcessExePath();
    return path.Find("pattern2xslt.exe") >= 0 || path.Find("pattern2rule.exe") >= 0;
}

} // namespace

int CUVDBSQLParser::Load(const char* parserName)
{
    if (parserName == nullptr)
        return UVDB_INVALID_ARGUMENT;
    const bool isPatternProcess = IsPatternProcess();
    CLogWrapper::WriteTraceF("\nUVParser%s : Creation...", parserName);
    auto lexer = std::make_shared<CSQLGrammarLexer>(parserName, isPatternProcess);
    auto parser = std::make_shared<CSQLGrammarParser>(parserName, isPatternProcess);
    auto preprocessor = std::make_shared<Preprocessor>();
    // Only the coloring scanner's map is ever read.
    lexer->set_ColoringWanted(false);
    // The coloring scanner starts with the same flags as the new one, whatever was written to it for an
    // earlier grammar.
    CSQLGrammarLexerImplementation coloringExtension;
    CLogWrapper::WriteTraceF("OK");

    // The last step that can fail. From here on the object has the new grammar.
    m_ColoringLexer.ShareTables(*lexer);
    m_ColoringLexer.m_Extension = std::move(coloringExtension);
    m_PatternProcess = isPatternProcess;
    m_IsConnected = false;
    m_Lexer = std::move(lexer);
    m_Parser = std::move(parser);
    m_Preprocessor = std::move(preprocessor);
    return UVDB_OK;
}

int CUVDBSQLParser::Init(const char* mode)
{
    if (Uve::Compat::stricmp(mode, "-cl") == 0) {
        m_ColoringMode = true;
    } else if (Uve::Compat::stricmp(mode, "-cb") == 0) {
        m_CommentMode = true;
    } else {
        m_ColoringMode = false;
        m_CommentMode = false;
    }
    const bool isForPreparationOnly = IsPreparationOnly(m_DatabaseInfo);
    if (!isForPreparationOnly && (!m_Lexer || !m_Parser)) {
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", "Init before Load");
        return UVDB_ERROR;
    }
    const int connected = GuardEdge([&] {
        // A connection that can't be made is no failure of Init: the parse that needs it fails.
        m_IsConnected = false;
        m_IsConnected = m_Lexer && m_Parser && m_Parser->yycreate(m_Lexer.get()) == kConnected &&
                        m_Lexer->yycreate(m_Parser.get()) == kConnected &&
                        m_ColoringLexer.yycreate() == kConnected;
        return UVDB_OK;
    });
    const int prepared = GuardEdge([&] {
        if (!m_Preprocessor)
            m_Preprocessor = std::make_shared<Preprocessor>();
        m_Preprocessor->Init(m_DatabaseInfo);
        DefineStylesheets();
        return UVDB_OK;
    });
    return connected != UVDB_OK ? connected : prepared;
}

int CUVDBSQLParser::get_DatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2>& out)
{
    out = m_DatabaseInfo;
    return UVDB_OK;
}

int CUVDBSQLParser::set_Log(std::shared_ptr<ILog> log)
{
    m_Log = std::move(log);
    if (m_Log)
        CLogWrapper::Init(m_Log);
    return UVDB_OK;
}

int CUVDBSQLParser::set_Query(const char* text)
{
    return GuardEdge([&] {
        CParseResult().swap(m_Result); // gives the memory of a large result back
        if (text != nullptr)
            m_Query = text;
        return UVDB_OK;
    });
}

int CUVDBSQLParser::get_SQLTree(Uve::U8CString& out)
{
    return GuardEdge([&] {
        if (m_ColoringMode)
            out = WrapInElement("Coloring", m_Result.Text());
        else if (IsResultHandedOver(m_DatabaseInfo))
            out = std::exchange(m_Result.Text(), {});
        else
            out = m_Result.Text();
        return UVDB_OK;
    });
}

int CUVDBSQLParser::get_ColoringMap(Uve::U8CString& out)
{
    return GuardEdge([&] {
        out = m_Result.Text();
        return UVDB_OK;
    });
}

int CUVDBSQLParser::set_ConvertingObject(std::shared_ptr<IUVDBObjectInfo> object)
{
    m_ConvertingObject = std::move(object);
    return UVDB_OK;
}

int CUVDBSQLParser::get_ConvertingObject(std::shared_ptr<IUVDBObjectInfo>& out)
{
    out = m_ConvertingObject;
    return UVDB_OK;
}

std::shared_ptr<std::map<std::string, std::string>> CUVDBSQLParser::GetUndefinesTokens()
{
    return m_Preprocessor ? m_Preprocessor->GetUndefinesTokens() : nullptr;
}

int CUVDBSQLParser::get_LastError(std::shared_ptr<IUVDBErrorInfo>& out)
{
    out = m_LastError;
    return UVDB_OK;
}

int CUVDBSQLParser::set_ParserDevelopmentMode(bool isOn)
{
    if (!m_Parser)
        return UVDB_ERROR;
    m_Parser->m_Extension.set_DevelopmentMode(isOn);
    return UVDB_OK;
}

std::string CUVDBSQLParser::GetParsedXml()
{
    return static_cast<const std::string&>(m_Result.Text());
}

void CUVDBSQLParser::CreateUVParserCmdParameterList(std::string&, bool, unsigned long) {}

void CUVDBSQLParser::CreateUVTranslatorCmdParameterList(std::string&, int) {}
