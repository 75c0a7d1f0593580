#include "Tools/uvnames/HtmlReport.h"

#include "Tools/uvnames/MarkupText.h"

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

constexpr const char* kUnchanged = "Unchanged";
constexpr const char* kQuotedOnly = "Quoted in scripts";
constexpr const char* kWithoutReason = "Written differently";

// The page's own words stand beside the library's reasons: every row has at least one.
std::vector<std::string> RowReasons(const SName& source, const SConvertedName& converted)
{
    std::vector<std::string> reasons = ReasonTexts(converted.reasons);
    const Uve::U8CString target = converted.target.Joined();
    if (reasons.empty() && source.Joined() != target)
        reasons.emplace_back(kWithoutReason);
    else if (reasons.empty())
        reasons.emplace_back(converted.written == target ? kUnchanged : kQuotedOnly);
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

void CHtmlReport::Add(const SName& source, const SConvertedName& converted)
{
    ++m_NameCount;
    const std::vector<std::string> reasons = RowReasons(source, converted);
    std::string values;
    std::string texts;
    for (const std::string& reason : reasons) {
        ++m_ReasonCounts[reason];
        values.append(values.empty() ? "" : "|").append(reason);
        texts.append(texts.empty() ? "" : ", ").append(reason);
    }
    const bool isSame = reasons.front() == kUnchanged;
    m_UnchangedCount += isSame || reasons.front() == kQuotedOnly ? 1 : 0;
    m_Output.Write("<tr data-reasons=\"" + MarkupText(values) + (isSame ? "\" class=\"same\">" : "\">") +
                   Cell("", CNormalizeName::TypeToString(static_cast<unsigned long>(source.type))) +
                   Cell(" class=\"name\"", source.Joined()) +
                   Cell(" class=\"name\"", converted.target.Joined()) +
                   Cell(" class=\"name\"", converted.written) + Cell("", isSame ? "" : texts) + "</tr>\n");
}

void CHtmlReport::End()
{
    std::string end = "</tbody>\n</table>\n<p>" + std::to_string(m_NameCount) + " names, " +
                      std::to_string(m_NameCount - m_UnchangedCount) + " changed; <span id=\"shown\">" +
                      std::to_string(m_NameCount) + "</span> shown.</p>\n<fieldset><legend>Show</legend>\n";
    for (const auto& [reason, count] : m_ReasonCounts)
        end += "<label><input type=\"checkbox\" checked value=\"" + MarkupText(reason) + "\"> " +
               MarkupText(reason) + " (" + std::to_string(count) + ")</label>\n";
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
