#include "Tools/uvgrammar/GrammarSource.h"

#include "Tools/Support/ToolFiles.h"

#include <algorithm>

CGrammarSource::CGrammarSource(const std::string& path) : m_Path(path), m_Text(ReadWholeFile(path))
{
    for (std::size_t at = 0; at < m_Text.size();) {
        const std::size_t end = std::min(m_Text.find('\n', at), m_Text.size());
        m_Lines.push_back(m_Text.substr(at, end - at));
        at = end + 1;
    }
}

SSourcePlace CGrammarSource::Place(int line, int column) const
{
    SSourcePlace place{m_Path, std::max(line, 0), column, {}};
    if (line > 0 && static_cast<std::size_t>(line) <= m_Lines.size())
        place.sourceLine = m_Lines[static_cast<std::size_t>(line) - 1];
    return place;
}
