#include "Tools/uvparse/Message.h"

#include <algorithm>

namespace uvparse {

namespace {

using enum enMessageKind;
using enum enMessageSubject;
constexpr enSeverity kError = enSeverity::Error;
constexpr enSeverity kWarning = enSeverity::Warning;
constexpr enSeverity kNote = enSeverity::Note;

// clang-format off
constexpr SMessageKindRow kRows[] = {
//   kind             subject    id                   name               severity
    {UnexpectedToken, Source,    "unexpected-token",  "UnexpectedToken", kError,
     "A token stands where no rule of the language's grammar has a place for it."},
    {SkippedText,     Source,    "skipped-text",      "SkippedText",     kError,
     "Text was thrown away in the recovery from an error that has no message of its own."},
    {UnclosedText,    Source,    "unclosed-text",     "UnclosedText",    kError,
     "A comment, a quoted text or the like is still open at the end of the text."},
    {InvalidText,     Unread,    "invalid-text",      "InvalidText",     kError,
     "Bytes of the file are no text in its encoding, so that it was not read at all."},
    {MissingInclude,  Source,    "missing-include",   "MissingInclude",  kWarning,
     "A file that the source includes was not found, can't be read or is no text."},
    {Preparation,     Source,    "preparation",       "Preparation",     kWarning,
     "The preparation of the text refused a part of it, or made something of it that may not be meant."},
    {FailedParse,     Source,    "failed-parse",      "FailedParse",     kError,
     "The text could not be parsed or prepared as a whole, and there is no result of it."},
    {NothingLeft,     Source,    "nothing-left",      "NothingLeft",     kWarning,
     "The preparation left nothing of the text that could be parsed."},
    {DifferentTree,   Source,    "different-tree",    "DifferentTree",   kError,
     "The tree doesn't hold the text as it stands in the source; --verify found where they part."},
    {MalformedTree,   Source,    "malformed-tree",    "MalformedTree",   kError,
     "The tree is not well-formed, so that --pretty left it as it is."},
    {CouldNotRun,     Run,       "could-not-run",     "CouldNotRun",     kError,
     "A file could not be read, has no known language, or its result could not be written."},
    {BadArguments,    Arguments, "bad-arguments",     "BadArguments",    kError,
     "The arguments of the call could not be followed."},
    {Verified,        Remark,    "verified",          "Verified",        kNote,
     "--verify found every byte of the text in the tree."},
    {Statistics,      Remark,    "statistics",        "Statistics",      kNote,
     "What --stat counted."},
    {Time,            Remark,    "time",              "Time",            kNote,
     "What --time measured."},
    {ChosenLanguage,  Note,      "chosen-language",   "ChosenLanguage",  kNote,
     "The language that the text was taken for by its content, and why."},
};
// clang-format on
static_assert(std::size(kRows) == static_cast<std::size_t>(ChosenLanguage) + 1);
static_assert(std::ranges::is_sorted(kRows, {}, &SMessageKindRow::kind));

} // namespace

std::span<const SMessageKindRow> MessageKinds()
{
    return kRows;
}

const SMessageKindRow& RowOf(enMessageKind kind)
{
    return kRows[static_cast<std::size_t>(kind)];
}

std::string ShownName(const std::string& path)
{
    return path == "-" ? "<stdin>" : path;
}

std::string_view TextWithoutFile(const SMessage& message)
{
    for (const std::string& name : {message.file, ShownName(message.file)}) {
        const std::string prefix = name + ": ";
        if (!name.empty() && message.text.starts_with(prefix))
            return std::string_view(message.text).substr(prefix.size());
    }
    return message.text;
}

} // namespace uvparse
