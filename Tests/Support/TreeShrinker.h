// Making a failing tree readable.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

// The text without the elements, tags, attributes and pieces of text that aren't needed for `fails` to hold.
// The text need not be well-formed. About `budget` bytes are handed to `fails` in all.
std::string ShrinkTree(const std::string& text, const std::function<bool(const std::string&)>& fails,
                       std::size_t budget = 20 << 20);
