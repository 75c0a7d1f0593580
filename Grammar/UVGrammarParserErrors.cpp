#include "Grammar/UVGrammarParser.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVECompat.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <cstdio>

// The messages about unexpected tokens. They go to the log, to the trace and, in the parser tool, to standard
// error; the tree doesn't depend on them.

namespace {

bool IsToolProcess()
{
    static const bool isTool = Uve::Compat::GetCurrentProcessExePath().Find("UVParserUtil.exe") != -1;
    return isTool;
}

bool IsAnybodyListening()
{
    return CLogWrapper::HasLog() || IsToolProcess();
}

void Convert(std::string& text)
{
    if (!UVDB::DoesCodePageRequireUnicode(false))
        return;
    std::string converted;
    UVDB::UTF8Toisolat1(text, converted);
    text = std::move(converted);
}

std::string CodeBlock(std::string_view line)
{
    return "    Code lines:\n<<<<\n" + std::string(line) + "\n>>>>\n";
}

} // namespace

void WriteMessageToErrorStream(const std::string& text)
{
    if (IsToolProcess())
        std::fwrite(text.data(), 1, text.size(), stderr);
}

// A gap that stands for skipped text: reports the unexpected tokens of its lines.
void CSQLGrammarParser::ReportErrors(const ParserNode& child, std::string_view gap, bool show)
{
    const unsigned long to = child.m_nLine;
    const unsigned long from = to - static_cast<unsigned long>(std::count(gap.begin(), gap.end(), '\n'));
    const auto first = m_Extension.m_mapErrors.lower_bound(from);
    const auto last = m_Extension.m_mapErrors.upper_bound(to);
    if (from > to || first == last)
        return;
    m_Extension.m_bErrDisplayed = m_Extension.m_bErrDisplayed || show;
    if (!IsAnybodyListening())
        return;
    try {
        Uve::U8CString heading;
        heading.Format("\n/*PARSER ERROR: %s (%lu,%lu) :\n", m_strParserName.c_str(), from, to);
        std::string report(heading.c_str());
        std::string others;
        for (auto error = first; error != last; ++error) {
            std::string& text = error == first ? report : others;
            text +=
                "    line " + std::to_string(error->first) + " - unexpected token " + error->second + "\n";
        }
        std::string block = CodeBlock(m_Extension.LineText(first->first));
        Convert(report);
        Convert(others);
        Convert(block);
        if (show) {
            CLogWrapper::WriteLogF("%s", report.c_str());
            CLogWrapper::WriteLogF("%s", block.c_str());
            CLogWrapper::WriteLogF("*/\n");
        } else {
            CLogWrapper::WriteTraceF("%s", report.c_str());
            CLogWrapper::WriteTraceF("%s", block.c_str());
            CLogWrapper::WriteTraceF("%s", others.c_str());
            WriteMessageToErrorStream(others);
            CLogWrapper::WriteTraceF("*/\n");
        }
    } catch (...) {
        CLogWrapper::WriteTraceF("Protection error processing failed\n");
        WriteMessageToErrorStream("Protection error processing failed\n");
    }
}

// At the root: everything that no gap has reported, and the summary.
void CSQLGrammarParser::ReportRemainingErrors()
{
    const bool wasDisplayed = m_Extension.m_bErrDisplayed;
    m_Extension.m_bErrDisplayed = false;
    if (m_Extension.m_mapErrors.empty() || !IsAnybodyListening())
        return;
    try {
        if (!wasDisplayed) {
            bool isFirst = true;
            for (const auto& [line, token] : m_Extension.m_mapErrors) {
                std::string report = "\n/*PARSER ERROR: " + m_strParserName + " ()\n    line " +
                                     std::to_string(line) + " - unexpected token " + token +
                                     "\n    Code lines:\n<<<<\n" + std::string(m_Extension.LineText(line)) +
                                     "\n>>>>\n\n*/\n";
                Convert(report);
                if (isFirst && m_Extension.m_bShowErrors)
                    CLogWrapper::WriteLogF("%s", report.c_str());
                else
                    CLogWrapper::WriteTraceF("%s", report.c_str());
                WriteMessageToErrorStream(report);
                isFirst = false;
            }
        }
        Uve::U8CString summary;
        summary.Format("\n\nWARNING: %d unexpected token(s) found\n",
                       static_cast<int>(m_Extension.m_mapErrors.size()));
        if (m_Extension.m_bShowErrors) {
            CLogWrapper::WriteLogF("%s", summary.c_str());
            WriteMessageToErrorStream(summary);
        }
        const std::string query = "<<<<\n" + std::string(m_Extension.m_strQuery) + ">>>>\n";
        CLogWrapper::WriteTraceF("%s%s", summary.c_str(), query.c_str());
        WriteMessageToErrorStream(summary + query);
    } catch (...) {
        CLogWrapper::WriteTraceF("\nUVParser: Protection error processing failed\n");
    }
}
