// Reading a command line, in the same way in every tool.
#pragma once

#include <stdexcept>

namespace boost::program_options {
class options_description;
class positional_options_description;
class variables_map;
} // namespace boost::program_options

// The command line makes no sense; the text says why.
class CUsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Options as Unix has them, which nobody may shorten; what is no option goes where `positions` says. The variables
// that `options` name are written.
// Throws: CUsageError.
boost::program_options::variables_map
ReadToolOptions(int argc, const char* const* argv, const boost::program_options::options_description& options,
                const boost::program_options::positional_options_description& positions);
