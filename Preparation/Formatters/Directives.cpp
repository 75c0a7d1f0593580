#include "Preparation/Formatters/Directives.h"

#include "Preparation/Formatters/AsciiLetters.h"
#include "Preparation/Formatters/SourceLines.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::string_view kDefinedSymbols[] = {
    "D2005NET_OR_HIGHER",
    "D2006NET_OR_HIGHER",
    "D2007NET",
    "D2007NET_OR_HIGHER",
    "DELPHI1_OR_HIGHER",
    "DELPHI2_OR_HIGHER",
    "DELPHI3_OR_HIGHER",
    "DELPHI4_OR_HIGHER",
    "DELPHI5_OR_HIGHER",
    "DELPHI6_OR_HIGHER",
    "DELPHI7_OR_HIGHER",
    "MSWINDOWS",
    "RELEASE",
};

bool IsSpace(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

template <class Class>
std::size_t SkipWhile(std::string_view text, std::size_t at, Class isIn)
{
    while (at < text.size() && isIn(text[at]))
        ++at;
    return at;
}

using Lines = std::list<SDirectiveLine>;

// One run over the lines of a text. A construct inside another one is such a run of its own, over the lines
// from its first directive to its last; its result waits in `nested` of the run outside.
struct SRun
{
    bool isInElse = false;
    bool isKnownIfdef = false;
    bool isKnownIfndef = false;
    bool isConditionKept = false;
    SDirectiveLine pendingDelimiter;
    Lines nested;
    Lines output;

    // The condition is decided, and against the branch that we are in.
    bool IsBranchDead() const
    {
        return !isConditionKept && ((isKnownIfndef && !isInElse) || (isKnownIfdef && isInElse));
    }

    void PutNestedOut() { output.splice(output.end(), nested); }

    void TakeText(const SDirectiveLine& line)
    {
        if (IsBranchDead())
            return;
        if (!pendingDelimiter.text.empty())
            output.push_back(std::exchange(pendingDelimiter, {}));
        PutNestedOut();
        output.push_back(line);
    }

    void TakeCondition(const SDirectiveLine& line, const SDirective& directive, bool isIfdef)
    {
        if (std::ranges::find(kDefinedSymbols, directive.symbol) != std::end(kDefinedSymbols)) {
            (isIfdef ? isKnownIfdef : isKnownIfndef) = true;
        } else {
            output.push_back(line);
            isConditionKept = true;
        }
    }

    void TakeElse(const SDirectiveLine& line)
    {
        isInElse = true;
        if (isConditionKept)
            output.push_back(line);
    }

    void TakeEnd(const SDirectiveLine& line)
    {
        if (isConditionKept) {
            PutNestedOut();
            output.push_back(line);
        }
        isInElse = isKnownIfdef = isKnownIfndef = isConditionKept = false;
    }
};

// All runs at once: each line is taken by the innermost run that is open, so that a text nested n deep isn't
// gone through n times.
class CResolver
{
public:
    Lines Resolve(const Lines& lines);

private:
    void Take(const SDirectiveLine& line, const SDirective& directive);

    std::vector<SRun> m_Runs = std::vector<SRun>(1);
    int m_Depth = 0; // below 0 when there were too many ends; from 2 on there is a run for each
    Lines::const_iterator m_Current;
    Lines::const_iterator m_NestedBegin; // where the outermost nested construct that is open begins
};

void CResolver::Take(const SDirectiveLine& line, const SDirective& directive)
{
    const bool isIfdef = DirectiveHolds(directive, "$IFDEF");
    if (isIfdef || DirectiveHolds(directive, "$IFNDEF")) {
        if (++m_Depth > 1) {
            if (m_Depth == 2)
                m_NestedBegin = m_Current;
            m_Runs.emplace_back();
        }
        m_Runs.back().TakeCondition(line, directive, isIfdef);
    } else if (DirectiveHolds(directive, "$ELSE")) {
        m_Runs.back().TakeElse(line);
    } else if (DirectiveHolds(directive, "$ENDIF")) {
        --m_Depth;
        if (m_Depth >= 0)
            m_Runs.back().TakeEnd(line);
        if (m_Depth >= 1) {
            SRun ended = std::move(m_Runs.back());
            m_Runs.pop_back();
            ended.PutNestedOut();
            if (!m_Runs.back().IsBranchDead())
                m_Runs.back().nested.splice(m_Runs.back().nested.end(), ended.output);
        }
    } else {
        m_Runs.back().output.push_back(line);
    }
    m_Runs.back().pendingDelimiter = {directive.delimiter, line.sourceLine};
}

Lines CResolver::Resolve(const Lines& lines)
{
    for (m_Current = lines.begin(); m_Current != lines.end(); ++m_Current) {
        if (const auto directive = FindDirective(m_Current->text))
            Take(*m_Current, *directive);
        else
            m_Runs.back().TakeText(*m_Current);
    }
    SRun& outermost = m_Runs.front();
    outermost.PutNestedOut();
    if (m_Runs.size() > 1)
        outermost.output.insert(outermost.output.end(), m_NestedBegin, lines.end());
    return std::move(outermost.output);
}

} // namespace

std::span<const std::string_view> DefinedPascalSymbols()
{
    return kDefinedSymbols;
}

std::optional<SDirective> FindDirective(std::string_view line)
{
    for (std::size_t open = line.find('{'); open != line.npos; open = line.find('{', open + 1)) {
        const std::size_t dollar = SkipWhile(line, open + 1, IsSpace);
        if (dollar == line.size() || line[dollar] != '$')
            continue;
        const std::size_t nameEnd = SkipWhile(line, dollar + 1, IsAsciiWord);
        if (nameEnd == dollar + 1)
            continue;
        const std::size_t symbol = SkipWhile(line, nameEnd, IsSpace);
        const std::size_t symbolEnd = SkipWhile(line, symbol, IsAsciiWord);
        const std::size_t close = SkipWhile(line, symbolEnd, IsSpace);
        if (close == line.size() || line[close] != '}')
            continue;
        const bool isDelimited =
            close + 1 < line.size() && (line[close + 1] == ',' || line[close + 1] == ';');
        return SDirective{line.substr(open, close + 1 - open), line.substr(symbol, symbolEnd - symbol),
                          line.substr(close + 1, isDelimited ? 1 : 0)};
    }
    return std::nullopt;
}

bool DirectiveHolds(const SDirective& directive, std::string_view word)
{
    const std::string_view text = directive.text;
    return std::search(text.begin(), text.end(), word.begin(), word.end(),
                       [](char a, char b) { return AsciiUpper(a) == b; }) != text.end();
}

Lines ResolveDirectives(const Lines& lines)
{
    return CResolver().Resolve(lines);
}

Lines DirectiveLines(std::string_view text, std::uint32_t sourceLine)
{
    Lines lines;
    CSourceLines source(text);
    for (SSourceLine line; source.NextFilled(line);)
        lines.push_back({line.text, sourceLine});
    return lines;
}

Uve::U8CString SplitAtBraces(std::string_view line)
{
    std::string split;
    split.reserve(line.size() + line.size() / 4);
    for (const char byte : line) {
        if (byte == '{')
            split += '\n';
        split += byte;
        if (byte == '}')
            split += '\n';
    }
    split.erase(split.find_last_not_of('\n') + 1);
    split.erase(0, split.find_first_not_of('\n'));
    return split;
}

void ProcessMultiLineDirective(Uve::U8CString& text, bool singleLine)
{
    const Uve::U8CString split = singleLine ? SplitAtBraces(text) : text;
    Uve::U8CString output;
    for (const SDirectiveLine& line : ResolveDirectives(DirectiveLines(split, 0))) {
        if (!singleLine && !output.empty())
            output += '\n';
        output.append(line.text);
    }
    text = std::move(output);
}
