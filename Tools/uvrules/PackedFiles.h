// The commands about packed files.
#pragma once

#include "Tools/uvrules/CommandLine.h"

#include <string>

class CToolMessages;

namespace uvrules {

// What `content`, the bytes of a rule file read from `path`, holds: itself unless it is packed.
// Throws: CBadInput if it is packed and damaged.
std::string PlainContent(const std::string& path, std::string content);

// The three answer the exit code.
// Throws: CToolFailure for files that can't be read or written. With several files Pack goes on after it.
int Pack(const SCommandLine& line, CToolMessages& messages);
int Unpack(const SCommandLine& line, CToolMessages& messages);
int Show(const SCommandLine& line, CToolMessages& messages);

} // namespace uvrules
