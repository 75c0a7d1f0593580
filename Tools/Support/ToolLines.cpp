#include "Tools/Support/ToolLines.h"

#include "Tools/Support/ToolFiles.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kLinesTogether = 1000;

} // namespace

void ReadToolLines(const std::string& path,
                   const std::function<void(const std::string& line, int number)>& take,
                   const std::function<void()>& flush)
{
    const bool isStandardInput = path == "-";
    std::ifstream file;
    if (!isStandardInput) {
        errno = 0;
        file.open(path, std::ios::binary);
        // A folder opens, and fails at the first read.
        if (!file || (file.peek(), file.bad()))
            throw CToolFailure(path + ": " + (errno != 0 ? std::strerror(errno) : "can't be read"));
        file.clear();
    }
    std::istream& input = isStandardInput ? std::cin : file;
    std::string line;
    for (int number = 1;; ++number) {
        if (input.rdbuf()->in_avail() <= 0 || number % kLinesTogether == 0)
            flush();
        if (!std::getline(input, line))
            break;
        if (number == 1 && line.starts_with(kByteOrderMark))
            line.erase(0, kByteOrderMark.size());
        if (line.ends_with('\r'))
            line.pop_back();
        take(line, number);
    }
    if (input.bad())
        throw CToolFailure((isStandardInput ? "standard input" : path) + ": can't be read");
}
