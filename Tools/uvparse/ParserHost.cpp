#include "Tools/uvparse/ParserHost.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/IUVDBSQLParser.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Tools/uvparse/LanguageNames.h"
#include "UVEnvironment/PluginHelpers.h"

#include <charconv>
#include <chrono>
#include <map>
#include <new>
#include <sstream>
#include <stdexcept>

namespace uvparse {

namespace {

constexpr char kUnexpectedTokens[] = "UNEXPECTED_TOKENS";
constexpr char kLostText[] = "LOST_TEXT";
constexpr char kPreparedBy[] = "PREPARED_BY";
constexpr char kPreparedLines[] = "PREPARED_LINES";
constexpr char kPreparationNotes[] = "PREPARATION_NOTES";

class CStopwatch
{
public:
    double Seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_Start).count();
    }

private:
    std::chrono::steady_clock::time_point m_Start = std::chrono::steady_clock::now();
};

template <class T>
void SetTextOption(const std::shared_ptr<T>& object, const std::string& key, const std::string& value)
{
    if (CUVDBOptionWrapper::SetParam(object, key, Uve::U8CString(value)) != 0)
        throw std::runtime_error("the option " + key + " can't take the value '" + value + "'");
}

// The library's texts are made for logs, where a line feed opens a record.
std::string Trimmed(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(" \n");
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \n") - begin + 1);
}

// What is put before every result, maps included.
void CutDeclaration(std::string& text)
{
    const std::size_t end = text.starts_with("<?xml") ? text.find("?>") : std::string::npos;
    if (end != std::string::npos)
        text.erase(0, end + 2);
}

std::string Description(IUVDBErrorInfo& error)
{
    std::size_t length = 0;
    if (error.get_Description(nullptr, 0, &length) != UVDB_OK)
        return {};
    std::string text(length + 1, '\0');
    error.get_Description(text.data(), text.size(), &length);
    text.resize(length);
    return text;
}

// The library's list, a line each: severity, line, file, text, separated by tabs.
std::vector<SPreparationNote> ReadNotes(const std::string& list)
{
    std::vector<SPreparationNote> notes;
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        SPreparationNote note;
        std::string severity;
        std::string number;
        if (!std::getline(fields, severity, '\t') || !std::getline(fields, number, '\t') ||
            !std::getline(fields, note.file, '\t'))
            continue;
        std::getline(fields, note.text);
        note.isError = severity == "error";
        std::from_chars(number.data(), number.data() + number.size(), note.line);
        notes.push_back(std::move(note));
    }
    return notes;
}

} // namespace

std::string TextForParser(const SLanguage& language, std::string text)
{
    if (language.version.db == UVDB_DB_IBM_CL && !text.empty() && text.back() != '\n')
        text += '\n';
    return text;
}

CParserHost::CParserHost(const SLanguage& language, const SHostSettings& settings)
    : m_ParserName(language.parserName), m_Settings(settings),
      m_DatabaseInfo(std::make_shared<CUVDBDatabaseInfo>(language.version)),
      m_Parser(PluginHelpers::CreateParser())
{
    SetTextOption(m_DatabaseInfo, "SOURCE_FORMS", "FAITHFUL");
    for (const SUsualOption& usual : UsualOptions())
        if (m_ParserName == usual.parserName)
            SetTextOption(m_DatabaseInfo, usual.key, usual.value);
    for (const auto& [key, value] : settings.options)
        SetTextOption(m_DatabaseInfo, key, value);
    SetTextOption(m_DatabaseInfo, "REPORT_UNEXPECTED_TOKENS", "3");
    SetTextOption(m_DatabaseInfo, "REPORT_LOST_TEXT", "1");
    SetTextOption(m_DatabaseInfo, "REPORT_PREPARED_LINES", "1");
    SetTextOption(m_DatabaseInfo, "REPORT_PREPARATION_NOTES", "1");
    SetTextOption(m_DatabaseInfo, "CLOSE_LOST_QUOTES", "1");
    SetTextOption(m_DatabaseInfo, "HAND_OVER_RESULT", "1");
    SetTextOption(m_DatabaseInfo, "RESTART_POSITIONS", "1");
    if (settings.mode == enMode::Preparation)
        SetTextOption(m_DatabaseInfo, "PREPARE_ONLY", "1");

    m_DatabaseInfo->create_new_object(m_ConvertingObject, 0);
    for (const auto& [key, value] : settings.objectOptions)
        SetTextOption(m_ConvertingObject, key, value);

    m_Parser->set_Log(settings.log);
    Load();
}

CParserHost::~CParserHost() = default;

void CParserHost::Load()
{
    const CStopwatch watch;
    try {
        if (m_Settings.mode != enMode::Preparation)
            m_Parser->Load(m_ParserName.c_str());
    } catch (const Uve::U8CString& message) {
        throw std::runtime_error(Trimmed(message));
    }
    // A grammar may have no state of its own for this kind of database; it then starts in its first one.
    m_Parser->set_DatabaseInfo(m_DatabaseInfo);
    if (m_Parser->Init(m_Settings.mode == enMode::Coloring ? "-cl" : "") != UVDB_OK)
        throw std::runtime_error("the parser of '" + m_ParserName + "' could not be initialised");
    m_LoadSeconds = watch.Seconds();
}

SParseResult CParserHost::Parse(const std::string& text, const std::string& path)
{
    SetTextOption(m_ConvertingObject, "FilePath", path);
    for (const char* report : {kUnexpectedTokens, kLostText, kPreparedBy, kPreparedLines, kPreparationNotes})
        SetTextOption(m_DatabaseInfo, report, "");
    m_Parser->set_ConvertingObject(m_ConvertingObject);
    m_Parser->set_Query(text.c_str());
    return m_Settings.mode == enMode::RawTree ? ParseRaw() : RunParse();
}

SParseResult CParserHost::ParseRaw()
{
    SParseResult result;
    const CStopwatch watch;
    try {
        result.output = m_Parser->FastParse();
        result.isParsed = !result.output.empty();
        if (!result.isParsed) {
            m_Parser->SetLastError();
            ReadFailure(result);
        }
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& e) {
        result.failure = e.what();
    }
    result.seconds = watch.Seconds();
    ReadFindings(result);
    return result;
}

SParseResult CParserHost::RunParse()
{
    SParseResult result;
    const CStopwatch watch;
    const int code = m_Parser->Parse(false);
    Uve::U8CString output;
    // A coloring map is no document, which Parse may answer with a failure: it is there all the same.
    if (m_Settings.mode == enMode::Coloring) {
        m_Parser->get_ColoringMap(output);
        CutDeclaration(output);
        result.isParsed = code >= UVDB_OK || !output.empty();
    } else {
        result.isParsed = code >= UVDB_OK;
        if (result.isParsed)
            m_Parser->get_SQLTree(output);
    }
    result.output = std::move(output);
    result.seconds = watch.Seconds();
    result.isEmpty = code == UVDB_NO_DATA;

    ReadFindings(result);
    ReadPreparation(result);
    if (!result.isParsed)
        ReadFailure(result);
    return result;
}

void CParserHost::ReadFindings(SParseResult& result) const
{
    Uve::U8CString tokens;
    Uve::U8CString lost;
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, kUnexpectedTokens, tokens);
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, kLostText, lost);
    ReadUnexpectedTokens(tokens, result.findings);
    ReadLostText(lost, result.findings);
    Uve::U8CString coverage;
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "COVERAGE", coverage);
    result.coverage = std::move(coverage);
}

void CParserHost::ReadPreparation(SParseResult& result) const
{
    Uve::U8CString pass;
    Uve::U8CString lines;
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, kPreparedBy, pass);
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, kPreparedLines, lines);
    result.preparedLines = CPreparedLines(pass, lines);
    result.pass = std::move(pass);
    Uve::U8CString notes;
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, kPreparationNotes, notes);
    result.notes = ReadNotes(notes);
}

void CParserHost::ReadFailure(SParseResult& result) const
{
    std::shared_ptr<IUVDBErrorInfo> error;
    m_Parser->get_LastError(error);
    result.failure = error ? Trimmed(Description(*error)) : std::string();
    if (result.failure == "out of memory")
        throw std::bad_alloc();
    if (result.failure.empty())
        result.failure = "the text could not be parsed";
    void* tokens = nullptr;
    if (error && error->get_ErrorList(&tokens) == UVDB_OK && tokens != nullptr)
        result.isRefusedForTokens = !static_cast<const std::map<std::string, int>*>(tokens)->empty();
}

} // namespace uvparse
