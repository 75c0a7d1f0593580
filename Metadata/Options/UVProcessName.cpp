#include "Metadata/Options/UVProcessName.h"

#include <array>
#include <cstddef>
#include <fcntl.h>
#include <string>
#include <unistd.h>

Uve::U8CString GetProcessName(int pid)
{
    // The words of a command line stand in this file with a NUL byte after each. Every parse asks for its
    // parent, so it is read without a stream.
    const int file = open(("/proc/" + std::to_string(pid) + "/cmdline").c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return {};
    std::array<char, 8192 + 1> commandLine{};
    std::size_t byteCount = 0;
    for (ssize_t got = 1; got > 0 && byteCount < commandLine.size() - 1;) {
        got = read(file, commandLine.data() + byteCount, commandLine.size() - 1 - byteCount);
        byteCount += got > 0 ? static_cast<std::size_t>(got) : 0;
    }
    close(file);
    if (byteCount > 0 && commandLine[byteCount - 1] == '\n')
        commandLine[byteCount - 1] = '\0';
    return commandLine.data();
}

Uve::U8CString GetParentProcessName()
{
    return GetProcessName(getppid());
}
