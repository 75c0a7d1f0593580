#include "Tools/uvparse/TraceFile.h"

#include "Tools/Support/ToolFiles.h"

#include <cerrno>
#include <cstring>
#include <utility>

namespace uvparse {

CTraceFile::CTraceFile(const std::string& path) : m_Path(path), m_File(std::fopen(path.c_str(), "wb"))
{
    if (m_File == nullptr)
        throw CToolFailure(path + ": " + std::strerror(errno));
}

CTraceFile::~CTraceFile()
{
    if (m_File != nullptr)
        std::fclose(m_File);
}

void CTraceFile::Write(const char* text)
{
    if (m_File != nullptr && m_IsOn && text != nullptr && std::fputs(text, m_File) < 0)
        m_HasFailed = true;
}

void CTraceFile::Close()
{
    if (m_File == nullptr)
        return;
    std::FILE* file = std::exchange(m_File, nullptr);
    if (std::fclose(file) != 0 || m_HasFailed)
        throw CToolFailure(m_Path + ": the trace could not be written whole");
}

} // namespace uvparse
