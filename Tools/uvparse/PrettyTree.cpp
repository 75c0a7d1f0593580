#include "Tools/uvparse/PrettyTree.h"

#include "Tools/uvparse/MarkupScanner.h"

#include <algorithm>
#include <vector>

namespace uvparse {

namespace {

// Beyond this many levels a reader has lost count, and the blanks alone of a list that nests once an item
// would be many times the tree.
constexpr std::size_t kDeepestIndent = 60;
constexpr std::size_t kIndentWidth = 2;
constexpr std::size_t kSinkPiece = std::size_t{1} << 16;

bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

// What an opening tag can't tell and its layout depends on, found in a first pass: for each element in
// document order, whether it has text of its own. Number 0 is the document.
struct STreeSurvey
{
    std::vector<bool> holdsText{false};
    std::optional<std::size_t> brokenAt;
};

STreeSurvey Survey(std::string_view tree)
{
    struct SOpenElement
    {
        std::size_t number;
        std::string_view name;
    };
    STreeSurvey survey;
    std::vector<SOpenElement> open{{0, {}}};
    CMarkupScanner scanner(tree);
    SMarkup markup;
    while (scanner.Next(markup)) {
        switch (markup.kind) {
        case enMarkup::Text:
            if (open.size() > 1 || !IsBlank(markup.text))
                survey.holdsText[open.back().number] = true;
            break;
        case enMarkup::Start:
            open.push_back({survey.holdsText.size(), markup.name});
            survey.holdsText.push_back(false);
            break;
        case enMarkup::Empty:
            survey.holdsText.push_back(false);
            break;
        case enMarkup::End:
            if (open.size() == 1 || open.back().name != markup.name) {
                survey.brokenAt = scanner.GetOffsetOf(markup);
                return survey;
            }
            open.pop_back();
            break;
        case enMarkup::Other:
            break;
        }
    }
    if (open.size() > 1 || !scanner.IsAtEnd())
        survey.brokenAt = scanner.GetOffset();
    return survey;
}

class CPrettyWriter
{
public:
    CPrettyWriter(const STreeSurvey& survey, const TTextSink& sink) : m_Survey(survey), m_Sink(sink)
    {
        m_Buffer.reserve(2 * kSinkPiece);
        m_Open.push_back({!survey.holdsText[0], false});
    }

    void Write(const SMarkup& markup)
    {
        switch (markup.kind) {
        case enMarkup::Text:
            // The only text where lines are broken is the blanks around the root.
            if (!m_Open.back().isLaidOut)
                Append(markup.text);
            break;
        case enMarkup::Start:
        case enMarkup::Empty: {
            const bool isLaidOut = m_Open.back().isLaidOut && !m_Survey.holdsText[m_Number];
            ++m_Number;
            BreakLine();
            Append(markup.text);
            if (markup.kind == enMarkup::Start)
                m_Open.push_back({isLaidOut, false});
            break;
        }
        case enMarkup::End: {
            const SOpenElement closing = m_Open.back();
            m_Open.pop_back();
            if (closing.isLaidOut && closing.hasContent)
                StartLine();
            Append(markup.text);
            break;
        }
        case enMarkup::Other:
            BreakLine();
            Append(markup.text);
            break;
        }
    }

    void Flush()
    {
        m_Sink(m_Buffer);
        m_Buffer.clear();
    }

private:
    struct SOpenElement
    {
        bool isLaidOut;
        bool hasContent;
    };

    // Before what the innermost open element holds.
    void BreakLine()
    {
        SOpenElement& parent = m_Open.back();
        const bool isFirstOfDocument = m_Open.size() == 1 && !parent.hasContent;
        parent.hasContent = true;
        if (parent.isLaidOut && !isFirstOfDocument)
            StartLine();
    }

    void StartLine()
    {
        m_Buffer += '\n';
        m_Buffer.append(kIndentWidth * std::min(m_Open.size() - 1, kDeepestIndent), ' ');
    }

    void Append(std::string_view text)
    {
        if (m_Buffer.size() > kSinkPiece)
            Flush();
        if (text.size() > kSinkPiece) {
            Flush();
            m_Sink(text);
        } else {
            m_Buffer += text;
        }
    }

    const STreeSurvey& m_Survey;
    const TTextSink& m_Sink;
    std::vector<SOpenElement> m_Open;
    std::size_t m_Number = 1; // of the next element
    std::string m_Buffer;
};

} // namespace

std::optional<std::size_t> WritePretty(std::string_view tree, const TTextSink& sink)
{
    const STreeSurvey survey = Survey(tree);
    if (survey.brokenAt)
        return survey.brokenAt;
    CPrettyWriter writer(survey, sink);
    CMarkupScanner scanner(tree);
    for (SMarkup markup; scanner.Next(markup);)
        writer.Write(markup);
    writer.Flush();
    return std::nullopt;
}

} // namespace uvparse
