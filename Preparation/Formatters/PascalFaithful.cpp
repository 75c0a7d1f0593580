#include "Preparation/Formatters/PascalFaithful.h"

#include "Preparation/Formatters/AsciiLetters.h"
#include "Preparation/Formatters/Directives.h"
#include "Preparation/Formatters/SourceLines.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

struct SRange
{
    std::size_t begin;
    std::size_t end;
};

// Finds what goes, going through the directives once.
class CDecisions
{
public:
    explicit CDecisions(const std::vector<SPascalDirective>& directives) : m_Directives(directives)
    {
        const auto symbols = DefinedPascalSymbols();
        m_Defined.assign(symbols.begin(), symbols.end());
    }

    // Returns: ranges of bytes, ascending, that don't touch each other.
    std::vector<SRange> Run()
    {
        for (const SPascalDirective& directive : m_Directives) {
            if (!IsLive())
                Remove(m_LiveEnd, directive.begin);
            if (directive.kind == enPascalDirective::Undefine)
                Undefine(directive);
            else if (directive.isBalanced)
                Take(directive);
            else
                Keep(directive, IsLive());
            m_LiveEnd = directive.end;
        }
        return std::move(m_Removed);
    }

private:
    struct SConstruct
    {
        bool isUndecided; // its directives stay, and all of its branches
        bool isTaken;     // one of its branches is the one that counts
        bool isLive;      // the current branch
        bool isNestedInDead;
    };

    bool IsLive() const { return m_Open.empty() || m_Open.back().isLive; }

    void Remove(std::size_t begin, std::size_t end)
    {
        if (!m_Removed.empty() && m_Removed.back().end == begin)
            m_Removed.back().end = end;
        else if (begin != end)
            m_Removed.push_back({begin, end});
    }

    void Keep(const SPascalDirective& directive, bool isKept)
    {
        if (!isKept)
            Remove(directive.begin, directive.end);
    }

    void Undefine(const SPascalDirective& directive)
    {
        Keep(directive, IsLive());
        if (IsLive())
            std::erase_if(m_Defined,
                          [&](std::string_view name) { return EqualsAsciiNoCase(directive.symbol, name); });
    }

    bool IsDefined(std::string_view symbol) const
    {
        return std::ranges::any_of(m_Defined,
                                   [&](std::string_view name) { return EqualsAsciiNoCase(symbol, name); });
    }

    void Take(const SPascalDirective& directive)
    {
        if (directive.kind == enPascalDirective::Condition) {
            Begin(directive);
            return;
        }
        SConstruct& construct = m_Open.back();
        if (directive.kind == enPascalDirective::End) {
            Keep(directive, construct.isUndecided);
            m_Open.pop_back();
        } else if (construct.isUndecided || construct.isNestedInDead) {
            Keep(directive, construct.isUndecided);
        } else if (directive.kind == enPascalDirective::ElseIf && !construct.isTaken) {
            Remove(directive.nameBegin, directive.nameBegin + std::string_view("ELSE").size());
            construct.isUndecided = construct.isLive = true;
        } else {
            Keep(directive, false);
            construct.isLive = !construct.isTaken;
            construct.isTaken = true;
        }
    }

    void Begin(const SPascalDirective& directive)
    {
        if (!IsLive()) {
            Keep(directive, false);
            m_Open.push_back({false, true, false, true});
        } else if (directive.condition == enSymbolCondition::None || !IsDefined(directive.symbol)) {
            m_Open.push_back({true, false, true, false});
        } else {
            const bool isTaken = directive.condition == enSymbolCondition::IsDefined;
            Keep(directive, false);
            m_Open.push_back({false, isTaken, isTaken, false});
        }
    }

    const std::vector<SPascalDirective>& m_Directives;
    std::vector<std::string_view> m_Defined;
    std::vector<SConstruct> m_Open;
    std::vector<SRange> m_Removed;
    std::size_t m_LiveEnd = 0; // after the last directive
};

bool IsBlank(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

// A directive separates words and signs. Would its going make one of two?
bool WouldMerge(std::string_view before, std::string_view after)
{
    return !before.empty() && !after.empty() && !IsBlank(before.back()) && !IsBlank(after.front()) &&
           IsAsciiWord(before.back()) == IsAsciiWord(after.front());
}

class CLineWriter
{
public:
    explicit CLineWriter(const std::vector<SRange>& removed) : m_Removed(removed), m_Next(removed.begin()) {}

    SPreparedText Run(std::string_view source)
    {
        std::string kept;
        std::string text;
        text.reserve(source.size() + 1);
        SPreparedText prepared;
        CSourceLines lines(source);
        for (SSourceLine line; lines.NextFilled(line);) {
            const auto begin = static_cast<std::size_t>(line.text.data() - source.data());
            if (const bool isWhole = !Cut(line.text, begin, kept);
                !isWhole && WithoutLeadingBlanks(kept).empty())
                continue;
            text += kept;
            text += '\n';
            prepared.sourceLines.push_back(line.number);
        }
        prepared.text = std::move(text);
        return prepared;
    }

private:
    // Returns: true if something of the line goes.
    bool Cut(std::string_view line, std::size_t begin, std::string& kept)
    {
        const std::size_t end = begin + line.size();
        kept.clear();
        bool isCut = false;
        std::size_t at = begin;
        while (m_Next != m_Removed.end() && m_Next->begin < end) {
            if (m_Next->end <= begin) {
                ++m_Next;
                continue;
            }
            isCut = true;
            Append(line.substr(at - begin, std::max(m_Next->begin, at) - at), kept);
            at = std::min(m_Next->end, end);
            if (m_Next->end > end)
                break; // it goes on in the next line
            ++m_Next;
        }
        Append(line.substr(at - begin), kept);
        return isCut;
    }

    static void Append(std::string_view piece, std::string& kept)
    {
        if (WouldMerge(kept, piece))
            kept += ' ';
        kept.append(piece);
    }

    const std::vector<SRange>& m_Removed;
    std::vector<SRange>::const_iterator m_Next;
};

} // namespace

SPreparedText FormatPascalFaithfully(std::string_view source, const std::vector<SPascalDirective>& directives)
{
    const std::vector<SRange> removed = CDecisions(directives).Run();
    return CLineWriter(removed).Run(source);
}
