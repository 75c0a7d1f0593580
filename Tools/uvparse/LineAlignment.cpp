#include "Tools/uvparse/LineAlignment.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <optional>
#include <utility>

namespace uvparse {

namespace {

// How many words of a line are looked for, and how far beyond the line's own length: the work stays in
// proportion to the line.
constexpr int kWordsLookedFor = 16;
constexpr std::size_t kWordReach = 256;

// How many lines ahead equal lines may meet when nothing else is known.
constexpr std::size_t kLinesAhead = 64;

bool IsBlank(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool IsBlankLine(std::string_view line)
{
    return std::all_of(line.begin(), line.end(), IsBlank);
}

bool IsWordByte(char byte)
{
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           byte == '_' || static_cast<unsigned char>(byte) >= 0x80;
}

template <class Belongs>
std::string_view TakePiece(std::string_view& rest, Belongs belongs)
{
    const auto begin = std::find_if(rest.begin(), rest.end(), belongs);
    const auto end = std::find_if_not(begin, rest.end(), belongs);
    const std::string_view piece =
        rest.substr(static_cast<std::size_t>(begin - rest.begin()), static_cast<std::size_t>(end - begin));
    rest.remove_prefix(static_cast<std::size_t>(end - rest.begin()));
    return piece;
}

// Follows the source lines that went into one prepared line.
class CJoinedText
{
public:
    // `head` is the source line that the prepared one begins with.
    void Start(std::string_view prepared, std::string_view head)
    {
        m_Prepared = prepared;
        m_At = 0;
        m_Head = head;
    }

    // Whether most words of a further source line follow there, or, if it has none, its signs.
    bool Follows(std::string_view source)
    {
        if (!m_Head.empty())
            Pass(std::exchange(m_Head, {}));
        return Pass(source);
    }

private:
    struct SCount
    {
        int sought = 0;
        int found = 0;
    };

    bool Pass(std::string_view source)
    {
        const std::size_t from = m_At;
        SCount words = PassPieces(source, IsWordByte);
        if (words.sought == 0)
            words = PassPieces(source, [](char byte) { return !IsBlank(byte); });
        if (words.sought > 0 && words.found * 2 >= words.sought)
            return true;
        m_At = from;
        return false;
    }

    template <class Belongs>
    SCount PassPieces(std::string_view source, Belongs belongs)
    {
        SCount count;
        const std::string_view reach = m_Prepared.substr(0, m_At + source.size() + kWordReach);
        for (; count.sought < kWordsLookedFor; ++count.sought) {
            const std::string_view piece = TakePiece(source, belongs);
            if (piece.empty())
                return count;
            const std::size_t at = reach.find(piece, m_At);
            if (at == std::string_view::npos)
                continue;
            m_At = at + piece.size();
            ++count.found;
        }
        // The rest of a long line stands after its first words; blanks of it may be gone.
        if (source.size() > kWordReach)
            m_At = std::min(m_At + source.size() - kWordReach, m_Prepared.size());
        return count;
    }

    std::string_view m_Prepared;
    std::string_view m_Head; // empty once it is passed
    std::size_t m_At = 0;
};

class CAligner
{
public:
    CAligner(std::string_view source, std::string_view prepared, const TRowSink& sink)
        : m_Source(source), m_Prepared(prepared), m_Sink(sink)
    {}

    void AlignByLines(const CPreparedLines& lines);
    void AlignByContent();

private:
    struct SLine
    {
        std::size_t number;
        std::string_view text;
        std::size_t hash;
    };
    using TAhead = std::deque<SLine>;
    // Lines at the front of what is ahead.
    struct SBlock
    {
        std::size_t source;
        std::size_t prepared;
    };

    void GivePair(std::size_t sourceNumber, std::string_view source, std::size_t preparedNumber,
                  std::string_view prepared);
    void GiveSource(std::size_t number, std::string_view text);
    void GivePrepared(std::size_t number, std::string_view text);
    static void LookAhead(CLineCursor& cursor, TAhead& ahead);
    static bool IsMeeting(const SLine& source, const SLine& prepared);
    static SBlock FindMeeting(const TAhead& source, const TAhead& prepared);
    void GiveBlock(TAhead& source, TAhead& prepared, SBlock block);

    CLineCursor m_Source;
    CLineCursor m_Prepared;
    const TRowSink& m_Sink;
    CJoinedText m_Joined;
};

void CAligner::GivePair(std::size_t sourceNumber, std::string_view source, std::size_t preparedNumber,
                        std::string_view prepared)
{
    const bool isSame = source == prepared;
    const bool isEmptied = !isSame && IsBlankLine(prepared) && !IsBlankLine(source);
    m_Sink({isSame      ? enLineFate::Unchanged
            : isEmptied ? enLineFate::Vanished
                        : enLineFate::Changed,
            sourceNumber, preparedNumber, source, prepared});
    // After a line that is the source's own to its end nothing can have been joined.
    if (isSame)
        m_Joined.Start({}, {});
    else
        m_Joined.Start(prepared, source);
}

void CAligner::GiveSource(std::size_t number, std::string_view text)
{
    const bool isJoined = m_Joined.Follows(text);
    m_Sink({isJoined ? enLineFate::Joined : enLineFate::Vanished, number, 0, text, {}});
}

void CAligner::GivePrepared(std::size_t number, std::string_view text)
{
    m_Sink({enLineFate::Made, 0, number, {}, text});
    m_Joined.Start(text, {});
}

void CAligner::AlignByLines(const CPreparedLines& lines)
{
    for (; !m_Prepared.IsAtEnd(); m_Prepared.Next()) {
        const std::optional<std::size_t> line = lines.SourceLineOf(m_Prepared.Number());
        if (!line || m_Source.IsAtEnd() || *line < m_Source.Number()) {
            GivePrepared(m_Prepared.Number(), m_Prepared.Text());
            continue;
        }
        for (; !m_Source.IsAtEnd() && m_Source.Number() < *line; m_Source.Next())
            GiveSource(m_Source.Number(), m_Source.Text());
        if (m_Source.IsAtEnd()) {
            GivePrepared(m_Prepared.Number(), m_Prepared.Text());
            continue;
        }
        GivePair(m_Source.Number(), m_Source.Text(), m_Prepared.Number(), m_Prepared.Text());
        m_Source.Next();
    }
    for (; !m_Source.IsAtEnd(); m_Source.Next())
        GiveSource(m_Source.Number(), m_Source.Text());
}

void CAligner::LookAhead(CLineCursor& cursor, TAhead& ahead)
{
    for (; ahead.size() < kLinesAhead && !cursor.IsAtEnd(); cursor.Next())
        ahead.push_back({cursor.Number(), cursor.Text(), std::hash<std::string_view>()(cursor.Text())});
}

void CAligner::GiveBlock(TAhead& source, TAhead& prepared, SBlock block)
{
    for (; block.source > 0 && block.prepared > 0; --block.source, --block.prepared) {
        GivePair(source.front().number, source.front().text, prepared.front().number, prepared.front().text);
        source.pop_front();
        prepared.pop_front();
    }
    for (; block.source > 0; --block.source, source.pop_front())
        GiveSource(source.front().number, source.front().text);
    for (; block.prepared > 0; --block.prepared, prepared.pop_front())
        GivePrepared(prepared.front().number, prepared.front().text);
}

bool CAligner::IsMeeting(const SLine& source, const SLine& prepared)
{
    // Blank lines are too common to mean anything.
    return source.hash == prepared.hash && source.text == prepared.text && !IsBlankLine(source.text);
}

// How many lines stand before the nearest pair of equal lines, on either side.
CAligner::SBlock CAligner::FindMeeting(const TAhead& source, const TAhead& prepared)
{
    const std::size_t farthest = source.size() + prepared.size() - 2;
    for (std::size_t sum = 0; sum <= farthest; ++sum) {
        const std::size_t first = sum < prepared.size() ? 0 : sum - prepared.size() + 1;
        for (std::size_t at = first; at <= sum && at < source.size(); ++at)
            if (IsMeeting(source[at], prepared[sum - at]))
                return {at, sum - at};
    }
    // The farther half stays: it may meet what comes.
    return {(source.size() + 1) / 2, (prepared.size() + 1) / 2};
}

void CAligner::AlignByContent()
{
    TAhead source;
    TAhead prepared;
    while (true) {
        LookAhead(m_Source, source);
        LookAhead(m_Prepared, prepared);
        if (source.empty() || prepared.empty())
            break;
        const bool isSame =
            source.front().hash == prepared.front().hash && source.front().text == prepared.front().text;
        GiveBlock(source, prepared, isSame ? SBlock{1, 1} : FindMeeting(source, prepared));
    }
    GiveBlock(source, prepared, {source.size(), prepared.size()});
    for (; !m_Source.IsAtEnd(); m_Source.Next())
        GiveSource(m_Source.Number(), m_Source.Text());
    for (; !m_Prepared.IsAtEnd(); m_Prepared.Next())
        GivePrepared(m_Prepared.Number(), m_Prepared.Text());
}

} // namespace

void AlignLines(std::string_view source, std::string_view prepared, const CPreparedLines& lines,
                const TRowSink& sink)
{
    CAligner aligner(source, prepared, sink);
    if (lines.IsKnown())
        aligner.AlignByLines(lines);
    else
        aligner.AlignByContent();
}

} // namespace uvparse
