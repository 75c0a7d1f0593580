// How much of a text one fault costs.
#pragma once

#include "Tools/uvgrammar-score/Faults.h"
#include "Tools/uvgrammar-score/ScoredFile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace uvscore {

// What one fault did.
struct SFaultResult
{
    enFault fault = enFault::Deleted;
    std::size_t others = 0;   // clean statements of the text, apart from those that the fault is in
    std::size_t kept = 0;     // of these, whose trees are as before
    bool isTold = false;      // false: the text is a good one all the same
    std::size_t distance = 0; // tokens between the fault and the message
};

// Puts a fault into `samples` clean statements of the file, one at a time.
std::vector<SFaultResult> TryFaults(CTextParser& parser, const std::string& path, std::size_t samples,
                                    std::uint64_t seed);

// As a text that another process sends, and back again.
std::string WriteFaultResults(const std::vector<SFaultResult>& results);
std::vector<SFaultResult> ReadFaultResults(const std::string& text);

// A line for each kind of fault. Texts that are good in spite of the fault are counted and no more.
std::string RecoveryText(const std::vector<SFaultResult>& results);

} // namespace uvscore
