// Input that is a line for each question, as it comes from a file or from a program that waits for answers.
#pragma once

#include <functional>
#include <string>

// Hands each line of the file over, and its number from 1; "-" is the standard input. Lines come without
// their end, LF or CR LF, the first one without a byte order mark. `flush` is called before the input may have to wait for
// more, and now and then: whoever writes a line and waits gets its answer, and many lines don't pile up.
// Throws: CToolFailure, and what the functions throw.
void ReadToolLines(const std::string& path,
                   const std::function<void(const std::string& line, int number)>& take,
                   const std::function<void()>& flush);
