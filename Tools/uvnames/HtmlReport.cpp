#include "Tools/uvnames/HtmlReport.h"

#include "Tools/uvnames/MarkupText.h"
#include "Tools/uvnames/Reasons.h"

namespace uvnames {

namespace {

constexpr const char* kStyle = R"(
body { font: 15px/1.4 system-ui, sans-serif; margin: 2em; color: #222; background: #fff }
table { border-collapse: collapse; margin-top: 1em }
th, td { text-align: left; padding: .25em .8em; border-bottom: 1px solid #ddd; vertical-align: top }
th { border-bottom: 2px solid #888 }
td.name { font-family: ui-monospace, monospace; white-space: pre-wrap; overflow-wrap: anywhere }
tr.same td { color: #777 }
fieldset { border: 1px solid #ccc; display: inline-block }
label { margin-right: 1.2em; white-space: nowrap }
)";

// A row is shown if one of its reasons is ticked, and the text stands in it.
constexpr const char* kScript = R"(
const boxes = [...document.querySelectorAll('input[type=checkbox]')];
const text = document.getElementById('text');
const rows = [...document.querySelectorAll('tbody tr')];
const shown = document.getElementById('shown');
function filter() {
  const on = new Set(boxes.filter(b => b.checked).map(b => b.value));
  const wanted = text.value.toLowerCase();
  let count = 0;
  for (const row of rows) {
    const show = row.dataset.reasons.split('|').some(r => on.has(r)) &&
                 row.textContent.toLowerCase().includes(wanted);
    row.hidden = !show;
    count += show;
  }
  shown.textContent = count;
}
for (const box of boxes) box.addEventListener('change', filter);
text.addEventListener('input', filter);
filter();
)";

// The page's own words stand beside the library's reasons: every row has at least one.
std::vector<std::string> RowReasons(const SName& source, const SConvertedName& converted)
{
    std::vector<std::string> reasons = ReasonTexts(converted.reasons);
    if (!converted.clash.empty())
        reasons.emplace_back(kClashes);
    const Uve::U8CString target = converted.target.Joined();
    if (reasons.empty() && source.Joined() != target)
        reasons.emplace_back(kWrittenDifferently);
    if (converted.isQuoted)
        reasons.emplace_back(kQuoted);
    if (reasons.empty())
        reasons.emplace_back(converted.written == target ? kUnchanged : kWrittenDifferently);
    return reasons;
}

std::string Cell(const std::string& attributes, const std::string& text)
{
    return "<td" + attributes + ">" + MarkupText(text) + "</td>";
}

} // namespace

CHtmlReport::CHtmlReport(const std::string& path, const std::string& from, const std::string& to)
    : m_Output(path)
{
    const std::string title = "Names from " + MarkupText(from) + " to " + MarkupText(to);
    m_Output.Write(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + title +
        "</title>\n<style>" + kStyle + "</style>\n</head>\n<body>\n<h1>" + title +
        "</h1>\n<table>\n<thead><tr><th>Type</th><th>Source</th><th>Target</th><th>In a script</th>"
        "<th>Reasons</th></tr></thead>\n<tbody>\n");
}

void CHtmlReport::AddRow(const std::vector<std::string>& cells, const std::vector<std::string>& reasons)
{
    ++m_NameCount;
    std::string values;
    std::string texts;
    for (const std::string& reason : reasons) {
        ++m_ReasonCounts[reason];
        values.append(values.empty() ? "" : "|").append(reason);
        texts.append(texts.empty() ? "" : ", ").append(reason);
    }
    const bool isSame = reasons.front() == kUnchanged;
    m_UnchangedCount += isSame || reasons.front() == kQuoted ? 1u : 0u;
    std::string row = "<tr data-reasons=\"" + MarkupText(values) + (isSame ? "\" class=\"same\">" : "\">");
    for (const std::string& cell : cells)
        row += Cell(&cell == &cells.front() ? "" : " class=\"name\"", cell);
    m_Output.Write(row + Cell("", isSame ? "" : texts) + "</tr>\n");
}

void CHtmlReport::Add(const SName& source, const SConvertedName& converted)
{
    const auto plain = [](const std::string& text) { return text; };
    AddRow({plain(CNormalizeName::TypeToString(static_cast<unsigned long>(source.type))),
            plain(source.Joined()), plain(converted.target.Joined()), plain(converted.written)},
           RowReasons(source, converted));
}

void CHtmlReport::AddUnread(const std::string& line)
{
    AddRow({"", line, "", ""}, {kNotRead});
}

void CHtmlReport::End()
{
    std::string end = "</tbody>\n</table>\n<p>" + std::to_string(m_NameCount) + " names, " +
                      std::to_string(m_NameCount - m_UnchangedCount) + " changed; <span id=\"shown\">" +
                      std::to_string(m_NameCount) + "</span> shown.</p>\n<fieldset><legend>Show</legend>\n";
    for (const auto& [reason, count] : m_ReasonCounts)
        end += "<label><input type=\"checkbox\" checked value=\"" + MarkupText(reason) + "\"> " +
               MarkupText(reason) + " (" + std::to_string(count) + ")</label> <small>" +
               MarkupText(ReasonSentence(reason)) + "</small><br>\n";
    end += "<label>Text <input type=\"search\" id=\"text\"></label>\n</fieldset>\n";
    // The counts are known only now; the reader wants them above the names.
    end += std::string("<script>\nconst table = document.querySelector('table');\n"
                       "for (const tag of ['fieldset', 'p'])\n"
                       "  table.before(document.querySelector(tag));\n") +
           kScript + "</script>\n</body>\n</html>\n";
    m_Output.Write(end);
    m_Output.Close();
}

} // namespace uvnames
