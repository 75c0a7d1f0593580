#include "Tests/Languages/JudgedScripts.h"

#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Fields.h"
#include "Tools/uvgrammar-score/Inputs.h"
#include "Tools/uvgrammar-score/ScoreReport.h"
#include "Tools/uvgrammar-score/Workers.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/MarkupScanner.h"
#include "Tools/uvparse/TableCache.h"
#include "Tools/uvparse/TreeText.h"

#include <boost/program_options.hpp>

#include <algorithm>
#include <iostream>
#include <set>
#include <sstream>
#include <utility>

namespace {

namespace po = boost::program_options;
using namespace uvscore;

// The end of a text is anywhere in the blanks there.
bool IsSamePlace(std::string_view text, std::size_t a, std::size_t b)
{
    const std::size_t last = text.find_last_not_of(" \t\r\n\f\v") + 1;
    return std::min(a, last) == std::min(b, last);
}

int Run(const SJudgedProgram& program, const SJudgedSettings& settings, CToolMessages& messages)
{
    const uvparse::SLanguage language{program.language, uvparse::VersionOfParser(program.language)};
    const SInputs inputs = CollectInputs(settings.inputs, uvparse::ExtensionsOf(language.parserName));
    if (inputs.files.empty())
        throw CToolFailure("there is nothing to judge");
    uvparse::ChooseTableCache(true);
    if (program.prepare)
        program.prepare(messages);
    CTextParser parser(language, {});
    std::map<std::string, std::size_t> counts;
    std::set<std::string> cases;
    int code = kToolClean;
    CToolProgress progress(inputs.files.size(), true);
    RunJobs(
        inputs.files.size(), ProcessorCount(),
        [&](std::size_t job) { return program.judge(parser, inputs.files[job], settings); },
        [&](std::size_t job, const SJobResult& result) {
            progress.Step(inputs.files[job]);
            if (!result.isDone) {
                progress.Clear();
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
    progress.Clear();
    if (settings.isList)
        for (const std::string& text : cases)
            std::cout << text << '\n';
    for (const SJudgedRow& row : program.rows)
        std::cout << row.name << ": " << counts[row.name] << " of " << counts[row.whole] << " ("
                  << ShareText(counts[row.name], counts[row.whole]) << ")\n";
    for (const auto& [name, count] : counts)
        if (name.starts_with("aside, "))
            std::cout << name << ": " << count << '\n';
    return code;
}

} // namespace

void CJudgedCounts::List(const std::string& name, const std::string& error, std::size_t offset,
                         std::string_view text)
{
    const auto lines = std::count(m_Text.begin(), m_Text.begin() + static_cast<std::ptrdiff_t>(offset), '\n');
    AppendFields(m_Cases, {name, "0",
                           m_Path + ':' + std::to_string(lines + 1) + ": " + ListedText(error) + ": " +
                               ListedText(text)});
}

void CJudgedCounts::Count(const char* whole, const char* part, bool isSo, const std::string& error,
                          std::size_t offset, std::string_view text)
{
    ++m_Counts[whole];
    if (isSo)
        ++m_Counts[part];
    else
        List(part, error, offset, text);
}

void CJudgedCounts::ComparePlaces(const char* whole, const char* part, std::string_view text,
                                  std::size_t place, const std::string& judgeError, std::size_t judgePlace,
                                  std::size_t offset)
{
    Count(whole, part, IsSamePlace(text, place, judgePlace),
          judgeError + ", not at " + ListedText(text.substr(place, 20)), offset, text);
}

void CJudgedCounts::SetAside(const std::string& reason, const std::string& error, std::size_t offset,
                             std::string_view text)
{
    ++m_Aside[reason];
    List("aside, " + reason, error, offset, text);
}

std::string CJudgedCounts::Lines() const
{
    std::string text = m_Cases;
    for (const auto& [name, count] : m_Counts)
        AppendFields(text, {name, std::to_string(count)});
    for (const auto& [reason, count] : m_Aside)
        AppendFields(text, {"aside, " + reason, std::to_string(count)});
    return text;
}

bool IsThere(const std::vector<STokenPlace>& tokens, std::string_view name)
{
    return std::ranges::find(tokens, name, &STokenPlace::name) != tokens.end();
}

std::string ListedText(std::string_view text)
{
    constexpr std::size_t kLongest = 400;
    std::string line(text.substr(0, kLongest));
    std::ranges::replace(line, '\n', ' ');
    return line;
}

std::size_t FirstMessage(const std::vector<uvparse::SFinding>& findings, std::size_t end)
{
    std::size_t first = end;
    for (const uvparse::SFinding& finding : findings)
        if (!finding.isReported)
            first = std::min(first, finding.offset);
    return first;
}

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

int RunJudgedProgram(const SJudgedProgram& program, int argc, char** argv)
{
    CToolMessages messages(program.name, std::cerr);
    try {
        SJudgedSettings settings;
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
            std::cout << "usage: " << program.name << " [options] FILE|FOLDER...\n" << visible;
            return kToolClean;
        }
        return Run(program, settings, messages);
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
