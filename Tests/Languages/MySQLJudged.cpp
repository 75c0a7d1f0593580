// Counts how far the language MySQL and a MariaDB agree about the statements of real scripts:
//     MySQLJudged [--faults N] [--seed N] [--list] FILE|FOLDER...
// It isn't a test, since its figures are those of the scripts.
#include "Tests/Languages/JudgedScripts.h"
#include "Tests/Languages/MariaDbServer.h"
#include "Tests/Languages/MySQLJudge.h"
#include "Tests/Languages/MySQLOwnSyntax.h"
#include "Tests/Languages/MySQLScript.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Faults.h"
#include "Tools/uvgrammar-score/Language.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>

namespace {

using namespace uvscore;

// clang-format off
constexpr SJudgedRow kRows[] = {
    {"taken and clean",                              "taken"},
    {"taken, but for what the statement is about",   "taken"},
    {"refused and told",                             "refused"},
    {"refused, with a message at the judge's place", "refused, with a message"},
    {"body taken and clean",                         "body taken"},
    {"body clean, with its statements in the tree",  "body taken and clean"},
    {"damaged, refused and told",                    "damaged and refused"},
    {"damaged, with a message at the judge's place", "damaged, with a message"},
    {"damaged, taken and clean",                     "damaged and taken"},
    {"damaged in a body, refused and told",          "damaged in a body and refused"},
};

// What a server takes in another mode, and the language in any.
constexpr const char* kModes[] = {"IGNORE_SPACE", "ANSI_QUOTES"};
// clang-format on

class CJudgedFile
{
public:
    CJudgedFile(CTextParser& parser, CMySqlJudge& judge, const std::string& path,
                const SJudgedSettings& settings)
        : m_Parser(parser), m_Judge(judge), m_Path(path), m_Settings(settings),
          m_Parsed(ParseForExperiments(parser, path)), m_Chance(settings.seed, path)
    {}

    std::string Judge()
    {
        std::vector<SScriptStatement> statements = CutMySqlScript(m_Parsed);
        std::map<std::size_t, const SScriptStatement*> taken; // by their begin
        for (const SScriptStatement& statement : statements)
            if (JudgeStatement(statement) && statement.statement.IsClean())
                taken[statement.statement.begin] = &statement;
        const std::vector<SCleanStatement> clean = FindCleanStatements(m_Parsed);
        const std::vector<std::string> keywords = KeywordsOf(clean, m_Parsed.prepared);
        for (const SCleanStatement& statement : clean) {
            const auto found = taken.find(statement.begin);
            if (found == taken.end() || m_Settings.faults == 0)
                continue;
            if (!ParseAlone(*found->second, found->second->text).result.findings.empty()) {
                m_Counts.SetAside("not clean alone", "", statement.begin, found->second->text);
                continue;
            }
            for (std::size_t i = 0; i < m_Settings.faults; ++i)
                Damage(statement, *found->second, keywords);
        }
        return m_Counts.Lines();
    }

private:
    SParsedText ParseAlone(const SScriptStatement& statement, const std::string& text)
    {
        return m_Parser.ParseText(statement.AloneText(text), m_Path);
    }

    // Where the first message stands in `text`.
    static std::size_t FirstMessageIn(const SParsedText& alone, const SScriptStatement& statement,
                                      const std::string& text)
    {
        const std::size_t before = statement.AloneOffset();
        const std::size_t first = FirstMessage(alone.result.findings, before + text.size());
        return std::min(std::max(first, before) - before, text.size());
    }

    // Returns: whether the judge takes it.
    bool JudgeStatement(const SScriptStatement& statement)
    {
        const std::size_t begin = statement.statement.begin;
        const std::string& sql = statement.text;
        const bool isClean = statement.statement.IsClean();
        if (statement.IsOfClient()) {
            m_Counts.SetAside("read by the client", "", begin, sql);
            return false;
        }
        const SMySqlVerdict verdict = m_Judge.Judge(sql);
        switch (verdict.kind) {
        case enMySqlVerdict::Stopped:
            SetAsideStopped(verdict, isClean, begin, sql);
            break;
        case enMySqlVerdict::Refused:
            JudgeRefused(statement, verdict);
            break;
        case enMySqlVerdict::TakenAsText:
            m_Counts.Count("taken, but for what the statement is about");
            [[fallthrough]];
        case enMySqlVerdict::Taken:
            m_Counts.Count("taken", "taken and clean", isClean, "", begin, sql);
            if (statement.HasBody()) {
                m_Counts.Count("body taken", "body taken and clean", isClean, "", begin, sql);
                if (isClean && CountInner(statement) > 0)
                    m_Counts.Count("body clean, with its statements in the tree");
            }
            break;
        }
        return verdict.IsTaken();
    }

    void JudgeRefused(const SScriptStatement& statement, const SMySqlVerdict& verdict)
    {
        const std::size_t begin = statement.statement.begin;
        const std::string& sql = statement.text;
        const bool isClean = statement.statement.IsClean();
        const std::string aside = IsOfBody(sql) ? "a statement of bodies" : WhyAside(sql, verdict);
        if (!aside.empty()) {
            m_Counts.SetAside(aside + (isClean ? "" : ", told"), verdict.message, begin, sql);
            return;
        }
        m_Counts.Count("refused", "refused and told", !isClean, verdict.message, begin, sql);
        // In its file, a message soon after another one is kept back.
        const SParsedText alone = ParseAlone(statement, sql);
        if (!isClean && !alone.result.findings.empty() && verdict.offset != std::string::npos)
            m_Counts.ComparePlaces("refused, with a message", "refused, with a message at the judge's place",
                                   sql, FirstMessageIn(alone, statement, sql), verdict.message,
                                   verdict.offset, begin);
    }

    // Whether a refused statement is right in a body, and nowhere else. What it uses may not be declared.
    bool IsOfBody(const std::string& sql)
    {
        const SMySqlVerdict verdict = m_Judge.Judge("CREATE PROCEDURE p() BEGIN\n" + sql + "\n; END");
        return verdict.kind != enMySqlVerdict::Refused;
    }

    // Why it says nothing that the judge refuses the text; empty if it does say something.
    std::string WhyAside(const std::string& sql, const SMySqlVerdict& verdict)
    {
        if (const char* const name = FindMySqlOwnSyntax(sql, verdict.offset))
            return std::string("MySQL's own: ") + name;
        for (const char* const mode : kModes)
            if (m_Judge.Judge(sql, mode).IsTaken())
                return std::string("taken with ") + mode;
        return {};
    }

    void SetAsideStopped(const SMySqlVerdict& verdict, bool isClean, std::size_t begin,
                         const std::string& sql)
    {
        m_Counts.SetAside("not read to its end, error " + std::to_string(verdict.code) +
                              (isClean ? "" : ", told"),
                          verdict.message, begin, sql);
    }

    // The statements inside.
    std::size_t CountInner(const SScriptStatement& statement)
    {
        const SParsedText alone = ParseAlone(statement, statement.text);
        const std::vector<STokenPlace> tokens = FindTokens(alone.result.output, alone.prepared);
        const std::size_t first = statement.delimiter.empty() ? 0 : 2; // after DELIMITER and its text
        const std::size_t begin = first < tokens.size() ? tokens[first].begin : 0;
        return static_cast<std::size_t>(std::ranges::count_if(
            InnerStatements(alone), [&](const SInnerStatement& inner) { return inner.begin > begin; }));
    }

    // The statement alone, with a fault.
    void Damage(const SCleanStatement& clean, const SScriptStatement& statement,
                const std::vector<std::string>& keywords)
    {
        const auto fault = static_cast<enFault>(m_Chance.Below(kFaults));
        std::optional<SEdit> edit = ChooseEdit(fault, clean, m_Parsed.prepared, keywords, m_Chance);
        // The delimiter isn't the server's.
        if (!edit || edit->end > statement.begin + statement.text.size())
            return;
        edit->begin -= statement.begin;
        edit->end -= statement.begin;
        const std::string damaged = edit->Apply(statement.text);
        const SParsedText alone = ParseAlone(statement, damaged);
        const bool isClean = alone.result.isParsed && alone.result.findings.empty();
        const SMySqlVerdict verdict = m_Judge.Judge(damaged);
        const std::size_t begin = clean.begin;
        if (verdict.IsTaken()) {
            m_Counts.Count("damaged and taken", "damaged, taken and clean", isClean, NameOf(fault), begin,
                           damaged);
        } else if (verdict.kind == enMySqlVerdict::Stopped) {
            SetAsideStopped(verdict, isClean, begin, damaged);
        } else if (const std::string aside = isClean ? WhyAside(damaged, verdict) : ""; !aside.empty()) {
            m_Counts.SetAside("damaged, " + aside, verdict.message, begin, damaged);
        } else {
            const std::string error = std::string(NameOf(fault)) + ", " + verdict.message;
            m_Counts.Count("damaged and refused", "damaged, refused and told", !isClean, error, begin,
                           damaged);
            if (statement.HasBody())
                m_Counts.Count("damaged in a body and refused", "damaged in a body, refused and told",
                               !isClean, error, begin, damaged);
            if (!isClean && verdict.offset != std::string::npos)
                m_Counts.ComparePlaces(
                    "damaged, with a message", "damaged, with a message at the judge's place", damaged,
                    FirstMessageIn(alone, statement, damaged), error, verdict.offset, begin);
        }
    }

    CTextParser& m_Parser;
    CMySqlJudge& m_Judge;
    const std::string& m_Path;
    const SJudgedSettings& m_Settings;
    SParsedText m_Parsed;
    CChance m_Chance;
    CJudgedCounts m_Counts{m_Path, m_Parsed.prepared};
};

} // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<CMariaDbServer> server;
    std::unique_ptr<CMySqlJudge> judge; // of each process its own
    const auto prepare = [&](CToolMessages& messages) {
        if (!MakeTables(FindLanguageSources(UV_SOURCE_DIR "/Languages/MySQL"), messages))
            throw CToolFailure("the grammar is refused");
        server = std::make_unique<CMariaDbServer>();
    };
    const auto work = [&](CTextParser& parser, const std::string& path, const SJudgedSettings& settings) {
        if (!judge)
            judge = std::make_unique<CMySqlJudge>(server->GetSocket());
        return CJudgedFile(parser, *judge, path, settings).Judge();
    };
    return RunJudgedProgram({"MySQLJudged", "MySQL", kRows, prepare, work}, argc, argv);
}
