#include "Tools/uvrules/TraceText.h"

#include "Interfaces/ILog.h"
#include "UVEnvironment/LogSystem.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace uvrules {

std::string MessageText(std::string text)
{
    const std::size_t begin = std::min(text.find_first_not_of(" \n"), text.size());
    const std::size_t end = text.find_last_not_of(" \n") + 1;
    text = begin < end ? text.substr(begin, end - begin) : std::string();
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
        text.insert(at + 1, "    ");
    return text;
}

class CTraceText::CLog : public ILog
{
public:
    void WriteLog(const char* text) override { m_Records.emplace_back(text); }
    void WriteLogScreen(const char* text) override { m_Records.emplace_back(text); }
    void WriteTrace(const char* text) override { m_Records.emplace_back(text); }
    void WriteLogFile(const char* text) override { m_Records.emplace_back(text); }
    void SetLog(bool) override {}
    void WriteProfile(const char*) override {}
    unsigned char GetTraceLevel() override { return 0; }

    std::vector<std::string> Take() { return std::exchange(m_Records, {}); }

private:
    std::vector<std::string> m_Records;
};

CTraceText::CTraceText() : m_Log(std::make_shared<CLog>())
{
    CLogWrapper::Init(m_Log);
}

CTraceText::~CTraceText()
{
    CLogWrapper::Init(nullptr);
}

bool CTraceText::Write(CToolMessages& messages, enSeverity severity)
{
    bool hasRecord = false;
    for (std::string& record : m_Log->Take()) {
        const std::string text = MessageText(std::move(record));
        if (text.empty())
            continue;
        messages.Write(severity, text);
        hasRecord = true;
    }
    return hasRecord;
}

} // namespace uvrules
