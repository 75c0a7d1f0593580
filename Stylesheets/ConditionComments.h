// Conditional sections of files of global variables. Such a file serves several conversions; a section
// between two comments is there only for some of them:
//     section   = opening text closing
//     opening   = "<!--" "Condition:" name [ "/" second [ "[" item { ";" item } "]" ] ] "-->"
//     closing   = "<!--" "End" "Condition" "-->"
//     name      = letters, digits and "_"
//     second    = "*" or a name
//     item      = "*" or a name
// for example <!--Condition: Alpha/Beta[One; Two]-->. Blanks may stand before the words and after a
// second name or a list. Case doesn't matter in names and items, it does in the words Condition and End. A
// comment that holds anything but ASCII letters, digits, "_", white space and :;*/[] is an ordinary one and
// stays.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Resolves the sections of `text` for one conversion. A section stays if its name equals `first`, its second
// name (if it has one) is "*" or equals `second`, and an item of its list (if it has one) is "*" or equals
// `third`. Both comments go in any case. An opening that is nothing of the above but begins with "Condition:"
// drops its section; see FindDeadConditions. Text after an opening that is never closed stays.
// Throws: std::runtime_error for an opening inside a section, a closing without an opening, and any other
//         comment of those characters.
std::string ProcessGlobalVariables(const std::string& text, const std::string& first,
                                   const std::string& second, const std::string& third);

enum class enDeadCondition
{
    BlankBehindName,       // a name without a second one ends the comment, or the condition fits nothing
    ListWithoutSecondName, // the list says nothing without a second name; "*" can stand for one
    Malformed
};

// An opening that no conversion can meet, so that its section is never there.
struct SDeadCondition
{
    std::size_t byteOffset = 0; // of the comment in the text
    enDeadCondition reason = enDeadCondition::Malformed;
    std::string comment; // what stands between "<!--" and "-->"
};

// All such openings of a text, in order. Doesn't care how openings and closings pair.
std::vector<SDeadCondition> FindDeadConditions(std::string_view text);
