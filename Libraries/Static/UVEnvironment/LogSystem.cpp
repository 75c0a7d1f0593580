#include "UVEnvironment/LogSystem.h"

#include <cstdio>
#include <utility>

std::shared_ptr<ILog> CLogWrapper::m_spLog;
std::atomic<bool> CLogWrapper::m_HasLog{false};
std::mutex CLogWrapper::m_LogMutex;
std::mutex CLogWrapper::_mutex_trace;
std::mutex CLogWrapper::_mutex_log;
std::shared_ptr<IProfiler> CProfilerWrapper::m_spProfiler;

namespace {

using LogTarget = void (ILog::*)(const char*);

std::string FormatText(const char* format, std::va_list arguments)
{
    // Nearly every line of a log fits here, and is then formatted once.
    char line[1024];
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(line, sizeof line, format, arguments);
    std::string text;
    if (length >= 0 && static_cast<std::size_t>(length) < sizeof line) {
        text.assign(line, static_cast<std::size_t>(length));
    } else if (length > 0) {
        text.resize(static_cast<std::size_t>(length) + 1);
        std::vsnprintf(text.data(), text.size(), format, again);
        text.resize(static_cast<std::size_t>(length));
    }
    va_end(again);
    return text;
}

// `strPreLog` belongs to one form. Forms that aren't written one call at a time bring a mutex for it.
void WriteWithEarlyText(Uve::U8CString& strPreLog, LogTarget target, const char* text,
                        std::mutex* earlyTextMutex = nullptr)
{
    if (text == nullptr)
        return;
    const std::shared_ptr<ILog> log = CLogWrapper::GetLog();
    Uve::U8CString earlyText;
    {
        const auto lock = earlyTextMutex ? std::unique_lock(*earlyTextMutex) : std::unique_lock<std::mutex>();
        if (!log) {
            strPreLog.append(text);
            return;
        }
        // Emptied first: should the log throw, the text isn't sent twice.
        earlyText = std::exchange(strPreLog, {});
    }
    if (!earlyText.empty())
        (log.get()->*target)(earlyText.c_str());
    (log.get()->*target)(text);
}

} // namespace

// The formatting forms differ only in what they do with the finished text.
#define UV_FORMAT_ARGUMENTS(text, format)                   \
    std::va_list arguments;                                 \
    va_start(arguments, format);                            \
    const std::string text = FormatText(format, arguments); \
    va_end(arguments)

void CLogWrapper::Init(std::shared_ptr<ILog> log)
{
    // The parameter takes the earlier log along: its end is the host's code and happens after the lock.
    const std::lock_guard<std::mutex> lock(m_LogMutex);
    m_spLog.swap(log);
    m_HasLog.store(m_spLog != nullptr, std::memory_order_relaxed);
}

std::shared_ptr<ILog> CLogWrapper::GetLog()
{
    if (!HasLog())
        return nullptr;
    const std::lock_guard<std::mutex> lock(m_LogMutex);
    return m_spLog;
}

void CLogWrapper::WriteLog(const char* text)
{
    static Uve::U8CString strPreLog;
    static std::mutex mutex;
    WriteWithEarlyText(strPreLog, &ILog::WriteLog, text, &mutex);
}

void CLogWrapper::WriteLogF(const char* format, ...)
{
    if (!HasLog())
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteLog(text.c_str());
}

void CLogWrapper::WriteLogF(enTraceMessageType type, const char* file, int line, int code, const char* format,
                            ...)
{
    if (!HasLog())
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteLog(FormMessageString(type, file, line, code, text.c_str()).c_str());
}

void CLogWrapper::WriteLogScreen(const char* text)
{
    static Uve::U8CString strPreLog;
    const std::lock_guard<std::mutex> lock(_mutex_log);
    WriteWithEarlyText(strPreLog, &ILog::WriteLogScreen, text);
}

void CLogWrapper::WriteLogScreenF(const char* format, ...)
{
    if (!HasLog())
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteLogScreen(text.c_str());
}

void CLogWrapper::WriteTrace(const char* text)
{
    static Uve::U8CString strPreLog;
    const std::lock_guard<std::mutex> lock(_mutex_trace);
    WriteWithEarlyText(strPreLog, &ILog::WriteTrace, text);
}

void CLogWrapper::WriteTraceF(const char* format, ...)
{
    if (!HasLog())
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteTrace(text.c_str());
}

void CLogWrapper::WriteTraceF(enTraceMessageType type, const char* file, int line, int code,
                              const char* format, ...)
{
    if (!HasLog())
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteTrace(FormMessageString(type, file, line, code, text.c_str()).c_str());
}

bool CLogWrapper::IsTraceLevelWanted(unsigned char level)
{
    const std::shared_ptr<ILog> log = GetLog();
    return log && log->GetTraceLevel() >= level;
}

void CLogWrapper::WriteTraceWithLevel(unsigned char level, const char* text)
{
    if (IsTraceLevelWanted(level))
        WriteTrace(text);
}

void CLogWrapper::WriteTraceFWithLevel(unsigned char level, const char* format, ...)
{
    if (!IsTraceLevelWanted(level))
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteTrace(text.c_str());
}

void CLogWrapper::WriteLogFile(const char* text)
{
    static Uve::U8CString strPreLog;
    static std::mutex mutex;
    WriteWithEarlyText(strPreLog, &ILog::WriteLogFile, text, &mutex);
}

void CLogWrapper::WriteLogFileF(const char* format, ...)
{
    if (!HasLog())
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteLogFile(text.c_str());
}

void CLogWrapper::WriteLogFileF(enTraceMessageType type, const char* file, int line, int code,
                                const char* format, ...)
{
    if (!HasLog())
        return;
    UV_FORMAT_ARGUMENTS(text, format);
    WriteLogFile(FormMessageString(type, file, line, code, text.c_str()).c_str());
}

void CLogWrapper::WriteProfile(const char* text)
{
    static Uve::U8CString strPreLog;
    static std::mutex mutex;
    WriteWithEarlyText(strPreLog, &ILog::WriteProfile, text, &mutex);
}

void CLogWrapper::WriteProfile(const std::string& text)
{
    WriteProfile(text.c_str());
}

void CLogWrapper::SetLog(bool enable)
{
    if (const std::shared_ptr<ILog> log = GetLog())
        log->SetLog(enable);
}

Uve::U8CString CLogWrapper::GetLogFormatError(const char* format, ...)
{
    UV_FORMAT_ARGUMENTS(text, format);
    return Uve::U8CString(text.data(), text.size());
}

Uve::U8CString CLogWrapper::FormMessageString(enTraceMessageType type, const char* file, int line, int code,
                                              const char* text)
{
    const std::string message = text == nullptr ? "" : text;
    std::string result = "\n";
    if (file != nullptr && *file != '\0') {
        if (type < tmtIndented || type > tmtError)
            return {};
        if (type == tmtIndented)
            result += '\t';
        result += file;
        if (line != 0)
            result += '(' + std::to_string(line) + ')';
        result += " : ";
        if (type == tmtWarning || type == tmtError) {
            char number[32];
            std::snprintf(number, sizeof number, "%s%0*d: ", type == tmtWarning ? "warning W" : "error E", 4,
                          code);
            result += number;
        }
    }
    result += message;
    return Uve::U8CString(result.data(), result.size());
}

void CLogWrapper::WriteCallStackTrace() {}

void CProfilerWrapper::Init(std::shared_ptr<IProfiler> profiler)
{
    m_spProfiler = std::move(profiler);
}

void CProfilerWrapper::EnterFunction(unsigned long id)
{
    if (m_spProfiler)
        m_spProfiler->EnterFunction(id);
}

void CProfilerWrapper::LeaveFunction(unsigned long id)
{
    if (m_spProfiler)
        m_spProfiler->LeaveFunction(id);
}

Uve::U8CString CProfilerWrapper::GetCallStack(unsigned long id)
{
    if (!m_spProfiler)
        return {};
    const std::string stack = m_spProfiler->GetCallStack(id);
    return Uve::U8CString(stack.data(), stack.size());
}

void CProfilerWrapper::AddMemBlock(unsigned long address, unsigned long size, const char* file,
                                   unsigned long line)
{
    if (m_spProfiler)
        m_spProfiler->AddMemBlock(address, size, file, line);
}

void CProfilerWrapper::RemoveMemBlock(unsigned long address)
{
    if (m_spProfiler)
        m_spProfiler->RemoveMemBlock(address);
}

void CProfilerWrapper::SetMemPoint()
{
    if (m_spProfiler)
        m_spProfiler->SetMemPoint();
}

void CProfilerWrapper::MemBlocksStat()
{
    if (m_spProfiler)
        m_spProfiler->MemBlocksStat();
}

unsigned long CProfilerWrapper::GetNextID(const Uve::U8CString& name)
{
    return m_spProfiler ? m_spProfiler->GetNextID(std::string(name.data(), name.size())) : 0;
}

void CProfilerWrapper::SetWatchPoint(const Uve::U8CString& name)
{
    if (m_spProfiler)
        m_spProfiler->SetWatchPoint(std::string(name.data(), name.size()));
}

unsigned long CProfilerWrapper::GetWatchPoint(const Uve::U8CString& name)
{
    return m_spProfiler ? m_spProfiler->GetWatchPoint(std::string(name.data(), name.size())) : 0;
}

unsigned long CProfilerWrapper::GetTimePoint(const Uve::U8CString& name)
{
    return m_spProfiler ? m_spProfiler->GetTimePoint(std::string(name.data(), name.size())) : 0;
}

void CProfilerWrapper::SetTimePoint(const Uve::U8CString& name)
{
    if (m_spProfiler)
        m_spProfiler->SetTimePoint(std::string(name.data(), name.size()));
}

CProfilerHelper::CProfilerHelper(unsigned long id) : m_spEntered(CProfilerWrapper::m_spProfiler), m_Id(id)
{
    if (m_spEntered)
        m_spEntered->EnterFunction(m_Id);
}

CProfilerHelper::~CProfilerHelper()
{
    if (m_spEntered)
        m_spEntered->LeaveFunction(m_Id);
}
