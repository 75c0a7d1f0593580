// Source and prepared text line by line: what a preparation pass did to each.
#pragma once

#include "Tools/uvparse/PreparedLines.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace uvparse {

enum class enLineFate
{
    Unchanged,
    Changed,
    Joined,   // the source line goes on in the prepared line above
    Vanished, // of the source line nothing is left, or a blank line
    Made      // a prepared line that starts no source line
};

// Numbers count from 1; 0 where there is no such line.
struct SLineRow
{
    enLineFate fate = enLineFate::Unchanged;
    std::size_t sourceNumber = 0;
    std::size_t preparedNumber = 0;
    std::string_view source;
    std::string_view prepared;
};

using TRowSink = std::function<void(const SLineRow&)>;

// Gives every line of both texts once, in order. Lines stand side by side as `lines` tells; where it tells
// nothing, equal lines that are near each other meet. Which of the source lines without a prepared line went
// on in the line above is told by their words. Time is linear, and nothing is kept but some lines ahead.
void AlignLines(std::string_view source, std::string_view prepared, const CPreparedLines& lines,
                const TRowSink& sink);

} // namespace uvparse
