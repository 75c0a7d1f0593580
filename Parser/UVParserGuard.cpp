#include "Parser/UVParserGuard.h"

#include "Interfaces/UVDBResults.h"
#include "UVEnvironment/LogSystem.h"

#include <exception>
#include <new>

bool IsMemoryShort() noexcept
{
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) {
        return false;
    }
}

int TraceCurrentException() noexcept
{
    // Writing can throw again: the log is the host's, and memory may be what is short.
    try {
        try {
            throw;
        } catch (const Uve::U8CString& message) {
            CLogWrapper::WriteTraceF("\nFAILED: %s\n", message.c_str());
        } catch (const std::exception& error) {
            CLogWrapper::WriteTraceF("\nFAILED: %s\n", error.what());
        } catch (...) {
            CLogWrapper::WriteTraceF("\nFAILED: %s\n", "unknown exception");
        }
    } catch (...) {
        return UVDB_ERROR;
    }
    return UVDB_ERROR;
}
