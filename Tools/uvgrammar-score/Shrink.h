// The shortest text that still fails in the same way.
#pragma once

#include "Tools/uvgrammar-score/ScoredFile.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace uvscore {

// A text in pieces, each a word, a quoted text or a character, with the blanks after it.
std::vector<std::string> CutIntoPieces(std::string_view text);

// Leaves out pieces, many at a time at first, as long as `fails` says that the rest still does, and then the blanks that
// are more than one. `fails` is asked `most` times at the most.
std::string ShrinkText(std::string_view text, const std::function<bool(const std::string&)>& fails,
                       std::size_t most);

// The first failing statement of a file, shrunk, under a line that tells the place and the failure.
// Throws: CToolFailure if all statements are clean, or the failure doesn't come again.
std::string ShrinkFirstFailure(CTextParser& parser, const std::string& path);

} // namespace uvscore
