#include "Tools/Support/ToolResults.h"

#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace {

constexpr std::size_t kWidestCell = 120;

std::string Joined(const std::vector<std::string>& texts)
{
    std::string joined;
    for (const std::string& text : texts)
        joined.append(joined.empty() ? "" : "; ").append(text);
    return joined;
}

struct STextOf
{
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(std::uint64_t number) const { return std::to_string(number); }
    std::string operator()(bool is) const { return is ? "yes" : "no"; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const std::vector<std::string>& texts) const { return Joined(texts); }
};

struct SJsonOf
{
    nlohmann::ordered_json operator()(std::monostate) const { return nullptr; }
    template <class T>
    nlohmann::ordered_json operator()(const T& value) const
    {
        return value;
    }
};

bool IsNumber(const ToolCell& cell)
{
    return std::holds_alternative<std::int64_t>(cell) || std::holds_alternative<std::uint64_t>(cell);
}

std::string WithBlanks(std::string name)
{
    std::replace(name.begin(), name.end(), '_', ' ');
    return name;
}

} // namespace

std::optional<enToolFormat> ReadToolFormat(std::string_view name)
{
    if (name == "table")
        return enToolFormat::Table;
    if (name == "tsv")
        return enToolFormat::Tsv;
    if (name == "json")
        return enToolFormat::Json;
    return std::nullopt;
}

void AppendTsvText(std::string_view text, std::string& out)
{
    Uve::U8CString replaced;
    if (!UVDB::IsValidUTF8(text)) {
        replaced = Uve::WideToUTF8(Uve::UTF8ToWide(text));
        text = static_cast<const std::string&>(replaced);
    }
    for (const char c : text) {
        switch (c) {
        case '\t':
            out += "\\t";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\\':
            out += "\\\\";
            break;
        default:
            out += c;
        }
    }
}

std::string TsvText(std::string_view cell)
{
    std::string text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        const char next = cell[i] == '\\' && i + 1 < cell.size() ? cell[i + 1] : '\0';
        switch (next) {
        case 't':
            text += '\t';
            break;
        case 'n':
            text += '\n';
            break;
        case 'r':
            text += '\r';
            break;
        case '\\':
            text += '\\';
            break;
        default:
            text += cell[i];
            continue;
        }
        ++i;
    }
    return text;
}

CToolResults::CToolResults(enToolFormat format, std::vector<std::string> columns, bool hasDetails)
    : m_Format(format), m_Columns(std::move(columns)), m_HasDetails(hasDetails), m_Widths(m_Columns.size())
{}

void CToolResults::Add(std::vector<ToolCell> cells, ToolDetails details)
{
    m_Rows.push_back({std::move(cells), std::move(details)});
}

void CToolResults::AddTableLine(const std::vector<std::string>& texts, const std::vector<bool>& isNumber,
                                std::string& out) const
{
    std::size_t blanks = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        std::string cell;
        const std::size_t used = m_CellText.Append(texts[i], kWidestCell, cell);
        const std::size_t rest = m_Widths[i] - std::min(used, m_Widths[i]);
        if (isNumber[i])
            blanks += rest;
        // Blanks are written before the next text, so that no line ends in them.
        if (!cell.empty())
            out.append(std::exchange(blanks, 0), ' ');
        out += cell;
        blanks += (isNumber[i] ? 0 : rest) + 2 + (cell.empty() ? used : 0);
    }
    out += '\n';
}

void CToolResults::LayOut(std::string& out)
{
    std::vector<std::vector<std::string>> lines;
    for (const SRow& row : m_Rows) {
        std::vector<std::string>& texts = lines.emplace_back();
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            texts.push_back(std::visit(STextOf(), row.cells[i]));
            std::string ignored;
            m_Widths[i] = std::max(m_Widths[i], m_CellText.Append(texts[i], kWidestCell, ignored));
        }
    }
    // A column of numbers stands at its right edge, the name over it too.
    std::vector<bool> areNumbers(m_Columns.size(), !m_Rows.empty());
    for (const SRow& row : m_Rows)
        for (std::size_t i = 0; i < row.cells.size(); ++i)
            areNumbers[i] = areNumbers[i] && (IsNumber(row.cells[i]) || row.cells[i].index() == 0);
    if (!m_HasHead) {
        std::vector<std::string> head;
        for (std::size_t i = 0; i < m_Columns.size(); ++i) {
            head.push_back(WithBlanks(m_Columns[i]));
            m_Widths[i] = std::max(m_Widths[i], head[i].size());
        }
        AddTableLine(head, areNumbers, out);
        std::vector<std::string> rule;
        for (const std::size_t width : m_Widths)
            rule.emplace_back(width, '-');
        AddTableLine(rule, areNumbers, out);
        m_HasHead = true;
    }
    for (std::size_t i = 0; i < m_Rows.size(); ++i) {
        AddTableLine(lines[i], areNumbers, out);
        for (const auto& [word, text] : m_Rows[i].details) {
            out += "    ";
            const std::size_t used = m_CellText.Append(word, kWidestCell, out);
            out.append(used < 14 ? 14 - used : 1, ' ');
            m_CellText.Append(text, std::string::npos, out);
            out += '\n';
        }
    }
}

void CToolResults::AddTsvRow(const SRow& row, std::string& out) const
{
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        if (i > 0)
            out += '\t';
        AppendTsvText(std::visit(STextOf(), row.cells[i]), out);
    }
    if (m_HasDetails) {
        std::vector<std::string> texts;
        for (const auto& [word, text] : row.details)
            texts.emplace_back(word).append(": ").append(text);
        out += '\t';
        AppendTsvText(Joined(texts), out);
    }
    out += '\n';
}

void CToolResults::AddJsonRow(const SRow& row, std::string& out) const
{
    nlohmann::ordered_json object = nlohmann::ordered_json::object();
    for (std::size_t i = 0; i < row.cells.size(); ++i)
        object[m_Columns[i]] = std::visit(SJsonOf(), row.cells[i]);
    if (m_HasDetails) {
        nlohmann::ordered_json& explanation = object["explain"] = nlohmann::ordered_json::array();
        for (const auto& [word, text] : row.details)
            explanation.push_back({{"about", word}, {"text", text}});
    }
    // What isn't UTF-8 gets the replacement character: JSON can't hold it.
    out += object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

void CToolResults::Flush()
{
    if (!m_Rows.empty())
        Write();
}

void CToolResults::Write()
{
    std::string out;
    switch (m_Format) {
    case enToolFormat::Table:
        if (!m_Rows.empty())
            LayOut(out);
        break;
    case enToolFormat::Tsv:
        if (!std::exchange(m_HasHead, true)) {
            for (const std::string& column : m_Columns)
                out.append(out.empty() ? "" : "\t").append(column);
            out += m_HasDetails ? "\texplain\n" : "\n";
        }
        for (const SRow& row : m_Rows)
            AddTsvRow(row, out);
        break;
    case enToolFormat::Json:
        if (!std::exchange(m_HasHead, true))
            out += '[';
        for (const SRow& row : m_Rows) {
            out += std::exchange(m_HasRow, true) ? ",\n" : "\n";
            AddJsonRow(row, out);
        }
        break;
    }
    m_Rows.clear();
    m_Output.Write(out);
    m_Output.Close();
}

void CToolResults::End()
{
    Write();
    if (m_Format == enToolFormat::Json) {
        m_Output.Write("\n]\n");
        m_Output.Close();
    }
}
