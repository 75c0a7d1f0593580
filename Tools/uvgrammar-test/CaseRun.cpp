#include "Tools/uvgrammar-test/CaseRun.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvparse/Selection.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "Tools/uvparse/TreeText.h"

#include <algorithm>
#include <sstream>

namespace uvtest {

namespace {

using uvparse::enFinding;
using uvparse::SFinding;

std::string Finding(const std::string& text)
{
    return std::string(1, kFindingMark) + ' ' + text;
}

// Where things stand in the text of the case; the preparation's own text has no other names for its places.
class CPlaceNames
{
public:
    explicit CPlaceNames(const uvscore::SParsedText& text)
        : m_Preparation{text.result.pass.empty() ? text.prepared : text.source, text.prepared,
                        text.result.preparedLines, text.result.pass},
          m_Places({}, m_Preparation)
    {}

    // " at line:column", or the line alone where the preparation has left no column.
    std::string Name(std::size_t offset)
    {
        const SSourcePlace place = m_Places.Find(offset).place;
        return " at " + std::to_string(place.line) +
               (place.column > 0 ? ':' + std::to_string(place.column) : "");
    }

private:
    uvparse::SPreparation m_Preparation;
    uvparse::CSourcePlaces m_Places;
};

std::string FindingText(const SFinding& finding, std::string_view prepared)
{
    const std::string_view text =
        prepared.substr(std::min(finding.offset, prepared.size())).substr(0, finding.length);
    switch (finding.kind) {
    case enFinding::UnexpectedToken:
        // An unfinished text, and the end, have no token that the grammar names.
        return "unexpected " + (finding.name.empty() ? "end" : finding.name) +
               (text.empty() ? "" : ' ' + QuotedText(text));
    case enFinding::SkippedText:
        return "skipped " + QuotedText(text);
    case enFinding::UnfinishedText:
        break;
    }
    return "never closed " + finding.condition;
}

// As people are told of them: what an unexpected token stands for already isn't told again.
void AppendFindings(const uvscore::SParsedText& text, TLines& lines)
{
    std::vector<SFinding> findings = text.result.findings;
    std::ranges::stable_sort(findings, {}, &SFinding::offset);
    CPlaceNames places(text);
    for (const SFinding& finding : findings)
        if (!finding.isReported)
            lines.push_back(Finding(FindingText(finding, text.prepared) + places.Name(finding.offset)));
}

std::string LostAt(const uvscore::SParsedText& text, std::size_t offset)
{
    return "the tree doesn't hold the text: it differs" + CPlaceNames(text).Name(offset);
}

// What `show` selects of the tree.
std::string Selected(const SCase& one, const std::string& tree)
{
    std::string selected;
    const uvparse::CSelector selector(one.show);
    selector.Write(tree, one.name, {}, [&](std::string_view piece) { selected += piece; });
    return selected;
}

} // namespace

uvscore::CTextParser& CCaseRunner::ParserWith(const uvparse::TOptions& options)
{
    uvparse::TOptions all = options;
    if (m_IsCoverage)
        all.emplace_back("REPORT_COVERAGE", "1");
    return m_Parsers.try_emplace(options, m_Language, all).first->second;
}

SCaseResult CCaseRunner::Run(const SCase& one, const std::string& path)
{
    uvscore::CTextParser& parser = ParserWith(one.options);
    uvscore::SParsedText parsed;
    if (one.isRaw) {
        parsed.source = one.text;
        parsed.prepared = one.text;
        parsed.result = parser.ParseRaw(one.text, path);
    } else {
        parsed = parser.ParseSource(one.text, path);
    }
    SCaseResult result;
    result.coverage = parsed.result.coverage;
    if (!parsed.result.isParsed) {
        result.lines.push_back(Finding("not parsed"));
    } else if (parsed.result.output.empty()) {
        result.lines.push_back(Finding("nothing to parse"));
    } else {
        // Flattening may write line ends and control characters otherwise; the raw tree has every byte.
        std::optional<uvparse::STreeDifference> lost =
            uvparse::FindTreeDifference(parsed.result.output, parsed.prepared);
        if (lost && !one.isRaw)
            lost =
                uvparse::FindTreeDifference(parser.ParseRaw(parsed.prepared, path).output, parsed.prepared);
        if (lost) {
            result.problem = LostAt(parsed, lost->textOffset);
            return result;
        }
        try {
            result.lines =
                OutlineOfTree(one.show.empty() ? parsed.result.output : Selected(one, parsed.result.output));
        } catch (const CToolFailure& e) {
            result.problem = e.what();
            return result;
        }
        if (result.lines.empty()) {
            // A mistake in the text is a likely reason.
            result.problem = "'" + one.show + "' selects no element of the tree";
            AppendFindings(parsed, result.lines);
            for (const std::string& finding : result.lines)
                result.problem += "\n  " + finding;
            return result;
        }
    }
    AppendFindings(parsed, result.lines);
    return result;
}

std::string WriteCaseResult(const SCaseResult& result)
{
    std::string text;
    uvscore::AppendFields(text, {result.problem, result.coverage});
    for (const std::string& line : result.lines)
        uvscore::AppendFields(text, {line});
    return text;
}

SCaseResult ReadCaseResult(const std::string& text)
{
    SCaseResult result;
    std::istringstream lines(text);
    std::string line;
    if (std::getline(lines, line)) {
        const uvscore::CFields fields(line);
        result.problem = fields.Text(0);
        result.coverage = fields.Text(1);
    }
    while (std::getline(lines, line))
        result.lines.push_back(uvscore::CFields(line).Text(0));
    return result;
}

} // namespace uvtest
