// Which rules of a language no text has used.
#pragma once

#include "Tools/uvgrammar-score/Language.h"

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace uvscore {

// What the texts have used so far, by the numbers of the tables.
class CUsedRules
{
public:
    // `coverage`: what the library tells of one text, empty if it tells nothing.
    void Add(const std::string& coverage);

    // Those of the language's rules of which no number was used.
    std::vector<SLanguageRule> UnusedOfParser(std::vector<SLanguageRule> rules) const
    {
        return Unused(std::move(rules), m_Parser);
    }
    std::vector<SLanguageRule> UnusedOfScanner(std::vector<SLanguageRule> rules) const
    {
        return Unused(std::move(rules), m_Scanner);
    }

private:
    static std::vector<SLanguageRule> Unused(std::vector<SLanguageRule> rules, const std::set<int>& used);

    std::set<int> m_Parser;
    std::set<int> m_Scanner;
};

struct SCoverageReport
{
    std::string text;
    std::size_t unused = 0; // rules
};

// How many of the language's rules were used, and the names of the others. `users`: what might have, such as "file".
// Throws: CToolFailure.
SCoverageReport ReportCoverage(CLanguageRules& language, const CUsedRules& used, const std::string& users);

} // namespace uvscore
