// A tree laid out for reading.
#pragma once

#include "Tools/Support/ToolFiles.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace uvparse {

// Writes `tree` with every element on a line of its own, indented, wherever that leaves texts as they are: in
// elements that hold nothing but elements, comments and processing instructions. An element that has any text
// of its own, blanks included, is written byte for byte with all that is in it. Very deep elements are not
// indented further. No line feed follows the last line.
// Returns: where `tree` turns out not to be well-formed, in bytes, and then nothing has been written.
std::optional<std::size_t> WritePretty(std::string_view tree, const TTextSink& sink);

} // namespace uvparse
