#pragma once

// Whether the library works for an assessment wizard: because its host says so, or because the wizard started
// the process. One flag for the whole process; it selects the rule files and lives where they do, see
// RulesFolder.h.

// `isAssessorParent` false asks for the name of the parent process instead.
void SetAssessorIsParentOpt(bool isAssessorParent);
bool GetAssessorIsParentOpt();
