#include "Tools/uvgrammar-score/Recovery.h"

#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/ScoreReport.h"

#include <algorithm>
#include <map>
#include <optional>
#include <sstream>
#include <utility>

namespace uvscore {

namespace {

constexpr int kTries = 8; // until a statement has a token that the fault is possible with

class CFaults
{
public:
    CFaults(CTextParser& parser, const std::string& path, std::uint64_t seed)
        : m_Parser(parser), m_Path(path), m_Parsed(ParseForExperiments(parser, path)),
          m_Statements(FindCleanStatements(m_Parsed)),
          m_Keywords(KeywordsOf(m_Statements, m_Parsed.prepared)), m_Chance(seed, path)
    {}

    std::vector<SFaultResult> Try(std::size_t samples)
    {
        std::vector<SFaultResult> results;
        for (std::size_t i = 0; i < samples && !m_Statements.empty(); ++i) {
            const auto fault = static_cast<enFault>(m_Chance.Below(kFaults));
            for (int tries = 0; tries < kTries; ++tries) {
                const SCleanStatement& statement = m_Statements[m_Chance.Below(m_Statements.size())];
                const std::optional<SEdit> edit =
                    ChooseEdit(fault, statement, m_Parsed.prepared, m_Keywords, m_Chance);
                if (!edit)
                    continue;
                results.push_back(Try(fault, statement, *edit));
                break;
            }
        }
        return results;
    }

private:
    SFaultResult Try(enFault fault, const SCleanStatement& bad, const SEdit& edit)
    {
        const SParsedText parsed = m_Parser.ParseText(edit.Apply(m_Parsed.prepared), m_Path);
        SFaultResult result{.fault = fault};

        std::map<std::size_t, std::string> forms; // by where they begin
        for (SCleanStatement& statement : FindCleanStatements(parsed))
            forms.emplace(statement.begin, std::move(statement.form));
        for (const SCleanStatement& statement : m_Statements) {
            if (&statement == &bad || (fault == enFault::Delimiter && &statement == &bad + 1))
                continue;
            ++result.others;
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
        std::size_t harmless = 0;
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
            harmless += result.kept == result.others ? 1u : 0u;
            lost.push_back(result.others - result.kept);
            distances.push_back(result.distance);
        }
        text += std::string("  ") + NameOf(static_cast<enFault>(kind)) + ": " + std::to_string(lost.size()) +
                " faults, other statements kept " + ShareText(kept, others) + ", all of them in " +
                ShareText(harmless, lost.size()) + ", median lost " + Median(lost) + ", message after " +
                Median(distances) + " tokens; no fault to the parser: " + std::to_string(good) + '\n';
    }
    return text;
}

} // namespace uvscore
