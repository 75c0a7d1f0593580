#include "Tools/uvgrammar/EndRules.h"
#include "Tools/uvgrammar/GrammarChecks.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

using enum enGrammarKeyword;

constexpr std::string_view kBackToStart = "m_Extension.m_nStartState";

// The actions of the scanner's rules against the names that exist.
class CScannerRules
{
public:
    CScannerRules(const CGrammarSource& source, const SLoadedTables& tables, CToolMessages& messages,
                  std::set<std::string>& used)
        : m_Source(source), m_Tables(tables), m_Messages(messages), m_Used(used)
    {}

    void Check(const SActionCase& action)
    {
        const bool wasShared = std::exchange(m_IsShared, action.isShared);
        if (action.isShared)
            return;
        if (wasShared) {
            // One record comes of it, that of the first rule.
            Error(
                action.line,
                "rules above take this action by '|': only one of them would have it; write it out for each");
            return;
        }
        if (!action.body.starts_with('{')) {
            // A rule that only skips needs no record.
            if (!action.body.empty() && action.body != ";")
                Error(action.line, "an action without braces is dropped");
            return;
        }
        const SActionStatements read =
            CheckAction(action, m_Tables.scanner.actions, m_Source, m_Messages, m_IsStored);
        for (const SActionStatement& statement : read.statements) {
            if (statement.operands.size() == static_cast<std::size_t>(statement.keyword->operands))
                CheckStatement(statement);
        }
        WarnOfOrder(read.statements);
    }

private:
    void Error(int line, const std::string& text)
    {
        m_Messages.Write(enSeverity::Error, m_Source.Place(line), text);
    }
    void Warning(int line, const std::string& text)
    {
        m_Messages.Write(enSeverity::Warning, m_Source.Place(line), text);
    }

    void CheckStatement(const SActionStatement& statement)
    {
        const SGrammarKeyword& keyword = *statement.keyword;
        const int line = statement.line;
        if (!keyword.isLexer) {
            Error(line, std::string(keyword.name) + " is not a keyword of the scanner");
            return;
        }
        const auto& operands = statement.operands;
        for (std::size_t i = 0; i < operands.size(); ++i) {
            switch (keyword.roles[i]) {
            case 't':
                CheckToken(line, keyword.keyword == CpyTokenAction ? Unquoted(operands[i]) : operands[i]);
                break;
            case 's':
                CheckCondition(line, operands[i]);
                break;
            case 'n':
                if (!IsNumber(operands[i]))
                    Error(line, std::string(keyword.name) + ": '" + operands[i] + "' is not a number");
                break;
            default:
                break;
            }
        }
        CheckMeaning(statement);
    }

    // Operands whose kind depends on others.
    void CheckMeaning(const SActionStatement& statement)
    {
        const auto& operands = statement.operands;
        const int line = statement.line;
        const int number = !operands.empty() && IsNumber(operands[0]) ? std::atoi(operands[0].c_str()) : -1;
        switch (statement.keyword->keyword) {
        case CodeAction:
            CheckRange(statement, number, 0, 3);
            CheckToken(line, operands[1]);
            if (number != 0)
                CheckToken(line, operands[2]);
            if (number == 3)
                NeedCondition(line, "SS_COBOL_FORM");
            break;
        case BracketsAction:
            CheckRange(statement, number, 1, 3);
            break;
        case StringAction:
            if (number != 19)
                CheckRange(statement, number, 1, 13);
            if (number == 2 || number == 3 || number == 9)
                NeedCondition(line, "SS_DIR_COMMENT");
            if (number == 12 || number == 13 || number == 19)
                NeedCondition(line, "SS_COMMENT_DIR");
            break;
        case ActionByOption:
            CheckChoice(line, operands[1], operands[2]);
            CheckChoice(line, operands[3], operands[4]);
            break;
        case ConditionalTokenAction:
            if (operands[0] == "STATE")
                CheckCondition(line, operands[1]);
            for (const std::string& word : {operands[2], operands[3]}) {
                if (word != "NO_ACTION")
                    CheckToken(line, word);
            }
            break;
        case StackAction:
            if (operands[0] != "PUSH" && operands[0] != "POP")
                Warning(line, "STACK_ACTION knows PUSH and POP, not '" + operands[0] + "'");
            break;
        case TokenIndentAction:
            CheckToken(line, "__INDENT");
            CheckToken(line, "__UNINDENT");
            break;
        default:
            break;
        }
    }

    void CheckRange(const SActionStatement& statement, int number, int low, int high)
    {
        if (number < low || number > high)
            Warning(statement.line,
                    std::string(statement.keyword->name) + " does nothing with " + statement.operands[0]);
    }

    void CheckChoice(int line, const std::string& action, const std::string& argument)
    {
        if (action == "BEGIN")
            CheckCondition(line, argument);
        else
            CheckToken(line, argument);
    }

    static std::string Unquoted(const std::string& name)
    {
        return name.size() >= 2 && name.front() == '"' ? name.substr(1, name.size() - 2) : name;
    }

    // A token that the parser doesn't know would read as the end of the text.
    void CheckToken(int line, const std::string& name)
    {
        const std::string token = "T" + name;
        m_Used.insert(token);
        const auto found = m_Tables.parser.tokens.find(token);
        if (!IsElementName(token))
            Error(line, "'" + name + "' can't be the name of a token: it becomes an XML element");
        else if (found == m_Tables.parser.tokens.end())
            Error(line, "the parser knows no token " + token);
        else if (found->second == 0)
            Error(line, "the token " + token + " has the number 0, which is the end of the text");
    }

    void CheckCondition(int line, const std::string& name)
    {
        const int conditions = static_cast<int>(m_Tables.scanner.startConditions.size());
        if (name == kBackToStart || m_Tables.scanner.startConditions.count(name) != 0 ||
            (IsNumber(name) && std::to_string(std::atoi(name.c_str())) == name &&
             std::atoi(name.c_str()) < conditions))
            return;
        Error(line, "there is no start condition " + name);
    }

    void NeedCondition(int line, const std::string& name)
    {
        if (m_Tables.scanner.startConditions.count(name) == 0)
            Error(line, "this needs a start condition " + name);
    }

    // True if the operation always makes a token, so that what sorts after it never runs.
    static bool AlwaysReturns(const SActionStatement& statement)
    {
        switch (statement.keyword->keyword) {
        case TokenAction:
        case TokenActionE:
        case CpyTokenAction:
        case Yytext:
        case SelecTokenByAPISourceDBVal:
            return true;
        case CodeAction:
            return !statement.operands.empty() &&
                   (statement.operands[0] == "1" || statement.operands[0] == "2");
        default:
            return false;
        }
    }

    // The operations of a record run in the order of their keywords.
    void WarnOfOrder(std::vector<SActionStatement> statements)
    {
        std::stable_sort(statements.begin(), statements.end(),
                         [](const SActionStatement& a, const SActionStatement& b) {
                             return a.keyword->keyword < b.keyword->keyword;
                         });
        const auto last = std::find_if(statements.begin(), statements.end(), AlwaysReturns);
        if (last == statements.end() || last + 1 == statements.end())
            return;
        Warning((last + 1)->line, std::string((last + 1)->keyword->name) +
                                      " never runs: operations run in the order "
                                      "of their names, and " +
                                      last->keyword->name + " ends the action");
    }

    const CGrammarSource& m_Source;
    const SLoadedTables& m_Tables;
    CToolMessages& m_Messages;
    std::set<std::string>& m_Used;
    bool m_IsShared = false;
    bool m_IsStored = true; // see CheckAction
};

// The first rule that a state of the scanner accepts, 0 for none. The head of a trailing context isn't an
// acceptance.
int AcceptedRule(const CScannerTables& scanner, int state)
{
    constexpr int kTrail = 0x2000;
    constexpr int kHead = 0x4000;
    const auto row = static_cast<std::size_t>(state);
    for (int at = scanner.accept[row]; at > 0 && at < scanner.accept[row + 1]; ++at) {
        const int entry = scanner.acclist[static_cast<std::size_t>(at)];
        if ((entry & kHead) == 0)
            return entry & ~kTrail;
    }
    return 0;
}

std::string ShownByte(int byte)
{
    if (byte > 0x20 && byte < 0x7f)
        return std::string("'") + static_cast<char>(byte) + "'";
    constexpr std::string_view kHex = "0123456789abcdef";
    return std::string("0x") + kHex[static_cast<std::size_t>(byte >> 4)] +
           kHex[static_cast<std::size_t>(byte & 15)];
}

} // namespace

void CheckScannerRules(const CGrammarSource& source, const SGeneratedFiles& files,
                       const SLoadedTables& tables, CToolMessages& messages, std::set<std::string>& used)
{
    const SScannerActions actions = ReadScannerActions(files.lexerText);
    for (const SEndOfFileAction& action : actions.endsOfFile) {
        if (!IsEndOfText(action.body))
            messages.Write(enSeverity::Error, source.Place(action.line),
                           "an action after <<EOF>> is lost, unless it is { yyterminate(); }");
    }
    const int defaultRule = DefinedNumber(files.lexerText, "YY_END_OF_BUFFER") - 1;
    if (static_cast<int>(actions.cases.size()) != defaultRule ||
        static_cast<int>(tables.scanner.tables->rule_can_match_eol.count) != defaultRule + 1)
        messages.Write(enSeverity::Error, source.Place(0),
                       "the action switch doesn't hold one case for each rule");
    CScannerRules rules(source, tables, messages, used);
    for (const SActionCase& action : actions.cases) {
        if (action.number != defaultRule)
            rules.Check(action);
    }
}

void CheckScannerReach(const CGrammarSource& source, const SGeneratedFiles& files,
                       const SLoadedTables& tables, CToolMessages& messages)
{
    const CScannerTables& scanner = *tables.scanner.tables;
    const SScannerActions actions = ReadScannerActions(files.lexerText);
    const int defaultRule = DefinedNumber(files.lexerText, "YY_END_OF_BUFFER") - 1;

    std::set<int> matched;
    for (int state = 1; state <= scanner.LastState(); ++state)
        matched.insert(AcceptedRule(scanner, state));
    for (const SActionCase& action : actions.cases) {
        if (action.number != defaultRule && matched.count(action.number) == 0 &&
            !source.IsShared(action.line))
            messages.Write(enSeverity::Warning, source.Place(action.line),
                           "unused rule: what it matches is always taken by earlier rules");
    }

    for (const auto& [name, number] : tables.scanner.startConditions) {
        constexpr int kShown = 5;
        int count = 0;
        std::string shown;
        for (int i = 0; i < 255; ++i) {
            const int byte = 1 + (0x20 + i) % 255; // printable ones first
            const int next = scanner.Next(number * 2 + 1, static_cast<unsigned char>(byte));
            if (next > scanner.LastState() || AcceptedRule(scanner, next) != defaultRule || ++count > kShown)
                continue;
            shown += shown.empty() ? "" : ", ";
            shown += ShownByte(byte);
        }
        if (count > kShown)
            shown += " and " + std::to_string(count - kShown) + " more";
        if (count == 0)
            continue;
        std::string text = "start condition " + name;
        text.append(": no rule takes a lone ").append(shown).append("; it would pass as space");
        messages.Write(enSeverity::Warning, source.Place(0), text);
    }
}
