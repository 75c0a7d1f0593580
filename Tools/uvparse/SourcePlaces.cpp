#include "Tools/uvparse/SourcePlaces.h"

#include <algorithm>
#include <utility>

namespace uvparse {

namespace {

// Code points of a long line that are shown before and after the place.
constexpr std::size_t kShownBefore = 60;
constexpr std::size_t kShownBehind = 60;

// In longer lines nothing is looked for: what a pass cuts or joins are lines of columns.
constexpr std::size_t kLongestSearched = 4096;

constexpr std::size_t kMostJoined = 1000;
constexpr std::string_view kBlanks = " \t\r";

bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

} // namespace

std::size_t CountCodePoints(std::string_view text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !IsContinuation(byte); }));
}

std::size_t StepBack(std::string_view text, std::size_t offset, std::size_t count, std::size_t limit)
{
    while (count > 0 && offset > limit) {
        --offset;
        if (!IsContinuation(text[offset]))
            --count;
    }
    return offset;
}

std::size_t StepForward(std::string_view text, std::size_t offset, std::size_t count, std::size_t limit)
{
    while (count > 0 && offset < limit) {
        do
            ++offset;
        while (offset < limit && IsContinuation(text[offset]));
        --count;
    }
    return offset;
}

void CTextPlaces::Advance(std::size_t offset)
{
    for (std::size_t feed = m_Text.find('\n', m_Offset); feed < offset; feed = m_Text.find('\n', m_Offset)) {
        m_Offset = feed + 1;
        ++m_Place.line;
        m_Place.column = 1;
        m_Place.lineStart = m_Offset;
        m_KnowsLineEnd = false;
        if (m_Offset == m_Text.size())
            break;
    }
    m_Place.column += CountCodePoints(m_Text.substr(m_Offset, offset - m_Offset));
    m_Offset = offset;
}

STextPlace CTextPlaces::Find(std::size_t offset)
{
    offset = std::min(offset, m_Text.size());
    if (offset < m_Offset) {
        m_Offset = 0;
        m_Place = {};
        m_KnowsLineEnd = false;
    }
    // Within the line at hand no line feed has to be looked for, however far its end is.
    if (m_KnowsLineEnd && offset <= m_Place.lineEnd) {
        m_Place.column += CountCodePoints(m_Text.substr(m_Offset, offset - m_Offset));
        m_Offset = offset;
        return m_Place;
    }
    Advance(offset);
    m_Place.lineEnd = std::min(m_Text.find('\n', m_Offset), m_Text.size());
    m_KnowsLineEnd = true;
    return m_Place;
}

CSourcePlaces::CSourcePlaces(std::string file, const SPreparation& preparation)
    : m_File(std::move(file)), m_Preparation(preparation), m_Places(preparation.prepared)
{}

void CSourcePlaces::IndexSource()
{
    for (CLineCursor line(m_Preparation.source); !line.IsAtEnd(); line.Next())
        m_SourceStarts.push_back(static_cast<std::size_t>(line.Text().data() - m_Preparation.source.data()));
}

std::string_view CSourcePlaces::SourceLine(std::size_t number)
{
    if (m_SourceStarts.empty())
        IndexSource();
    const std::size_t start = m_SourceStarts[number - 1];
    return m_Preparation.source.substr(start, m_Preparation.source.find('\n', start) - start);
}

void CSourcePlaces::Relate(std::size_t preparedLine, std::string_view prepared)
{
    if (m_RelatedLine == preparedLine)
        return;
    if (m_SourceStarts.empty())
        IndexSource();
    m_Pieces.clear();
    m_RelatedLine = preparedLine;
    m_RelatedSource = m_Preparation.lines.SourceLineOf(preparedLine);
    if (m_RelatedSource && *m_RelatedSource > m_SourceStarts.size())
        m_RelatedSource.reset();
    if (!m_RelatedSource)
        return;
    const std::string_view source = SourceLine(*m_RelatedSource);
    if (source == prepared) {
        m_Pieces.push_back({0, prepared.size(), *m_RelatedSource, source, 0});
        return;
    }
    const std::size_t begin = prepared.find_first_not_of(' ');
    if (begin == std::string_view::npos)
        return;
    const std::string_view core = prepared.substr(begin, prepared.find_last_not_of(' ') + 1 - begin);
    const std::size_t at = source.size() > kLongestSearched ? std::string_view::npos : source.find(core);
    if (at == std::string_view::npos)
        RelateJoined(preparedLine, prepared, *m_RelatedSource);
    else if (source.find(core, at + 1) == std::string_view::npos) // in two places it would say nothing
        m_Pieces.push_back({begin, core.size(), *m_RelatedSource, source, at});
}

// A joined line is made of its source lines without the sign at their ends, and with any blanks between.
void CSourcePlaces::RelateJoined(std::size_t preparedLine, std::string_view prepared, std::size_t sourceLine)
{
    const std::size_t next = m_Preparation.lines.SourceLineOf(preparedLine + 1).value_or(sourceLine + 1);
    const std::size_t end = std::min({next, m_SourceStarts.size() + 1, sourceLine + kMostJoined});
    std::size_t at = 0;
    for (; sourceLine < end; ++sourceLine) {
        const std::string_view source = SourceLine(sourceLine);
        if (source.size() > kLongestSearched)
            return;
        const std::size_t begin = source.find_first_not_of(kBlanks);
        if (begin == std::string_view::npos)
            continue;
        at = std::min(prepared.find_first_not_of(kBlanks, at), prepared.size());
        std::string_view core = source.substr(begin, source.find_last_not_of(kBlanks) + 1 - begin);
        if (!prepared.substr(at).starts_with(core)) {
            core.remove_suffix(1);
            core = core.substr(0, core.find_last_not_of(kBlanks) + 1);
            if (core.empty() || !prepared.substr(at).starts_with(core))
                return;
        }
        m_Pieces.push_back({at, core.size(), sourceLine, source, begin});
        at += core.size();
    }
}

const CSourcePlaces::SPiece* CSourcePlaces::PieceAt(std::size_t preparedByte) const
{
    const auto behind =
        std::upper_bound(m_Pieces.begin(), m_Pieces.end(), preparedByte,
                         [](std::size_t byte, const SPiece& piece) { return byte < piece.preparedBegin; });
    if (behind == m_Pieces.begin() || preparedByte - behind[-1].preparedBegin > behind[-1].size)
        return nullptr;
    return &behind[-1];
}

std::string CSourcePlaces::PreparedName() const
{
    return "the text that " + m_Preparation.pass + " prepared";
}

// Where the lines begin alike the column has been counted already; the line may be a long one.
std::size_t CSourcePlaces::ColumnIn(const SPiece& piece, std::size_t sourceByte, const STextPlace& prepared)
{
    if (piece.preparedBegin == 0 && piece.sourceBegin == 0)
        return prepared.column;
    return CountCodePoints(piece.source.substr(0, sourceByte)) + 1;
}

SLineColumn CSourcePlaces::FindEnd(std::size_t offset, std::size_t length)
{
    const std::string_view prepared = m_Preparation.prepared;
    offset = std::min(offset, prepared.size());
    const std::size_t end = offset + std::min(length, prepared.size() - offset);
    if (m_Preparation.pass.empty()) {
        const STextPlace at = m_Places.Find(end);
        return {at.line, at.column};
    }
    // The next piece may begin where this one ends, in another line: the last character tells which is meant.
    const std::size_t last = StepBack(prepared, end, 1, offset);
    const bool isAfterLast = last < end && prepared[last] != '\n';
    const STextPlace at = m_Places.Find(last);
    Relate(at.line, prepared.substr(at.lineStart, at.lineEnd - at.lineStart));
    const std::size_t inLine = last - at.lineStart;
    const SPiece* const piece = PieceAt(inLine);
    if (piece == nullptr || (isAfterLast && inLine - piece->preparedBegin == piece->size))
        return {};
    const std::size_t column = ColumnIn(*piece, piece->sourceBegin + (inLine - piece->preparedBegin), at);
    return {piece->sourceLine, column + (isAfterLast ? 1 : 0)};
}

SMessagePlace CSourcePlaces::Find(std::size_t offset)
{
    const std::string_view prepared = m_Preparation.prepared;
    const STextPlace at = m_Places.Find(offset);
    const std::size_t inLine = std::min(offset, prepared.size()) - at.lineStart;
    std::string_view line = prepared.substr(at.lineStart, at.lineEnd - at.lineStart);

    SMessagePlace found;
    found.place.file = m_File;
    std::size_t center = inLine; // bytes into `line`
    bool hasCaret = true;
    if (m_Preparation.pass.empty()) {
        found.place.line = static_cast<int>(at.line);
        found.place.column = static_cast<int>(at.column);
    } else {
        Relate(at.line, line);
        if (const SPiece* const piece = PieceAt(inLine)) {
            found.place.line = static_cast<int>(piece->sourceLine);
            center = piece->sourceBegin + (inLine - piece->preparedBegin);
            found.place.column = static_cast<int>(ColumnIn(*piece, center, at));
            line = piece->source;
        } else if (m_RelatedSource) {
            found.place.line = static_cast<int>(*m_RelatedSource);
            line = SourceLine(*m_RelatedSource);
            center = 0;
            hasCaret = false;
        }
        if (found.place.column == 0)
            found.remark = " (" + std::to_string(at.line) + ':' + std::to_string(at.column) + " in " +
                           PreparedName() + ')';
    }
    const std::size_t begin = StepBack(line, center, kShownBefore, 0);
    const std::size_t end = StepForward(line, center, kShownBehind, line.size());
    found.place.sourceLine = line.substr(begin, end - begin);
    if (hasCaret)
        found.caret = CountCodePoints(line.substr(begin, center - begin));
    return found;
}

SMessagePlace CSourcePlaces::FindLine(std::size_t preparedLine)
{
    SMessagePlace found;
    found.place.file = m_File;
    const std::optional<std::size_t> line = m_Preparation.lines.SourceLineOf(preparedLine);
    if (line)
        found.place.line = static_cast<int>(*line);
    else
        found.remark = " (line " + std::to_string(preparedLine) + " of " + PreparedName() + ')';
    return found;
}

} // namespace uvparse
