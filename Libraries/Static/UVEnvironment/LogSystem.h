// The front of the log. Any code can write a trace here without holding a log; the texts go to the ILog that
// the host attached by Init. The log is one for the whole process (for each library that links this code).
//
// Safe to use from several threads, Init included: who is writing meanwhile finishes with the log that was
// there. Only the trace and the screen are written one call at a time; the other operations of an ILog are
// called as the threads come. The profiler has no locks: it is attached before threads are started.
//
// Early text: what the plain forms (WriteLog, WriteLogScreen, WriteTrace, WriteLogFile, WriteProfile) write
// before a log is attached is kept, and goes to the log as one call before the next text of the same
// form. The formatting forms keep nothing: without a log they format nothing and drop the text.
#pragma once

#include "Interfaces/ILog.h"
#include "Interfaces/IProfiler.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <atomic>
#include <cstdarg>
#include <memory>
#include <mutex>
#include <string>

#if defined(__GNUC__)
#define UV_PRINTF_FORMAT(formatIndex, firstArgument) \
    __attribute__((format(printf, formatIndex, firstArgument)))
#else
#define UV_PRINTF_FORMAT(formatIndex, firstArgument)
#endif

enum enTraceMessageType : int
{
    tmtIndented = 0,
    tmtPlain = 1,
    tmtWarning = 2,
    tmtError = 3
};

class CLogWrapper
{
public:
    // Attaches a log; a later call replaces it, an empty pointer detaches it.
    // Owner: shares.
    static void Init(std::shared_ptr<ILog> log);

    // The log at hand; empty if there is none.
    // Owner: shares.
    static std::shared_ptr<ILog> GetLog();
    static bool HasLog() { return m_HasLog.load(std::memory_order_relaxed); }

    // Each writes by the operation of ILog whose name it begins with. Forms with an F format as printf does;
    // those with a type put the place before the text, see FormMessageString. A null text is dropped.
    static void WriteLog(const char* text);
    static void WriteLogF(const char* format, ...) UV_PRINTF_FORMAT(1, 2);
    static void WriteLogF(enTraceMessageType type, const char* file, int line, int code, const char* format,
                          ...) UV_PRINTF_FORMAT(5, 6);

    // One call at a time in the process.
    // Throws: std::system_error if the lock fails.
    static void WriteLogScreen(const char* text);
    static void WriteLogScreenF(const char* format, ...) UV_PRINTF_FORMAT(1, 2);

    // One call at a time in the process: an ILog must not trace from inside its WriteTrace.
    // Throws: std::system_error if the lock fails.
    static void WriteTrace(const char* text);
    static void WriteTraceF(const char* format, ...) UV_PRINTF_FORMAT(1, 2);
    static void WriteTraceF(enTraceMessageType type, const char* file, int line, int code, const char* format,
                            ...) UV_PRINTF_FORMAT(5, 6);

    // Written if the log's trace level is at least `level`; without a log nothing is kept.
    static void WriteTraceWithLevel(unsigned char level, const char* text);
    static void WriteTraceFWithLevel(unsigned char level, const char* format, ...) UV_PRINTF_FORMAT(2, 3);

    // For loops that would otherwise compute what they trace.
    static bool IsTraceLevelWanted(unsigned char level);

    static void WriteLogFile(const char* text);
    static void WriteLogFileF(const char* format, ...) UV_PRINTF_FORMAT(1, 2);
    static void WriteLogFileF(enTraceMessageType type, const char* file, int line, int code,
                              const char* format, ...) UV_PRINTF_FORMAT(5, 6);

    static void WriteProfile(const char* text);
    static void WriteProfile(const std::string& text);

    static void SetLog(bool enable);

    // Formats and writes nothing.
    static Uve::U8CString GetLogFormatError(const char* format, ...) UV_PRINTF_FORMAT(1, 2);

    // A message with its place, as compilers write it: "\nfile(line) : error E0042: text". A null or empty
    // `file` leaves the text alone after a line feed, `line` 0 leaves out the line. A type that isn't one
    // gives an empty text.
    static Uve::U8CString FormMessageString(enTraceMessageType type, const char* file, int line, int code,
                                            const char* text);

    // Does nothing here; callers exist for systems that can show their stack.
    static void WriteCallStackTrace();

private:
    static std::shared_ptr<ILog> m_spLog;
    static std::atomic<bool> m_HasLog; // whether m_spLog is there, without the lock
    static std::mutex m_LogMutex;      // of m_spLog, for as long as it takes to copy the pointer
    static std::mutex _mutex_trace;
    static std::mutex _mutex_log;
};

// The same for the profiler. Without one, the calls do nothing and the numbers are 0.
class CProfilerWrapper
{
public:
    static void Init(std::shared_ptr<IProfiler> profiler);

    static void EnterFunction(unsigned long id);
    static void LeaveFunction(unsigned long id);
    static Uve::U8CString GetCallStack(unsigned long id);
    static void AddMemBlock(unsigned long address, unsigned long size, const char* file, unsigned long line);
    static void RemoveMemBlock(unsigned long address);
    static void SetMemPoint();
    static void MemBlocksStat();
    static unsigned long GetNextID(const Uve::U8CString& name);
    static void SetWatchPoint(const Uve::U8CString& name);
    static unsigned long GetWatchPoint(const Uve::U8CString& name);
    static unsigned long GetTimePoint(const Uve::U8CString& name);
    static void SetTimePoint(const Uve::U8CString& name);

    static std::shared_ptr<IProfiler> m_spProfiler;
};

// Stands for the run of one function: enters it here, leaves it at the end of the scope. It holds on to the
// profiler that it entered with, so that one attached in between isn't told of a function it never saw.
class CProfilerHelper
{
public:
    explicit CProfilerHelper(unsigned long id);
    ~CProfilerHelper();

    CProfilerHelper(const CProfilerHelper&) = delete;
    CProfilerHelper& operator=(const CProfilerHelper&) = delete;

private:
    std::shared_ptr<IProfiler> m_spEntered;
    unsigned long m_Id;
};
