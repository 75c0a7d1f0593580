#include "Tools/uvgrammar/GrammarChecks.h"

#include <algorithm>
#include <cstdlib>
#include <map>

namespace {

// What the extractor should have stored: each keyword's operands in the order of its occurrences.
std::map<std::string, std::vector<std::string>>
ExpectedRecord(const std::vector<SActionStatement>& statements)
{
    std::map<std::string, int> occurrences;
    std::map<std::string, std::vector<std::string>> record;
    for (const SActionStatement& statement : statements) {
        const std::string name = statement.keyword->name;
        record[name + '#' + std::to_string(occurrences[name]++)] = statement.operands;
    }
    return record;
}

bool IsRecordAsExpected(const std::vector<SActionStatement>& statements, const COperationsMap& loaded)
{
    const auto expected = ExpectedRecord(statements);
    if (expected.empty())
        return loaded.size() == 1 && loaded.begin()->second == nullptr;
    return expected.size() == loaded.size() &&
           std::equal(
               expected.begin(), expected.end(), loaded.begin(), [](const auto& wanted, const auto& stored) {
                   if (wanted.first != stored.first || stored.second == nullptr)
                       return false;
                   // Its operands are cut from the text in a way of their own.
                   return wanted.first.starts_with("strtmp.Format#") || wanted.second == *stored.second;
               });
}

} // namespace

SActionStatements CheckAction(const SActionCase& action, const CActionsMap& loaded,
                              const CGrammarSource& source, CToolMessages& messages, bool& isStored)
{
    SActionStatements read = ReadActionStatements(action);
    for (const SActionProblem& problem : read.problems)
        messages.Write(enSeverity::Error, source.Place(problem.line), problem.text);
    isStored = isStored && read.problems.empty();
    if (!isStored)
        return read;
    const auto record = loaded.find(action.number);
    if (record == loaded.end() || !IsRecordAsExpected(read.statements, *record->second))
        messages.Write(enSeverity::Error, source.Place(action.line),
                       "the stored record of this action says something else");
    return read;
}

bool IsElementName(std::string_view name)
{
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    return !name.empty() && isLetter(name.front()) && std::all_of(name.begin(), name.end(), [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
    });
}

bool IsNumber(std::string_view word)
{
    return !word.empty() && word.size() <= 9 &&
           word.find_first_not_of("0123456789") == std::string_view::npos;
}

int DefinedNumber(std::string_view text, std::string_view name)
{
    const std::string wanted = "#define " + std::string(name) + ' ';
    const std::size_t at = text.find(wanted);
    if (at == std::string_view::npos)
        return -1;
    const std::string_view rest = text.substr(at + wanted.size());
    const std::size_t from = rest.find_first_not_of(' ');
    const std::size_t end = rest.find_first_not_of("0123456789", from);
    return from == std::string_view::npos || end == from
               ? -1
               : std::atoi(std::string(rest.substr(from, end - from)).c_str());
}

void CheckScannerForm(const CGrammarSource& source, const SGeneratedFiles& files, CToolMessages& messages)
{
    struct SForm
    {
        const char* text;
        bool isWanted;
        const char* complaint;
    };
    constexpr SForm kForms[] = {
        {"\ndo_action:", true, "flex's output holds no action switch"},
        {" yy_acclist[", true, "the option 'reject' is missing: there is no list of accepted rules"},
        {" yy_rule_can_match_eol[", true, "the option 'yylineno' is missing: lines can't be counted"},
        {" yy_ec[", false, "the option 'noecs' is missing: the engine knows no equivalence classes"},
        {" yy_meta[", false, "the option 'nometa-ecs' is missing: the engine knows no meta classes"},
        {"#define YY_FLEX_LEX_COMPAT", true,
         "the option 'lex-compat' is missing: trailing context of fixed length would be cut by code that is "
         "lost"},
    };
    for (const SForm& form : kForms) {
        if ((files.lexerText.find(form.text) != std::string::npos) != form.isWanted)
            messages.Write(enSeverity::Error, source.Place(0), form.complaint);
    }
}

void CheckParserForm(const CGrammarSource& source, const SGeneratedFiles& files, CToolMessages& messages)
{
    const std::string& text = files.parserText;
    const auto refuse = [&](const char* complaint) {
        messages.Write(enSeverity::Error, source.Place(0), complaint);
    };
    if (text.find("enum yytokentype") == std::string::npos)
        refuse("the C file holds no enum yytokentype: leave out %header, %defines and api.prefix");
    if (text.find("\nyyreduce:") == std::string::npos)
        refuse("the C file holds no switch of rule actions: the skeleton has to be yacc.c");
    if (text.find(" yytranslate[") == std::string::npos)
        refuse("the C file holds no translation of tokens: leave out api.token.raw");
    // They would also have a %nonassoc mark its errors in a table where the engine doesn't look for them.
    // Without them the places of these errors are free, as those of all others.
    const SDefaultReduction reduction = FindDefaultReduction(source.Text());
    if (reduction.line != 0 && reduction.value != "consistent" && reduction.value != "accepting")
        messages.Write(
            enSeverity::Error, source.Place(reduction.line),
            "reductions made on an error wreck recovery: lr.default-reduction has to be consistent");
}
