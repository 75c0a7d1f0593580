// Reading the texts to be parsed.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/FilePlaces.h"

#include <cstddef>
#include <optional>
#include <string>

namespace uvparse {

// How the bytes of a source are to be read.
struct SSourceForm
{
    std::string encoding; // by iconv's name; empty: a byte order mark decides, and what has none is UTF-8
    std::size_t recordLength = 0; // bytes of a record, each of which is a line; 0: the text has line ends
};

struct SSourceText
{
    std::string text; // UTF-8, without a byte order mark
    SFileBytes bytes; // how it lies in the file
};

// The bytes of a source are no text. The message is that of a CToolFailure, with the name before it.
class CSourceRefusal : public CToolFailure
{
public:
    CSourceRefusal(const std::string& message, std::optional<std::size_t> fileOffset, SLineColumn place)
        : CToolFailure(message), m_FileOffset(fileOffset), m_Place(place)
    {}

    // Of the first byte that is wrong; nothing if only the decoded text tells it.
    std::optional<std::size_t> FileOffset() const { return m_FileOffset; }
    // Where it stands; no line if the text before it isn't known.
    SLineColumn Place() const { return m_Place; }

private:
    std::optional<std::size_t> m_FileOffset;
    SLineColumn m_Place;
};

// The whole of a file, a pipe, or standard input ("-") as UTF-8 without its byte order mark. The line ends of
// mainframes, NEL and NL, become line feeds where the encoding is of the EBCDIC family; CR LF stays. Reading
// stops at the first NUL, since what never ends is full of them.
// Throws: CToolFailure if it can't be read, CSourceRefusal if it isn't text.
SSourceText ReadSourceText(const std::string& path, const SSourceForm& form);

// The same for bytes at hand; `name` is what messages call them. The text can't hold a NUL: the parser would
// take it for the end. A byte order mark that isn't the encoding's is refused: one of both must be wrong. So
// are bytes that are no whole number of records.
// Throws: CSourceRefusal with the offset into `bytes`; CToolFailure if there is no such encoding.
SSourceText DecodeSourceText(std::string bytes, const std::string& name, const SSourceForm& form = {});

// The text as an ordinary parse sees it: a zero-width space counts as a blank. A raw parse sees the text as
// it stands.
std::string PreparedText(std::string text);

} // namespace uvparse
