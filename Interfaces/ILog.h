// The host's log. The library has none of its own: it writes through CLogWrapper, which hands every text on
// to the object that the host gave it. Texts are UTF-8, borrowed for the length of the call.
#pragma once

class ILog
{
public:
    virtual ~ILog() = default;

    virtual void WriteLog(const char* text) = 0;
    virtual void WriteLogScreen(const char* text) = 0;
    virtual void WriteTrace(const char* text) = 0;
    virtual void WriteLogFile(const char* text) = 0;

    // Switches the log on or off.
    virtual void SetLog(bool enable) = 0;

    virtual void WriteProfile(const char* text) = 0;

    // Texts of a higher level than this one aren't wanted in the trace.
    virtual unsigned char GetTraceLevel() = 0;
};
