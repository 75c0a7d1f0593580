#include "Preparation/Formatters/IbmCl.h"

#include "Preparation/Formatters/LineNotes.h"
#include "Preparation/Formatters/SourceLines.h"

#include <utility>

namespace {

std::string_view WithoutCarriageReturns(std::string_view line)
{
    return line.substr(0, line.find_last_not_of('\r') + 1); // npos + 1 is 0
}

void DropLastCharacter(std::string& text)
{
    if (text.empty())
        return;
    // a character has at most five bytes after its first one
    std::size_t at = text.size() - 1;
    for (int back = 0; back < 5 && at != 0 && Uve::utf8_is_continuation(text[at]); ++back)
        --at;
    if (at + CharacterLength(text, at) != text.size())
        at = text.size() - 1;
    text.resize(at);
}

bool EndsInEmptyLine(const std::string& text)
{
    return text.empty() || text.ends_with('\n');
}

} // namespace

SPreparedText FormatIbmCl(const Uve::U8CString& text, const SIbmClOptions& options)
{
    SPreparedText prepared;
    std::string output;
    output.reserve(text.size());
    char continuation = '\0'; // the "+" or "-" that the line before ended in
    CSourceLines lines(text);
    for (SSourceLine line; lines.NextFilled(line);) {
        std::string_view command = WithoutCarriageReturns(line.text);
        if (continuation == '+')
            command = WithoutLeadingBlanks(command);
        if (continuation == '\0') {
            if (!prepared.sourceLines.empty())
                output += '\n';
            prepared.sourceLines.push_back(line.number);
        }
        if (const std::string_view filled = WithoutTrailingBlanks(command);
            options.isFaithful && (filled.ends_with('+') || filled.ends_with('-')))
            command = filled;
        const bool goesOn = command.ends_with('+') || command.ends_with('-');
        continuation = goesOn ? command.back() : '\0';
        output.append(command.substr(0, command.size() - (goesOn ? 1 : 0)));
    }
    if (EndsInEmptyLine(output) && !prepared.sourceLines.empty() && !text.ends_with('\n'))
        prepared.sourceLines.pop_back(); // nothing will make it a line
    AppendFinalLineFeeds(text, lines.Count(), output, prepared.sourceLines);
    const bool endsInLineFeed = output.ends_with('\n');
    if (!endsInLineFeed && !options.isFaithful && !output.empty())
        prepared.notes.push_back(
            LineWarning(lines.Count(), "the last character is lost: the text doesn't end in a line feed"));
    if (endsInLineFeed || !options.isFaithful)
        DropLastCharacter(output);
    if (EndsInEmptyLine(output) && !prepared.sourceLines.empty())
        prepared.sourceLines.pop_back(); // that character was the whole line, or its end
    prepared.text = std::move(output);
    return prepared;
}
