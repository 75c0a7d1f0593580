// The options that the library reads, so that a slip in one is told and not passed over.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace uvparse {

enum class enOptionValue
{
    Text,
    Number, // decimal, from 0
    Truth,  // yes, no, true, false, 1 or 0, in any case of letters
    Word    // one of a few, in any case of letters
};

struct SKnownOption
{
    const char* name;
    enOptionValue value;
    const char* words; // of a Word, separated by blanks; with "=" before them the case of letters counts
};

// By name, ascending.
std::span<const SKnownOption> DatabaseOptions();
std::span<const SKnownOption> ObjectOptions();

class COptionError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Throws: COptionError for a name that is none of `known`, with those that are near it, and for a value of
//         another kind. `flag` is the argument that gave the pairs.
void CheckOptions(const std::vector<std::pair<std::string, std::string>>& pairs,
                  std::span<const SKnownOption> known, const char* flag);

} // namespace uvparse
