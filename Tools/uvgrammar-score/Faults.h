// Faults that are put into texts, to see what they cost.
#pragma once

#include "Tools/uvgrammar-score/CleanStatements.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace uvscore {

enum class enFault
{
    Deleted, // a token
    Doubled,
    Keyword,     // in its place
    Inserted,    // a keyword before it
    Quote,       // the first or the last one of a quoted token is missing
    DollarQuote, // as $$ or $name$; is missing
    Bracket,     // is missing
    Delimiter    // is missing: the statement and the next one are one text
};
inline constexpr std::size_t kFaults = 8;

const char* NameOf(enFault fault);

struct SEdit
{
    std::size_t begin = 0; // of what goes
    std::size_t end = 0;
    std::string text; // comes in its place

    std::string Apply(std::string whole) const { return whole.replace(begin, end - begin, text); }
};

// The keywords of the statements, each as often as it is there.
std::vector<std::string> KeywordsOf(const std::vector<SCleanStatement>& statements, std::string_view text);

// Puts the fault to a token of the statement, whose places are those of `text`.
// Returns: nothing if no token allows it.
std::optional<SEdit> ChooseEdit(enFault fault, const SCleanStatement& statement, std::string_view text,
                                const std::vector<std::string>& keywords, CChance& chance);

} // namespace uvscore
