// Source and prepared text side by side, and the way back from a prepared line to its source line.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/PreparedLines.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace uvparse {

struct SDiffLook
{
    std::size_t width = 130; // cells of a line; too few are made up to what the layout needs
    bool isColored = false;
    std::string sourceTitle = {};
    std::string preparedTitle = {};
};

// Writes a line of titles and then a row for each line, source to the left, prepared text to the right, each
// after its line number. A sign between them tells what happened:
//
//     blank  nothing
//     |      the line was changed
//     &      the source line goes on in the prepared line above
//     <      the source line has vanished, or a blank one has taken its place
//     >      the prepared line starts no source line
//
// Lines that are too long are cut, with an ellipsis as the last sign. Time is linear, and `sink` gets the
// rows as they are made.
void WriteDiff(std::string_view source, std::string_view prepared, const CPreparedLines& lines,
               const SDiffLook& look, const TTextSink& sink);

// Writes a line for each prepared line, after `prefix`: its number, a tab and the number of its source line,
// or with `isText` the number of its source line, a colon and the line itself. "-" stands for a source line
// that isn't known.
void WriteLines(std::string_view prepared, const CPreparedLines& lines, const std::string& prefix,
                bool isText, const TTextSink& sink);

} // namespace uvparse
