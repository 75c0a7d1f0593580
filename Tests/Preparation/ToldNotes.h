// Notes of a pass in a form to compare.
#pragma once

#include "Preparation/PreparedText.h"

#include <string>
#include <vector>

// A line each: "E" or "W", file:line, text.
inline std::string Told(const std::vector<SPreparationNote>& notes)
{
    std::string told;
    for (const SPreparationNote& note : notes) {
        told += note.isError ? "E " : "W ";
        told += note.file + ':' + std::to_string(note.line) + ' ' + note.text + '\n';
    }
    return told;
}
