#include "Tools/uvgrammar-score/Recovery.h"

#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/ScoreReport.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <utility>

namespace uvscore {

namespace {

constexpr std::array<const char*, kFaults> kNames = {
    "token deleted", "token doubled",        "keyword instead of a token",
    "quote dropped", "dollar quote dropped", "bracket dropped"};
constexpr std::string_view kQuotes = "'\"`";
constexpr std::string_view kBrackets = "()[]{}";
constexpr int kTries = 8; // until a statement has a token that the fault is possible with

struct SEdit
{
    std::size_t begin = 0; // of what goes
    std::size_t end = 0;
    std::string text; // comes in its place
};

std::string_view TextOf(const STokenPlace& token, std::string_view text)
{
    return text.substr(token.begin, token.end - token.begin);
}

// The token of a keyword is called like it.
bool IsKeyword(const STokenPlace& token, std::string_view text)
{
    const std::string_view word = TextOf(token, text);
    const std::string_view name = token.name.substr(3);
    return word.size() > 1 && std::ranges::equal(word, name, [](char a, char b) {
               return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b && a != '_';
           });
}

// None if the token doesn't allow it.
std::vector<SEdit> EditsOf(enFault fault, const STokenPlace& token, std::string_view text,
                           const std::string& keyword)
{
    const std::string word(TextOf(token, text));
    const std::vector<SEdit> without = {{token.begin, token.end, ""}};
    bool isPossible = true;
    switch (fault) {
    case enFault::Deleted:
        break;
    case enFault::Doubled:
        return {{token.end, token.end, ' ' + word}};
    case enFault::Keyword:
        if (keyword.empty() || word == keyword)
            return {};
        return {{token.begin, token.end, keyword}};
    case enFault::Quote:
        if (word.size() < 2 || kQuotes.find(word.back()) == std::string_view::npos)
            return {};
        return {{token.begin + word.find(word.back()), token.begin + word.find(word.back()) + 1, ""},
                {token.end - 1, token.end, ""}};
    case enFault::DollarQuote:
        isPossible = word.size() > 1 && word.front() == '$' && word.back() == '$';
        break;
    case enFault::Bracket:
        isPossible = word.size() == 1 && kBrackets.find(word) != std::string_view::npos;
        break;
    }
    return isPossible ? without : std::vector<SEdit>();
}

class CFaults
{
public:
    CFaults(CTextParser& parser, const std::string& path, std::uint64_t seed)
        : m_Parser(parser), m_Path(path), m_Parsed(ParseForExperiments(parser, path)),
          m_Statements(FindCleanStatements(m_Parsed)), m_Chance(seed, path)
    {
        for (const SCleanStatement& statement : m_Statements)
            for (const STokenPlace& token : statement.tokens)
                if (IsKeyword(token, m_Parsed.prepared))
                    m_Keywords.emplace_back(TextOf(token, m_Parsed.prepared));
    }

    std::vector<SFaultResult> Try(std::size_t samples)
    {
        std::vector<SFaultResult> results;
        for (std::size_t i = 0; i < samples && !m_Statements.empty(); ++i) {
            const auto fault = static_cast<enFault>(m_Chance.Below(kFaults));
            for (int tries = 0; tries < kTries; ++tries) {
                const SCleanStatement& statement = m_Statements[m_Chance.Below(m_Statements.size())];
                const std::optional<SEdit> edit = ChooseEdit(fault, statement);
                if (!edit)
                    continue;
                results.push_back(Try(fault, statement, *edit));
                break;
            }
        }
        return results;
    }

private:
    std::optional<SEdit> ChooseEdit(enFault fault, const SCleanStatement& statement)
    {
        std::vector<SEdit> possible;
        const std::string keyword = m_Keywords.empty() ? "" : m_Keywords[m_Chance.Below(m_Keywords.size())];
        // Without its delimiter a statement and the next one are one text, which is another question.
        for (std::size_t i = 0; i + 1 < statement.tokens.size(); ++i)
            std::ranges::move(EditsOf(fault, statement.tokens[i], m_Parsed.prepared, keyword),
                              std::back_inserter(possible));
        if (possible.empty())
            return std::nullopt;
        return possible[m_Chance.Below(possible.size())];
    }

    SFaultResult Try(enFault fault, const SCleanStatement& bad, const SEdit& edit)
    {
        std::string text = m_Parsed.prepared;
        text.replace(edit.begin, edit.end - edit.begin, edit.text);
        const SParsedText parsed = m_Parser.ParseText(text, m_Path);
        SFaultResult result{.fault = fault, .others = m_Statements.size() - 1};

        std::map<std::size_t, std::string> forms; // by where they begin
        for (SCleanStatement& statement : FindCleanStatements(parsed))
            forms.emplace(statement.begin, std::move(statement.form));
        for (const SCleanStatement& statement : m_Statements) {
            if (&statement == &bad)
                continue;
            const std::size_t begin = statement.begin > edit.begin
                                          ? statement.begin + edit.text.size() - (edit.end - edit.begin)
                                          : statement.begin;
            const auto form = forms.find(begin);
            result.kept += form != forms.end() && form->second == statement.form ? 1u : 0u;
        }
        // The text may have had messages before.
        result.isTold = parsed.result.findings.size() > m_Parsed.result.findings.size();
        if (result.isTold)
            result.distance = DistanceTo(FirstNewFinding(parsed, edit), edit);
        return result;
    }

    // Where the first message is that the text didn't have.
    std::size_t FirstNewFinding(const SParsedText& parsed, const SEdit& edit) const
    {
        std::size_t first = std::string::npos;
        for (const uvparse::SFinding& finding : parsed.result.findings) {
            if (finding.isReported)
                continue;
            const bool isOld = finding.offset < edit.begin &&
                               std::ranges::any_of(m_Parsed.result.findings, [&](const auto& old) {
                                   return old.offset == finding.offset && old.kind == finding.kind;
                               });
            if (!isOld)
                first = std::min(first, finding.offset);
        }
        return first;
    }

    std::size_t DistanceTo(std::size_t offset, const SEdit& edit) const
    {
        std::size_t count = 0;
        for (const SCleanStatement& statement : m_Statements)
            for (const STokenPlace& token : statement.tokens)
                count +=
                    token.begin >= std::min(edit.end, offset) && token.begin < std::max(edit.begin, offset)
                        ? 1u
                        : 0u;
        return count;
    }

    CTextParser& m_Parser;
    const std::string& m_Path;
    SParsedText m_Parsed;
    std::vector<SCleanStatement> m_Statements;
    std::vector<std::string> m_Keywords;
    CChance m_Chance;
};

std::string Median(std::vector<std::size_t> values)
{
    if (values.empty())
        return "-";
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return std::to_string(*middle);
}

} // namespace

std::vector<SFaultResult> TryFaults(CTextParser& parser, const std::string& path, std::size_t samples,
                                    std::uint64_t seed)
{
    return CFaults(parser, path, seed).Try(samples);
}

// A line for each: fault others kept isTold distance
std::string WriteFaultResults(const std::vector<SFaultResult>& results)
{
    std::string text;
    for (const SFaultResult& result : results)
        AppendFields(text, {std::to_string(static_cast<int>(result.fault)), std::to_string(result.others),
                            std::to_string(result.kept), result.isTold ? "1" : "0",
                            std::to_string(result.distance)});
    return text;
}

std::vector<SFaultResult> ReadFaultResults(const std::string& text)
{
    std::vector<SFaultResult> results;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const CFields fields(line);
        results.push_back({static_cast<enFault>(fields.Number(0)), fields.Number(1), fields.Number(2),
                           fields.Number(3) != 0, fields.Number(4)});
    }
    return results;
}

std::string RecoveryText(const std::vector<SFaultResult>& results)
{
    std::string text = "\nrecovery\n";
    for (std::size_t kind = 0; kind < kFaults; ++kind) {
        std::size_t good = 0;
        std::size_t others = 0;
        std::size_t kept = 0;
        std::vector<std::size_t> lost;
        std::vector<std::size_t> distances;
        for (const SFaultResult& result : results) {
            if (result.fault != static_cast<enFault>(kind))
                continue;
            if (!result.isTold) {
                ++good;
                continue;
            }
            others += result.others;
            kept += result.kept;
            lost.push_back(result.others - result.kept);
            distances.push_back(result.distance);
        }
        text += std::string("  ") + kNames[kind] + ": " + std::to_string(lost.size()) +
                " faults, other statements kept " + ShareText(kept, others) + ", median lost " +
                Median(lost) + ", message after " + Median(distances) +
                " tokens; no fault to the parser: " + std::to_string(good) + '\n';
    }
    return text;
}

} // namespace uvscore
