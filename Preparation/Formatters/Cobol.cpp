#include "Preparation/Formatters/Cobol.h"

#include "Preparation/Formatters/AsciiLetters.h"
#include "Preparation/Formatters/BlankRuns.h"
#include "Preparation/Formatters/CobolFaithful.h"
#include "Preparation/Formatters/LineNotes.h"
#include "Preparation/Formatters/SourceLines.h"
#include "UVEnvironment/UVECharacter.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace {

// `line` itself, or its expanded form, kept in `buffer`.
std::string_view ExpandTabs(std::string_view line, int tabWidth, std::string& buffer)
{
    std::size_t tab = line.find('\t');
    if (tab == line.npos)
        return line;
    const auto width = static_cast<std::size_t>(std::max(tabWidth, 0));
    buffer.clear();
    std::size_t from = 0;
    for (; tab != line.npos; tab = line.find('\t', from)) {
        buffer.append(line, from, tab - from).append(width, ' ');
        from = tab + 1;
    }
    return buffer.append(line, from);
}

// What a continuation line brings: the literal's opening quote is repeated in it.
std::string_view ContinuedText(std::string_view line)
{
    std::string_view text = WithoutLeadingBlanks(line.substr(ColumnOffset(line, kCobolIndicatorColumn + 1)));
    if (text.starts_with('\'') || text.starts_with('"'))
        text.remove_prefix(1);
    return text;
}

class CFixedForm
{
public:
    explicit CFixedForm(const SCobolOptions& options) : m_Options(options) {}

    SPreparedText Run(std::string_view source)
    {
        m_Output.reserve(source.size() + source.size() / 8);
        std::string expanded;
        CSourceLines lines(source);
        for (SSourceLine line; lines.NextFilled(line); m_Previous = line.text)
            Add(ExpandTabs(line.text, m_Options.tabWidth, expanded), line.number);
        AppendFinalLineFeeds(source, lines.Count(), m_Output, m_Prepared.sourceLines);
        m_Prepared.text = std::move(m_Output);
        return std::move(m_Prepared);
    }

private:
    void Add(std::string_view line, std::uint32_t number)
    {
        const std::size_t indicator = ColumnOffset(line, kCobolIndicatorColumn);
        if (indicator == line.size()) {
            AddCode({}, number);
            return;
        }
        const char mark = line[indicator];
        if (mark != '*' && mark != '$')
            line = line.substr(0, ColumnOffset(line, kCobolEndColumn));
        if (IsCobolIncludeLine(line)) {
            BeginLine(number);
            m_Output.append(line);
        } else if (mark == '-') {
            Continue(ContinuedText(line), number);
        } else {
            AddCode(CobolCode(line, indicator, m_Options), number);
        }
    }

    void AddCode(std::string_view code, std::uint32_t number)
    {
        code = WithoutConditionComma(code);
        if (m_Options.removesFormatting && code.empty())
            return;
        BeginLine(number);
        m_Output.append(kCobolMargin);
        if (m_Options.removesFormatting && !code.starts_with('*'))
            m_Output.append(RemoveDuplicatedDelimiters(code));
        else
            m_Output.append(code);
    }

    void Continue(std::string_view text, std::uint32_t number)
    {
        // by the line as it stood: a tab of it counts as one column here
        if (!m_Previous.empty())
            m_Output.append(kCobolEndColumn - CountCharacters(m_Previous, kCobolEndColumn), ' ');
        m_Output.append(text);
        if (m_Prepared.sourceLines.empty() && !m_Output.empty())
            m_Prepared.sourceLines.push_back(number);
    }

    void BeginLine(std::uint32_t number)
    {
        if (!m_Output.empty())
            m_Output += '\n';
        m_Prepared.sourceLines.push_back(number);
    }

    const SCobolOptions& m_Options;
    SPreparedText m_Prepared;
    std::string m_Output;
    std::string_view m_Previous; // the line before, as it stood; empty before the first one
};

// Continuations go to the end of an earlier line, with comments in between. They are kept aside and
// put in at the end, so that the text after that place isn't moved again and again.
class CFreeForm
{
public:
    explicit CFreeForm(const SCobolOptions& options) : m_Options(options) {}

    SPreparedText Run(std::string_view source)
    {
        m_Output.reserve(source.size() + 1);
        std::string expanded;
        CSourceLines lines(source);
        for (SSourceLine line; lines.NextFilled(line);)
            Add(ExpandTabs(line.text, m_Options.tabWidth, expanded), line.number);
        Insert();
        m_Prepared.text = std::move(m_Output);
        return std::move(m_Prepared);
    }

private:
    struct SLineEnd
    {
        std::size_t offset; // before the line feed
        bool isBlank;       // of nothing but blanks; a continuation may make a comment of it
    };

    struct SInsertion
    {
        std::size_t offset; // in m_Output
        std::size_t from;   // in m_Inserted
        std::size_t length;
    };

    void Add(std::string_view line, std::uint32_t number)
    {
        const std::size_t indicator = ColumnOffset(line, kCobolIndicatorColumn);
        const bool isContinuation = indicator != line.size() && line[indicator] == '-';
        if (isContinuation && !m_CodeEnds.empty()) {
            Continue(ContinuedText(line));
            return;
        }
        const std::size_t begin = m_Output.size();
        if (!isContinuation && CountCharacters(line, kCobolIndicatorColumn) == kCobolIndicatorColumn) {
            m_Output.append(kCobolMargin);
            line.remove_prefix(indicator);
        }
        m_Output.append(line);
        const std::string_view added = std::string_view(m_Output).substr(begin);
        if (added.empty())
            return;
        m_Output.resize(begin + WithoutConditionComma(added).size());
        m_Prepared.sourceLines.push_back(number);
        NoteEnd(WithoutLeadingBlanks(std::string_view(m_Output).substr(begin)));
        m_Output += '\n';
    }

    // `code`: the line that has just been written, without leading blanks.
    void NoteEnd(std::string_view code)
    {
        if (code.starts_with('*'))
            return;
        // what is no comment and not blank stays so: nothing above it is looked for any more
        if (!code.empty())
            m_CodeEnds.clear();
        m_CodeEnds.push_back({m_Output.size(), code.empty()});
    }

    void Continue(std::string_view text)
    {
        SLineEnd& line = m_CodeEnds.back();
        m_Insertions.push_back({line.offset, m_Inserted.size(), text.size()});
        m_Inserted.append(text);
        const std::string_view code = WithoutLeadingBlanks(text);
        if (line.isBlank && code.starts_with('*'))
            m_CodeEnds.pop_back();
        else if (!code.empty())
            line.isBlank = false;
    }

    // From the end, so that every piece is moved once and within the text.
    void Insert()
    {
        std::ranges::stable_sort(m_Insertions, {}, &SInsertion::offset);
        std::size_t end = m_Output.size(); // of what hasn't been moved
        std::size_t gap = m_Inserted.size();
        m_Output.resize(end + gap);
        for (auto insertion = m_Insertions.rbegin(); insertion != m_Insertions.rend(); ++insertion) {
            char* const to = m_Output.data() + insertion->offset + gap;
            std::memmove(to, m_Output.data() + insertion->offset, end - insertion->offset);
            std::memcpy(to - insertion->length, m_Inserted.data() + insertion->from, insertion->length);
            gap -= insertion->length;
            end = insertion->offset;
        }
    }

    const SCobolOptions& m_Options;
    SPreparedText m_Prepared;
    std::string m_Output;
    std::string m_Inserted; // the texts of the insertions
    std::vector<SInsertion> m_Insertions;
    std::vector<SLineEnd>
        m_CodeEnds; // the last line that is no comment comes last; below it those that may follow
};

// Lines of nothing but the columns of the number, which hold no number.
void NoteVanished(std::string_view source, enCobolFormat format, std::vector<SPreparationNote>& notes)
{
    CLineNotes vanished("vanished: no text after the columns of the line number");
    CSourceLines lines(source);
    for (SSourceLine line; lines.Next(line);) {
        const std::string_view text = WithoutOuterBlanks(line.text);
        if (text.empty())
            continue;
        const std::size_t characters =
            CountCharacters(WithoutTrailingBlanks(line.text), kCobolIndicatorColumn + 1);
        const bool isGone = format == enCobolFormat::Fixed ? characters <= kCobolIndicatorColumn
                                                           : characters == kCobolIndicatorColumn;
        if (isGone && text.find_first_not_of("0123456789") != text.npos && text.find('\t') == text.npos)
            vanished.Add(line.number);
        else
            vanished.EndRun();
    }
    vanished.MoveTo(notes);
}

} // namespace

bool IsCobolIncludeLine(std::string_view line)
{
    return line.starts_with("-INC") || line.starts_with("ZMEMBER");
}

std::string_view CobolCode(std::string_view line, std::size_t indicator, const SCobolOptions& options)
{
    const char mark = line[indicator];
    std::string_view code = line.substr(indicator);
    if (mark == '*' && !options.savesDebugInfo)
        return code.substr(0, ColumnOffset(code, kCobolEndColumn - kCobolIndicatorColumn));
    const auto letter = Uve::utf8_decode(code.data(), code.data() + CharacterLength(code, 0)).codePoint;
    if (mark != 'D' && mark != 'd' && Uve::UChar::iswalpha(letter))
        code.remove_prefix(CharacterLength(code, 0));
    return code;
}

std::string_view WithoutConditionComma(std::string_view line)
{
    if (!line.ends_with(','))
        return line;
    const std::string_view code = WithoutLeadingBlanks(line);
    if (StartsWithAsciiNoCase(code, "IF "))
        line.remove_suffix(1);
    return line;
}

SPreparedText FormatCobol(const Uve::U8CString& text, const SCobolOptions& options)
{
    SPreparedText prepared;
    if (options.format == enCobolFormat::None) {
        if (!text.empty())
            prepared.notes.push_back(
                TextRefused("COBOLFORMAT " + std::string(options.formatName) + " is no form"));
        return prepared;
    }
    if (options.isFaithful)
        prepared = FormatCobolFaithfully(text, options);
    else
        prepared = options.format == enCobolFormat::Fixed ? CFixedForm(options).Run(text)
                                                          : CFreeForm(options).Run(text);
    NoteVanished(text, options.format, prepared.notes);
    return prepared;
}
