#include "Tree/ElementNames.h"

#include "Tree/TreeCharacters.h"
#include "Tree/TreeNames.h"

#include <stdexcept>

CMarkup::CMarkup(const std::string& text) : m_padded(text), m_size(text.size())
{
    m_padded.resize((m_size + kBlock - 1) / kBlock * kBlock);
}

SElementName::SElementName(const std::string& name)
    : open("<" + name + ">"), close("</" + name + ">"), tokenOpen("<" + name + " type=\"TOKEN\" line=\""),
      isTerminal(name.starts_with("T__"))
{}

CElementNames::CElementNames()
{
    for (const char* const name : TreeNames::kTreeNames)
        Intern(name);
}

std::uint32_t CElementNames::Intern(const std::string& name)
{
    const auto [entry, isNew] = m_numbers.emplace(name, static_cast<std::uint32_t>(m_names.size()));
    if (isNew) {
        if (m_names.size() == kMostElementNames)
            throw std::length_error("a grammar has more element names than a tree can number");
        m_names.emplace_back(name);
        m_areTreeNames = m_areTreeNames && IsTreeName(name);
    }
    return entry->second;
}
