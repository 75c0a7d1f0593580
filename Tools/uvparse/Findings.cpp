#include "Tools/uvparse/Findings.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <ostream>
#include <sstream>
#include <system_error>
#include <utility>

namespace uvparse {

namespace {

constexpr std::size_t kShown = 60;

std::string_view TextOf(const SFinding& finding, std::string_view prepared)
{
    return prepared.substr(std::min(finding.offset, prepared.size()), finding.length);
}

// The first line of what was found, cut if it is long.
std::string Shown(std::string_view text)
{
    const std::size_t lineEnd = std::min(text.find('\n'), text.size());
    const std::size_t end = StepForward(text, 0, kShown, lineEnd);
    const std::string shown = Printable(text.substr(0, end));
    return end > 0 && end < text.size() ? shown + "..." : shown;
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
    const std::string shown = Shown(TextOf(finding, prepared));
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

std::optional<int> NumberIn(std::string_view field)
{
    int number = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

enMessageKind KindOf(enFinding kind)
{
    switch (kind) {
    case enFinding::SkippedText:
        return enMessageKind::SkippedText;
    case enFinding::UnfinishedText:
        return enMessageKind::UnclosedText;
    case enFinding::UnexpectedToken:
        break;
    }
    return enMessageKind::UnexpectedToken;
}

// In the order of the source, without those that others stand for.
void SortAndThin(std::vector<SFinding>& findings)
{
    // That a comment is never closed says more than that its begin is unexpected.
    const auto unfinished = std::ranges::find(findings, enFinding::UnfinishedText, &SFinding::kind);
    const std::size_t open = unfinished != findings.end() ? unfinished->offset : std::string_view::npos;
    std::erase_if(findings, [&](const SFinding& finding) {
        return finding.isReported || (finding.kind == enFinding::UnexpectedToken && finding.offset == open);
    });
    std::ranges::stable_sort(findings, {}, &SFinding::offset);
}

// One for each finding. Ends are found in their own order, which is that of the text.
std::vector<SLineColumn> EndsOf(const std::vector<SFinding>& findings, const SPreparation& preparation)
{
    std::vector<std::size_t> order(findings.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {},
                      [&](std::size_t index) { return findings[index].offset + findings[index].length; });
    std::vector<SLineColumn> ends(findings.size());
    CSourcePlaces places("", preparation);
    for (const std::size_t index : order)
        ends[index] = places.FindEnd(findings[index].offset, findings[index].length);
    return ends;
}

// Completes the ranges, whose lines and columns are there, with their places in the file.
void FindInFile(std::vector<SMessage>& messages, const SSource& source)
{
    std::vector<SLineColumn> places;
    for (const SMessage& message : messages) {
        places.push_back({message.range.line, message.range.column});
        places.push_back({message.range.endLine, message.range.endColumn});
    }
    const auto found = FindFilePlaces(source.text, source.bytes, places);
    for (std::size_t i = 0; i < messages.size(); ++i) {
        SMessageRange& range = messages[i].range;
        const std::optional<SFilePlace>& begin = found[2 * i];
        const std::optional<SFilePlace>& end = found[2 * i + 1];
        if (!begin)
            continue;
        range.charOffset = begin->character;
        range.byteOffset = begin->fileOffset;
        if (!end)
            continue;
        range.charLength = end->character - begin->character;
        if (begin->fileOffset && end->fileOffset)
            range.byteLength = *end->fileOffset - *begin->fileOffset;
        messages[i].snippet = source.text.substr(begin->textOffset, end->textOffset - begin->textOffset);
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
        std::string field;
        std::getline(fields, field, '\t'); // the end of the field before
        std::getline(fields, field, '\t'); // the token, which the text has as well
        if (std::getline(fields, field, '\t'))
            finding.state = NumberIn(field);
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
        fields.ignore(); // the tab
        std::getline(fields, finding.condition);
        findings.push_back(std::move(finding));
    }
}

std::size_t CountFindings(const std::vector<SFinding>& findings, enFinding kind)
{
    return static_cast<std::size_t>(std::ranges::count(findings, kind, &SFinding::kind));
}

std::vector<SMessage> MessagesOf(const SSource& source, const SPreparation& preparation,
                                 std::vector<SFinding> findings)
{
    SortAndThin(findings);
    const std::vector<SLineColumn> ends = EndsOf(findings, preparation);
    CSourcePlaces places(ShownName(source.path), preparation);
    std::vector<SMessage> messages;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        SFinding& finding = findings[i];
        SMessagePlace found = places.Find(finding.offset);
        SMessage message;
        message.kind = KindOf(finding.kind);
        message.file = source.path;
        message.language = source.language;
        message.text = MessageOf(finding, preparation.prepared) + found.remark;
        SetPlace(message, std::move(found));
        if (const SLineColumn begin{message.range.line, message.range.column};
            begin.column > 0 && ends[i] >= begin) {
            message.range.endLine = ends[i].line;
            message.range.endColumn = ends[i].column;
        }
        if (finding.kind == enFinding::UnexpectedToken)
            message.token = std::string(TextOf(finding, preparation.prepared));
        message.expected = std::move(finding.expected);
        message.state = finding.state;
        message.tokenName = std::move(finding.name);
        message.condition = std::move(finding.condition);
        messages.push_back(std::move(message));
    }
    FindInFile(messages, source);
    return messages;
}

void SetPlace(SMessage& message, SMessagePlace found)
{
    message.range.line = static_cast<std::size_t>(found.place.line);
    message.range.column = static_cast<std::size_t>(found.place.column);
    message.sourceLine = std::move(found.place.sourceLine);
    message.caret = found.caret;
}

} // namespace uvparse
