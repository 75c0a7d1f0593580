// Counts how far PostgreSQL's language and the judge agree about the statements of real scripts:
//     PostgreSQLJudged [--faults N] [--seed N] [--list] FILE|FOLDER...
// It isn't a test, since its figures are those of the scripts.
#include "Tests/Languages/PostgreSQLJudge.h"
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Faults.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/Inputs.h"
#include "Tools/uvgrammar-score/ScoreReport.h"
#include "Tools/uvgrammar-score/ScoredFile.h"
#include "Tools/uvgrammar-score/Workers.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/MarkupScanner.h"
#include "Tools/uvparse/TableCache.h"
#include "Tools/uvparse/TreeText.h"

#include <boost/program_options.hpp>

#include <algorithm>
#include <iostream>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>

namespace {

namespace po = boost::program_options;
using namespace uvscore;

struct SSettings
{
    std::vector<std::string> inputs;
    std::size_t faults = 3; // for each statement
    std::uint64_t seed = 1;
    bool isList = false;
    bool isHelp = false;
};

// Counts by name. They, and the cases to list, come from the processes as lines of fields: name, number, case.
using Counts = std::map<std::string, std::size_t>;

// The rows: what is counted, of what.
struct SRow
{
    const char* name;
    const char* whole;
};

// clang-format off
constexpr SRow kRows[] = {
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

bool IsThere(const std::vector<STokenPlace>& tokens, std::string_view name)
{
    return std::ranges::find(tokens, name, &STokenPlace::name) != tokens.end();
}

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

std::string OneLine(std::string_view text)
{
    constexpr std::size_t kLongest = 400;
    std::string line(text.substr(0, kLongest));
    std::ranges::replace(line, '\n', ' ');
    return line;
}

// Where the first message stands; at the end of the text if there is none.
std::size_t FirstMessage(const std::vector<uvparse::SFinding>& findings, std::size_t end)
{
    std::size_t first = end;
    for (const uvparse::SFinding& finding : findings)
        if (!finding.isReported)
            first = std::min(first, finding.offset);
    return first;
}

// The end of a text is anywhere in the blanks there.
bool IsSamePlace(std::string_view text, std::size_t a, std::size_t b)
{
    const std::size_t last = text.find_last_not_of(" \t\r\n\f\v") + 1;
    return std::min(a, last) == std::min(b, last);
}

struct SInnerStatement
{
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string form;
};

// Statements in statements: those of routine bodies. They come in the order of their ends.
std::vector<SInnerStatement> InnerStatements(const SParsedText& text)
{
    const std::vector<STokenPlace> tokens = FindTokens(text.result.output, text.prepared);
    std::vector<SInnerStatement> found;
    std::vector<std::pair<std::size_t, const char*>> open; // the first token, and where the element begins
    std::size_t passed = 0;
    uvparse::CMarkupScanner scanner(text.result.output);
    for (uvparse::SMarkup markup; !tokens.empty() && scanner.Next(markup);) {
        const bool isStart = markup.kind == uvparse::enMarkup::Start;
        if (isStart && uvparse::IsTokenElement(markup.name))
            ++passed;
        if (!uvparse::IsStatementElement(markup.name))
            continue;
        if (isStart) {
            open.emplace_back(passed, markup.text.data());
        } else if (markup.kind == uvparse::enMarkup::End && !open.empty()) {
            const auto [first, from] = open.back();
            open.pop_back();
            const auto size = static_cast<std::size_t>(markup.text.data() + markup.text.size() - from);
            if (!open.empty() && first < passed)
                found.push_back({tokens.at(first).begin, tokens.at(passed - 1).end, FormOf({from, size})});
        }
    }
    return found;
}

class CJudgedFile
{
public:
    CJudgedFile(CTextParser& parser, const std::string& path, const SSettings& settings)
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
        std::string text = m_strCases;
        for (const auto& [name, count] : m_Counts)
            AppendFields(text, {name, std::to_string(count)});
        for (const auto& [reason, count] : m_Aside)
            AppendFields(text, {std::string("aside, ") + reason, std::to_string(count)});
        return text;
    }

private:
    void List(const std::string& name, const std::string& error, std::size_t offset, std::string_view text)
    {
        const auto lines = std::count(m_Parsed.prepared.begin(),
                                      m_Parsed.prepared.begin() + static_cast<std::ptrdiff_t>(offset), '\n');
        AppendFields(m_strCases, {name, "0",
                                  m_Path + ':' + std::to_string(lines + 1) + ": " + OneLine(error) + ": " +
                                      OneLine(text)});
    }

    // Counts it under `whole`, and if it is so under `part`, else it is listed there.
    void Count(const char* whole, const char* part, bool isSo, const std::string& error, std::size_t offset,
               std::string_view text)
    {
        ++m_Counts[whole];
        if (isSo)
            ++m_Counts[part];
        else
            List(part, error, offset, text);
    }

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
                Count("taken", "taken and clean", statement.IsClean(), "", statement.begin, sql);
        } else if (const char* const aside = WhyAside(sql, tokens, verdict, statement.IsClean())) {
            SetAside(aside, verdict.error, statement.begin, sql);
        } else {
            Count("refused", "refused and told", !statement.IsClean(), verdict.error, statement.begin, sql);
            // In its file, a message soon after another one is kept back.
            if (!statement.IsClean())
                ComparePlaces("refused, with a message", "refused, with a message at the judge's place", sql,
                              m_Parser.ParseText(sql, m_Path).result.findings, verdict, statement.begin);
        }
    }

    void SetAside(const char* reason, const std::string& error, std::size_t offset, std::string_view text)
    {
        ++m_Aside[reason];
        List(std::string("aside, ") + reason, error, offset, text);
    }

    void ComparePlaces(const char* whole, const char* part, const std::string& sql,
                       const std::vector<uvparse::SFinding>& findings, const SVerdict& verdict,
                       std::size_t offset)
    {
        const std::size_t at = FirstMessage(findings, sql.size());
        Count(whole, part, IsSamePlace(sql, at, verdict.offset),
              verdict.error + ", not at " + OneLine(sql.substr(at, 20)), offset, sql);
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
            Count("block refused", "block refused and told", !statement.IsClean(), verdict.error,
                  statement.begin, sql);
        if (!verdict.isBlock || !verdict.error.empty())
            return !isRefused;
        if (IsThere(tokens, "T__BLOCK_QUOTE_BEGIN") || IsThere(tokens, "T__DOLLAR_QUOTE_BEGIN"))
            Count("block taken", "block taken and clean",
                  IsThere(tokens, "T__BLOCK_QUOTE_BEGIN") && statement.IsClean(), "", statement.begin, sql);
        else
            SetAside("a block in single quotes", "", statement.begin, sql);
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
                Count("damaged in a block and refused", "damaged in a block, refused and told", !isClean,
                      NameOf(fault), statement.begin, damaged);
            return;
        }
        const std::vector<STokenPlace> tokens = FindTokens(parsed.result.output, parsed.prepared);
        if (verdict.error.empty()) {
            Count("damaged and taken", "damaged, taken and clean", isClean, NameOf(fault), statement.begin,
                  damaged);
        } else if (const char* const aside = WhyAside(damaged, tokens, verdict, isClean)) {
            SetAside(aside, verdict.error, statement.begin, damaged);
        } else {
            Count("damaged and refused", "damaged, refused and told", !isClean, verdict.error,
                  statement.begin, damaged);
            if (!isClean && IsSyntaxError(verdict))
                ComparePlaces("damaged, with a message", "damaged, with a message at the judge's place",
                              damaged, parsed.result.findings, verdict, statement.begin);
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
            Count("statement beside a fault in a body", "statement beside a fault in a body, as before",
                  found != after.end() && found->second.count(statement.form) > 0,
                  sql.substr(statement.begin, 30), 0, parsed.prepared);
        }
    }

    CTextParser& m_Parser;
    const std::string& m_Path;
    const SSettings& m_Settings;
    SParsedText m_Parsed;
    CChance m_Chance;
    Counts m_Counts;
    Counts m_Aside;
    std::string m_strCases;
};

int Run(const SSettings& settings, CToolMessages& messages)
{
    const uvparse::SLanguage language{"PostgreSQL", uvparse::VersionOfParser("PostgreSQL")};
    const SInputs inputs = CollectInputs(settings.inputs, uvparse::ExtensionsOf(language.parserName));
    uvparse::ChooseTableCache(true);
    CTextParser parser(language, {});
    Counts counts;
    std::set<std::string> cases;
    int code = kToolClean;
    RunJobs(
        inputs.files.size(), ProcessorCount(),
        [&](std::size_t job) { return CJudgedFile(parser, inputs.files[job], settings).Judge(); },
        [&](std::size_t job, const SJobResult& result) {
            if (!result.isDone) {
                messages.Write(result.isCrash ? enSeverity::Error : enSeverity::Warning,
                               SSourcePlace{inputs.files[job], 0, 0, {}}, result.text);
                if (result.isCrash)
                    code = kToolFindings;
                return;
            }
            std::istringstream lines(result.text);
            for (std::string line; std::getline(lines, line);) {
                const CFields fields(line);
                counts[fields.Text(0)] += fields.Number(1);
                if (fields.Count() > 2)
                    cases.insert(fields.Text(0) + ": " + fields.Text(2));
            }
        });
    if (settings.isList)
        for (const std::string& text : cases)
            std::cout << text << '\n';
    for (const SRow& row : kRows)
        std::cout << row.name << ": " << counts[row.name] << " of " << counts[row.whole] << " ("
                  << ShareText(counts[row.name], counts[row.whole]) << ")\n";
    for (const auto& [name, count] : counts)
        if (name.starts_with("aside, "))
            std::cout << name << ": " << count << '\n';
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    CToolMessages messages("PostgreSQLJudged", std::cerr);
    try {
        SSettings settings;
        po::options_description visible("options");
        // clang-format off
        visible.add_options()
            ("faults", po::value(&settings.faults)->value_name("N"), "damage each clean statement so often; else 3")
            ("seed", po::value(&settings.seed)->value_name("N"), "chooses other faults")
            ("list", po::bool_switch(&settings.isList), "show what the two don't agree about")
            ("help,h", po::bool_switch(&settings.isHelp), "print this");
        // clang-format on
        po::options_description all = visible;
        all.add_options()("input", po::value(&settings.inputs));
        po::positional_options_description positions;
        positions.add("input", -1);
        ReadToolOptions(argc, argv, all, positions);
        if (settings.isHelp) {
            std::cout << "usage: PostgreSQLJudged [options] FILE|FOLDER...\n" << visible;
            return kToolClean;
        }
        return Run(settings, messages);
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
