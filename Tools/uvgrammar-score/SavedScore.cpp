#include "Tools/uvgrammar-score/SavedScore.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/ScoreReport.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <sstream>

namespace uvscore {

namespace {

constexpr const char* kHead = "uvgrammar score 1";

std::string Hexadecimal(std::uint64_t number)
{
    char text[17];
    const auto [end, error] = std::to_chars(text, text + sizeof text, number, 16);
    return {text, end};
}

std::uint64_t ReadHexadecimal(const std::string& text)
{
    std::uint64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return number;
}

std::size_t EndOf(const SScoredStatement& statement)
{
    return statement.begin + statement.size;
}

std::string FirstLine(std::string_view text)
{
    return OneLine(text.substr(0, text.find('\n')));
}

// Pairs the statements of a file that are at the same place, failing before or after the other's clean ones: for each clean
// one in `clean` the first of `other` that fails and covers some of it; null without one. Both are in order.
std::vector<const SScoredStatement*> FailingInPlaces(const std::vector<SScoredStatement>& clean,
                                                     const std::vector<SScoredStatement>& other)
{
    std::vector<const SScoredStatement*> found;
    std::size_t at = 0;
    for (const SScoredStatement& statement : clean) {
        const SScoredStatement* failing = nullptr;
        while (at < other.size() && EndOf(other[at]) <= statement.begin)
            ++at;
        for (std::size_t i = at; statement.IsClean() && i < other.size() && other[i].begin < EndOf(statement);
             ++i) {
            if (!other[i].IsClean() && failing == nullptr)
                failing = &other[i];
        }
        found.push_back(failing);
    }
    return found;
}

void CompareInPlace(const SScoredFile& before, const SScoredFile& now, SComparison& comparison)
{
    for (const SScoredStatement* const failing : FailingInPlaces(before.statements, now.statements))
        if (failing != nullptr)
            comparison.worse.push_back(
                {now.path + ':' + std::to_string(failing->line), FirstLine(failing->text)});
    const std::vector<const SScoredStatement*> mended = FailingInPlaces(now.statements, before.statements);
    const auto better = static_cast<std::size_t>(
        mended.size() - static_cast<std::size_t>(std::ranges::count(mended, nullptr)));
    comparison.better += better;
}

// Texts moved: the same statement is one of the same text.
void CompareByText(const SScoredFile& before, const SScoredFile& now, SComparison& comparison)
{
    struct SCount
    {
        std::size_t clean = 0;
        std::size_t failing = 0;
    };
    std::map<std::uint64_t, SCount> counts;
    for (const SScoredStatement& statement : before.statements)
        ++(statement.IsClean() ? counts[statement.hash].clean : counts[statement.hash].failing);
    // Statements that are as before find their like first.
    std::vector<const SScoredStatement*> others;
    for (const SScoredStatement& statement : now.statements) {
        const auto count = counts.find(statement.hash);
        if (count == counts.end())
            continue;
        std::size_t& like = statement.IsClean() ? count->second.clean : count->second.failing;
        if (like > 0)
            --like;
        else
            others.push_back(&statement);
    }
    for (const SScoredStatement* const statement : others) {
        SCount& count = counts[statement->hash];
        std::size_t& was = statement->IsClean() ? count.failing : count.clean;
        if (was == 0)
            continue;
        --was;
        if (statement->IsClean())
            ++comparison.better;
        else
            comparison.worse.push_back(
                {now.path + ':' + std::to_string(statement->line), FirstLine(statement->text)});
    }
}

} // namespace

std::string SavedText(const std::string& language, const std::vector<SScoredFile>& files)
{
    std::string text;
    AppendFields(text, {kHead, language});
    for (const SScoredFile& file : files) {
        AppendFields(text, {"file", file.path, Hexadecimal(file.hash)});
        for (const SScoredStatement& statement : file.statements)
            AppendFields(text, {(statement.IsClean() ? '+' : '-') + std::to_string(statement.begin),
                                std::to_string(statement.size), Hexadecimal(statement.hash)});
    }
    return text;
}

std::vector<SScoredFile> ReadSavedScore(const std::string& path, const std::string& language)
{
    std::istringstream lines(ReadWholeFile(path));
    std::string line;
    std::getline(lines, line);
    const CFields head(line);
    if (head.Text(0) != kHead)
        throw CToolFailure(path + ": not a saved score");
    if (head.Text(1) != language)
        throw CToolFailure(path + ": the score of " + head.Text(1) + ", not of " + language);
    std::vector<SScoredFile> files;
    for (std::size_t number = 2; std::getline(lines, line); ++number) {
        const CFields fields(line);
        const std::string first = fields.Text(0);
        if (first == "file" && fields.Count() == 3) {
            files.push_back({.path = fields.Text(1)});
            files.back().hash = ReadHexadecimal(fields.Text(2));
        } else if (fields.Count() == 3 && !files.empty() &&
                   (first.starts_with('+') || first.starts_with('-'))) {
            SScoredStatement statement{.size = fields.Number(1), .hash = ReadHexadecimal(fields.Text(2))};
            std::from_chars(first.data() + 1, first.data() + first.size(), statement.begin);
            statement.isRead = first.front() == '+';
            files.back().statements.push_back(std::move(statement));
        } else {
            throw CToolFailure(path + ':' + std::to_string(number) + ": not a line of a saved score");
        }
    }
    return files;
}

SComparison CompareScores(const std::vector<SScoredFile>& before, const std::vector<SScoredFile>& now)
{
    SComparison comparison;
    std::map<std::string, const SScoredFile*> known;
    for (const SScoredFile& file : before)
        known[file.path] = &file;
    STotals totalsBefore;
    STotals totalsNow;
    for (const SScoredFile& file : now) {
        const auto found = known.find(file.path);
        if (found == known.end()) {
            ++comparison.newFiles;
            continue;
        }
        totalsBefore.Add(*found->second);
        totalsNow.Add(file);
        if (found->second->hash == file.hash)
            CompareInPlace(*found->second, file, comparison);
        else
            CompareByText(*found->second, file, comparison);
        known.erase(found);
    }
    comparison.missingFiles = known.size();
    comparison.cleanBefore = totalsBefore.clean;
    comparison.cleanNow = totalsNow.clean;
    comparison.statementsBefore = totalsBefore.statements;
    comparison.statementsNow = totalsNow.statements;
    return comparison;
}

std::string ComparisonText(const SComparison& comparison, std::size_t mostShown)
{
    const auto number = [](std::size_t value) { return std::to_string(value); };
    const auto ofAll = [&](std::size_t clean, std::size_t statements) {
        return number(clean) + " of " + number(statements) + " (" + ShareText(clean, statements) + ')';
    };
    std::string text = "\nagainst the run before\n";
    text += "  better: " + number(comparison.better) + '\n';
    text += "  worse: " + number(comparison.worse.size()) + '\n';
    for (std::size_t i = 0; i < std::min(mostShown, comparison.worse.size()); ++i)
        text += "    " + comparison.worse[i].place + ": " + comparison.worse[i].text + '\n';
    if (comparison.worse.size() > mostShown)
        text += "    and " + number(comparison.worse.size() - mostShown) + " more\n";
    text += "  clean: " + ofAll(comparison.cleanBefore, comparison.statementsBefore) + ", now " +
            ofAll(comparison.cleanNow, comparison.statementsNow) + '\n';
    if (comparison.newFiles > 0)
        text += "  files that are new: " + number(comparison.newFiles) + '\n';
    if (comparison.missingFiles > 0)
        text += "  files that this run leaves out: " + number(comparison.missingFiles) + '\n';
    return text;
}

} // namespace uvscore
