#include "Tools/uvnames/Run.h"

#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolLines.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvnames/Explanation.h"
#include "Tools/uvnames/Facts.h"
#include "Tools/uvnames/HtmlReport.h"
#include "Tools/uvnames/NameMapping.h"
#include "Tools/uvnames/Reasons.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace uvnames {

namespace {

using Texts = std::vector<std::string>;

std::string TypeText(long type)
{
    const Uve::U8CString text = CNormalizeName::TypeToString(static_cast<unsigned long>(type));
    return text.empty() ? std::to_string(type) : text.c_str();
}

// A table is for reading; the other forms tell the parts of the target too.
Texts ResultColumns(enToolFormat format)
{
    Texts columns{"type", "source", "target", "reasons"};
    if (format != enToolFormat::Table)
        columns.insert(columns.end() - 1, {"target_schema", "target_object", "target_sub", "script"});
    return columns;
}

std::vector<ToolCell> ResultCells(enToolFormat format, const SName& name, const SConvertedName& converted)
{
    Texts reasons = ReasonTexts(converted.reasons);
    if (!converted.clash.empty())
        reasons.emplace_back(kClashes);
    std::vector<ToolCell> cells{TypeText(name.type), name.Joined(), converted.target.Joined(), reasons};
    if (format != enToolFormat::Table)
        cells.insert(cells.end() - 1, {converted.target.schema, converted.target.object, converted.target.sub,
                                       converted.written});
    return cells;
}

// Of a line that is no name: its fields as they stand.
std::vector<ToolCell> UnreadCells(enToolFormat format, const std::string& line)
{
    std::istringstream fields(line);
    std::string type;
    std::getline(fields, type, '\t');
    std::vector<Uve::U8CString> parts;
    for (std::string field; std::getline(fields, field, '\t');)
        parts.emplace_back(TsvText(field));
    std::vector<ToolCell> cells{type, CNormalizeName::GetIdentidierName(parts)};
    cells.resize(ResultColumns(format).size());
    cells.back() = Texts{kNotRead};
    return cells;
}

// What is read and what is written are files of their own, whatever their paths look like.
void RefuseSharedFiles(const SCommandLine& line)
{
    const auto placeOf = [](const std::string& file) {
        std::error_code ignored;
        return weakly_canonical(std::filesystem::absolute(file), ignored);
    };
    std::set<std::filesystem::path> places;
    for (const std::string& input : line.inputs)
        if (input != "-")
            places.insert(placeOf(input));
    for (const std::string& file : {line.htmlFile, line.reportFile})
        if (!file.empty() && !places.insert(placeOf(file)).second)
            throw CUsageError("'" + file + "' can't be two files at once");
}

class CConversion
{
public:
    CConversion(const SCommandLine& line, CToolMessages& messages)
        : m_Line(line), m_Messages(messages), m_Mapping(line),
          m_Results(line.format, ResultColumns(line.format))
    {
        if (!line.htmlFile.empty())
            m_Html.emplace(line.htmlFile, m_Mapping.GetFrom().name, m_Mapping.GetTo().name);
    }

    int Run();

private:
    void ConvertLines(const std::string& path);
    void ConvertLine(const std::string& text, const SSourcePlace& place);
    void TellUnread(const std::string& line, const SSourcePlace& place, const std::string& error);

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    CNameMapping m_Mapping;
    CToolResults m_Results;
    std::optional<CHtmlReport> m_Html;
    int m_ExitCode = kToolClean;
};

void CConversion::TellUnread(const std::string& line, const SSourcePlace& place, const std::string& error)
{
    m_ExitCode = kToolFindings;
    m_Messages.Write(enSeverity::Error, place, error);
    m_Results.Add(UnreadCells(m_Line.format, line));
    if (m_Html)
        m_Html->AddUnread(line);
}

void CConversion::ConvertLine(const std::string& text, const SSourcePlace& place)
{
    SName name;
    std::string error;
    if (!ReadNameLine(text, name, error)) {
        TellUnread(text, place, error);
        return;
    }
    SConvertedName converted;
    if (!m_Mapping.Convert(name, converted)) {
        TellUnread(text, place,
                   "a name of type " + TypeText(name.type) + " needs the object that it belongs to");
        return;
    }
    if (!converted.clash.empty()) {
        m_ExitCode = kToolFindings;
        m_Messages.Write(enSeverity::Warning, place,
                         name.Joined() + " and " + converted.clash + " are one name in a schema of " +
                             m_Mapping.GetTo().name + ": rename one of them");
    }
    if (m_Html)
        m_Html->Add(name, converted);
    if (!m_Line.isChangedOnly || !m_Mapping.IsUnchanged(name, converted))
        m_Results.Add(ResultCells(m_Line.format, name, converted));
}

void CConversion::ConvertLines(const std::string& path)
{
    SSourcePlace place;
    place.file = path == "-" ? "<stdin>" : path;
    ReadToolLines(
        path,
        [&](const std::string& line, int number) {
            const bool isHead = number == 1 && (line == "type" || line.starts_with("type\t"));
            if (isHead || line.find_first_not_of(" \t") == std::string::npos)
                return;
            place.line = number;
            ConvertLine(line, place);
        },
        [this] { m_Results.Flush(); });
}

int CConversion::Run()
{
    for (const std::string& input : m_Line.inputs)
        ConvertLines(input);
    m_Results.End();
    if (m_Html)
        m_Html->End();
    if (!m_Line.reportFile.empty())
        WriteWholeFile(m_Line.reportFile, m_Mapping.ReportXml() + '\n');
    return m_ExitCode;
}

int ExplainName(const SCommandLine& line, CToolMessages& messages)
{
    const std::optional<long> type = ReadNameType(line.type);
    if (!type)
        throw CUsageError("there is no type '" + line.type + "'");
    CNameMapping mapping(line);
    const SName name = SplitName(mapping, *type, line.explained);
    SConvertedName converted;
    if (!mapping.Convert(name, converted)) {
        messages.Error("a name of type " + TypeText(*type) + " needs the object that it belongs to");
        return kToolFindings;
    }
    CToolResults results(line.format, ResultColumns(line.format), true);
    results.Add(ResultCells(line.format, name, converted), Explain(mapping, name, converted));
    results.End();
    return kToolClean;
}

int ListWords(const SCommandLine& line)
{
    const SToolDatabase database = ReadToolDatabase(line.database);
    CToolResults results(line.format, {"word"});
    for (const std::string_view word : GetReservedWords(database.version))
        results.Add({std::string(word)});
    results.End();
    return kToolClean;
}

int ListLimits(const SCommandLine& line)
{
    CToolResults results(line.format, {"fact", "value"});
    for (auto& [fact, value] : FactsOf(ReadToolDatabase(line.database)))
        results.Add({fact, std::move(value)});
    results.End();
    return kToolClean;
}

} // namespace

int Run(const SCommandLine& line, CToolMessages& messages)
{
    switch (line.command) {
    case enCommand::Help:
        WriteStandardOutput(HelpText());
        break;
    case enCommand::Version:
        WriteStandardOutput("uvnames " UV_VERSION "\n");
        break;
    case enCommand::Convert:
        RefuseSharedFiles(line);
        std::ios::sync_with_stdio(false);
        return CConversion(line, messages).Run();
    case enCommand::Explain:
        return ExplainName(line, messages);
    case enCommand::Words:
        return ListWords(line);
    case enCommand::Limits:
        return ListLimits(line);
    }
    return kToolClean;
}

} // namespace uvnames
