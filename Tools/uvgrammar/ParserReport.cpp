#include "Tools/uvgrammar/ParserReport.h"

#include "Tools/Support/ToolFiles.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr std::string_view kDigits = "0123456789";

// Symbols stand between blanks, but an alias or a character may hold blanks inside its quotes.
std::vector<std::string> SplitSymbols(std::string_view text)
{
    std::vector<std::string> symbols;
    std::size_t at = 0;
    while ((at = text.find_first_not_of(' ', at)) != std::string_view::npos) {
        std::size_t end = at + 1;
        const char quote = text[at];
        if (quote == '"' || quote == '\'') {
            while (end < text.size() && text[end] != quote)
                end += text[end] == '\\' ? 2u : 1u;
            ++end;
        } else
            end = text.find(' ', at);
        end = std::min(end, text.size());
        symbols.emplace_back(text.substr(at, end - at));
        at = end;
    }
    return symbols;
}

int NumberAt(std::string_view text)
{
    return std::atoi(std::string(text.substr(0, text.find_first_not_of(kDigits))).c_str());
}

// The number before `word`, 0 without it.
int CountBefore(std::string_view line, std::string_view word)
{
    const std::size_t at = line.find(word);
    if (at == std::string_view::npos)
        return 0;
    const std::size_t from = line.find_last_not_of(kDigits, at - 1);
    return NumberAt(line.substr(from + 1));
}

void AddRule(SParserReport& report, std::string_view line)
{
    std::vector<std::string> words = SplitSymbols(line);
    if (words.size() < 2 || words.front().find_first_not_of(kDigits) != std::string::npos)
        return;
    SGrammarRule rule;
    rule.number = std::atoi(words[0].c_str()) + 1;
    std::size_t first = 2;
    if (words[1] == "|")
        rule.left = report.rules.empty() ? std::string() : report.rules.back().left;
    else {
        rule.left = words[1];
        if (rule.left.ends_with(':'))
            rule.left.pop_back();
    }
    // The empty word is an "ε" where the locale has one.
    if (words.size() == first + 1 && (words[first] == "%empty" || words[first] == "\xce\xb5"))
        ++first;
    rule.right.assign(words.begin() + static_cast<std::ptrdiff_t>(std::min(first, words.size())),
                      words.end());
    report.rules.push_back(std::move(rule));
}

enum class enSection
{
    Head,
    UselessNonterminals,
    UselessRules,
    Grammar,
    Terminals,
    Nonterminals
};

enSection SectionOf(std::string_view line, enSection current)
{
    if (line == "Grammar")
        return enSection::Grammar;
    if (line.starts_with("Nonterminals useless"))
        return enSection::UselessNonterminals;
    if (line.starts_with("Rules useless"))
        return enSection::UselessRules;
    if (line.starts_with("Terminals, with rules"))
        return enSection::Terminals;
    if (line.starts_with("Nonterminals, with rules"))
        return enSection::Nonterminals;
    return line.starts_with(' ') ? current : enSection::Head;
}

std::string Trimmed(std::string_view line)
{
    const std::size_t from = std::min(line.find_first_not_of(' '), line.size());
    return std::string(line.substr(from));
}

} // namespace

SParserReport ReadParserReport(std::string_view text)
{
    SParserReport report;
    enSection section = enSection::Head;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty())
            continue;
        // What follows is the automaton, by far the largest part.
        if (line == "State 0")
            break;
        if (line.starts_with("State ") && line.find(" conflicts: ") != std::string_view::npos) {
            report.shiftReduceConflicts += CountBefore(line, " shift/reduce");
            report.reduceReduceConflicts += CountBefore(line, " reduce/reduce");
        }
        section = SectionOf(line, section);
        if (!line.starts_with(' '))
            continue;
        const bool isEntry = line.starts_with("    ") && !line.starts_with("     ");
        switch (section) {
        case enSection::UselessNonterminals:
            report.uselessNonterminals.push_back(Trimmed(line));
            break;
        case enSection::UselessRules:
            report.uselessRules.push_back(Trimmed(line));
            break;
        case enSection::Grammar:
            AddRule(report, line);
            break;
        case enSection::Terminals:
            report.terminals += isEntry ? 1 : 0;
            break;
        case enSection::Nonterminals:
            report.nonterminals += isEntry ? 1 : 0;
            break;
        case enSection::Head:
            break;
        }
    }
    if (report.rules.empty())
        throw CToolFailure("bison: its report has no grammar section");
    return report;
}
