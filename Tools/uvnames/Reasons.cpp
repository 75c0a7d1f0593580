#include "Tools/uvnames/Reasons.h"

#include "Names/NormalizeName.h"

#include <algorithm>
#include <utility>

namespace uvnames {

const std::vector<SReason>& Reasons()
{
    // clang-format off
    static const std::vector<SReason> kReasons = {
        {"Omit schema option",  "The schema is left out: the target has none of that kind, or an option says so."},
        {"Not allowed character at the first position",
                                "The target lets no name begin so: something was put before it or the first character taken away."},
        {"Not allowed characters", "The target has characters of the name only in quotes: they were replaced or taken out."},
        {"Identifier too long", "The target has shorter names: the name was cut, or shortened by a rule."},
        {"Made unique",         "Another object has the name in the target already: a number stands at its end."},
        {"Changed by User",     "Somebody gave the name by hand."},
        {"Temporary table",     "The table is temporary, which the target tells by a mark in the name."},
        {"Quoted by Orvanta",   "The column is written in double quotes, since the target wouldn't take it without."},
        {kClashes,              "Another object has the name, and the target takes only one of them in a schema: rename one."},
        {kNotRead,              "The line is no name; the message says what is wrong with it."},
        {kQuoted,               "The name, or a part of it, stands in quotes wherever a script uses it."},
        {kWrittenDifferently,   "The target writes such a name in another way, or an option asked for it."},
        {kUnchanged,            "The name is the same in the target."},
    };
    // clang-format on
    return kReasons;
}

std::string ReasonSentence(const std::string& text)
{
    const auto found =
        std::ranges::find_if(Reasons(), [&](const SReason& reason) { return text == reason.text; });
    return found == Reasons().end() ? "" : found->sentence;
}

std::vector<std::string> ReasonTexts(unsigned long reasons)
{
    std::vector<std::string> texts;
    for (unsigned long bit = 1; bit != 0 && bit <= reasons; bit <<= 1) {
        if (reasons & bit) {
            Uve::U8CString text = CNormalizeName::ReasonsToString(bit);
            if (text.TrimRight(); !text.empty() && std::ranges::find(texts, text) == texts.end())
                texts.push_back(std::move(text));
        }
    }
    return texts;
}

} // namespace uvnames
