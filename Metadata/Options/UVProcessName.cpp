#include "Metadata/Options/UVProcessName.h"

#include <array>
#include <cstring>
#include <fstream>
#include <string>
#include <unistd.h>

Uve::U8CString GetProcessName(int pid)
{
    // The words of a command line stand in this file with a NUL byte after each.
    std::ifstream file("/proc/" + std::to_string(pid) + "/cmdline", std::ios::binary);
    std::array<char, 8192 + 1> commandLine{};
    file.read(commandLine.data(), commandLine.size() - 1);
    const auto byteCount = static_cast<std::size_t>(file.gcount());
    if (byteCount > 0 && commandLine[byteCount - 1] == '\n')
        commandLine[byteCount - 1] = '\0';
    return commandLine.data();
}

Uve::U8CString GetParentProcessName()
{
    return GetProcessName(getppid());
}
