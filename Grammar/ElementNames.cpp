#include "Grammar/ElementNames.h"

std::uint32_t CElementNames::Intern(std::string_view name)
{
    if (const auto known = m_numbers.find(name); known != m_numbers.end())
        return known->second;
    const std::string text(name);
    m_names.push_back({text, "<" + text + ">", "</" + text + ">", "<" + text + " type=\"TOKEN\" line=\""});
    const auto number = static_cast<std::uint32_t>(m_names.size() - 1);
    m_numbers.emplace(m_names.back().name, number);
    return number;
}
