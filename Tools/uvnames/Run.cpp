#include "Tools/uvnames/Run.h"

#include "Catalogue/UVDBReservedWords.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvnames/Explanation.h"
#include "Tools/uvnames/Facts.h"
#include "Tools/uvnames/HtmlReport.h"
#include "Tools/uvnames/NameMapping.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

namespace uvnames {

namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

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
    std::vector<ToolCell> cells{TypeText(name.type), name.Joined(), converted.target.Joined(),
                                ReasonTexts(converted.reasons)};
    if (format != enToolFormat::Table)
        cells.insert(cells.end() - 1, {converted.target.schema, converted.target.object, converted.target.sub,
                                       converted.written});
    return cells;
}

// What is read and what is written are files of their own, whatever their paths look like.
void RefuseSharedFiles(const SCommandLine& line)
{
    std::set<std::filesystem::path> places;
    for (const std::string& file :
         {line.input == "-" ? std::string() : line.input, line.htmlFile, line.reportFile}) {
        std::error_code ignored;
        if (!file.empty() &&
            !places.insert(weakly_canonical(std::filesystem::absolute(file), ignored)).second)
            throw CUsageError("'" + file + "' can't be two files at once");
    }
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
    void ConvertAll(std::istream& input);
    void ConvertLine(const std::string& text, int inputLine);
    void TellError(int inputLine, const std::string& text);

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    CNameMapping m_Mapping;
    CToolResults m_Results;
    std::optional<CHtmlReport> m_Html;
    int m_ExitCode = kToolClean;
};

void CConversion::TellError(int inputLine, const std::string& text)
{
    m_ExitCode = kToolFindings;
    SSourcePlace place;
    place.file = m_Line.input == "-" ? "<stdin>" : m_Line.input;
    place.line = inputLine;
    m_Messages.Write(enSeverity::Error, place, text);
}

void CConversion::ConvertLine(const std::string& text, int inputLine)
{
    SName name;
    std::string error;
    if (!ReadNameLine(text, name, error)) {
        TellError(inputLine, error);
        return;
    }
    SConvertedName converted;
    if (!m_Mapping.Convert(name, converted)) {
        TellError(inputLine,
                  "a name of type " + TypeText(name.type) + " needs the object that it belongs to");
        return;
    }
    if (m_Html)
        m_Html->Add(name, converted);
    if (!m_Line.isChangedOnly || converted.reasons != 0 || name.Joined() != converted.target.Joined())
        m_Results.Add(ResultCells(m_Line.format, name, converted));
}

void CConversion::ConvertAll(std::istream& input)
{
    int inputLine = 0;
    std::string text;
    while (true) {
        // Whoever writes a line and waits gets its answer; whoever writes many isn't slowed down.
        if (input.rdbuf()->in_avail() <= 0)
            m_Results.Flush();
        if (!std::getline(input, text))
            break;
        ++inputLine;
        if (inputLine == 1 && text.starts_with(kByteOrderMark))
            text.erase(0, kByteOrderMark.size());
        if (text.ends_with('\r'))
            text.pop_back();
        const bool isHead = inputLine == 1 && (text == "type" || text.starts_with("type\t"));
        if (isHead || text.find_first_not_of(" \t") == std::string::npos)
            continue;
        ConvertLine(text, inputLine);
        constexpr int kLinesTogether = 1000;
        if (inputLine % kLinesTogether == 0)
            m_Results.Flush();
    }
    if (input.bad())
        throw CToolFailure(m_Line.input + ": can't be read");
}

int CConversion::Run()
{
    if (m_Line.input == "-") {
        ConvertAll(std::cin);
    } else {
        std::ifstream input(m_Line.input, std::ios::binary);
        // A folder opens, and fails at the first read.
        if (!input || (input.peek(), input.bad()))
            throw CToolFailure(m_Line.input + ": can't be read");
        input.clear();
        ConvertAll(input);
    }
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
