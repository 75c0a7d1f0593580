// What the measuring programs share: a process of its own for each measurement, so that neither the memory
// nor the caches of one serve the next.
#pragma once

#include <chrono>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

// Empty if the file can't be opened.
inline std::string ReadFile(const char* path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline double Seconds(std::chrono::steady_clock::time_point since)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

// Calls `work`, which returns a SResult, in a child process. An exception in it ends that process alone.
// Returns: false, with `result` as it was, if the child didn't come to its end.
template <class SResult, class Work>
[[nodiscard]] bool RunInProcess(SResult& result, Work work)
{
    static_assert(std::is_trivially_copyable_v<SResult>); // it comes through a pipe
    int ends[2];
    if (pipe(ends) != 0)
        return false;
    const pid_t child = fork();
    if (child == 0) {
        const SResult made = work();
        const bool isWritten = write(ends[1], &made, sizeof made) == static_cast<ssize_t>(sizeof made);
        _exit(isWritten ? 0 : 1);
    }
    close(ends[1]);
    SResult received;
    const bool isDone =
        child > 0 && read(ends[0], &received, sizeof received) == static_cast<ssize_t>(sizeof received);
    close(ends[0]);
    if (child > 0)
        waitpid(child, nullptr, 0);
    if (isDone)
        result = received;
    return isDone;
}
