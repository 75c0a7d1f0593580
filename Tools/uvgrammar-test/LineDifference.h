// What is different between two texts of lines.
#pragma once

#include <string>
#include <vector>

namespace uvtest {

// Lines with "-" before those that only `before` has, "+" before those that only `after` has, and a blank before those
// around them that both have; "..." stands for the rest. Nothing if they are equal.
std::string DifferenceText(const std::vector<std::string>& before, const std::vector<std::string>& after);

} // namespace uvtest
