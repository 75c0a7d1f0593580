#include "Tools/uvgrammar-score/Coverage.h"

#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/ScoreReport.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace uvscore {

// In lines: "scanner" or "parser", { tab number }.
void CUsedRules::Add(const std::string& coverage)
{
    std::istringstream lines(coverage);
    for (std::string line; std::getline(lines, line);) {
        const CFields fields(line);
        std::set<int>& used = fields.Text(0) == "parser" ? m_Parser : m_Scanner;
        for (std::size_t i = 1; i < fields.Count(); ++i)
            used.insert(static_cast<int>(fields.Number(i)));
    }
}

std::vector<SLanguageRule> CUsedRules::Unused(std::vector<SLanguageRule> rules, const std::set<int>& used)
{
    std::erase_if(rules, [&](const SLanguageRule& rule) {
        return std::ranges::any_of(rule.numbers, [&](int number) { return used.contains(number); });
    });
    return rules;
}

SCoverageReport ReportCoverage(CLanguageRules& language, const CUsedRules& used, const std::string& users)
{
    SCoverageReport report{.text = "\ncoverage\n"};
    std::string named;
    const auto add = [&](const std::string& part, std::size_t all, const std::vector<SLanguageRule>& unused) {
        report.unused += unused.size();
        report.text.append("  rules of the ").append(part).append(" in use: ");
        report.text.append(std::to_string(all - unused.size())).append(" of ").append(std::to_string(all));
        report.text.append(" (").append(ShareText(all - unused.size(), all)).append(")\n");
        if (!unused.empty())
            named.append("  not used by any ").append(users).append(", of the ").append(part).append(1, '\n');
        for (const SLanguageRule& rule : unused)
            named.append("    ")
                .append(rule.place.file)
                .append(1, ':')
                .append(std::to_string(rule.place.line))
                .append(": ")
                .append(OneLine(rule.text))
                .append(1, '\n');
    };
    const std::vector<SLanguageRule> ofParser = language.ParserRules();
    add("parser", ofParser.size(), used.UnusedOfParser(ofParser));
    const std::vector<SLanguageRule> ofScanner = language.ScannerRules();
    add("scanner", ofScanner.size(), used.UnusedOfScanner(ofScanner));
    report.text += named;
    return report;
}

} // namespace uvscore
