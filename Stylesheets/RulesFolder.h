// Which of the two sets of rule files serves this process: the usual one, or that of an assessment. One flag
// for the whole process, which any thread may set and read: it is set while the options are read, before
// anything is loaded, and comes out the same for all parsers of a process unless their options differ.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <optional>
#include <string>

void SetRulesForAssessment(bool isForAssessment);
bool AreRulesForAssessment();

// The canonical path of what is at `path`, if that is a regular file below `folder`, links resolved.
std::optional<std::string> FindFileBelow(const std::string& folder, const std::string& path);

// The name of the folder beside the host's executable: "rules_KEL" for an assessment, otherwise "rules".
Uve::U8CString GetRulesFolder();
