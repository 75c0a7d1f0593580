#include "Grammar/UVGrammarActionChecks.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <set>
#include <string_view>
#include <vector>

namespace {

using enum enGrammarKeyword;

constexpr const char* kActions = "actions.dat";
constexpr const char* kDefines = "defines.dat";
constexpr std::string_view kRootName = "SQL";
constexpr std::string_view kBackToStart = "m_Extension.m_nStartState";

using Operands = std::vector<std::string>;

// Calls `take` with rule, keyword and operands of each operation.
template <class F>
void ForEachOperation(const CActionsMap& actions, F take)
{
    for (const auto& [rule, operations] : actions)
        for (const auto& [key, operands] : *operations)
            if (operands)
                take(rule, FindGrammarKeyword(std::string_view(key).substr(0, key.find('#')))->keyword,
                     *operands);
}

std::string RuleText(int rule)
{
    return "rule " + std::to_string(rule);
}

// The number that a word is, or -1.
int ToNumber(const std::string& word)
{
    int number = -1;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
    return read.ptr == word.data() + word.size() ? number : -1;
}

// `first` is the first rule that has an action, `end` one more than the last. `endRules`: how many rules for
// the end of the text come after that, whose records say no more than that they are there.
void CheckRules(const std::string& directory, const CActionsMap& actions, int first, std::size_t end,
                std::size_t endRules = 0)
{
    for (const auto& [rule, operations] : actions) {
        const auto number = static_cast<std::size_t>(rule);
        const bool isEndRule = rule > 0 && number > end && number <= end + endRules;
        if (isEndRule && operations->begin()->second != nullptr)
            RefuseTable(directory, kActions,
                        RuleText(rule) + " is for the end of the text and has an action");
        if (!isEndRule && (rule < first || number >= end))
            RefuseTable(directory, kActions,
                        "a record of " + RuleText(rule) + ", the tables have rules " + std::to_string(first) +
                            " to " + std::to_string(end - 1));
    }
}

// The words by which an operation begins a start condition, named or by number.
std::vector<std::string> BegunConditions(enGrammarKeyword keyword, const Operands& operands)
{
    switch (keyword) {
    case Begin:
        return {operands[0]};
    case ConditionalBegin:
        return {operands[1], operands[2]};
    case ActionByOption: {
        std::vector<std::string> begun;
        for (const std::size_t action : {1u, 3u})
            if (operands[action] == "BEGIN")
                begun.push_back(operands[action + 1]);
        return begun;
    }
    default:
        return {};
    }
}

// The names of the tokens that an operation may make, without their leading T. `isMaking` is set if it may
// make one, named or not.
std::vector<std::string> MadeTokens(enGrammarKeyword keyword, const Operands& operands, bool& isMaking)
{
    std::vector<std::string> tokens;
    switch (keyword) {
    case TokenAction:
    case TokenActionE:
        tokens = {operands[0]};
        break;
    case CpyTokenAction: {
        const std::string& name = operands[0];
        tokens = {name.size() > 1 && name.front() == '"' ? name.substr(1, name.size() - 2) : name};
        break;
    }
    case IfStrcmpAction:
        tokens = {operands[2]};
        break;
    case SelecTokenByAPISourceDBVal:
        tokens = {operands[1], operands[2]};
        break;
    case CodeAction: {
        const int number = ToNumber(operands[0]);
        if (number >= 0 && number <= 3)
            tokens.push_back(operands[1]);
        if (number >= 1 && number <= 3)
            tokens.push_back(operands[2]);
        break;
    }
    case ActionByOption:
        for (const std::size_t action : {1u, 3u})
            if (operands[action] != "BEGIN")
                tokens.push_back(operands[action + 1]);
        break;
    case ConditionalTokenAction:
        for (const std::size_t word : {2u, 3u})
            if (operands[word] != "NO_ACTION")
                tokens.push_back(operands[word]);
        break;
    case TokenIndentAction:
        tokens = {"__INDENT", "__UNINDENT"};
        break;
    default:
        break;
    }
    isMaking = isMaking || !tokens.empty() || keyword == Yytext;
    return tokens;
}

bool MakesRoot(const CActionsMap& actions, int rule)
{
    const auto record = actions.find(rule);
    if (record == actions.end())
        return false;
    return std::any_of(record->second->begin(), record->second->end(), [](const auto& operation) {
        const bool makesNode =
            operation.first.starts_with("CREATE_NODE#") || operation.first.starts_with("EMPTY#");
        return makesNode && operation.second && operation.second->front() == kRootName;
    });
}

// Note: which missing record is damage
// A rule without a record is no mistake by itself: the scanner skips what it matched, the parser passes on
// the value of its first symbol. But whatever text is accepted has been reduced to the start symbol, and
// unless a node named SQL was made on the way the parse ends well without a tree. So each rule of the start
// symbol makes that node, or has one symbol, passes its value on, and the same holds for that symbol.
void CheckRoot(const std::string& directory, const CActionsMap& actions, const CParserTables& tables)
{
    std::set<int> chain;
    std::vector<int> open{tables.StartSymbol()};
    while (!open.empty()) {
        const int symbol = open.back();
        open.pop_back();
        if (!chain.insert(symbol).second)
            continue;
        for (int rule = 1; rule < static_cast<int>(tables.Rules()); ++rule) {
            const auto index = static_cast<std::size_t>(rule);
            if (static_cast<int>(tables.r1[index]) != symbol || MakesRoot(actions, rule))
                continue;
            const std::set<int> passedOn = tables.LastSymbols(rule);
            const bool isPassed =
                tables.r2[index] == 1 && std::all_of(passedOn.begin(), passedOn.end(),
                                                     [&](int last) { return last >= tables.ntokens; });
            if (!isPassed)
                RefuseTable(directory, kActions, RuleText(rule) + " ends a text without a node named SQL");
            open.insert(open.end(), passedOn.begin(), passedOn.end());
        }
    }
}

// Names become those of XML elements. Bytes above ASCII are letters of some script.
bool IsElementName(std::string_view name)
{
    const auto isLetter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
               static_cast<unsigned char>(c) >= 0x80;
    };
    return isLetter(name.front()) && std::all_of(name.begin(), name.end(), [&](char c) {
               return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
           });
}

void CheckNode(const std::string& directory, int rule, enGrammarKeyword keyword, const Operands& operands,
               unsigned length)
{
    if ((keyword == Empty || keyword == CreateNode || keyword == CreateNodeWithError) &&
        !IsElementName(operands[0]))
        RefuseTable(directory, kActions,
                    RuleText(rule) + " names a node '" + operands[0] + "', which is no XML element");
    if (keyword != CreateNode && keyword != CreateNodeWithError)
        return;
    const int joined = ToNumber(operands[1]);
    if (joined < 0 || static_cast<unsigned>(joined) != length)
        RefuseTable(directory, kActions,
                    RuleText(rule) + " of " + std::to_string(length) + " symbols joins " + operands[1]);
    if (keyword == CreateNodeWithError && (ToNumber(operands[2]) < 0 || ToNumber(operands[2]) >= joined))
        RefuseTable(directory, kActions,
                    RuleText(rule) + " of " + std::to_string(length) + " symbols has its error symbol at " +
                        operands[2]);
}

} // namespace

int CountStartConditions(const std::string& directory, const std::map<std::string, int>& startConditions)
{
    if (!startConditions.contains("INITIAL"))
        RefuseTable(directory, kDefines, "there is no start condition INITIAL");
    int count = 1; // every scanner has the initial one
    for (const auto& [name, value] : startConditions) {
        if (value < -1)
            RefuseTable(directory, kDefines, "start condition " + name + " " + std::to_string(value));
        count = std::max(count, value < INT_MAX ? value + 1 : INT_MAX);
    }
    return count;
}

void CheckScannerActions(const std::string& directory, const CActionsMap& actions,
                         const std::map<std::string, int>& startConditions, const CScannerTables& tables)
{
    CheckRules(directory, actions, 1, tables.rule_can_match_eol.count,
               static_cast<std::size_t>(tables.StartConditions()));
    ForEachOperation(actions, [&](int rule, enGrammarKeyword keyword, const Operands& operands) {
        for (const std::string& word : BegunConditions(keyword, operands)) {
            int state = 0;
            const auto read = std::from_chars(word.data(), word.data() + word.size(), state);
            const bool isNumber = read.ptr == word.data() + word.size();
            if (const auto named = startConditions.find(word); named != startConditions.end())
                state = std::max(named->second, 0);
            else if (word == kBackToStart || !isNumber)
                continue;
            if (state < 0 || state >= tables.StartConditions())
                RefuseTable(directory, kActions,
                            RuleText(rule) + " begins start condition " + word + " of " +
                                std::to_string(tables.StartConditions()));
        }
    });
}

void CheckScannerTokens(const std::string& directory, const CActionsMap& actions,
                        const std::map<std::string, int>& tokens)
{
    bool isMaking = false;
    ForEachOperation(actions, [&](int rule, enGrammarKeyword keyword, const Operands& operands) {
        for (const std::string& name : MadeTokens(keyword, operands, isMaking))
            if (!tokens.contains("T" + name))
                RefuseTable(directory, kActions,
                            RuleText(rule) + " makes the token T" + name +
                                ", which the parser beside it doesn't know");
    });
    if (!isMaking)
        RefuseTable(directory, kActions, "no rule makes a token");
}

void CheckTokenNumbers(const std::string& directory, const std::map<std::string, int>& tokens,
                       const CParserTables& tables)
{
    constexpr unsigned kFirstToken = 3; // after end of text, error and undefined token
    std::vector<bool> isNamed(static_cast<std::size_t>(tables.ntokens));
    for (const auto& [name, number] : tokens) {
        if (number == 0)
            continue;
        const unsigned terminal = number > 0 ? tables.translate[static_cast<std::size_t>(number)] : 0;
        if (terminal < kFirstToken || isNamed[terminal])
            RefuseTable(directory, kDefines,
                        "the number " + std::to_string(number) + " of " + name + " is " +
                            (terminal < kFirstToken ? "no token's" : "another token's"));
        isNamed[terminal] = true;
    }
}

void CheckParserActions(const std::string& directory, const CActionsMap& actions, const CParserTables& tables)
{
    CheckRules(directory, actions, 2, tables.Rules()); // the first rule is the one that accepts
    ForEachOperation(actions, [&](int rule, enGrammarKeyword keyword, const Operands& operands) {
        CheckNode(directory, rule, keyword, operands, tables.r2[static_cast<std::size_t>(rule)]);
    });
    CheckRoot(directory, actions, tables);
}
