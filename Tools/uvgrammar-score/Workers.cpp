#include "Tools/uvgrammar-score/Workers.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <new>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace uvscore {

namespace {

enum class enEnd : std::uint64_t
{
    Done,
    Failed,
    CannotWork
};

// What a worker answers, before the text.
struct SAnswerHead
{
    enEnd end = enEnd::Done;
    std::uint64_t size = 0;
};

// Returns: false if the other side is gone.
bool SendAll(int socket, const void* data, std::size_t size)
{
    const char* at = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t sent = send(socket, at, size, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0)
            return false;
        at += sent;
        size -= static_cast<std::size_t>(sent);
    }
    return true;
}

bool ReceiveAll(int socket, void* data, std::size_t size)
{
    char* at = static_cast<char*>(data);
    while (size > 0) {
        const ssize_t got = recv(socket, at, size, 0);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        at += got;
        size -= static_cast<std::size_t>(got);
    }
    return true;
}

// Answers until the other side is gone.
[[noreturn]] void Work(int socket, const std::function<std::string(std::size_t)>& work)
{
    std::uint64_t job = 0;
    while (ReceiveAll(socket, &job, sizeof job)) {
        SAnswerHead head;
        std::string text;
        try {
            text = work(job);
        } catch (const CCannotWork& e) {
            head.end = enEnd::CannotWork;
            text = e.what();
        } catch (const std::bad_alloc&) {
            head.end = enEnd::Failed;
            text = "out of memory";
        } catch (const std::exception& e) {
            head.end = enEnd::Failed;
            text = e.what();
        }
        head.size = text.size();
        if (!SendAll(socket, &head, sizeof head) || !SendAll(socket, text.data(), text.size()))
            break;
    }
    // What the parent holds is the parent's to finish.
    _exit(0);
}

struct SWorker
{
    pid_t process = -1;
    int socket = -1;
    std::size_t job = 0;
    bool isBusy = false;
};

class CWorkers
{
public:
    explicit CWorkers(const std::function<std::string(std::size_t)>& work) : m_Work(work) {}
    CWorkers(const CWorkers&) = delete;
    CWorkers& operator=(const CWorkers&) = delete;
    ~CWorkers()
    {
        for (SWorker& worker : m_Workers)
            End(worker);
    }

    void Run(std::size_t jobs, std::size_t processes,
             const std::function<void(std::size_t, SJobResult)>& take)
    {
        m_Workers.resize(std::min(processes, jobs));
        std::size_t next = 0;
        std::size_t done = 0;
        while (done < jobs) {
            for (SWorker& worker : m_Workers)
                if (!worker.isBusy && next < jobs)
                    Give(worker, next++);
            for (SWorker& worker : m_Workers) {
                if (!worker.isBusy || !IsReady(worker))
                    continue;
                ++done;
                take(worker.job, Take(worker));
            }
        }
    }

private:
    void Start(SWorker& worker)
    {
        int sockets[2];
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets) != 0)
            throw CCannotWork(std::string("no worker: ") + std::strerror(errno));
        const pid_t process = fork();
        if (process == 0) {
            // An end that stays open here would hide the end of another worker.
            for (const SWorker& other : m_Workers)
                if (other.socket >= 0)
                    close(other.socket);
            close(sockets[0]);
            Work(sockets[1], m_Work);
        }
        const int error = errno;
        close(sockets[1]);
        if (process < 0) {
            close(sockets[0]);
            throw CCannotWork(std::string("no worker: ") + std::strerror(error));
        }
        worker.process = process;
        worker.socket = sockets[0];
    }

    // What went wrong is found by Take.
    void Give(SWorker& worker, std::size_t job)
    {
        if (worker.socket < 0)
            Start(worker);
        worker.job = job;
        worker.isBusy = true;
        const std::uint64_t number = job;
        SendAll(worker.socket, &number, sizeof number);
    }

    // Waits until one of them has something to say.
    bool IsReady(const SWorker& asked)
    {
        std::vector<pollfd> waiting;
        for (const SWorker& worker : m_Workers)
            if (worker.isBusy)
                waiting.push_back({worker.socket, POLLIN, 0});
        while (poll(waiting.data(), waiting.size(), -1) < 0 && errno == EINTR) {
        }
        return std::ranges::any_of(
            waiting, [&](const pollfd& one) { return one.fd == asked.socket && one.revents != 0; });
    }

    SJobResult Take(SWorker& worker)
    {
        worker.isBusy = false;
        SAnswerHead head;
        SJobResult result;
        if (ReceiveAll(worker.socket, &head, sizeof head)) {
            result.text.resize(head.size);
            if (ReceiveAll(worker.socket, result.text.data(), head.size)) {
                if (head.end == enEnd::CannotWork)
                    throw CCannotWork(result.text);
                result.isDone = head.end == enEnd::Done;
                return result;
            }
        }
        const int status = End(worker);
        result.isCrash = true;
        result.text = WIFSIGNALED(status) ? "crashed by signal " + std::to_string(WTERMSIG(status))
                                          : "ended with code " + std::to_string(WEXITSTATUS(status));
        return result;
    }

    // Returns: the process's status.
    static int End(SWorker& worker)
    {
        int status = 0;
        if (worker.socket < 0)
            return status;
        close(worker.socket);
        worker.socket = -1;
        if (worker.isBusy)
            kill(worker.process, SIGKILL); // its result is nobody's any more
        while (waitpid(worker.process, &status, 0) < 0 && errno == EINTR) {
        }
        return status;
    }

    const std::function<std::string(std::size_t)>& m_Work;
    std::vector<SWorker> m_Workers;
};

} // namespace

void RunJobs(std::size_t jobs, std::size_t processes, const std::function<std::string(std::size_t)>& work,
             const std::function<void(std::size_t, SJobResult)>& take)
{
    CWorkers(work).Run(jobs, processes, take);
}

std::size_t ProcessorCount()
{
    return std::max(1u, std::thread::hardware_concurrency());
}

} // namespace uvscore
