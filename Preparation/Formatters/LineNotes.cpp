#include "Preparation/Formatters/LineNotes.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kMostRuns = 4; // that have a note of their own

} // namespace

void CLineNotes::Add(std::uint32_t line)
{
    if (m_IsRunOpen)
        ++m_Runs.back().count;
    else
        m_Runs.push_back({line, 1});
    m_IsRunOpen = true;
}

void CLineNotes::MoveTo(std::vector<SPreparationNote>& notes)
{
    const std::size_t single = m_Runs.size() > kMostRuns + 1 ? kMostRuns : m_Runs.size();
    for (std::size_t i = 0; i != single; ++i) {
        const std::size_t count = m_Runs[i].count;
        notes.push_back(LineWarning(m_Runs[i].line,
                                    std::to_string(count) + (count == 1 ? " line " : " lines ") + m_Event));
    }
    if (single != m_Runs.size()) {
        std::size_t count = 0;
        for (std::size_t i = single; i != m_Runs.size(); ++i)
            count += m_Runs[i].count;
        notes.push_back(LineWarning(m_Runs[single].line,
                                    "from here on " + std::to_string(count) + " more lines in " +
                                        std::to_string(m_Runs.size() - single) + " places " + m_Event));
    }
    m_Runs.clear();
    m_IsRunOpen = false;
}

SPreparationNote LineWarning(std::uint32_t line, std::string text)
{
    return {.isError = false, .line = line, .file = {}, .text = std::move(text)};
}

SPreparationNote TextRefused(std::string reason)
{
    return {.isError = true, .line = 0, .file = {}, .text = std::move(reason) + ": the text is empty"};
}

void SortNotes(std::vector<SPreparationNote>& notes)
{
    std::ranges::stable_sort(notes, {}, &SPreparationNote::line);
}
