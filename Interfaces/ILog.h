// The host's log. The library has none of its own: it writes through CLogWrapper, which hands every text on
// to the object that the host gave it (IUVDBSQLParser::set_Log). There is one for the whole process. It is
// shared, and written to until another one takes its place: its code has to stay loaded as long.
//
// Texts are UTF-8, closed by a NUL, never null, and borrowed for the length of the call. They are meant to be
// written as they stand, one after the other: a record of the trace opens with a line feed of its own and may
// come in several calls, the last of which says "OK" or "FAILED".
//
// Calls come from every thread that works. WriteTrace and WriteLogScreen come one at a time in the process
// and under a lock, so neither may bring about another call of itself; the others come as the threads do.
// What an operation throws ends the work that was writing, which fails with it.
#pragma once

class ILog
{
public:
    virtual ~ILog() = default;

    // What a user is to know of the work: here the messages of a parse, as the host's options want them.
    virtual void WriteLog(const char* text) = 0;

    // The same for the screen alone.
    virtual void WriteLogScreen(const char* text) = 0;

    // What is done step by step, for whoever looks for a fault. By far the most texts come here.
    virtual void WriteTrace(const char* text) = 0;

    // The same as WriteLog for the file alone.
    virtual void WriteLogFile(const char* text) = 0;

    // Switches the log on or off. Whether texts are dropped meanwhile is for the log to decide: they still
    // come.
    virtual void SetLog(bool enable) = 0;

    // What a profiler has measured.
    virtual void WriteProfile(const char* text) = 0;

    // Texts of a higher level than this one aren't wanted in the trace, and aren't even made. Asked before
    // each text that has a level; a text without one comes in any case.
    virtual unsigned char GetTraceLevel() = 0;
};
