#include "Tools/uvgrammar-score/Comments.h"

#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/ScoreReport.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <utility>

namespace uvscore {

namespace {

// The forms of the statements of a text; those that aren't clean have none.
std::vector<std::string> FormsOf(const SParsedText& parsed)
{
    std::vector<std::string> forms;
    for (const SStatement& statement :
         FindStatements(parsed.result.output, parsed.prepared, parsed.result.findings))
        forms.push_back(statement.IsClean() ? FormOf(statement.tree) : std::string());
    return forms;
}

// A statement's text with something put after each of the tokens that are chosen, by index.
std::string WithInsertions(const SCleanStatement& statement, std::string_view prepared,
                           const std::vector<std::size_t>& after, const std::string& inserted)
{
    std::string text;
    std::size_t at = statement.begin;
    for (const std::size_t token : after) {
        // After the blanks: a comment up to the end of a line wants to have one.
        const std::size_t gap = statement.tokens[token + 1].begin;
        text.append(prepared.substr(at, gap - at)).append(inserted);
        at = gap;
    }
    return text.append(prepared.substr(at, statement.end - at));
}

} // namespace

SCommentReport TryComments(CTextParser& parser, const std::string& path, const std::string& comment,
                           std::size_t samples, std::uint64_t seed)
{
    SCommentReport report;
    const SParsedText parsed = ParseForExperiments(parser, path);
    const std::string_view prepared = parsed.prepared;
    const std::vector<std::string> formsOfAll = FormsOf(parsed);
    std::vector<SCleanStatement> statements = FindCleanStatements(parsed);
    CChance chance(seed, path);
    for (; samples > 0 && !statements.empty(); --samples) {
        std::swap(statements[chance.Below(statements.size())], statements.back());
        const SCleanStatement statement = std::move(statements.back());
        statements.pop_back();
        // A statement by itself is soon parsed, but it may need the text around it.
        const auto isAloneAsItWas = [&](const std::vector<std::size_t>& gaps, const std::string& inserted) {
            const std::string text = WithInsertions(statement, prepared, gaps, inserted);
            return FormsOf(parser.ParseText(text, path)) == std::vector{statement.form};
        };
        const auto isInTextAsItWas = [&](const std::vector<std::size_t>& gaps, const std::string& inserted) {
            const std::string text = std::string(prepared.substr(0, statement.begin)) +
                                     WithInsertions(statement, prepared, gaps, inserted) +
                                     std::string(prepared.substr(statement.end));
            return FormsOf(parser.ParseText(text, path)) == formsOfAll;
        };
        const bool isAlone = isAloneAsItWas({}, "");
        const auto isAsItWas = [&](const std::vector<std::size_t>& gaps, const std::string& inserted) {
            return isAlone ? isAloneAsItWas(gaps, inserted) : isInTextAsItWas(gaps, inserted);
        };
        ++report.statements;
        std::vector<std::size_t> gaps;
        for (std::size_t token = 0; token + 1 < statement.tokens.size(); ++token) {
            if (statement.tokens[token].end < statement.tokens[token + 1].begin || isAsItWas({token}, " "))
                gaps.push_back(token);
        }
        report.gaps += gaps.size();
        if (isAsItWas(gaps, comment))
            continue;
        for (const std::size_t token : gaps) {
            if (isAsItWas({token}, comment))
                continue;
            if (isAsItWas({token}, std::string(" ").append(comment))) {
                ++report.needBlank;
                continue;
            }
            const auto begin = parsed.prepared.begin();
            report.changes.push_back(
                {std::string(statement.tokens[token].name), std::string(statement.tokens[token + 1].name),
                 static_cast<std::size_t>(
                     std::count(begin, begin + static_cast<std::ptrdiff_t>(statement.begin), '\n')) +
                     1,
                 WithInsertions(statement, parsed.prepared, {token}, comment)});
        }
    }
    return report;
}

// "n" statements gaps needBlank, { LF "c" before after line text }
std::string WriteCommentReport(const SCommentReport& report)
{
    std::string text;
    AppendFields(text, {"n", std::to_string(report.statements), std::to_string(report.gaps),
                        std::to_string(report.needBlank)});
    for (const SCommentChange& change : report.changes)
        AppendFields(text, {"c", change.before, change.after, std::to_string(change.line), change.text});
    return text;
}

SCommentReport ReadCommentReport(const std::string& text)
{
    SCommentReport report;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const CFields fields(line);
        if (fields.Text(0) == "n") {
            report.statements = fields.Number(1);
            report.gaps = fields.Number(2);
            report.needBlank = fields.Number(3);
        } else {
            report.changes.push_back({fields.Text(1), fields.Text(2), fields.Number(3), fields.Text(4)});
        }
    }
    return report;
}

std::string CommentsText(const std::vector<std::string>& paths, const std::vector<SCommentReport>& reports,
                         std::size_t mostShown)
{
    struct SGroup
    {
        std::pair<std::string, std::string> tokens;
        std::size_t count = 0;
        std::string example;
        std::size_t size = 0;
    };
    std::map<std::pair<std::string, std::string>, SGroup> byTokens;
    std::size_t statements = 0;
    std::size_t gaps = 0;
    std::size_t needBlank = 0;
    std::size_t changes = 0;
    for (std::size_t i = 0; i < reports.size(); ++i) {
        statements += reports[i].statements;
        gaps += reports[i].gaps;
        needBlank += reports[i].needBlank;
        changes += reports[i].changes.size();
        for (const SCommentChange& change : reports[i].changes) {
            SGroup& group = byTokens[{change.before, change.after}];
            if (group.count++ > 0 && change.text.size() >= group.size)
                continue;
            group.tokens = {change.before, change.after};
            group.size = change.text.size();
            group.example = paths[i] + ':' + std::to_string(change.line) + ": " + OneLine(change.text);
        }
    }
    std::vector<SGroup> groups;
    groups.reserve(byTokens.size());
    for (auto& [tokens, group] : byTokens)
        groups.push_back(std::move(group));
    std::ranges::stable_sort(groups, std::greater(), &SGroup::count);
    std::string text = "\ncomments\n  statements: " + std::to_string(statements) +
                       "\n  gaps between tokens: " + std::to_string(gaps) +
                       "\n  gaps where a comment needs a blank before it: " + std::to_string(needBlank) +
                       "\n  gaps where a comment changes the tree: " + std::to_string(changes) + '\n';
    for (std::size_t i = 0; i < std::min(groups.size(), mostShown); ++i)
        text += "    " + std::to_string(groups[i].count) + " x between " + groups[i].tokens.first + " and " +
                groups[i].tokens.second + "\n      " + groups[i].example + '\n';
    if (groups.size() > mostShown)
        text += "    and " + std::to_string(groups.size() - mostShown) + " more pairs of tokens\n";
    return text;
}

} // namespace uvscore
