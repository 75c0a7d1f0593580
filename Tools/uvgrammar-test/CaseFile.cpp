#include "Tools/uvgrammar-test/CaseFile.h"

#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>

namespace uvtest {

namespace {

constexpr std::size_t kShortestMark = 3;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

struct SLine
{
    std::string_view text; // without its end
    std::size_t begin = 0;
    std::size_t next = 0; // where the next line begins
};

bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(" \t") == std::string_view::npos;
}

std::string_view Trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

std::size_t LineOf(std::string_view content, std::size_t offset)
{
    return 1 + static_cast<std::size_t>(std::ranges::count(content.substr(0, offset), '\n'));
}

// How many times the line begins with `sign`.
std::size_t RunOf(std::string_view line, char sign)
{
    return std::min(line.find_first_not_of(sign), line.size());
}

// The length of the mark that begins a headline; 0 if it is none.
std::size_t HeadlineMark(std::string_view line)
{
    const std::size_t run = RunOf(line, '=');
    return run >= kShortestMark && line.substr(run).starts_with(' ') && !IsBlank(line.substr(run)) ? run : 0;
}

void EndLinesInCrLf(std::string& text)
{
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
        if (at == 0 || text[at - 1] != '\r')
            text.insert(at++, 1, '\r');
}

// The same for a line with an option.
std::size_t OptionMark(std::string_view line)
{
    const std::size_t run = RunOf(line, '=');
    return run >= kShortestMark && line.substr(run).starts_with(':') ? run : 0;
}

class CCaseReader
{
public:
    CCaseReader(std::string path, std::string content)
    {
        m_File.path = std::move(path);
        m_File.content = std::move(content);
        const std::size_t invalid = UVDB::FindInvalidUTF8(m_File.content);
        if (invalid != std::string_view::npos)
            throw CCaseFileError(LineOf(m_File.content, invalid), "not valid UTF-8");
        if (m_File.content.starts_with(kByteOrderMark))
            m_At = kByteOrderMark.size();
    }

    SCaseFile Read()
    {
        while (!IsAtEnd()) {
            const SLine line = Look();
            if (HeadlineMark(line.text) > 0)
                ReadCase();
            else if (OptionMark(line.text) > 0)
                ReadOption(m_Common);
            else if (IsBlank(line.text) || line.text.starts_with('#'))
                Take();
            else
                Refuse("'=== name' is expected here, or a comment that begins with '#'");
        }
        return std::move(m_File);
    }

private:
    bool IsAtEnd() const { return m_At == m_File.content.size(); }

    SLine Look() const
    {
        const std::string_view content = m_File.content;
        SLine line;
        line.begin = m_At;
        const std::size_t end = std::min(content.find('\n', m_At), content.size());
        line.next = std::min(end + 1, content.size());
        line.text = content.substr(m_At, end - m_At);
        if (line.text.ends_with('\r'))
            line.text.remove_suffix(1);
        return line;
    }

    SLine Take()
    {
        const SLine line = Look();
        m_At = line.next;
        ++m_Line;
        return line;
    }

    // The line that is to be taken next.
    [[noreturn]] void Refuse(const std::string& text) const { throw CCaseFileError(m_Line, text); }

    // A case that is being read, and what is to be done with its text.
    struct SDraft
    {
        SCase made;
        bool hasLineEnd = true;
        bool isCrLf = false;
    };

    void ReadCase()
    {
        SDraft draft = m_Common;
        SCase& read = draft.made;
        read.line = m_Line;
        const std::string_view head = Take().text;
        const std::size_t mark = HeadlineMark(head);
        read.name = Trimmed(head.substr(mark));
        while (!IsAtEnd() && OptionMark(Look().text) == mark)
            ReadOption(draft);
        ReadText(mark, read);
        if (!draft.hasLineEnd && read.text.ends_with('\n'))
            read.text.erase(read.text.size() - (read.text.ends_with("\r\n") ? 2 : 1));
        if (draft.isCrLf)
            EndLinesInCrLf(read.text);
        ReadTree(read);
        m_File.cases.push_back(std::move(read));
    }

    void ReadOption(SDraft& draft)
    {
        const std::string_view line = Look().text;
        const std::string_view option = Trimmed(line.substr(OptionMark(line) + 1));
        const std::string_view word = option.substr(0, option.find(' '));
        const std::string_view value = Trimmed(option.substr(word.size()));
        const std::size_t equals = value.find('=');
        if (option == "raw")
            draft.made.isRaw = true;
        else if (option == "crlf")
            draft.isCrLf = true;
        else if (option == "no line end")
            draft.hasLineEnd = false;
        else if (word == "show" && !value.empty())
            draft.made.show = value;
        else if (word == "option" && equals != std::string_view::npos && equals > 0)
            draft.made.options.emplace_back(value.substr(0, equals), value.substr(equals + 1));
        else
            Refuse(std::string("'").append(option).append(
                "' is no option of a case; there are show XPATH, raw, crlf, no line end, option KEY=VALUE"));
        Take();
    }

    void ReadText(std::size_t mark, SCase& read)
    {
        const std::size_t begin = m_At;
        for (; !IsAtEnd(); Take()) {
            const SLine line = Look();
            if (line.text.size() == mark && RunOf(line.text, '-') == mark) {
                read.text = m_File.content.substr(begin, line.begin - begin);
                Take();
                return;
            }
            if (HeadlineMark(line.text) == mark)
                Refuse("a line '" + std::string(mark, '-') +
                       "' between text and tree is missing before this one; if it " +
                       "belongs to the text, the case needs longer marks");
        }
        throw CCaseFileError(read.line,
                             "the case has no line '" + std::string(mark, '-') + "' between text and tree");
    }

    void ReadTree(SCase& read)
    {
        read.treeBegin = m_At;
        read.treeEnd = m_At;
        while (!IsAtEnd() && IsBlank(Look().text))
            Take();
        const std::size_t firstLine = m_Line;
        const std::size_t begin = m_At;
        TLines lines;
        TLines findings;
        for (; !IsAtEnd(); read.treeEnd = Take().next) {
            const std::string_view line = Look().text;
            if (IsBlank(line) || line.starts_with('#') || HeadlineMark(line) > 0)
                break;
            if (line.starts_with(kFindingMark))
                findings.emplace_back(Trimmed(line));
            else if (findings.empty())
                lines.emplace_back(line);
            else
                Refuse("a tree stands before the lines that begin with '!'");
        }
        if (lines.empty() && findings.empty())
            return;
        read.treeBegin = begin;
        try {
            read.expected = OutlineOfLines(lines);
        } catch (const COutlineError& e) {
            throw CCaseFileError(firstLine + e.Index(), e.what());
        }
        read.expected->insert(read.expected->end(), findings.begin(), findings.end());
    }

    SCaseFile m_File;
    SDraft m_Common; // what the cases that follow begin as
    std::size_t m_At = 0;
    std::size_t m_Line = 1; // the number of the line at m_At
};

} // namespace

SCaseFile ReadCaseFile(std::string path, std::string content)
{
    return CCaseReader(std::move(path), std::move(content)).Read();
}

std::string WithTrees(const SCaseFile& file, const std::vector<std::optional<TLines>>& trees)
{
    const std::string_view content = file.content;
    std::string written;
    std::size_t at = 0;
    for (std::size_t i = 0; i < file.cases.size(); ++i) {
        if (!trees[i])
            continue;
        const SCase& one = file.cases[i];
        written += content.substr(at, one.treeBegin - at);
        at = one.treeEnd;
        // The line before is the mark, or a blank one, with the end that lines have here.
        const bool isCrLf = written.ends_with("\r\n");
        const char* const lineEnd = isCrLf ? "\r\n" : "\n";
        if (!written.ends_with('\n'))
            written += lineEnd;
        for (const std::string& line : *trees[i])
            written += line + lineEnd;
    }
    return written.append(content.substr(at));
}

} // namespace uvtest
