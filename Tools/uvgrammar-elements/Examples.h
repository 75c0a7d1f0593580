// Pieces of text that show an element, taken from the cases of a language.
#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace uvelements {

struct SExample
{
    std::string text; // of the element itself; where that isn't found, all of the case
    std::string file; // of the case, relative to the language's folder
    std::size_t line = 0;
    bool isWhole = false;    // all of the case
    bool hasMistake = false; // the case is one of text that can't be read
};

// The shortest piece for each element that an expected tree holds, by the element's name. Cases without a mistake come
// first. `language`: the folder; one without cases has no examples.
// Throws: CToolFailure.
std::map<std::string, SExample> FindExamples(const std::string& language);

} // namespace uvelements
