#include "Tools/uvgrammar/AssembledText.h"

#include <algorithm>

const CAssembledText::SOrigin* CAssembledText::OriginOf(int line) const
{
    if (line < 1 || static_cast<std::size_t>(line) > m_Origins.size())
        return nullptr;
    return &m_Origins[static_cast<std::size_t>(line) - 1];
}

void CAssembledText::BeginLine(const SOrigin& origin)
{
    if (!m_Text.empty() && m_Text.back() != '\n')
        m_Text += '\n';
    m_Origins.push_back(origin);
}

void CAssembledText::Copy(const CSourceFile& file, std::size_t begin, std::size_t end)
{
    const std::string_view text = file.Text();
    for (std::size_t at = begin; at < end;) {
        const int line = file.LineAt(at);
        BeginLine({&file, line});
        for (std::size_t before = file.LineStart(line); before < at; ++before)
            m_Text += text[before] == '\t' ? '\t' : ' ';
        const std::size_t next = std::min(std::min(text.find('\n', at), text.size() - 1) + 1, end);
        m_Text.append(text.substr(at, next - at));
        at = next;
    }
}

void CAssembledText::Write(const CSourceFile& file, std::size_t offset, std::string_view lines, int list,
                           int words)
{
    while (!lines.empty()) {
        const std::size_t next = std::min(lines.find('\n'), lines.size() - 1) + 1;
        BeginLine({&file, file.LineAt(offset), list, words, true});
        m_Text.append(lines.substr(0, next));
        lines.remove_prefix(next);
    }
}

void CAssembledText::Append(const CAssembledText& other)
{
    if (!m_Text.empty() && m_Text.back() != '\n')
        m_Text += '\n';
    m_Text += other.m_Text;
    m_Origins.insert(m_Origins.end(), other.m_Origins.begin(), other.m_Origins.end());
}
