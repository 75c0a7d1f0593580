// Which of the two sets of rule files serves this process: the usual one, or that of an assessment. One flag
// for the whole process, without a lock: it is set while the options are read, before anything is loaded.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

void SetRulesForAssessment(bool isForAssessment);
bool AreRulesForAssessment();

// The name of the folder beside the host's executable: "rules_KEL" for an assessment, otherwise "rules".
Uve::U8CString GetRulesFolder();
