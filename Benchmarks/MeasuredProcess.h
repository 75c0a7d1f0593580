// What the measuring programs share: a process of its own for each measurement, so that neither the memory
// nor the caches of one serve the next.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstring>
#include <ctime>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/mman.h>
#include <sys/resource.h>
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

// Processor time of this process, which other work beside it changes less than time by the clock.
inline double CpuSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

// What the kernel took of it. Most of that is clearing fresh memory.
inline double KernelSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_stime.tv_sec) + static_cast<double>(usage.ru_stime.tv_usec) / 1e6;
}

// Touches `bytes` of memory and gives them back, in a process of its own. A virtual machine gets its memory
// from its host page by page, at the first touch ever, several times slower than the kernel hands a used page
// on: without this, the first to need much memory pays for all that come after it.
inline void WarmMemory(std::size_t bytes)
{
    const pid_t child = fork();
    if (child == 0) {
        void* const memory =
            mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (memory != MAP_FAILED)
            std::memset(memory, 1, bytes);
        _exit(0);
    }
    if (child > 0)
        waitpid(child, nullptr, 0);
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
