#include "Preparation/Formatters/Jcl.h"

#include "Preparation/Formatters/SourceLines.h"

#include <utility>

namespace {

constexpr std::size_t kColumns = 72;

} // namespace

SPreparedText FormatJcl(const Uve::U8CString& text, const SJclOptions& options)
{
    SPreparedText prepared;
    std::string output;
    output.reserve(text.size());
    const char* const end = text.data() + text.size() - CountFinalLineFeeds(text); // of what isn't given back
    CSourceLines lines(text);
    for (SSourceLine line; lines.Next(line);) {
        if (line.text.empty() && (!options.isFaithful || line.text.data() >= end))
            continue;
        if (!prepared.sourceLines.empty())
            output += '\n';
        output.append(line.text.substr(0, ColumnOffset(line.text, kColumns)));
        prepared.sourceLines.push_back(line.number);
    }
    AppendFinalLineFeeds(text, lines.Count(), output, prepared.sourceLines);
    prepared.text = std::move(output);
    return prepared;
}
