#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// A piece of markup that is written over and over. It is padded, so that it can be copied in whole blocks
// without a look at its length.
class CMarkup
{
public:
    static constexpr std::size_t kBlock = 32;

    explicit CMarkup(const std::string& text);

    std::size_t size() const { return m_size; }
    const char* Padded() const { return m_padded.data(); }
    std::size_t PaddedSize() const { return m_padded.size(); } // a multiple of kBlock

private:
    std::string m_padded;
    std::size_t m_size;
};

// The markup that is the same for every token and every space.
constexpr std::string_view kSpaceOpen = "<T__SPACE type=\"TOKEN\">";
constexpr std::string_view kSpaceClose = "</T__SPACE>";
constexpr std::string_view kTokenPos = "\" pos=\"";
constexpr std::size_t kMostDigits = 11; // of a 32-bit number, sign included

// The element names that one parse writes, each with the markup that goes around it, formed once when a
// grammar is linked and never again.
struct SElementName
{
    explicit SElementName(const std::string& name);

    std::string_view Name() const { return {open.Padded() + 1, open.size() - 2}; }

    CMarkup open;      // <name>
    CMarkup close;     // </name>
    CMarkup tokenOpen; // <name type="TOKEN" line="
    bool isTerminal;   // T__...
};

inline constexpr std::uint32_t kMostElementNames = 1u << 26;

class CElementNames
{
public:
    // With the names of TreeNames::enTreeName, under their numbers.
    CElementNames();

    // Enters `name` if it is new.
    // Returns: its number, the same for the same name.
    // Throws:  std::length_error beyond kMostElementNames.
    std::uint32_t Intern(const std::string& name);

    const SElementName& operator[](std::uint32_t number) const { return m_names[number]; }
    std::size_t size() const { return m_names.size(); }

    // Whether all of them are names that flattening takes.
    bool AreTreeNames() const { return m_areTreeNames; }

private:
    std::vector<SElementName> m_names;
    std::unordered_map<std::string, std::uint32_t> m_numbers;
    bool m_areTreeNames = true;
};
