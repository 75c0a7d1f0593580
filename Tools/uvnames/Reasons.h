// What is said of a name, in a few words and in a sentence for people who see them for the first time.
#pragma once

#include <string>
#include <vector>

namespace uvnames {

// Words of the tool, beside those of the library's reasons.
inline constexpr const char* kClashes = "Clashes in the schema";
inline constexpr const char* kNotRead = "Not read";
inline constexpr const char* kQuoted = "Quoted in scripts";
inline constexpr const char* kUnchanged = "Unchanged";
inline constexpr const char* kWrittenDifferently = "Written differently";

struct SReason
{
    const char* text;
    const char* sentence;
};

// All of them; those of the library first.
const std::vector<SReason>& Reasons();

// Empty for a text that is none.
std::string ReasonSentence(const std::string& text);

// The texts of the library's reasons, one by one.
std::vector<std::string> ReasonTexts(unsigned long reasons);

} // namespace uvnames
