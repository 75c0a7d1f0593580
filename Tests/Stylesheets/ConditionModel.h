// Conditional sections once more, by the expressions that define them: slow, and only for texts that the
// library of expressions takes, but plain to see.
#pragma once

#include <boost/algorithm/string.hpp>
#include <boost/regex.hpp>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

inline bool IsSectionKeptByModel(const std::string& content, const std::string& first,
                                 const std::string& second, const std::string& third)
{
    static const boost::regex kCondition(R"(\s*Condition:\s*(\w+)(\/([\w\*]+)\s*(\[[\w; \*\t]+\])?\s*)?)");
    boost::smatch match;
    if (!boost::regex_match(content, match, kCondition) || !boost::iequals(match.str(1), first))
        return false;
    if (!match[3].matched)
        return true;
    if (match.str(3) != "*" && !boost::iequals(match.str(3), second))
        return false;
    if (!match[4].matched)
        return true;
    std::vector<std::string> items;
    const std::string list = boost::trim_copy_if(match.str(4), boost::is_any_of("[;]"));
    boost::split(items, list, boost::is_any_of(";"));
    for (std::string& item : items) {
        boost::trim(item);
        if (item == "*" || boost::iequals(item, third))
            return true;
    }
    return false;
}

// Throws: std::runtime_error, with the texts of the library.
inline std::string ProcessGlobalVariablesByModel(const std::string& text, const std::string& first,
                                                 const std::string& second, const std::string& third)
{
    static const boost::regex kComment(R"(<!--([\w\s:;\*\/\[\]]*)-->)");
    static const boost::regex kBegin(R"(\s*Condition:[\s\S]*)");
    static const boost::regex kEnd(R"(\s*End\s+Condition\s*)");
    std::string out;
    std::optional<std::string> open;
    auto position = text.begin();
    boost::smatch comment;
    while (boost::regex_search(position, text.end(), comment, kComment)) {
        const std::string content = comment.str(1);
        const std::string before(position, comment[0].first);
        if (boost::regex_match(content, kBegin)) {
            if (open)
                throw std::runtime_error("The previous Condition comment is not closed.");
            open = content;
            out += before;
        } else if (!boost::regex_match(content, kEnd))
            throw std::runtime_error("Expected End Condition comment.");
        else if (!open)
            throw std::runtime_error("The Condition comment should be before End Condition comment.");
        else {
            if (IsSectionKeptByModel(*open, first, second, third))
                out += before;
            open.reset();
        }
        position = comment[0].second;
    }
    return out.append(position, text.end());
}
