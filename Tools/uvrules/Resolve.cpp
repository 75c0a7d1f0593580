#include "Tools/uvrules/Resolve.h"

#include "Stylesheets/XsltLoad.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvrules/TraceText.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace uvrules {

namespace {

const char* ReasonText(enDeadCondition reason)
{
    switch (reason) {
    case enDeadCondition::BlankBehindName:
        return "no blank may stand after a name alone";
    case enDeadCondition::ListWithoutSecondName:
        return "a list needs a second name before it, which may be *";
    case enDeadCondition::Malformed:
        break;
    }
    return "it is none of NAME, NAME/NAME and NAME/NAME [ITEM; ITEM]";
}

class CResolution
{
public:
    CResolution(const SCommandLine& line, CToolMessages& messages)
        : m_Line(line), m_Messages(messages),
          m_Files(line.hostFolder.empty() ? CRuleFiles() : CRuleFiles(line.hostFolder))
    {}

    int Run();

private:
    // The text with its conditions decided.
    // Throws: std::runtime_error.
    std::string Decided(const std::string& text) const
    {
        return ProcessGlobalVariables(text, m_Line.first, m_Line.second, m_Line.third);
    }
    void CheckConditions(const std::string& name, const std::string& text);
    void Tell(enSeverity severity, const std::string& name, const std::string& text, std::size_t offset,
              const std::string& message);
    std::size_t FaultyComment(const std::string& text) const;

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    CTraceText m_Trace;
    CRuleFiles m_Files;
    std::set<std::string> m_Checked; // a file that is imported twice is told about once
};

void CResolution::Tell(enSeverity severity, const std::string& name, const std::string& text,
                       std::size_t offset, const std::string& message)
{
    const auto at = static_cast<std::string_view::difference_type>(offset);
    const auto lines = std::count(text.begin(), text.begin() + at, '\n');
    const std::size_t lineStart = text.rfind('\n', offset) + 1; // 0 on the first line
    SSourcePlace place;
    place.file = m_Files.BaseFolder() + name;
    place.line = static_cast<int>(lines) + 1;
    place.sourceLine = text.substr(lineStart, text.find('\n', lineStart) - lineStart);
    m_Messages.Write(severity, place, message);
}

// The comment that ProcessGlobalVariables throws for: it throws for every text that goes on from there, and
// for none that ends before.
std::size_t CResolution::FaultyComment(const std::string& text) const
{
    std::vector<std::size_t> ends;
    for (std::size_t at = text.find("-->"); at != std::string::npos; at = text.find("-->", at + 3))
        ends.push_back(at + 3);
    const auto end = std::partition_point(ends.begin(), ends.end(), [&](std::size_t length) {
        try {
            Decided(text.substr(0, length));
        } catch (const std::runtime_error&) {
            return false;
        }
        return true;
    });
    const std::size_t start = end == ends.end() ? std::string::npos : text.rfind("<!--", *end);
    return start == std::string::npos ? 0 : start;
}

void CResolution::CheckConditions(const std::string& name, const std::string& text)
{
    if (!m_Checked.insert(name).second)
        return;
    for (const SDeadCondition& dead : FindDeadConditions(text))
        Tell(enSeverity::Warning, name, text, dead.byteOffset,
             std::string("this condition is never met: ") + ReasonText(dead.reason));
    try {
        Decided(text);
    } catch (const std::runtime_error& e) {
        Tell(enSeverity::Error, name, text, FaultyComment(text), e.what());
    }
}

int CResolution::Run()
{
    const std::string& name = m_Line.operands.front();
    std::string loaded;
    if (m_Files.LoadStylesheet(loaded, name) < 0) {
        if (m_Trace.Write(m_Messages, enSeverity::Error))
            return kToolFindings;
        throw CToolFailure(m_Files.BaseFolder() + name + ": there is no such rule file");
    }
    if (name.find("GlobalVariables") != std::string::npos) {
        CheckConditions(name, loaded);
        if (m_Messages.ErrorCount() > 0)
            return kToolFindings;
        loaded = Decided(loaded);
    }
    Uve::U8CString text(std::move(loaded));
    const auto visitor = [this](const std::string& imported, const std::string& importedText) {
        CheckConditions(imported, importedText);
    };
    if (m_Files.ResolveImports(text, m_Line.first, m_Line.second, m_Line.third, visitor) < 0) {
        m_Trace.Write(m_Messages, enSeverity::Error);
        m_Messages.Error(m_Files.BaseFolder() + name + ": can't be resolved");
        return kToolFindings;
    }
    WriteStandardOutput({text.data(), text.size()});
    // There is a result, but not without complaint: a file that is neither XML nor packed counts as empty.
    return m_Trace.Write(m_Messages, enSeverity::Error) ? kToolFindings : kToolClean;
}

} // namespace

int Resolve(const SCommandLine& line, CToolMessages& messages)
{
    return CResolution(line, messages).Run();
}

} // namespace uvrules
