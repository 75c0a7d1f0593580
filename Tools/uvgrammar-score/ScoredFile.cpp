#include "Tools/uvgrammar-score/ScoredFile.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolResults.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/Workers.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "Tools/uvparse/SourceText.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <sstream>

namespace uvscore {

namespace {

using uvparse::enFinding;
using uvparse::enMode;

// Text that was thrown away while the parser kept quiet about it.
constexpr const char* kSkippedUntold = "lost without a message, soon after another error";
constexpr const char* kNotParsed = "not parsed";
constexpr std::size_t kLongText = std::size_t{1} << 22; // its parser keeps what it took

// The source's lines of ascending offsets.
class CLines
{
public:
    CLines(const std::string& path, const SParsedText& text)
        : m_Text(text), m_Preparation{text.result.pass.empty() ? text.prepared : text.source, text.prepared,
                                      text.result.preparedLines, text.result.pass},
          m_Places(text.prepared), m_SourcePlaces(path, m_Preparation)
    {}

    std::size_t Of(std::size_t offset)
    {
        if (m_Text.result.pass.empty())
            return m_Places.Find(offset).line;
        return static_cast<std::size_t>(m_SourcePlaces.Find(offset).place.line);
    }

private:
    const SParsedText& m_Text;
    uvparse::SPreparation m_Preparation;
    uvparse::CTextPlaces m_Places;
    uvparse::CSourcePlaces m_SourcePlaces;
};

} // namespace

std::uint64_t HashOf(std::string_view text)
{
    // FNV-1a
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
    return hash;
}

uvparse::CParserHost& CTextParser::Host(enMode mode, std::unique_ptr<uvparse::CParserHost>& host) const
{
    if (!host) {
        uvparse::SHostSettings settings;
        settings.mode = mode;
        settings.options = m_Options;
        try {
            host = std::make_unique<uvparse::CParserHost>(m_Language, settings);
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& e) {
            throw CCannotWork(e.what());
        }
    }
    return *host;
}

SParsedText CTextParser::ParseText(std::string text, const std::string& path)
{
    SParsedText parsed;
    parsed.source = std::move(text);
    parsed.result = Host(enMode::Tree, m_Host).Parse(parsed.source, path);
    parsed.prepared = parsed.result.pass.empty()
                          ? uvparse::PreparedText(parsed.source)
                          : Host(enMode::Preparation, m_Preparation).Parse(parsed.source, path).output;
    if (parsed.source.size() > kLongText)
        m_Host.reset();
    return parsed;
}

SParsedText CTextParser::ParseFile(const std::string& path)
{
    return ParseSource(uvparse::ReadSourceText(path, {}).text, path);
}

SParsedText CTextParser::ParseSource(std::string text, const std::string& path)
{
    // The preparation takes the last character, whatever it is.
    if (m_Language.version.db == UVDB_DB_IBM_CL && !text.empty() && text.back() != '\n')
        text += '\n';
    return ParseText(std::move(text), path);
}

uvparse::SParseResult CTextParser::ParseRaw(const std::string& text, const std::string& path)
{
    return Host(enMode::RawTree, m_RawHost).Parse(text, path);
}

SFailure FailureOf(const uvparse::SFinding& finding)
{
    switch (finding.kind) {
    case enFinding::UnexpectedToken:
        return {finding.state.value_or(0), finding.name, finding.expected};
    case enFinding::UnfinishedText:
        return {-1, "never closed: " + finding.condition, {}};
    case enFinding::SkippedText:
        break;
    }
    return {-1, kSkippedUntold, {}};
}

SScoredFile ScoreFile(CTextParser& parser, const std::string& path)
{
    SParsedText parsed;
    try {
        parsed = parser.ParseFile(path);
    } catch (const CToolFailure& e) {
        const std::string problem = e.what();
        const std::string prefix = path + ": ";
        return {.path = path,
                .state = enFileState::NoText,
                .problem = problem.substr(problem.starts_with(prefix) ? prefix.size() : 0)};
    }
    const uvparse::SParseResult& result = parsed.result;
    SScoredFile file{.path = path};
    file.bytes = parsed.source.size();
    file.seconds = result.seconds;
    file.hash = HashOf(parsed.prepared);
    file.unexpectedTokens = CountFindings(result.findings, enFinding::UnexpectedToken);
    file.lost = CountFindings(result.findings, enFinding::SkippedText);
    file.coverage = result.coverage;
    if (!result.isParsed) {
        file.state = enFileState::NotParsed;
        file.problem = result.failure;
    }
    CLines lines(path, parsed);
    const std::string_view prepared = parsed.prepared;
    for (const SStatement& statement : FindStatements(result.output, prepared, result.findings)) {
        const std::string_view text = prepared.substr(statement.begin, statement.end - statement.begin);
        SScoredStatement scored{.begin = statement.begin,
                                .size = text.size(),
                                .line = lines.Of(statement.begin),
                                .hash = HashOf(text),
                                .isRead = statement.isRead};
        for (const std::size_t index : statement.findings) {
            // An unexpected token tells more than the text that it has cost.
            if (!result.findings[index].isReported)
                scored.failures.push_back(FailureOf(result.findings[index]));
        }
        if (scored.failures.empty() && !statement.IsClean())
            scored.failures.push_back({-1, result.isParsed ? kSkippedUntold : kNotParsed, {}});
        if (!scored.IsClean())
            scored.text = text;
        file.statements.push_back(std::move(scored));
    }
    return file;
}

SScoredFile CrashedFile(const std::string& path, const std::string& problem)
{
    const std::string text = ReadWholeFile(path);
    SScoredFile file{.path = path, .state = enFileState::Crashed, .problem = problem};
    file.bytes = text.size();
    file.hash = HashOf(text);
    SScoredStatement all{.size = text.size(), .line = 1, .hash = file.hash};
    all.failures.push_back({-1, kNotParsed, {}});
    all.text = text;
    file.statements.push_back(std::move(all));
    return file;
}

// file      = "file" bytes microseconds hash unexpected lost state problem coverage
// statement = "s" begin size line hash isRead text { LF "f" state token { expected } }
// in lines of fields separated by tabs.
std::string WriteScoredFile(const SScoredFile& file)
{
    std::string text;
    AppendFields(text,
                 {"file", std::to_string(file.bytes), std::to_string(std::llround(file.seconds * 1e6)),
                  std::to_string(file.hash), std::to_string(file.unexpectedTokens), std::to_string(file.lost),
                  std::to_string(static_cast<int>(file.state)), file.problem, file.coverage});
    for (const SScoredStatement& statement : file.statements) {
        AppendFields(text, {"s", std::to_string(statement.begin), std::to_string(statement.size),
                            std::to_string(statement.line), std::to_string(statement.hash),
                            statement.isRead ? "1" : "0", statement.text});
        for (const SFailure& failure : statement.failures) {
            std::vector<std::string> fields{"f", std::to_string(failure.state), failure.token};
            fields.insert(fields.end(), failure.expected.begin(), failure.expected.end());
            AppendFields(text, fields);
        }
    }
    return text;
}

SScoredFile ReadScoredFile(const std::string& path, const std::string& text)
{
    SScoredFile file{.path = path};
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const CFields fields(line);
        if (fields.Text(0) == "file") {
            file.bytes = fields.Number(1);
            file.seconds = static_cast<double>(fields.Number(2)) / 1e6;
            file.hash = fields.Number(3);
            file.unexpectedTokens = fields.Number(4);
            file.lost = fields.Number(5);
            file.state = static_cast<enFileState>(fields.Number(6));
            file.problem = fields.Text(7);
            file.coverage = fields.Text(8);
        } else if (fields.Text(0) == "s") {
            file.statements.push_back({.begin = fields.Number(1),
                                       .size = fields.Number(2),
                                       .line = fields.Number(3),
                                       .hash = fields.Number(4),
                                       .isRead = fields.Number(5) != 0});
            file.statements.back().text = fields.Text(6);
        } else if (fields.Text(0) == "f" && !file.statements.empty()) {
            SFailure failure{static_cast<int>(std::stol(fields.Text(1))), fields.Text(2), {}};
            for (std::size_t i = 3; i < fields.Count(); ++i)
                failure.expected.push_back(fields.Text(i));
            file.statements.back().failures.push_back(std::move(failure));
        }
    }
    return file;
}

} // namespace uvscore
