// The cases of a language as texts to try other things on.
#pragma once

#include <string>
#include <vector>

// The texts in a file of a language's cases, Tests/<name>.tests, without the end of their last line.
std::vector<std::string> CaseTexts(const char* language, const char* name);
