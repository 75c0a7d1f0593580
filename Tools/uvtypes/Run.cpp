#include "Tools/uvtypes/Run.h"

#include "Catalogue/UVDBDataTypes.h"
#include "Tools/Support/ToolDatabaseNames.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/Support/ToolResults.h"
#include "Tools/uvtypes/Capacity.h"
#include "Tools/uvtypes/Databases.h"
#include "Tools/uvtypes/Explanation.h"
#include "Tools/uvtypes/Losses.h"
#include "Tools/uvtypes/TypeMap.h"

#include <iostream>
#include <utility>

namespace uvtypes {

namespace {

using Texts = std::vector<std::string>;

std::vector<std::string> MapColumns(const SCommandLine& line)
{
    Texts columns{"source", "internal", "number", "target"};
    if (line.isCheck)
        columns.emplace_back("losses");
    return columns;
}

class CMapping
{
public:
    CMapping(const SCommandLine& line, CToolMessages& messages)
        : m_Line(line), m_Messages(messages), m_From(ReadSource(line.from)), m_To(ReadTarget(line.to)),
          m_Results(line.format, MapColumns(line), line.isExplain)
    {}

    int Run();

private:
    void MapOne(const std::string& text, int inputLine);
    void MapStandardInput();
    // `inputLine` 0: the type doesn't come from a file.
    void Tell(enSeverity severity, int inputLine, const std::string& text);

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    const SToolDatabase m_From;
    const SToolDatabase m_To;
    CToolResults m_Results;
    int m_ExitCode = kToolClean;
};

void CMapping::Tell(enSeverity severity, int inputLine, const std::string& text)
{
    m_ExitCode = kToolFindings;
    SSourcePlace place;
    place.file = "<stdin>";
    place.line = inputLine;
    if (inputLine > 0)
        m_Messages.Write(severity, place, text);
    else
        m_Messages.Write(severity, text);
}

void CMapping::MapOne(const std::string& text, int inputLine)
{
    SMappedType mapped;
    STypeTrail trail;
    std::string error;
    if (!MapType(m_From.version, m_To.version, text, m_Line.isIdentity, mapped, error,
                 m_Line.isExplain ? &trail : nullptr)) {
        Tell(enSeverity::Error, inputLine, m_From.name + ": " + error);
        return;
    }
    const long type = mapped.target.uvdbType;
    const std::string target = mapped.target.text.c_str();
    std::vector<ToolCell> cells{text, GetUVDBDataTypeName(type), static_cast<std::int64_t>(type), target};
    if (m_Line.isCheck) {
        const Texts losses = Losses(CapacityOf(m_From.version, mapped.source), m_To.version, target);
        for (const std::string& loss : losses) {
            std::string message = text;
            message.append(" as ").append(target).append(": ").append(loss);
            Tell(enSeverity::Warning, inputLine, message);
        }
        cells.emplace_back(losses);
    }
    m_Results.Add(std::move(cells), m_Line.isExplain ? Explain(m_From, m_To, mapped, trail) : ToolDetails());
}

void CMapping::MapStandardInput()
{
    int inputLine = 0;
    std::string text;
    while (true) {
        // Whoever writes a line and waits gets its answer; whoever writes many isn't slowed down.
        if (std::cin.rdbuf()->in_avail() <= 0)
            m_Results.Flush();
        if (!std::getline(std::cin, text))
            break;
        ++inputLine;
        const std::size_t begin = text.find_first_not_of(" \t\r");
        if (begin == std::string::npos)
            continue;
        MapOne(text.substr(begin, text.find_last_not_of(" \t\r") - begin + 1), inputLine);
        constexpr int kLinesTogether = 1000;
        if (inputLine % kLinesTogether == 0)
            m_Results.Flush();
    }
    if (std::cin.bad())
        throw CToolFailure("standard input can't be read");
}

int CMapping::Run()
{
    if (m_Line.isAll) {
        for (const std::string& text : TypesOfTable(m_From.version))
            MapOne(text, 0);
    } else if (m_Line.operands.front() == "-") {
        MapStandardInput();
    } else {
        for (const std::string& text : m_Line.operands)
            MapOne(text, 0);
    }
    m_Results.End();
    return m_ExitCode;
}

ToolCell OrNothing(std::int64_t number, bool isThere)
{
    return isThere ? ToolCell(number) : ToolCell();
}

int List(const SCommandLine& line)
{
    const SToolDatabase database = ReadSource(line.operands.front());
    CToolResults results(line.format, {"name", "internal", "number", "size", "counts", "min_scale",
                                       "max_scale", "leading_precision", "parameters", "synonym"});
    for (const SDataTypeParams& row : GetDBMSDataTypeParamsList(database.version)) {
        const auto type = static_cast<long>(row.uvdbType);
        results.Add({std::string(row.name), std::string(GetUVDBDataTypeName(type)),
                     static_cast<std::int64_t>(type),
                     row.columnSize == 0 ? ToolCell() : ToolCell(row.columnSize),
                     std::string(row.columnSize == 0                               ? ""
                                 : row.columnSizePurpose == UVDB_SIZE_IS_PRECISION ? "precision"
                                                                                   : "length"),
                     OrNothing(row.minScale, row.isScaleValid), OrNothing(row.maxScale, row.isScaleValid),
                     OrNothing(row.leadingPrecision, row.isLeadingPrecisionValid),
                     std::string(row.createParams), row.isSynonym});
    }
    results.End();
    return kToolClean;
}

int ListDatabases(const SCommandLine& line)
{
    CToolResults results(line.format, {"name", "kind", "subtype", "types", "target_versions"});
    for (SKnownDatabase& database : KnownDatabases())
        results.Add(
            {database.name, database.version.db,
             database.version.subType == UVDB_NO_VERSION_WORD ? ToolCell()
                                                              : ToolCell(database.version.subType),
             database.rowCount == 0 ? ToolCell() : ToolCell(static_cast<std::uint64_t>(database.rowCount)),
             std::move(database.versions)});
    results.End();
    return kToolClean;
}

} // namespace

int Run(const SCommandLine& line, CToolMessages& messages)
{
    messages.SetQuiet(line.isQuiet);
    switch (line.command) {
    case enCommand::Help:
        WriteStandardOutput(HelpText(line.topic));
        break;
    case enCommand::Version:
        WriteStandardOutput("uvtypes " UV_VERSION "\n");
        break;
    case enCommand::Databases:
        return ListDatabases(line);
    case enCommand::List:
        return List(line);
    case enCommand::Map:
        std::ios::sync_with_stdio(false);
        return CMapping(line, messages).Run();
    }
    return kToolClean;
}

} // namespace uvtypes
