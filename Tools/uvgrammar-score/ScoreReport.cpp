#include "Tools/uvgrammar-score/ScoreReport.h"

#include "Tools/uvparse/SourcePlaces.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace uvscore {

namespace {

constexpr std::size_t kMostRules = 4;
constexpr std::size_t kShownCharacters = 160;

std::string Number(std::size_t value)
{
    return std::to_string(value);
}

} // namespace

std::string TitleOf(const SFailure& failure)
{
    if (failure.state < 0)
        return failure.token;
    return "unexpected " + (failure.token.empty() ? std::string("end of text") : failure.token) +
           " in state " + std::to_string(failure.state);
}

void STotals::Add(const SScoredFile& file)
{
    ++files;
    statements += file.statements.size();
    clean += static_cast<std::size_t>(std::ranges::count_if(file.statements, &SScoredStatement::IsClean));
    unexpectedTokens += file.unexpectedTokens;
    lost += file.lost;
    bytes += file.bytes;
    seconds += file.seconds;
}

std::string ShareText(std::size_t part, std::size_t whole)
{
    if (part == whole)
        return whole == 0 ? "-" : "100 %";
    const double share = 100.0 * static_cast<double>(part) / static_cast<double>(whole);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f %%", std::min(share, 99.99));
    return text.data();
}

std::string STotals::Text() const
{
    std::string text;
    const auto add = [&](const char* name, const std::string& value) {
        text.append("  ").append(name).append(": ").append(value).append(1, '\n');
    };
    add("files", Number(files));
    add("statements", Number(statements));
    add("clean", Number(clean) + " (" + ShareText(clean, statements) + ')');
    add("unexpected tokens", Number(unexpectedTokens));
    add("lost stretches", Number(lost));
    add("bytes", Number(bytes));
    add("bytes a second",
        seconds > 0 ? Number(static_cast<std::size_t>(static_cast<double>(bytes) / seconds)) : "-");
    return text;
}

std::vector<SFailureGroup> GroupFailures(const std::vector<SScoredFile>& files)
{
    std::map<std::pair<int, std::string>, SFailureGroup> groups;
    std::map<std::pair<int, std::string>, std::size_t> sizes; // of the statement that is shown
    for (const SScoredFile& file : files) {
        std::set<std::pair<int, std::string>> ofFile;
        for (const SScoredStatement& statement : file.statements) {
            for (const SFailure& failure : statement.failures) {
                const std::pair key(failure.state, failure.token);
                SFailureGroup& group = groups[key];
                ++group.count;
                group.files += ofFile.insert(key).second ? 1u : 0u;
                if (group.count > 1 && statement.size >= sizes[key])
                    continue;
                sizes[key] = statement.size;
                group.failure = failure;
                group.place = file.path + ':' + Number(statement.line);
                group.text = statement.text;
            }
        }
    }
    std::vector<SFailureGroup> sorted;
    sorted.reserve(groups.size());
    for (auto& [key, group] : groups)
        sorted.push_back(std::move(group));
    std::ranges::stable_sort(sorted, std::greater(), &SFailureGroup::count);
    return sorted;
}

std::string OneLine(std::string_view text)
{
    std::string line;
    for (const char c : text) {
        const bool isBlank = static_cast<unsigned char>(c) <= 0x20 || c == 0x7F;
        if (!isBlank)
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    const std::size_t end = uvparse::StepForward(line, 0, kShownCharacters, line.size());
    return end < line.size() ? line.substr(0, end) + "..." : line;
}

std::string GroupsText(const std::vector<SFailureGroup>& groups, std::size_t most,
                       const std::map<int, std::vector<SRuleBeingRead>>& rules)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(groups.size(), most); ++i) {
        const SFailureGroup& group = groups[i];
        text += '\n' + Number(group.count) + " x " + TitleOf(group.failure) +
                ", files: " + Number(group.files) + '\n';
        const auto reading = rules.find(group.failure.state);
        if (reading != rules.end()) {
            for (std::size_t r = 0; r < std::min(reading->second.size(), kMostRules); ++r) {
                const SRuleBeingRead& rule = reading->second[r];
                text += "    reading " + rule.place.file + ':' + std::to_string(rule.place.line) + ": " +
                        OneLine(rule.text) + '\n';
            }
            if (reading->second.size() > kMostRules)
                text += "    and " + Number(reading->second.size() - kMostRules) + " more rules\n";
        }
        for (std::size_t e = 0; e < group.failure.expected.size(); ++e)
            text += (e == 0 ? "    expected " : ", ") + group.failure.expected[e];
        if (!group.failure.expected.empty())
            text += '\n';
        text += "    " + group.place + ": " + OneLine(group.text) + '\n';
    }
    if (groups.size() > most)
        text += "\nand " + Number(groups.size() - most) + " more groups\n";
    return text;
}

} // namespace uvscore
