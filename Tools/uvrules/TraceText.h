// The library's trace, which tells why something failed, as messages of the tool.
#pragma once

#include "Tools/Support/ToolMessages.h"

#include <memory>
#include <string>

namespace uvrules {

// What the library says ends in line feeds or begins with them, and may have several lines; one message has
// them indented below its first.
std::string MessageText(std::string text);

// Collects the library's trace as long as it lives.
class CTraceText
{
public:
    CTraceText();
    CTraceText(const CTraceText&) = delete;
    CTraceText& operator=(const CTraceText&) = delete;
    ~CTraceText();

    // Each record so far becomes a message, and is forgotten.
    // Returns: false if there was none.
    bool Write(CToolMessages& messages, enSeverity severity);

private:
    class CLog;
    std::shared_ptr<CLog> m_Log;
};

} // namespace uvrules
