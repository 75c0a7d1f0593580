#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

// The element names that one parse writes, each with the markup that goes around it, formed once when a
// grammar is linked and never again.
struct SElementName
{
    std::string name;
    std::string open;      // <name>
    std::string close;     // </name>
    std::string tokenOpen; // <name type="TOKEN" line="
};

class CElementNames
{
public:
    // Enters `name` if it is new.
    // Returns: its number, the same for the same name.
    std::uint32_t Intern(std::string_view name);

    const SElementName& operator[](std::uint32_t number) const { return m_names[number]; }
    std::size_t size() const { return m_names.size(); }

private:
    std::deque<SElementName> m_names; // a deque: the keys below point into it
    std::unordered_map<std::string_view, std::uint32_t> m_numbers;
};
