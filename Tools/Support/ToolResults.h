// Results as rows of named cells, in the form that the user asked for.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolTerminal.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

enum class enToolFormat
{
    Table,
    Tsv,
    Json
};

// The format by its name on a command line: "table", "tsv" or "json".
std::optional<enToolFormat> ReadToolFormat(std::string_view name);

// A text as a cell of TSV: \t, \n, \r and \\ for what would break a line, and the replacement character for
// bytes that are no UTF-8; and back again.
void AppendTsvText(std::string_view text, std::string& out);
std::string TsvText(std::string_view cell);

// Nothing, a number, a text, or several texts.
using ToolCell =
    std::variant<std::monostate, std::int64_t, std::uint64_t, bool, std::string, std::vector<std::string>>;

// What stands below a row: a word and what there is to say.
using ToolDetails = std::vector<std::pair<std::string, std::string>>;

// The three forms:
//     table  columns aligned under a head, details on lines of their own
//     TSV    a head too, cells separated by tabs (with \t, \n, \r and \\ for what would break a line), lists
//            separated by "; ", details in a last column "explain"
//     JSON   an array of one object a line
class CToolResults
{
public:
    // `columns`: the names, in lower case with "_" between words. `hasDetails`: rows may have them.
    CToolResults(enToolFormat format, std::vector<std::string> columns, bool hasDetails = false);

    // As many cells as there are columns.
    void Add(std::vector<ToolCell> cells, ToolDetails details = {});

    // Writes the rows that were added to the standard output, if there are any. The columns of a table are as
    // wide as anything written so far.
    // Throws: CToolFailure.
    void Flush();

    // Writes the rest and the end; the head of TSV is there even without rows.
    // Throws: CToolFailure.
    void End();

private:
    struct SRow
    {
        std::vector<ToolCell> cells;
        ToolDetails details;
    };

    void Write();
    void LayOut(std::string& out);
    void AddTableLine(const std::vector<std::string>& texts, const std::vector<bool>& isNumber,
                      std::string& out) const;
    void AddTsvRow(const SRow& row, std::string& out) const;
    void AddJsonRow(const SRow& row, std::string& out) const;

    enToolFormat m_Format;
    std::vector<std::string> m_Columns;
    bool m_HasDetails;
    std::vector<SRow> m_Rows;
    std::vector<std::size_t> m_Widths;
    bool m_HasHead = false;
    bool m_HasRow = false;
    CCellText m_CellText;
    COutputFile m_Output{"-"};
};
