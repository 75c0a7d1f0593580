// The host's profiler, called through CProfilerWrapper. Optional: without one the calls there do nothing and
// answer 0. There is one for the whole process, shared, and called until another one takes its place.
//
// Functions are known by the numbers that GetNextID gives, memory blocks by their addresses, watch points and
// time points by names (UTF-8). What the numbers of those points count is the profiler's own affair: nobody
// here reads them.
//
// There are no locks: a profiler is attached before threads are started, and its calls come as the threads
// do. Calling order for a function: GetNextID once, then EnterFunction and LeaveFunction for each run, which
// CProfilerHelper does for a scope.
#pragma once

#include <string>

class IProfiler
{
public:
    virtual ~IProfiler() = default;

    // Calls nest on each thread: each EnterFunction is answered by one LeaveFunction of the same number.
    virtual void EnterFunction(unsigned long id) = 0;
    virtual void LeaveFunction(unsigned long id) = 0;

    // `id`: the function that asks.
    // Returns: the functions entered and not left, outermost first, as UTF-8 text for a log.
    virtual std::string GetCallStack(unsigned long id) = 0;

    // `address` and `size` (bytes) of a block, and the place that allocated it; `file` is borrowed for the
    // call.
    virtual void AddMemBlock(unsigned long address, unsigned long size, const char* file,
                             unsigned long line) = 0;
    virtual void RemoveMemBlock(unsigned long address) = 0;

    // MemBlocksStat reports, where the profiler reports to, the blocks added since the last SetMemPoint.
    virtual void SetMemPoint() = 0;
    virtual void MemBlocksStat() = 0;

    // Returns: the number for EnterFunction that belongs to `name`.
    virtual unsigned long GetNextID(std::string name) = 0;

    // Points are set and asked for by name.
    virtual void SetWatchPoint(std::string name) = 0;
    virtual unsigned long GetWatchPoint(std::string name) = 0;
    virtual unsigned long GetTimePoint(std::string name) = 0;
    virtual void SetTimePoint(std::string name) = 0;
};
