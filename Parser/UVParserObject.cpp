#include "Interfaces/ILog.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Parser/ParseAnswers.h"
#include "Parser/ParseErrors.h"
#include "Parser/ParseOptions.h"
#include "Parser/UVParser.h"
#include "Parser/UVParserGuard.h"
#include "Parser/XmlHeader.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kNoDatabaseInfo = 1;

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
    auto preprocessor =
        std::make_shared<Preprocessor>(); // first, since the grammar is the old or the new one
    m_Grammar.Load(parserName, isPatternProcess);
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
    if (!isForPreparationOnly && !m_Grammar.IsLoaded()) {
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", "Init before Load");
        return UVDB_ERROR;
    }
    const int connected = GuardEdge([&] {
        // A connection that can't be made is no failure of Init: the parse that needs it fails.
        m_Grammar.Connect();
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

int CUVDBSQLParser::set_DatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info)
{
    return GuardEdge([&] { return TakeDatabaseInfo(std::move(info)); });
}

int CUVDBSQLParser::TakeDatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info)
{
    m_DatabaseInfo = std::move(info);
    if (!m_DatabaseInfo)
        return kNoDatabaseInfo;
    if (m_Grammar.IsLoaded())
        return TakeScannerOptions(m_DatabaseInfo, m_Grammar, m_ScannerOptions);
    if (IsPreparationOnly(m_DatabaseInfo))
        return UVDB_OK;
    CLogWrapper::WriteTraceF("\nFAILED: %s\n", "set_DatabaseInfo before Load");
    return UVDB_ERROR;
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
        CParseResult().swap(m_Parsed.findings.result); // gives the memory of a large result back
        if (text != nullptr)
            m_Parsed.text = text;
        return UVDB_OK;
    });
}

// ---- A text ----

int CUVDBSQLParser::Parse(bool showErrors)
{
    CParsePipeline pipeline = MakePipeline();
    const int result = pipeline.Parse(showErrors);
    // A host that asked for the list takes a missing one for a clean parse.
    const int reported = GuardEdge([&] { return WriteReports(pipeline.Options()); });
    return result >= UVDB_OK && reported < UVDB_OK ? reported : result;
}

std::string CUVDBSQLParser::FastParse()
{
    CParsePipeline pipeline = MakePipeline();
    SParseFindings findings;
    std::string tree = pipeline.FastParse(findings);
    GuardEdge([&] { return WriteErrorReports(pipeline.Options(), findings); });
    return tree;
}

void CUVDBSQLParser::TryParseWithOtherOpts(bool)
{
    MakePipeline().TryParseWithOtherOpts();
}

bool CUVDBSQLParser::IsParseHasErrors()
{
    return m_Grammar.IsLoaded() && m_Grammar.Parser()->HasErrors();
}

void CUVDBSQLParser::SetLastError()
{
    ::SetLastError(m_Parsed, m_Grammar.IsLoaded() ? &m_Grammar.Found() : nullptr);
}

bool CUVDBSQLParser::ReadOptions(SParseOptions& options, bool isNewText)
{
    options = ReadParseOptions(m_DatabaseInfo, m_ConvertingObject);
    if (isNewText && options.restartsPositions && m_Grammar.IsLoaded()) {
        m_Grammar.ForgetTexts();
        // the scanners' switches went with the texts
        TakeDatabaseInfo(m_DatabaseInfo);
    }
    options.comesPrepared = m_Grammar.IsPatternVersion();
    options.isColoring = m_ColoringMode;
    options.findsComments = m_CommentMode;
    options.isPreprocessed = m_Preprocessor && m_Preprocessor->IsEnabled();
    options.triesOtherQuoteRule = m_ScannerOptions.triesOtherQuoteRule;
    return m_DatabaseInfo != nullptr;
}

void CUVDBSQLParser::TakeScript(const SParseOptions& options, const SAspPage& page)
{
    WriteScript(m_DatabaseInfo, m_ConvertingObject, options.objectId, page);
}

void CUVDBSQLParser::CountWarnings(const SParseOptions& options,
                                   const std::multimap<unsigned long, std::string>& tokens)
{
    UpdateWarningsInfo(m_DatabaseInfo, options.convertedObjectType, tokens);
}

int CUVDBSQLParser::WriteReports(const SParseOptions& options)
{
    const int prepared = WritePreparationReports(m_DatabaseInfo, options, m_Parsed);
    return std::min(prepared, WriteErrorReports(options, m_Parsed.findings));
}

int CUVDBSQLParser::WriteErrorReports(const SParseOptions& options, const SParseFindings& findings)
{
    if (!m_Grammar.IsLoaded())
        return UVDB_OK;
    return ::WriteErrorReports(m_DatabaseInfo, options, m_Parsed.text, findings);
}

// ---- What became of it ----

int CUVDBSQLParser::get_SQLTree(Uve::U8CString& out)
{
    return GuardEdge([&] {
        if (m_ColoringMode)
            out = WrapInElement("Coloring", m_Parsed.findings.result.Text());
        else if (IsResultHandedOver(m_DatabaseInfo))
            out = std::exchange(m_Parsed.findings.result.Text(), {});
        else
            out = m_Parsed.findings.result.Text();
        return UVDB_OK;
    });
}

int CUVDBSQLParser::get_ColoringMap(Uve::U8CString& out)
{
    return GuardEdge([&] {
        out = m_Parsed.findings.result.Text();
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
    out = m_Parsed.error;
    return UVDB_OK;
}

int CUVDBSQLParser::set_ParserDevelopmentMode(bool isOn)
{
    if (!m_Grammar.IsLoaded())
        return UVDB_ERROR;
    m_Grammar.Found().set_DevelopmentMode(isOn);
    return UVDB_OK;
}

std::string CUVDBSQLParser::GetParsedXml()
{
    return static_cast<const std::string&>(m_Parsed.findings.result.Text());
}

void CUVDBSQLParser::CreateUVParserCmdParameterList(std::string&, bool, unsigned long) {}

void CUVDBSQLParser::CreateUVTranslatorCmdParameterList(std::string&, int) {}
