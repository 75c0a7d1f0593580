#pragma once

#include <new>

// Whether the exception that is being handled tells of short memory.
bool IsMemoryShort() noexcept;

// Writes the exception that is being handled to the trace, as one "FAILED" record.
// Returns: UVDB_ERROR.
int TraceCurrentException() noexcept;

// The edge of the library: what an interface operation does runs in here, and no exception passes to the
// host.
// Returns: what `operation` returns; UVDB_ERROR, with a line in the trace, if it throws.
template <class Operation>
int GuardEdge(Operation&& operation)
{
    try {
        return operation();
    } catch (...) {
        return TraceCurrentException();
    }
}

// GuardEdge, which sets `isOutOfMemory` if memory was short.
template <class Operation>
int GuardMemory(bool& isOutOfMemory, Operation&& operation)
{
    return GuardEdge([&] {
        try {
            return operation();
        } catch (const std::bad_alloc&) {
            isOutOfMemory = true;
            throw;
        }
    });
}
