#include "Tools/uvtypes/Run.h"

#include "Catalogue/Types/UVDBDataTypes.h"
#include "Tools/Support/ToolDatabaseNames.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolLines.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/Support/ToolResults.h"
#include "Tools/uvtypes/Capacity.h"
#include "Tools/uvtypes/Databases.h"
#include "Tools/uvtypes/Explanation.h"
#include "Tools/uvtypes/Losses.h"
#include "Tools/uvtypes/TypeMap.h"

#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

namespace uvtypes {

namespace {

using Texts = std::vector<std::string>;

// The internal type of what the source doesn't have.
constexpr const char* kUnknown = "unknown";

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
    // `place`: where the type comes from, if it is from a file.
    void MapOne(const std::string& text, const SSourcePlace& place);
    void MapOperand(const std::string& operand);
    void MapLines(const std::string& path);
    void Tell(enSeverity severity, const SSourcePlace& place, const std::string& text);

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    const SToolDatabase m_From;
    const SToolDatabase m_To;
    CToolResults m_Results;
    int m_ExitCode = kToolClean;
};

void CMapping::Tell(enSeverity severity, const SSourcePlace& place, const std::string& text)
{
    m_ExitCode = kToolFindings;
    if (place.line > 0)
        m_Messages.Write(severity, place, text);
    else
        m_Messages.Write(severity, text);
}

void CMapping::MapOne(const std::string& text, const SSourcePlace& place)
{
    SMappedType mapped;
    STypeTrail trail;
    std::string error;
    if (!MapType(m_From.version, m_To.version, text, m_Line.isIdentity, mapped, error,
                 m_Line.isExplain ? &trail : nullptr)) {
        Tell(enSeverity::Error, place, m_From.name + ": " + error);
        std::vector<ToolCell> cells{text, std::string(kUnknown), ToolCell(), ToolCell()};
        if (m_Line.isCheck)
            cells.emplace_back(Texts());
        m_Results.Add(std::move(cells), m_Line.isExplain ? ToolDetails{{kUnknown, error}} : ToolDetails());
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
            Tell(enSeverity::Warning, place, message);
        }
        cells.emplace_back(losses);
    }
    m_Results.Add(std::move(cells), m_Line.isExplain ? Explain(m_From, m_To, mapped, trail) : ToolDetails());
}

void CMapping::MapLines(const std::string& path)
{
    SSourcePlace place;
    place.file = path == "-" ? "<stdin>" : path;
    ReadToolLines(
        path,
        [&](const std::string& line, int number) {
            const std::size_t begin = line.find_first_not_of(" \t");
            if (begin == std::string::npos)
                return;
            place.line = number;
            MapOne(line.substr(begin, line.find_last_not_of(" \t") - begin + 1), place);
        },
        [this] { m_Results.Flush(); });
}

// A type is a type even if a file is called so; "./DATE" is the file.
void CMapping::MapOperand(const std::string& operand)
{
    const bool isPath = operand == "-" || operand.find('/') != std::string::npos;
    std::error_code ignored;
    if (isPath ||
        (!ReadTypeText(m_From.version, operand).isKnown && std::filesystem::exists(operand, ignored)))
        MapLines(operand);
    else
        MapOne(operand, {});
}

int CMapping::Run()
{
    if (m_Line.isAll) {
        for (const std::string& text : TypesOfTable(m_From.version))
            MapOne(text, {});
    }
    for (const std::string& operand : m_Line.operands)
        MapOperand(operand);
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
