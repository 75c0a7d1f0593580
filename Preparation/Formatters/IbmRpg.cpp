#include "Preparation/Formatters/IbmRpg.h"

#include "Preparation/Formatters/AsciiLetters.h"
#include "Preparation/Formatters/LineNotes.h"
#include "Preparation/Formatters/SourceLines.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kLetterColumn = 5;
constexpr std::size_t kFirstColumn = 6; // of what a specification holds
constexpr std::size_t kEndColumn = 80;  // what comes after it belongs to no piece
constexpr int kBlockClosed = -1;

struct SRpgPiece
{
    std::size_t column = 0; // it goes on up to the next piece; column 0 is none
    std::string_view label;
};

struct SRpgSpecification
{
    char letter;
    std::array<SRpgPiece, 3> pieces;
};

// clang-format off
constexpr SRpgSpecification kWithDefinitions[] = {
    {'F', {{{6, "F"}, {35, "FD"},  {43, "FO"} }}},
    {'D', {{{6, "D"}, {42, "DK"}              }}},
    {'C', {{{6, "C"}, {80, "COM"}             }}},
    {'I', {{{6, "I"}, {80, ""}                }}},
    {'O', {{{6, "O"}, {80, ""}                }}},
    {'P', {{{6, "P"}, {43, "PK"}              }}},
};
constexpr SRpgSpecification kOlder[] = {
    {'F', {{{6, "F"}, {39, "FD"},  {72, "FO"} }}},
    {'C', {{{6, "C"}, {59, "COM"}             }}},
    {'I', {{{6, "I"}, {42, "IF"},  {74, "COM"}}}},
    {'O', {{{6, "O"}, {37, "OF"},  {74, "COM"}}}},
};
// clang-format on

struct SRpgLayout
{
    std::span<const SRpgSpecification> specifications;
    std::string_view copiedLetters; // specifications that go out as they stand
    std::string_view commentMarks;  // at the first column
    std::string_view copyingBegins; // at the first column: lines go out as they stand ...
    std::string_view copyingEnds;   // ... up to this one
    bool isCopyingByCalculations;   // only C lines begin and end that
    bool hasCompileTimeData;        // from a line on that begins with "*"
    bool hasFreeForm;               // lines without a letter are statements
    std::size_t operationAt;        // in the first piece of a C line
};

constexpr SRpgLayout kLayouts[] = {
    {kWithDefinitions, "H", "*/", "/FREE", "/END-FREE", false, true, true, 20},
    {kOlder, "HEL", "*", "/EXEC SQL", "/END-EXEC", true, false, false, 22},
};

const SRpgLayout* FindLayout(int number)
{
    switch (number) {
    case kRpgLayoutWithDefinitions:
        return &kLayouts[0];
    case kRpgLayoutOlder:
        return &kLayouts[1];
    default:
        return nullptr;
    }
}

class CRpgPass
{
public:
    CRpgPass(const SRpgLayout& layout, const SIbmRpgOptions& options, std::size_t sourceSize)
        : m_Layout(layout), m_LayoutNumber(options.layout), m_IsFaithful(options.isFaithful)
    {
        m_Text.reserve(sourceSize + sourceSize / 4);
    }

    void Take(const SSourceLine& line);

    SPreparedText Finish()
    {
        Flush();
        m_Vanished.MoveTo(m_Prepared.notes);
        m_Prepared.text = std::move(m_Text);
        return std::move(m_Prepared);
    }

private:
    void Write(std::string_view text, std::uint32_t number)
    {
        m_Vanished.EndRun();
        m_Text.append(text);
        m_Text += '\n';
        m_Prepared.sourceLines.push_back(number);
    }

    // The rows of a line wait until the next one is looked at: lines of compile-time data overtake them, and
    // only then is it said how the line ended.
    void Flush();
    bool SwitchCopying(std::string_view line);
    bool CopyData(const SSourceLine& line);
    // Nothing of the line is in the prepared text.
    void Drop(const SSourceLine& line);
    // Where a column begins, in bytes.
    std::size_t Offset(std::string_view line, std::size_t column) const
    {
        return m_IsFaithful ? ColumnOffset(line, column) : std::min(column, line.size());
    }
    void Cut(std::string_view line, const SRpgSpecification& specification);

    const SRpgLayout& m_Layout;
    int m_LayoutNumber;
    bool m_IsFaithful;
    SPreparedText m_Prepared;
    std::string m_Text;
    std::vector<std::string> m_Rows;
    std::uint32_t m_RowsLine = 0;
    int m_Depth = 0;
    bool m_IsCompileTimeData = false;
    bool m_IsCopying = false;
    CLineNotes m_Vanished{"vanished: the letter of the line is unknown, or there is none"};
};

void CRpgPass::Flush()
{
    if (!m_Rows.empty()) {
        for (const std::string& row : m_Rows)
            Write(row, m_RowsLine);
        Write(m_Depth == kBlockClosed ? "#" : "$", m_RowsLine);
        m_Rows.clear();
    }
    if (m_Depth == kBlockClosed)
        m_Depth = 0;
}

// Returns: true if the line belongs to what is copied. `line` has a column 6, or ends there.
bool CRpgPass::SwitchCopying(std::string_view line)
{
    const bool canSwitch =
        !m_Layout.isCopyingByCalculations || AsciiUpper(line[Offset(line, kLetterColumn)]) == 'C';
    const std::string_view fields = line.substr(Offset(line, kFirstColumn));
    if (m_IsCopying) {
        m_IsCopying = !(canSwitch && StartsWithAsciiNoCase(fields, m_Layout.copyingEnds));
        return true;
    }
    m_IsCopying = canSwitch && StartsWithAsciiNoCase(fields, m_Layout.copyingBegins);
    return m_IsCopying;
}

void CRpgPass::Cut(std::string_view line, const SRpgSpecification& specification)
{
    for (std::size_t i = 0; i < specification.pieces.size(); ++i) {
        const SRpgPiece& piece = specification.pieces[i];
        const std::size_t begin = Offset(line, piece.column);
        if (piece.column == 0 || begin == line.size())
            break;
        const bool isLast = i + 1 == specification.pieces.size() || specification.pieces[i + 1].column == 0;
        const std::size_t end = Offset(line, isLast ? kEndColumn : specification.pieces[i + 1].column);
        std::string row(piece.label);
        if (begin < end)
            row.append(line.substr(begin, end - begin));
        m_Rows.push_back(std::move(row));
    }
    if (specification.letter == 'C')
        format_section(m_Rows.front(), m_LayoutNumber, m_Depth, m_IsFaithful);
}

// Returns: true if the line is data, or of a source that has no columns.
bool CRpgPass::CopyData(const SSourceLine& line)
{
    const std::string_view text = line.text;
    if (!m_Layout.hasCompileTimeData)
        return false;
    if (m_IsFaithful) {
        m_IsCompileTimeData = m_IsCompileTimeData || text.starts_with("**");
        if (m_IsCompileTimeData)
            Flush();
        if (m_IsCompileTimeData)
            Write(text, line.number);
        return m_IsCompileTimeData;
    }
    if (text.size() < kFirstColumn)
        return false;
    m_IsCompileTimeData = m_IsCompileTimeData || text.front() == '*';
    if (!m_IsCompileTimeData || text.size() == kFirstColumn)
        return false;
    Write(text, line.number);
    return true;
}

void CRpgPass::Drop(const SSourceLine& line)
{
    // a line's number says nothing
    if (!WithoutLeadingBlanks(line.text.substr(m_IsCompileTimeData ? 0 : Offset(line.text, kLetterColumn)))
             .empty())
        m_Vanished.Add(line.number);
}

void CRpgPass::Take(const SSourceLine& line)
{
    const std::string_view text = line.text;
    if (CopyData(line))
        return;
    const std::size_t letterAt = Offset(text, kLetterColumn);
    if (letterAt == text.size()) {
        Drop(line);
        return;
    }
    Flush();

    const char letter = AsciiUpper(text[letterAt]);
    const auto specification = std::ranges::find(m_Layout.specifications, letter, &SRpgSpecification::letter);
    const bool isCut = specification != m_Layout.specifications.end();
    const bool isCopied = m_Layout.copiedLetters.find(letter) != std::string_view::npos;
    const bool isKnown = isCut || isCopied;
    const std::size_t first = Offset(text, kFirstColumn);
    if (first == text.size() && isKnown) {
        if (m_IsCompileTimeData)
            Drop(line);
        return;
    }
    if (SwitchCopying(text)) {
        Write(text.substr(letterAt), line.number);
        return;
    }
    if (first == text.size()) {
        Drop(line);
        return;
    }
    // without columns: the fields of a line that has them begin where this has a blank
    const bool isFreeForm = m_IsFaithful && m_Layout.hasFreeForm && letter == ' ' && text[first] == ' ' &&
                            !WithoutLeadingBlanks(text.substr(first)).empty();
    if (isCopied || isFreeForm || m_Layout.commentMarks.find(text[first]) != std::string_view::npos) {
        std::string copy(text.substr(first));
        copy.insert(copy.begin(), isKnown ? letter : ' ');
        Write(copy, line.number);
    } else if (isCut) {
        m_RowsLine = line.number;
        m_Vanished.EndRun();
        Cut(text, *specification);
    } else {
        Drop(line);
    }
}

} // namespace

void format_section(std::string& piece, int layout, int& depth, bool countsCharacters)
{
    const SRpgLayout* const columns = FindLayout(layout);
    if (columns == nullptr)
        return;
    const std::size_t at =
        countsCharacters ? ColumnOffset(piece, columns->operationAt) : columns->operationAt;
    if (piece.size() <= at)
        return;
    const std::string_view operation = std::string_view(piece).substr(at);
    const auto starts = [&](std::string_view word) { return StartsWithAsciiNoCase(operation, word); };
    if (starts("IF") || starts("DO") || starts("CAS") || starts("SELEC") || starts("BEGSR")) {
        ++depth;
        piece.insert(at, "VelmoraBeg");
    } else if (starts("END")) {
        depth = depth == 1 ? kBlockClosed : depth - 1;
        piece.insert(at, "VelmoraEnd");
    }
}

SPreparedText FormatIbmRpg(std::string_view source, const SIbmRpgOptions& options)
{
    const SRpgLayout* const layout = FindLayout(options.layout);
    if (layout == nullptr) {
        SPreparedText prepared;
        if (!source.empty())
            prepared.notes.push_back(TextRefused("IBMRPG_VERSION names no column layout"));
        return prepared;
    }
    CRpgPass pass(*layout, options, source.size());
    CSourceLines lines(source);
    for (SSourceLine line; lines.Next(line);)
        pass.Take(line);
    return pass.Finish();
}
