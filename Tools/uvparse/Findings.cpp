#include "Tools/uvparse/Findings.h"

#include "Tools/Support/ToolTerminal.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <sstream>
#include <utility>

namespace uvparse {

namespace {

constexpr std::size_t kShown = 60;

std::string WithBlanks(std::string_view text)
{
    std::string shown(text);
    std::replace_if(
        shown.begin(), shown.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
    return shown;
}

// The first line of what was found, cut if it is long. Its bytes come from a file: what would move the cursor
// is shown as a blank.
std::string Shown(std::string_view text, const SFinding& finding)
{
    const std::size_t begin = std::min(finding.offset, text.size());
    const std::size_t end = begin + std::min(finding.length, text.size() - begin);
    const std::size_t lineEnd = std::min(text.find('\n', begin), end);
    if (lineEnd == begin)
        return {};
    const std::size_t shownEnd = StepForward(text, begin, kShown, lineEnd);
    const std::string shown = WithBlanks(text.substr(begin, shownEnd - begin));
    return shownEnd < end ? shown + "..." : shown;
}

// A line as a terminal shows it: a caret below counts in its cells, of which wide characters take two and
// combining ones none.
// Returns: the line; `cell` is where its character number `character`, from 0, begins.
std::string ShownLine(const CCellText& cells, std::string_view line, std::size_t character, std::size_t& cell)
{
    const std::string blanked = WithBlanks(line);
    std::string shown;
    cell =
        cells.Append(std::string_view(blanked).substr(0, StepForward(blanked, 0, character, blanked.size())),
                     std::string::npos, shown);
    shown.clear();
    cells.Append(blanked, std::string::npos, shown);
    return shown;
}

// "; expected a, b or c". More of them would hide the likely ones.
std::string ExpectedOf(const SFinding& finding)
{
    constexpr std::size_t kMost = 4;
    const std::size_t count = std::min(finding.expected.size(), kMost);
    std::string text = count > 0 ? "; expected " : "";
    for (std::size_t i = 0; i < count; ++i) {
        text += i == 0 ? "" : i + 1 == count ? " or " : ", ";
        text += finding.expected[i];
    }
    return text;
}

std::string MessageOf(const SFinding& finding, std::string_view prepared)
{
    const std::string shown = Shown(prepared, finding);
    switch (finding.kind) {
    case enFinding::SkippedText:
        return "skipped '" + shown + "'";
    case enFinding::UnfinishedText:
        return "never closed: '" + shown + "'";
    default:
        return (!shown.empty()                     ? "unexpected token '" + shown + "'"
                : finding.offset < prepared.size() ? "unexpected end of line"
                                                   : "unexpected end of text") +
               ExpectedOf(finding);
    }
}

} // namespace

void ReadUnexpectedTokens(const std::string& list, std::vector<SFinding>& findings)
{
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::size_t lineNumber = 0;
        std::size_t column = 0;
        SFinding finding;
        if (!(fields >> lineNumber >> column >> finding.offset >> finding.length))
            continue;
        std::string field; // the end of the field before, and then the token
        for (int i = 0; i < 2; ++i)
            std::getline(fields, field, '\t');
        if (std::getline(fields, field, '\t'))
            std::from_chars(field.data(), field.data() + field.size(), finding.state);
        std::getline(fields, finding.name, '\t');
        while (std::getline(fields, field, '\t'))
            finding.expected.push_back(field);
        findings.push_back(std::move(finding));
    }
}

void ReadLostText(const std::string& list, std::vector<SFinding>& findings)
{
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string what;
        std::size_t lineNumber = 0;
        std::size_t column = 0;
        SFinding finding;
        if (!(fields >> what >> lineNumber >> column >> finding.offset >> finding.length >>
              finding.isReported))
            continue;
        finding.kind = what == "skipped" ? enFinding::SkippedText : enFinding::UnfinishedText;
        fields >> finding.name;
        findings.push_back(finding);
    }
}

std::size_t CountFindings(const std::vector<SFinding>& findings, enFinding kind)
{
    return static_cast<std::size_t>(std::ranges::count(findings, kind, &SFinding::kind));
}

void WriteFindings(CToolMessages& messages, std::ostream& stream, CSourcePlaces& places,
                   std::string_view prepared, std::vector<SFinding> findings)
{
    // That a comment is never closed says more than that its begin is unexpected.
    const auto isUnfinished = [&](const SFinding& finding) {
        return finding.kind == enFinding::UnfinishedText;
    };
    const auto unfinished = std::ranges::find_if(findings, isUnfinished);
    const std::size_t open = unfinished != findings.end() ? unfinished->offset : std::string_view::npos;
    std::erase_if(findings, [&](const SFinding& finding) {
        return finding.isReported || (finding.kind == enFinding::UnexpectedToken && finding.offset == open);
    });
    std::ranges::stable_sort(findings, {}, &SFinding::offset);
    const CCellText cells;
    for (const SFinding& finding : findings) {
        SMessagePlace found = places.Find(finding.offset);
        std::size_t caret = 0;
        found.place.sourceLine = ShownLine(cells, found.place.sourceLine, found.caret.value_or(0), caret);
        messages.Write(enSeverity::Error, found.place, MessageOf(finding, prepared) + found.remark);
        if (found.caret && !found.place.sourceLine.empty())
            stream << "    " << std::string(caret, ' ') << "^\n";
    }
}

} // namespace uvparse
