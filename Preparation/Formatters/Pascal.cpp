#include "Preparation/Formatters/Pascal.h"

#include "Preparation/Formatters/Directives.h"
#include "Preparation/Formatters/SourceLines.h"

#include <list>
#include <string>
#include <utility>

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

} // namespace

SPreparedText FormatPascal(std::string_view source)
{
    return CPascalPass().Run(source);
}
