#include "Tools/Support/ToolMessages.h"

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <unistd.h>
#include <utility>

const char* SeverityWord(enSeverity severity)
{
    switch (severity) {
    case enSeverity::Error:
        return "error";
    case enSeverity::Warning:
        return "warning";
    case enSeverity::Note:
        break;
    }
    return "note";
}

std::string Printable(std::string_view line)
{
    std::string shown(line);
    std::replace_if(
        shown.begin(), shown.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; }, ' ');
    return shown;
}

CToolMessages::CToolMessages(std::string toolName, std::ostream& stream)
    : m_ToolName(std::move(toolName)), m_Stream(stream)
{}

void CToolMessages::Write(enSeverity severity, const std::string& text)
{
    WriteLine(severity, m_ToolName, text, {});
}

void CToolMessages::Write(enSeverity severity, const SSourcePlace& place, const std::string& text)
{
    std::string where = place.file;
    if (place.line > 0) {
        where += ':' + std::to_string(place.line);
        if (place.column > 0)
            where += ':' + std::to_string(place.column);
    }
    WriteLine(severity, where, text, place.sourceLine);
}

void CToolMessages::WriteLine(enSeverity severity, const std::string& place, const std::string& text,
                              const std::string& sourceLine)
{
    if (severity == enSeverity::Error)
        ++m_Errors;
    else if (severity == enSeverity::Warning)
        ++m_Warnings;
    if (m_Quiet && severity != enSeverity::Error)
        return;
    std::string message = place;
    message.append(": ").append(SeverityWord(severity)).append(": ").append(text).append(1, '\n');
    if (!sourceLine.empty())
        message.append("    ").append(Printable(sourceLine)).append(1, '\n');
    if (m_IsHolding)
        m_Held.emplace_back(severity, std::move(message));
    else
        m_Stream << message;
}

void CToolMessages::Release(bool withWarnings)
{
    m_IsHolding = false;
    for (const auto& [severity, message] : m_Held) {
        if (withWarnings || severity != enSeverity::Warning)
            m_Stream << message;
    }
    m_Held.clear();
}

CToolProgress::CToolProgress(std::size_t total, bool isWanted)
    : m_Total(total), m_Shows(isWanted && total > 1 && isatty(STDERR_FILENO) != 0)
{}

CToolProgress::~CToolProgress()
{
    Clear();
}

void CToolProgress::Step(const std::string& name)
{
    ++m_Done;
    if (!m_Shows)
        return;
    std::fprintf(stderr, "\r\033[K[%zu/%zu] %s", m_Done, m_Total, Printable(name).c_str());
    std::fflush(stderr);
    m_OnScreen = true;
}

void CToolProgress::Clear()
{
    if (!m_OnScreen)
        return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    m_OnScreen = false;
}
