// Where in the source a message belongs that is about the prepared text.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvparse/FilePlaces.h"
#include "Tools/uvparse/PreparedLines.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

struct STextPlace
{
    std::size_t line = 1;   // from 1
    std::size_t column = 1; // code points, from 1
    std::size_t lineStart = 0;
    std::size_t lineEnd = 0; // without the line feed
};

// Lines and columns of byte offsets. Asking by ascending offset walks the text once, however long its lines
// are.
class CTextPlaces
{
public:
    explicit CTextPlaces(std::string_view text) : m_Text(text) {}

    // An offset beyond the text counts as its end.
    STextPlace Find(std::size_t offset);

private:
    void Advance(std::size_t offset);

    std::string_view m_Text;
    std::size_t m_Offset = 0;
    STextPlace m_Place;
    bool m_KnowsLineEnd = false;
};

// The code points that begin in `text`.
std::size_t CountCodePoints(std::string_view text);

// The offset `count` code points before `offset`, not before `limit`.
std::size_t StepBack(std::string_view text, std::size_t offset, std::size_t count, std::size_t limit);

// The offset `count` code points after `offset`, not after `limit`.
std::size_t StepForward(std::string_view text, std::size_t offset, std::size_t count, std::size_t limit);

// A text as its file has it, and what a pass made of it. The texts are borrowed.
struct SPreparation
{
    std::string_view source;
    std::string_view prepared;
    CPreparedLines lines;
    std::string pass; // empty: nothing changed the lines
};

struct SMessagePlace
{
    SSourcePlace place;               // of the source, its line shown around the place
    std::optional<std::size_t> caret; // code points before the place in the line that is shown
    std::string remark;               // belongs after the message's text where the place alone doesn't tell
};

// Turns offsets into the prepared text into places of the source. The line is the source's own where the
// preparation keeps it. The column is there too where the prepared line stands in the source line, as it is
// or with something cut away, or is several of them joined; elsewhere the line is the one that the prepared
// line begins with, and the remark names line and column of the prepared text. Without a source line the
// prepared one is shown.
class CSourcePlaces
{
public:
    CSourcePlaces(std::string file, const SPreparation& preparation);

    // Offsets in ascending order cost a walk through the text, however long its lines are.
    SMessagePlace Find(std::size_t offset);

    // Where in the source `length` bytes of the prepared text end that begin at `offset`: after their last
    // character, and before the line feed that they may end in. Ends in ascending order cost a walk through
    // the text; an object that Find is called of as well walks anew each time.
    // Returns: no line and no column where either isn't known.
    SLineColumn FindEnd(std::size_t offset, std::size_t length);

    // The place of a whole line of the prepared text.
    SMessagePlace FindLine(std::size_t preparedLine);

private:
    // Bytes of a prepared line that stand in a source line as they are.
    struct SPiece
    {
        std::size_t preparedBegin; // in the prepared line
        std::size_t size;
        std::size_t sourceLine;
        std::string_view source;
        std::size_t sourceBegin; // in `source`, which is the whole line
    };

    void Relate(std::size_t preparedLine, std::string_view prepared);
    void RelateJoined(std::size_t preparedLine, std::string_view prepared, std::size_t sourceLine);
    const SPiece* PieceAt(std::size_t preparedByte) const;
    static std::size_t ColumnIn(const SPiece& piece, std::size_t sourceByte, const STextPlace& prepared);
    std::string_view SourceLine(std::size_t number);
    void IndexSource();
    std::string PreparedName() const;

    std::string m_File;
    const SPreparation& m_Preparation;
    CTextPlaces m_Places;
    std::vector<std::size_t> m_SourceStarts; // of lines; empty until one is asked for
    // Of the prepared line that was looked at last; 0: of none.
    std::size_t m_RelatedLine = 0;
    std::optional<std::size_t> m_RelatedSource;
    std::vector<SPiece> m_Pieces; // ascending
};

} // namespace uvparse
