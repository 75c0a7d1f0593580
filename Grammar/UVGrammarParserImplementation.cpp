#include "Grammar/UVGrammarParserImplementation.h"

#include <utility>

void CSQLGrammarParserImplementation::set_Query(std::string query)
{
    m_strLastError.clear();
    m_strParsedXml.clear();
    m_strParsedXml.shrink_to_fit();
    m_bPlainTree = false;
    m_strQuery = std::move(query);
    m_lstLineEnds.clear();
    m_bLineEndsKnown = false;
}

std::string_view CSQLGrammarParserImplementation::LineText(unsigned long line)
{
    if (!m_bLineEndsKnown) {
        for (std::size_t at = m_strQuery.find('\n'); at != std::string::npos;
             at = m_strQuery.find('\n', at + 1))
            m_lstLineEnds.push_back(at);
        m_bLineEndsKnown = true;
    }
    if (line == 0 || line > m_lstLineEnds.size() + 1)
        return {};
    const std::size_t from = line == 1 ? 0 : m_lstLineEnds[line - 2] + 1;
    const std::size_t to = line <= m_lstLineEnds.size() ? m_lstLineEnds[line - 1] : m_strQuery.size();
    return std::string_view(m_strQuery).substr(from, to - from);
}
