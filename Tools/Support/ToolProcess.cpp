#include "Tools/Support/ToolProcess.h"

#include "Tools/Support/ToolFiles.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int kNotStarted = 127;

// Between fork and exec only calls that are safe there; the rest is prepared before.
[[noreturn]] void RunChild(const std::vector<char*>& arguments, const char* folder, int logDescriptor)
{
    const int nothing = open("/dev/null", O_RDONLY);
    if (nothing < 0 || dup2(nothing, STDIN_FILENO) < 0 || dup2(logDescriptor, STDOUT_FILENO) < 0 ||
        dup2(logDescriptor, STDERR_FILENO) < 0 || chdir(folder) != 0)
        _exit(kNotStarted);
    execvp(arguments.front(), arguments.data());
    _exit(kNotStarted);
}

// Waits for the end of `child`, and kills it after `mostSeconds`, if that isn't 0.
// Returns: its status; `wasKilled` is set if it didn't end by itself.
int WaitFor(pid_t child, const std::string& program, unsigned mostSeconds, bool& wasKilled)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(mostSeconds);
    int status = 0;
    for (;;) {
        const pid_t ended = waitpid(child, &status, mostSeconds == 0 || wasKilled ? 0 : WNOHANG);
        if (ended == child)
            return status;
        if (ended < 0 && errno != EINTR)
            throw CToolFailure(program + ": " + std::strerror(errno));
        if (ended < 0)
            continue;
        if (std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            continue;
        }
        wasKilled = true;
        kill(child, SIGKILL);
    }
}

} // namespace

SProgramResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                          const std::string& folder, const std::string& logPath, unsigned mostSeconds)
{
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);

    const int log = open(logPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (log < 0)
        throw CToolFailure(logPath + ": " + std::strerror(errno));
    // The child's environment is this one's: messages are read, so they have to come in one language.
    setenv("LC_ALL", "C", 1);
    const pid_t child = fork();
    if (child == 0)
        RunChild(pointers, folder.c_str(), log);
    const int forkError = errno;
    close(log);
    if (child < 0)
        throw CToolFailure(program + ": " + std::strerror(forkError));

    SProgramResult result;
    const int status = WaitFor(child, program, mostSeconds, result.wasStopped);
    result.exitCode = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    result.output = ReadWholeFile(logPath);
    result.wasStarted = result.exitCode != kNotStarted;
    return result;
}
