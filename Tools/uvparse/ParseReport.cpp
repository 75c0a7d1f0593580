#include "Tools/uvparse/ParseReport.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>
#include <utility>

namespace uvparse {

namespace {

// What the passes say of a file that they can't take in.
constexpr std::string_view kMissingIncludes[] = {
    "explicit include not found",
    "header not found",
    "header that is no text",
    "include file not found",
    "include file that can't be opened",
    "include file that is no text",
};

// Takes "number<separator>" off the front.
// Returns: the number; 0, with `text` as it was, if there is none.
std::size_t TakeLineNumber(std::string_view& text, std::string_view separator)
{
    std::size_t line = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), line);
    const auto length = static_cast<std::size_t>(end - text.data());
    if (error != std::errc() || !text.substr(length).starts_with(separator))
        return 0;
    text.remove_prefix(length + separator.size());
    return line;
}

// The preprocessor's message names the file and the line before what is wrong; where the file is an
// included one, it is left to speak for itself. A parser's message begins with the number of a prepared line.
SMessage FailureOf(const SSource& source, const SPreparation& preparation, const SParseResult& result)
{
    SMessage message = MessageAbout(source, enMessageKind::FailedParse);
    std::string remark;
    std::string_view failure = result.failure;
    const std::string name = source.path + " : ";
    if (const std::size_t at = failure.find(name); at != std::string_view::npos) {
        std::string_view rest = failure.substr(at + name.size());
        if (const std::size_t line = TakeLineNumber(rest, " : ")) {
            message.range.line = line;
            failure = rest;
        }
    } else if (!preparation.pass.empty() && preparation.lines.IsKnown()) {
        if (const std::size_t line = TakeLineNumber(failure, " ")) {
            SMessagePlace found = CSourcePlaces(ShownName(source.path), preparation).FindLine(line);
            remark = found.remark;
            SetPlace(message, std::move(found));
        }
    }
    message.text = std::string(failure) + remark;
    return message;
}

SMessage MessageOfNote(const SSource& source, const SPreparationNote& note)
{
    const bool isMissing = std::ranges::any_of(
        kMissingIncludes, [&](std::string_view begin) { return note.text.starts_with(begin); });
    SMessage message =
        MessageAbout(source, isMissing ? enMessageKind::MissingInclude : enMessageKind::Preparation);
    message.severity = note.isError ? enSeverity::Error : enSeverity::Warning;
    if (!note.file.empty())
        message.file = note.file;
    message.range.line = note.line;
    message.text = note.text;
    return message;
}

} // namespace

SMessage MessageAbout(const SSource& source, enMessageKind kind)
{
    SMessage message;
    message.kind = kind;
    message.severity = RowOf(kind).severity;
    message.file = source.path;
    message.language = source.language;
    return message;
}

SMessage DifferenceOf(const SSource& source, const SPreparation& preparation,
                      const STreeDifference& difference, const char* what)
{
    SMessagePlace found = CSourcePlaces(ShownName(source.path), preparation).Find(difference.textOffset);
    SMessage message = MessageAbout(source, enMessageKind::DifferentTree);
    message.text = std::string("the tree's text differs from the ") +
                   (preparation.pass.empty() ? "source" : "prepared text") + " from byte " +
                   std::to_string(difference.textOffset) + " on (byte " +
                   std::to_string(difference.treeOffset) + " of the " + what + ')' + found.remark;
    found.place.sourceLine.clear();
    SetPlace(message, std::move(found));
    return message;
}

std::vector<SMessage> ReportOf(const SSource& source, const SPreparation& preparation,
                               const SParseResult& result)
{
    std::vector<SMessage> messages;
    for (const SPreparationNote& note : result.notes)
        messages.push_back(MessageOfNote(source, note));
    std::ranges::move(MessagesOf(source, preparation, result.findings), std::back_inserter(messages));
    if (!result.isParsed && (result.findings.empty() || !result.isRefusedForTokens))
        messages.push_back(FailureOf(source, preparation, result));
    if (result.isEmpty && !result.pass.empty() && !preparation.source.empty() && result.notes.empty()) {
        messages.push_back(MessageAbout(source, enMessageKind::NothingLeft));
        messages.back().text = result.pass + " left nothing of the text";
    }
    return messages;
}

bool HasFaults(const SParseResult& result)
{
    return !result.findings.empty() || !result.isParsed ||
           std::ranges::any_of(result.notes, &SPreparationNote::isError);
}

} // namespace uvparse
