#include "Tests/Languages/MariaDbServer.h"

#include "Tests/Support/ServerSetup.h"
#include "Tools/Support/ToolFiles.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <mysql.h>
#include <poll.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr const char* kProgram = "mariadbd";
constexpr auto kPatience = std::chrono::seconds(60);
constexpr int kPauseMilliseconds = 10;

sigset_t EndSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGCHLD);
    return signals;
}

struct SServerCommand
{
    std::string folder;
    std::string program;
    std::vector<std::string> arguments;
};

// The server's own process. It holds `lifeline` open as long as it lives.
[[noreturn]] void BecomeServer(const SServerCommand& command, int lifeline, const sigset_t& signals)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    sigprocmask(SIG_SETMASK, &signals, nullptr);
    fcntl(lifeline, F_SETFD, 0);
    const int log = open((command.folder + "/log").c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    const int none = open("/dev/null", O_RDONLY);
    if (log >= 0 && none >= 0 && dup2(none, STDIN_FILENO) >= 0 && dup2(log, STDOUT_FILENO) >= 0 &&
        dup2(log, STDERR_FILENO) >= 0) {
        std::vector<std::string> words{command.program};
        words.insert(words.end(), command.arguments.begin(), command.arguments.end());
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        // Nothing of this process's environment: sanitizers don't reach the server.
        std::string locale = "LC_ALL=C";
        char* environment[] = {locale.data(), nullptr};
        execve(command.program.c_str(), pointers.data(), environment);
    }
    _exit(127);
}

// The guard's own process: it ends when it is told to, or when its parent has ended.
[[noreturn]] void BecomeGuard(const SServerCommand& command, int lifeline, pid_t parent,
                              const sigset_t& signals)
{
    setpgid(0, 0); // an interrupt at the terminal is the parent's affair
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    const pid_t server = getppid() == parent ? fork() : -1;
    if (server == 0)
        BecomeServer(command, lifeline, signals);
    close(lifeline);
    if (server > 0) {
        const sigset_t awaited = EndSignals();
        for (int signal = 0; signal != SIGTERM;)
            sigwait(&awaited, &signal);
        kill(server, SIGKILL); // its data are nobody's
        waitpid(server, nullptr, 0);
    }
    std::error_code error;
    fs::remove_all(command.folder, error);
    _exit(0);
}

} // namespace

std::string CMariaDbServer::GetMissing()
{
    return FindServerProgram(kProgram).empty() ? kProgram : "";
}

CMariaDbServer::CMariaDbServer() : m_Folder(ServerFolderPrefix() + "XXXXXX"), m_Owner(getpid())
{
    if (!GetMissing().empty())
        throw std::runtime_error(GetMissing() + " isn't installed");
    if (mkdtemp(m_Folder.data()) == nullptr)
        throw std::runtime_error(m_Folder + ": " + std::strerror(errno));
    SServerCommand command{m_Folder, FindServerProgram(kProgram), MariaDbArguments(m_Folder)};
    if (geteuid() == 0)
        command.arguments.emplace_back("--user=root");
    command.arguments.insert(command.arguments.end(),
                             {"--max-allowed-packet=1G", "--max-connections=200", "--thread-stack=8M",
                              "--event-scheduler=OFF", "--core-file=OFF"});

    int lifeline[2] = {-1, -1};
    std::error_code error;
    if (!fs::create_directory(m_Folder + "/data", error) || pipe2(lifeline, O_CLOEXEC) != 0) {
        fs::remove_all(m_Folder, error);
        throw std::runtime_error(m_Folder + ": no data and no pipe there");
    }
    const sigset_t signals = EndSignals();
    sigset_t before;
    sigprocmask(SIG_BLOCK, &signals, &before); // a guard that is told to end at once has to hear it
    m_Guard = fork();
    if (m_Guard == 0) {
        close(lifeline[0]);
        BecomeGuard(command, lifeline[1], m_Owner, before);
    }
    sigprocmask(SIG_SETMASK, &before, nullptr);
    close(lifeline[1]);
    try {
        if (m_Guard < 0)
            throw std::runtime_error("no process for the server");
        WaitForServer(lifeline[0]);
    } catch (...) {
        close(lifeline[0]);
        Stop();
        fs::remove_all(m_Folder, error);
        throw;
    }
    close(lifeline[0]);
}

CMariaDbServer::~CMariaDbServer()
{
    if (getpid() == m_Owner)
        Stop();
}

void CMariaDbServer::WaitForServer(int lifeline) const
{
    std::string problem = "it takes too long";
    for (const auto begin = std::chrono::steady_clock::now();
         std::chrono::steady_clock::now() - begin < kPatience;) {
        MYSQL* const session = mysql_init(nullptr);
        const bool isThere =
            mysql_real_connect(session, nullptr, "root", "", nullptr, 0, GetSocket().c_str(), 0) != nullptr;
        const bool isReady =
            isThere &&
            mysql_query(session, (std::string("CREATE DATABASE ") + kMariaDbDatabase).c_str()) == 0;
        if (isThere && !isReady)
            problem = mysql_error(session);
        mysql_close(session);
        if (isReady)
            return;
        pollfd end{lifeline, POLLIN, 0};
        if (poll(&end, 1, kPauseMilliseconds) > 0)
            problem = "it ended";
        if (isThere || end.revents != 0)
            break;
    }
    const std::string log = m_Folder + "/log";
    throw std::runtime_error(std::string(kProgram) + " doesn't come up: " + problem + '\n' +
                             (fs::exists(log) ? ReadWholeFile(log) : ""));
}

void CMariaDbServer::Stop()
{
    if (m_Guard < 0)
        return;
    kill(m_Guard, SIGTERM);
    while (waitpid(m_Guard, nullptr, 0) < 0 && errno == EINTR) {
    }
    m_Guard = -1;
}
