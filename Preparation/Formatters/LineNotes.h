// What befell single lines of a source, told as a handful of notes however many lines there are.
#pragma once

#include "Preparation/PreparedText.h"

#include <cstdint>
#include <string>
#include <vector>

// One note for each run of lines: "12 lines vanished: ...", at the first of them. After the first few runs
// one note sums up all that is left.
class CLineNotes
{
public:
    // `event`: what befell the lines, such as "vanished: nobody knows why".
    explicit CLineNotes(const char* event) : m_Event(event) {}

    // Lines ascend. The run goes on if nothing has ended it.
    void Add(std::uint32_t line);
    void EndRun() { m_IsRunOpen = false; }

    void MoveTo(std::vector<SPreparationNote>& notes);

private:
    struct SRun
    {
        std::uint32_t line;
        std::size_t count;
    };

    const char* m_Event;
    std::vector<SRun> m_Runs;
    bool m_IsRunOpen = false;
};

// A warning about the text itself. Line 0 is none.
SPreparationNote LineWarning(std::uint32_t line, std::string text);
// The pass refused the whole text: nothing of it is left.
SPreparationNote TextRefused(std::string reason);

// By their lines, equal ones as they are.
void SortNotes(std::vector<SPreparationNote>& notes);
