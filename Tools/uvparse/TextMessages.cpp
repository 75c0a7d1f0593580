#include "Tools/Support/ToolTerminal.h"
#include "Tools/uvparse/MessageForms.h"
#include "Tools/uvparse/SourcePlaces.h"

#include <sstream>
#include <utility>

namespace uvparse {

namespace {

class CTextWriter : public IMessageWriter
{
public:
    explicit CTextWriter(TTextSink sink) : m_Sink(std::move(sink)) {}

    void Begin(const std::string&, const std::string&) override {}
    void Write(const SMessage& message) override;
    void End(int) override {}

private:
    void WriteOfSource(const SMessage& message);

    TTextSink m_Sink;
    std::ostringstream m_Stream;
    CToolMessages m_Messages{"uvparse", m_Stream};
    std::optional<CCellText> m_Cells; // made for the first line that needs it
};

// The line is written as a terminal shows it: a caret below counts in its cells, of which wide characters take
// two and combining ones none.
void CTextWriter::WriteOfSource(const SMessage& message)
{
    SSourcePlace place{ShownName(message.file),
                       static_cast<int>(message.range.line),
                       static_cast<int>(message.range.column),
                       {}};
    std::size_t cell = 0;
    if (!message.sourceLine.empty()) {
        if (!m_Cells)
            m_Cells.emplace();
        const std::string line = Printable(message.sourceLine);
        const std::size_t begin = StepForward(line, 0, message.caret.value_or(0), line.size());
        std::string before;
        cell = m_Cells->Append(std::string_view(line).substr(0, begin), std::string::npos, before);
        m_Cells->Append(line, std::string::npos, place.sourceLine);
    }
    m_Messages.Write(message.severity, place, message.text);
    if (message.caret && !message.sourceLine.empty())
        m_Stream << "    " << std::string(cell, ' ') << "^\n";
}

void CTextWriter::Write(const SMessage& message)
{
    switch (RowOf(message.kind).subject) {
    case enMessageSubject::Source:
    case enMessageSubject::Note:
        WriteOfSource(message);
        break;
    case enMessageSubject::Unread:
    case enMessageSubject::Run:
    case enMessageSubject::Arguments:
        m_Messages.Write(message.severity, message.text);
        break;
    case enMessageSubject::Remark:
        m_Stream << message.text << '\n';
        break;
    }
    m_Sink(m_Stream.str());
    m_Stream.str({});
}

} // namespace

std::unique_ptr<IMessageWriter> MakeTextWriter(TTextSink sink)
{
    return std::make_unique<CTextWriter>(std::move(sink));
}

} // namespace uvparse
