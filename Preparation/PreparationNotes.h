// Gathers what a pass has to say of a source, and keeps it short: a source may give the same reason for a
// note a thousand times.
#pragma once

#include "Preparation/PreparedText.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

class CPreparationNotes
{
public:
    static constexpr std::size_t kMostNotes = 200;
    static constexpr std::size_t kLongestText = 500; // bytes; what is longer is cut

    // `line` and `file`: as SPreparationNote has them. Notes of the same text about the same file are one,
    // with the line of the first and their count after the text.
    void AddWarning(std::string_view text, std::uint32_t line = 0, std::string_view file = {})
    {
        Add(false, text, line, file);
    }
    void AddError(std::string_view text, std::uint32_t line = 0, std::string_view file = {})
    {
        Add(true, text, line, file);
    }

    bool empty() const { return m_Notes.empty(); }

    // After the most that there may be stands one that counts the others. The gatherer is empty afterwards.
    std::vector<SPreparationNote> Take();

private:
    void Add(bool isError, std::string_view text, std::uint32_t line, std::string_view file);

    std::vector<SPreparationNote> m_Notes;
    std::vector<std::size_t> m_Counts; // one for each note
    std::map<std::tuple<bool, std::string, std::string>, std::size_t> m_Known;
    std::size_t m_LeftOut = 0;
    bool m_HasErrorsLeftOut = false;
};
