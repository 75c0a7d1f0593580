// Work shared out to processes: a crash costs one piece of it, and every processor has its part.
#pragma once

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>

namespace uvscore {

// What keeps every piece of work from being done.
class CCannotWork : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct SJobResult
{
    bool isDone = false;
    bool isCrash = false; // the process ended in the work
    std::string text;     // the result; otherwise what kept it from coming
};

// Runs `work` on the numbers from 0 to `jobs` in up to `processes` forks of this process. A fork keeps what `work`
// makes for one number to the next; nothing of it comes back but the result. An exception of `work`, or the fork's end, is
// the result of that number alone, and the work goes on in another fork.
// `take` gets each result here, in the order in which they come.
// Throws: CCannotWork if `work` has, or if there can be no processes.
void RunJobs(std::size_t jobs, std::size_t processes, const std::function<std::string(std::size_t job)>& work,
             const std::function<void(std::size_t job, SJobResult result)>& take);

// The processors that this process may use, one at least.
std::size_t ProcessorCount();

} // namespace uvscore
