#include "Preparation/Formatters/Pascal.h"

#include "Preparation/Formatters/Directives.h"
#include "Preparation/Formatters/LineNotes.h"
#include "Preparation/Formatters/PascalDirectives.h"
#include "Preparation/Formatters/PascalFaithful.h"
#include "Preparation/Formatters/SourceLines.h"

#include <algorithm>
#include <list>
#include <string>
#include <utility>
#include <vector>

namespace {

class CPascalPass
{
public:
    SPreparedText Run(std::string_view source);

private:
    void Take(const SDirectiveLine& line, const SDirective& directive);
    void Rewrite(const SDirectiveLine& line, Uve::U8CString text);
    void Write(const SDirectiveLine& line);

    int m_Depth = 0;
    std::list<SDirectiveLine> m_Block; // the construct that is being gathered
    std::list<Uve::U8CString> m_Texts; // lines of the block that the source doesn't hold
    SPreparedText m_Prepared;
};

void CPascalPass::Write(const SDirectiveLine& line)
{
    m_Prepared.text.append(line.text);
    m_Prepared.text += '\n';
    m_Prepared.sourceLines.push_back(line.sourceLine);
}

void CPascalPass::Rewrite(const SDirectiveLine& line, Uve::U8CString text)
{
    m_Texts.push_back(std::move(text));
    m_Block.splice(m_Block.end(), DirectiveLines(m_Texts.back(), line.sourceLine));
}

void CPascalPass::Take(const SDirectiveLine& line, const SDirective& directive)
{
    // these two spellings alone, unlike those of the directive itself
    const bool endsHere =
        line.text.find("$ENDIF") != line.text.npos || line.text.find("$endif") != line.text.npos;
    if (DirectiveHolds(directive, "$IFDEF") || DirectiveHolds(directive, "$IFNDEF")) {
        if (endsHere) {
            Uve::U8CString text(line.text);
            ProcessMultiLineDirective(text, true);
            Rewrite(line, std::move(text));
        } else {
            ++m_Depth;
            m_Block.push_back(line);
        }
    } else if (DirectiveHolds(directive, "$ELSE")) {
        if (endsHere) {
            Rewrite(line, SplitAtBraces(line.text));
            --m_Depth;
        } else {
            m_Block.push_back(line);
        }
    } else if (DirectiveHolds(directive, "$ENDIF")) {
        --m_Depth;
        m_Block.push_back(line);
    } else if (m_Depth > 0) {
        m_Block.push_back(line);
    } else {
        Write(line);
    }

    if (m_Depth == 0) {
        for (const SDirectiveLine& kept : ResolveDirectives(m_Block))
            Write(kept);
        m_Block.clear();
        m_Texts.clear();
    }
}

SPreparedText CPascalPass::Run(std::string_view source)
{
    m_Prepared.text.reserve(source.size() + 1);
    CSourceLines lines(source);
    for (SSourceLine next; lines.NextFilled(next);) {
        const SDirectiveLine line{next.text, next.number};
        if (const auto directive = FindDirective(line.text))
            Take(line, *directive);
        else if (m_Depth > 0)
            m_Block.push_back(line);
        else
            Write(line);
    }
    return std::move(m_Prepared);
}

void NoteUnbalanced(const std::vector<SPascalDirective>& directives, std::vector<SPreparationNote>& notes)
{
    constexpr std::size_t kMost = 5; // after them one note sums up
    std::size_t count = 0;
    std::uint32_t rest = 0;
    for (const SPascalDirective& directive : directives) {
        const bool isLeftOpen = directive.kind == enPascalDirective::Condition && !directive.isBalanced;
        if (!isLeftOpen && !directive.isStray)
            continue;
        if (++count <= kMost)
            notes.push_back(LineWarning(
                directive.line, std::string(directive.text) +
                                    (isLeftOpen ? " is never closed" : " has no condition before it")));
        else if (rest == 0)
            rest = directive.line;
    }
    if (rest != 0)
        notes.push_back(LineWarning(rest, "from here on " + std::to_string(count - kMost) +
                                              " more directives have no partner"));
}

// The lines that the faithful form keeps and the literal one doesn't.
void NoteVanished(std::string_view source, const SPreparedText& faithful, const SPreparedText& literal,
                  std::vector<SPreparationNote>& notes)
{
    std::vector<std::uint32_t> kept = literal.sourceLines;
    std::ranges::sort(kept);
    CLineNotes vanished("vanished with conditions that the literal form misreads");
    auto expected = faithful.sourceLines.begin();
    CSourceLines lines(source);
    for (SSourceLine line; expected != faithful.sourceLines.end() && lines.Next(line);) {
        if (line.number != *expected)
            continue;
        ++expected;
        if (std::ranges::binary_search(kept, line.number))
            vanished.EndRun();
        else if (!WithoutLeadingBlanks(line.text).empty())
            vanished.Add(line.number);
    }
    vanished.MoveTo(notes);
}

} // namespace

SPreparedText FormatPascal(std::string_view source, const SPascalOptions& options)
{
    const std::vector<SPascalDirective> directives = FindPascalDirectives(source);
    SPreparedText prepared = FormatPascalFaithfully(source, directives);
    std::vector<SPreparationNote> notes;
    NoteUnbalanced(directives, notes);
    if (!options.isFaithful) {
        SPreparedText literal = CPascalPass().Run(source);
        NoteVanished(source, prepared, literal, notes);
        prepared = std::move(literal);
    }
    SortNotes(notes);
    prepared.notes = std::move(notes);
    return prepared;
}
