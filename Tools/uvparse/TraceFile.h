// The library's log and trace in a file.
#pragma once

#include "Interfaces/ILog.h"

#include <cstdio>
#include <memory>
#include <string>

namespace uvparse {

class CTraceFile : public ILog
{
public:
    // Replaces the file.
    // Throws: CToolFailure if it can't be opened.
    explicit CTraceFile(const std::string& path);
    ~CTraceFile() override;

    CTraceFile(const CTraceFile&) = delete;
    CTraceFile& operator=(const CTraceFile&) = delete;

    void WriteLog(const char* text) override { Write(text); }
    void WriteLogScreen(const char* text) override { Write(text); }
    void WriteTrace(const char* text) override { Write(text); }
    void WriteLogFile(const char* text) override { Write(text); }
    void SetLog(bool enable) override { m_IsOn = enable; }
    void WriteProfile(const char* text) override { Write(text); }
    unsigned char GetTraceLevel() override { return 255; }

    // Closes the file; what is written afterwards is dropped.
    // Throws: CToolFailure if anything that was written is lost.
    void Close();

private:
    void Write(const char* text);

    std::string m_Path;
    std::FILE* m_File;
    bool m_IsOn = true;
    bool m_HasFailed = false;
};

} // namespace uvparse
