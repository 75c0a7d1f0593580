// Counts how far PostgreSQL's language and the judge agree about the statements of real scripts:
//     PostgreSQLJudged [--faults N] [--seed N] [--list] FILE|FOLDER...
// It isn't a test, since its figures are those of the scripts.
#include "Tests/Languages/JudgedScripts.h"
#include "Tests/Languages/PostgreSQLJudge.h"
#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Faults.h"
#include "Tools/uvgrammar-score/Statements.h"

#include <algorithm>
#include <map>
#include <optional>
#include <regex>
#include <set>

namespace {

using namespace uvscore;

// clang-format off
constexpr SJudgedRow kRows[] = {
    {"taken and clean",                               "taken"},
    {"refused and told",                              "refused"},
    {"refused, with a message at the judge's place",  "refused, with a message"},
    {"damaged, refused and told",                     "damaged and refused"},
    {"damaged, with a message at the judge's place",  "damaged, with a message"},
    {"damaged, taken and clean",                      "damaged and taken"},
    {"block taken and clean",                         "block taken"},
    {"block refused and told",                        "block refused"},
    {"damaged in a block, refused and told",          "damaged in a block and refused"},
    {"statement beside a fault in a body, as before", "statement beside a fault in a body"},
};

// What the language has and the judge, who is older, has not.
struct SNewer
{
    const char* name;
    const char* pattern;
};

constexpr SNewer kNewer[] = {
    {"newer: form of a number",              "\\b0[box]_?[0-9a-f]|[0-9.]_[0-9]"},
    {"newer: JSON",                          "\\bjson_(object|array)(agg)?\\b|\\bis\\s+(not\\s+)?json\\b"},
    {"newer: XMLSERIALIZE with INDENT",      "\\bxmlserialize\\b[^]*\\bindent\\b"},
    {"newer: options of a membership",       "^(grant|revoke)\\b[^]*\\b(inherit|set)\\b"},
    {"newer: statistics without a name",     "^create\\s+statistics\\s+(on\\b|\\()"},
};
// clang-format on

// Other errors are found by checks that the judge makes in his grammar's actions.
bool IsSyntaxError(const SVerdict& verdict)
{
    constexpr std::string_view kSyntaxErrors[] = {"syntax error", "unterminated", "trailing junk",
                                                  "zero-length"};
    return std::ranges::any_of(kSyntaxErrors,
                               [&](std::string_view start) { return verdict.error.starts_with(start); });
}

// Why it says nothing that the judge refuses a text, which is clean if `isClean`; null if it does say something.
const char* WhyAside(const std::string& sql, const std::vector<STokenPlace>& tokens, const SVerdict& verdict,
                     bool isClean)
{
    if (IsThere(tokens, "T__CLIENT_VARIABLE") || IsThere(tokens, "T__CLIENT_STRING") ||
        IsThere(tokens, "T__CLIENT_IDENTIFIER"))
        return "client variable";
    if (!isClean)
        return nullptr;
    if (!IsSyntaxError(verdict))
        return "no syntax error";
    for (const SNewer& newer : kNewer)
        if (std::regex_search(sql, std::regex(newer.pattern, std::regex::icase)))
            return newer.name;
    return nullptr;
}

class CJudgedFile
{
public:
    CJudgedFile(CTextParser& parser, const std::string& path, const SJudgedSettings& settings)
        : m_Parser(parser), m_Path(path), m_Settings(settings), m_Parsed(ParseForExperiments(parser, path)),
          m_Chance(settings.seed, path)
    {}

    std::string Judge()
    {
        const std::vector<STokenPlace> tokens = FindTokens(m_Parsed.result.output, m_Parsed.prepared);
        for (const SStatement& statement :
             FindStatements(m_Parsed.result.output, m_Parsed.prepared, m_Parsed.result.findings)) {
            const auto from = std::ranges::lower_bound(tokens, statement.begin, {}, &STokenPlace::begin);
            const auto end = std::ranges::lower_bound(tokens, statement.end, {}, &STokenPlace::begin);
            JudgeStatement(statement, {from, end});
        }
        const std::vector<SCleanStatement> clean = FindCleanStatements(m_Parsed);
        const std::vector<std::string> keywords = KeywordsOf(clean, m_Parsed.prepared);
        for (const SCleanStatement& statement : clean)
            for (std::size_t i = 0; i < m_Settings.faults; ++i)
                Damage(statement, keywords);
        return m_Counts.Lines();
    }

private:
    void JudgeStatement(const SStatement& statement, const std::vector<STokenPlace>& tokens)
    {
        std::size_t end = statement.end;
        // What sends the statement is the client's.
        if (!tokens.empty() && tokens.back().name == "T__CLIENT_SEND")
            end = tokens.back().begin;
        const std::string sql = m_Parsed.prepared.substr(statement.begin, end - statement.begin);
        const SVerdict verdict = ::Judge(sql);
        const bool isBlockRefused = HoldsRoutine(tokens) && !JudgeRoutine(statement, sql, tokens);
        if (verdict.error.empty()) {
            if (!isBlockRefused)
                m_Counts.Count("taken", "taken and clean", statement.IsClean(), "", statement.begin, sql);
        } else if (const char* const aside = WhyAside(sql, tokens, verdict, statement.IsClean())) {
            m_Counts.SetAside(aside, verdict.error, statement.begin, sql);
        } else {
            m_Counts.Count("refused", "refused and told", !statement.IsClean(), verdict.error,
                           statement.begin, sql);
            // In its file, a message soon after another one is kept back.
            if (!statement.IsClean())
                m_Counts.ComparePlaces(
                    "refused, with a message", "refused, with a message at the judge's place", sql,
                    FirstMessage(m_Parser.ParseText(sql, m_Path).result.findings, sql.size()), verdict.error,
                    verdict.offset, statement.begin);
        }
    }

    // The judge dies of a routine without a string.
    static bool HoldsRoutine(const std::vector<STokenPlace>& tokens)
    {
        for (std::size_t i = 0; i + 1 < tokens.size(); ++i)
            if ((tokens[i].name == "T__AS" || tokens[i].name == "T__DO") &&
                (tokens[i + 1].name.ends_with("QUOTE_BEGIN") || tokens[i + 1].name.ends_with("STRING")))
                return IsThere(tokens, "T__FUNCTION") || IsThere(tokens, "T__PROCEDURE") ||
                       IsThere(tokens, "T__DO");
        return false;
    }

    // Returns: false if the judge finds a syntax error in the block.
    bool JudgeRoutine(const SStatement& statement, const std::string& sql,
                      const std::vector<STokenPlace>& tokens)
    {
        const SBlockVerdict verdict = JudgeBlock(sql);
        const bool isRefused = verdict.isBlock && verdict.error.starts_with("syntax error");
        if (isRefused)
            m_Counts.Count("block refused", "block refused and told", !statement.IsClean(), verdict.error,
                           statement.begin, sql);
        if (!verdict.isBlock || !verdict.error.empty())
            return !isRefused;
        if (IsThere(tokens, "T__BLOCK_QUOTE_BEGIN") || IsThere(tokens, "T__DOLLAR_QUOTE_BEGIN"))
            m_Counts.Count("block taken", "block taken and clean",
                           IsThere(tokens, "T__BLOCK_QUOTE_BEGIN") && statement.IsClean(), "",
                           statement.begin, sql);
        else
            m_Counts.SetAside("a block in single quotes", "", statement.begin, sql);
        return true;
    }

    // The statement alone, with a fault.
    void Damage(const SCleanStatement& statement, const std::vector<std::string>& keywords)
    {
        const std::string sql = m_Parsed.prepared.substr(statement.begin, statement.end - statement.begin);
        const auto fault = static_cast<enFault>(m_Chance.Below(kFaults));
        std::optional<SEdit> edit = ChooseEdit(fault, statement, m_Parsed.prepared, keywords, m_Chance);
        if (!edit || !JudgeAccepts(sql))
            return;
        const bool isInBody = IsInBody(statement.tokens, *edit);
        edit->begin -= statement.begin;
        edit->end -= statement.begin;
        const std::string damaged = edit->Apply(sql);
        const SParsedText parsed = m_Parser.ParseText(damaged, m_Path);
        const bool isClean = parsed.result.isParsed && parsed.result.findings.empty();
        if (!isClean && isInBody)
            CompareBodies(sql, *edit, parsed);
        SVerdict verdict = ::Judge(damaged);
        if (verdict.error.empty() && isInBody) {
            if (HoldsRoutine(statement.tokens) && JudgeBlock(damaged).error.starts_with("syntax error"))
                m_Counts.Count("damaged in a block and refused", "damaged in a block, refused and told",
                               !isClean, NameOf(fault), statement.begin, damaged);
            return;
        }
        const std::vector<STokenPlace> tokens = FindTokens(parsed.result.output, parsed.prepared);
        if (verdict.error.empty()) {
            m_Counts.Count("damaged and taken", "damaged, taken and clean", isClean, NameOf(fault),
                           statement.begin, damaged);
        } else if (const char* const aside = WhyAside(damaged, tokens, verdict, isClean)) {
            m_Counts.SetAside(aside, verdict.error, statement.begin, damaged);
        } else {
            m_Counts.Count("damaged and refused", "damaged, refused and told", !isClean, verdict.error,
                           statement.begin, damaged);
            if (!isClean && IsSyntaxError(verdict))
                m_Counts.ComparePlaces("damaged, with a message",
                                       "damaged, with a message at the judge's place", damaged,
                                       FirstMessage(parsed.result.findings, damaged.size()), verdict.error,
                                       verdict.offset, statement.begin);
        }
    }

    static bool IsInBody(const std::vector<STokenPlace>& tokens, const SEdit& edit)
    {
        std::size_t opened = std::string::npos;
        for (const STokenPlace& token : tokens) {
            if (token.name == "T__BLOCK_QUOTE_BEGIN" || token.name == "T__SQL_QUOTE_BEGIN")
                opened = token.end;
            else if (token.name == "T__BODY_QUOTE_END" && opened <= edit.begin && edit.end <= token.begin)
                return opened < edit.begin || !edit.text.starts_with(' '); // not if the quote is doubled
        }
        return false;
    }

    // Where the statement holds others that the fault isn't in, they are to be as they were.
    void CompareBodies(const std::string& sql, const SEdit& edit, const SParsedText& parsed)
    {
        const std::vector<SInnerStatement> before = InnerStatements(m_Parser.ParseText(sql, m_Path));
        if (before.empty())
            return;
        std::map<std::size_t, std::set<std::string>> after; // by their ends
        for (SInnerStatement& statement : InnerStatements(parsed))
            after[statement.end].insert(std::move(statement.form));
        for (const SInnerStatement& statement : before) {
            if (statement.begin <= edit.end && edit.begin <= statement.end)
                continue;
            const std::size_t end = statement.end > edit.begin
                                        ? statement.end + edit.text.size() - (edit.end - edit.begin)
                                        : statement.end;
            const auto found = after.find(end);
            m_Counts.Count("statement beside a fault in a body",
                           "statement beside a fault in a body, as before",
                           found != after.end() && found->second.count(statement.form) > 0,
                           sql.substr(statement.begin, 30), 0, parsed.prepared);
        }
    }

    CTextParser& m_Parser;
    const std::string& m_Path;
    const SJudgedSettings& m_Settings;
    SParsedText m_Parsed;
    CChance m_Chance;
    CJudgedCounts m_Counts{m_Path, m_Parsed.prepared};
};

} // namespace

int main(int argc, char** argv)
{
    return RunJudgedProgram(
        {"PostgreSQLJudged", "PostgreSQL", kRows, nullptr,
         [](CTextParser& parser, const std::string& path, const SJudgedSettings& settings) {
             return CJudgedFile(parser, path, settings).Judge();
         }},
        argc, argv);
}
