#include "Grammar/UVGrammarParserImplementation.h"

#include <algorithm>

void CSQLGrammarParserImplementation::set_Query(const std::string& query)
{
    m_strLastError.clear();
    m_strParsedXml.clear();
    m_strParsedXml.shrink_to_fit();
    m_strQuery = query;
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
    return m_strQuery.substr(from, to - from);
}

std::vector<SDiscardedText> CSQLGrammarParserImplementation::DiscardedStretches() const
{
    std::vector<SDiscardedText> sorted;
    std::ranges::copy_if(m_lstDiscarded, std::back_inserter(sorted), [&](const SDiscardedText& text) {
        return text.begin < text.end && text.end <= m_strQuery.size();
    });
    std::ranges::stable_sort(sorted, {}, &SDiscardedText::begin);
    std::vector<SDiscardedText> stretches;
    for (const SDiscardedText& next : sorted) {
        const bool isApart = stretches.empty() ||
                             m_strQuery.find_first_not_of(" \t\r\n\f\v", stretches.back().end) < next.begin;
        if (isApart) {
            stretches.push_back(next);
            continue;
        }
        stretches.back().end = std::max(stretches.back().end, next.end);
        stretches.back().isReported = stretches.back().isReported || next.isReported;
    }
    return stretches;
}

void CSQLGrammarParserImplementation::ClearErrors()
{
    m_mapErrors.clear();
    m_lstUnexpected.clear();
    m_lstDiscarded.clear();
}
