#pragma once

// Whether the library works for an assessment wizard: because its host says so, or because the wizard started
// the process. One flag for the whole process, without a lock; it selects the rule files (see RulesFolder.h).

// `isAssessorParent` false asks for the name of the parent process instead.
void SetAssessorIsParentOpt(bool isAssessorParent);
bool GetAssessorIsParentOpt();
