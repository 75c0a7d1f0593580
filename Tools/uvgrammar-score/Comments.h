// Whether a comment may stand wherever a blank may.
#pragma once

#include "Tools/uvgrammar-score/ScoredFile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace uvscore {

// One gap between two tokens in which a comment changes the tree.
struct SCommentChange
{
    std::string before; // the tokens' names
    std::string after;
    std::size_t line = 0; // of the prepared text
    std::string text;     // of the statement, with the comment
};

struct SCommentReport
{
    std::size_t statements = 0;
    std::size_t gaps = 0;
    std::size_t needBlank = 0; // gaps where it has to follow a blank: "-" and "--" are no minus and a comment
    std::vector<SCommentChange> changes;
};

// Puts the comment into each gap of up to `samples` clean statements of the file, and a blank before it where that fails. A
// gap that a blank can't stand in either is none.
SCommentReport TryComments(CTextParser& parser, const std::string& path, const std::string& comment,
                           std::size_t samples, std::uint64_t seed);

// As a text that another process sends, and back again.
std::string WriteCommentReport(const SCommentReport& report);
SCommentReport ReadCommentReport(const std::string& text);

// The reports of all files, by the tokens around the gap.
std::string CommentsText(const std::vector<std::string>& paths, const std::vector<SCommentReport>& reports,
                         std::size_t mostShown);

} // namespace uvscore
