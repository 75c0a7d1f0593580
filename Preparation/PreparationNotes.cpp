#include "Preparation/PreparationNotes.h"

#include <algorithm>
#include <utility>

namespace {

// One line of no great length, cut between characters.
std::string Shortened(std::string_view text)
{
    std::string line(text.substr(0, CPreparationNotes::kLongestText));
    if (line.size() != text.size()) {
        while (!line.empty() && (static_cast<unsigned char>(line.back()) & 0xC0) == 0x80)
            line.pop_back();
        if (!line.empty() && static_cast<unsigned char>(line.back()) >= 0xC0)
            line.pop_back();
        line += "...";
    }
    while (line.ends_with('\n'))
        line.pop_back();
    std::ranges::replace_if(
        line, [](char byte) { return static_cast<unsigned char>(byte) < ' '; }, ' ');
    return line;
}

} // namespace

void CPreparationNotes::Add(bool isError, std::string_view text, std::uint32_t line, std::string_view file)
{
    SPreparationNote note{isError, line, Shortened(file), Shortened(text)};
    const auto key = std::tuple(isError, note.file, note.text);
    if (const auto known = m_Known.find(key); known != m_Known.end()) {
        ++m_Counts[known->second];
        return;
    }
    if (m_Notes.size() == kMostNotes) {
        ++m_LeftOut;
        m_HasErrorsLeftOut = m_HasErrorsLeftOut || isError;
        return;
    }
    m_Known.emplace(key, m_Notes.size());
    m_Notes.push_back(std::move(note));
    m_Counts.push_back(1);
}

std::vector<SPreparationNote> CPreparationNotes::Take()
{
    for (std::size_t i = 0; i < m_Notes.size(); ++i)
        if (m_Counts[i] > 1)
            m_Notes[i].text += " (" + std::to_string(m_Counts[i]) + " times)";
    if (m_LeftOut > 0)
        m_Notes.push_back({m_HasErrorsLeftOut, 0, {}, "notes left out: " + std::to_string(m_LeftOut)});
    std::vector<SPreparationNote> notes = std::move(m_Notes);
    *this = {};
    return notes;
}
