#pragma once

#include "Interfaces/ILog.h"
#include "UVEnvironment/LogSystem.h"

#include <memory>
#include <string>
#include <vector>

// A log that remembers what it is told, one entry a call, whichever of the log's targets it went to.
class CMemoryLog : public ILog
{
public:
    explicit CMemoryLog(unsigned char traceLevel = 255) : m_traceLevel(traceLevel) {}

    void WriteLog(const char* text) override { m_lines.emplace_back(text); }
    void WriteLogScreen(const char* text) override { m_lines.emplace_back(text); }
    void WriteTrace(const char* text) override { m_lines.emplace_back(text); }
    void WriteLogFile(const char* text) override { m_lines.emplace_back(text); }
    void SetLog(bool) override {}
    void WriteProfile(const char* text) override { m_lines.emplace_back(text); }
    unsigned char GetTraceLevel() override { return m_traceLevel; }

    const std::vector<std::string>& Lines() const { return m_lines; }

    // Everything that was written, without anything between.
    std::string Text() const
    {
        std::string text;
        for (const std::string& line : m_lines)
            text += line;
        return text;
    }

    void Clear() { m_lines.clear(); }

private:
    unsigned char m_traceLevel;
    std::vector<std::string> m_lines;
};

// Makes a memory log the log of the process for the length of a scope, and puts the earlier log back.
class CLogCapture
{
public:
    explicit CLogCapture(unsigned char traceLevel = 255)
        : m_log(std::make_shared<CMemoryLog>(traceLevel)), m_earlierLog(CLogWrapper::GetLog())
    {
        CLogWrapper::Init(m_log);
        // Text that waited for a log comes before the next one.
        CLogWrapper::WriteLog("");
        CLogWrapper::WriteLogScreen("");
        CLogWrapper::WriteTrace("");
        CLogWrapper::WriteLogFile("");
        CLogWrapper::WriteProfile("");
        m_log->Clear();
    }
    ~CLogCapture() { CLogWrapper::Init(m_earlierLog); }
    CLogCapture(const CLogCapture&) = delete;
    CLogCapture& operator=(const CLogCapture&) = delete;

    const std::vector<std::string>& Lines() const { return m_log->Lines(); }
    std::string Text() const { return m_log->Text(); }
    void Clear() { m_log->Clear(); }

private:
    std::shared_ptr<CMemoryLog> m_log;
    std::shared_ptr<ILog> m_earlierLog;
};
