#pragma once

#include "Tools/Support/ToolExitCodes.h"

#include <stdexcept>

namespace uvrules {

// The work can be done, but something is wrong with what it is to be done on. main turns it into a message
// and kToolFindings.
class CBadInput : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace uvrules
