// The host's profiler. Optional: without one the calls of CProfilerWrapper do nothing.
// Functions and memory blocks are known by numbers, watch points and time points by names (UTF-8).
#pragma once

#include <string>

class IProfiler
{
public:
    virtual ~IProfiler() = default;

    // Calls nest: each EnterFunction is answered by one LeaveFunction of the same number.
    virtual void EnterFunction(unsigned long id) = 0;
    virtual void LeaveFunction(unsigned long id) = 0;

    // Returns: the functions entered and not left, outermost first, as text for a log.
    virtual std::string GetCallStack(unsigned long id) = 0;

    // `address` and `size` (bytes) of a block, and the place that allocated it.
    virtual void AddMemBlock(unsigned long address, unsigned long size, const char* file,
                             unsigned long line) = 0;
    virtual void RemoveMemBlock(unsigned long address) = 0;

    // MemBlocksStat reports the blocks added since the last SetMemPoint.
    virtual void SetMemPoint() = 0;
    virtual void MemBlocksStat() = 0;

    // Returns: the number for EnterFunction that belongs to `name`.
    virtual unsigned long GetNextID(std::string name) = 0;

    virtual void SetWatchPoint(std::string name) = 0;
    virtual unsigned long GetWatchPoint(std::string name) = 0;
    virtual unsigned long GetTimePoint(std::string name) = 0;
    virtual void SetTimePoint(std::string name) = 0;
};
