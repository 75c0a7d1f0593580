#include "Tools/uvgrammar/GrammarChecks.h"

#include <algorithm>
#include <cstdlib>
#include <map>

namespace {

using enum enGrammarKeyword;

constexpr std::string_view kRootName = "SQL";

struct SNodeMaking
{
    const SActionStatement* statement = nullptr; // the first that makes a node
    int count = 0;
};

class CParserRules
{
public:
    CParserRules(const CGrammarSource& source, const SGeneratedFiles& files, const SParserReport& report,
                 const SLoadedTables& tables, CToolMessages& messages)
        : m_Source(source), m_Report(report), m_Tables(tables), m_Messages(messages),
          m_RuleLines(ReadRuleLines(files.parserText))
    {
        const std::string_view text = files.parserText;
        std::set<int> inner;
        for (const SGrammarRule& rule : report.rules) {
            if (IsInner(rule.left))
                inner.insert(rule.number);
        }
        bool isStored = true;
        for (const SActionCase& action : ReadParserActions(text)) {
            if (inner.count(action.number) != 0)
                isStored = false; // it is refused as a whole, whatever it says
            else
                m_Actions.emplace(action.number, std::pair(action, CheckAction(action, tables.parser.actions,
                                                                               source, messages, isStored)));
        }
    }

    void Check()
    {
        for (const SGrammarRule& rule : m_Report.rules) {
            if (rule.number > 1)
                CheckRule(rule);
        }
        CheckRoot();
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

    int LineOf(const SGrammarRule& rule) const
    {
        const auto at = static_cast<std::size_t>(rule.number);
        return at < m_RuleLines.size() ? m_RuleLines[at] : 0;
    }

    // bison makes an empty rule of an action that isn't the last thing in its rule, and gives it such a name.
    static bool IsInner(const std::string& symbol)
    {
        return symbol.starts_with('@') || symbol.starts_with("$@");
    }

    const std::vector<SActionStatement>& StatementsOf(const SGrammarRule& rule) const
    {
        static const std::vector<SActionStatement> kNone;
        const auto found = m_Actions.find(rule.number);
        return found == m_Actions.end() ? kNone : found->second.second.statements;
    }

    bool IsUnreadable(const SGrammarRule& rule) const
    {
        const auto found = m_Actions.find(rule.number);
        return found != m_Actions.end() && !found->second.second.problems.empty();
    }

    static bool MakesNode(const SActionStatement& statement)
    {
        return statement.keyword->keyword == CreateNode ||
               statement.keyword->keyword == CreateNodeWithError || statement.keyword->keyword == Empty;
    }

    SNodeMaking NodeMaking(const SGrammarRule& rule) const
    {
        SNodeMaking making;
        for (const SActionStatement& statement : StatementsOf(rule)) {
            if (!MakesNode(statement))
                continue;
            if (making.count++ == 0)
                making.statement = &statement;
        }
        return making;
    }

    void CheckRule(const SGrammarRule& rule)
    {
        const int line = LineOf(rule);
        if (IsInner(rule.left)) {
            Error(line, "an action inside a rule isn't supported: move it to the end, or into an empty rule "
                        "of its own");
            return;
        }
        const auto number = static_cast<std::size_t>(rule.number);
        if (number >= m_Tables.parser.tables->r2.count ||
            m_Tables.parser.tables->r2[number] != rule.right.size()) {
            Error(line, "the rule's length differs from that in its table");
            return;
        }
        for (const std::string& symbol : rule.right) {
            if (symbol.starts_with('\''))
                Error(line, "the token " + symbol + " has no name: declare one with the character's number");
        }
        for (const SActionStatement& statement : StatementsOf(rule))
            CheckStatement(statement);
        // with an action inside the rule's symbols are others than the author counted
        if (IsUnreadable(rule) || std::any_of(rule.right.begin(), rule.right.end(), IsInner))
            return;
        const SNodeMaking making = NodeMaking(rule);
        if (making.count > 1)
            Error(making.statement->line, "a second node of one rule would take the same children again");
        else if (making.count == 1)
            CheckNode(rule, *making.statement);
        else
            CheckPlainRule(rule, line);
    }

    // Without a node the rule passes on the value of its first symbol.
    void CheckPlainRule(const SGrammarRule& rule, int line)
    {
        if (rule.right.empty())
            Error(line, "an empty rule needs EMPTY");
        else if (rule.right.size() > 1)
            Error(line, "a rule of several symbols without CREATE_NODE loses the text of all but the first");
        else if (rule.right.front() == "error")
            Error(line, "a rule over error needs CREATE_NODE_WITH_ERROR");
    }

    void CheckNode(const SGrammarRule& rule, const SActionStatement& statement)
    {
        const int line = statement.line;
        const auto& operands = statement.operands;
        const enGrammarKeyword keyword = statement.keyword->keyword;
        if (operands.size() != static_cast<std::size_t>(statement.keyword->operands))
            return;
        const auto errors = std::count(rule.right.begin(), rule.right.end(), "error");
        if (keyword == Empty) {
            if (!rule.right.empty())
                Error(line, "EMPTY loses the text of the rule's " + std::to_string(rule.right.size()) +
                                " symbol(s)");
            return;
        }
        if (operands[1] != std::to_string(rule.right.size()))
            Error(line, std::string(statement.keyword->name) + " takes " + operands[1] +
                            " symbols, the rule has " + std::to_string(rule.right.size()));
        if (keyword == CreateNode && errors > 0)
            Error(line,
                  "CREATE_NODE over an error symbol takes a token's text twice: use CREATE_NODE_WITH_ERROR");
        if (keyword != CreateNodeWithError)
            return;
        const std::size_t index = IsNumber(operands[2])
                                      ? static_cast<std::size_t>(std::atoi(operands[2].c_str()))
                                      : rule.right.size();
        if (errors > 1)
            Error(line, "a rule with two error symbols: only one of them is kept out of the node");
        else if (index >= rule.right.size() || rule.right[index] != "error")
            Error(line, "symbol " + operands[2] + " (counted from 0) of the rule is not the error symbol");
        if (!rule.right.empty() && rule.right.back() == "error")
            Warning(
                line,
                "a rule that ends in error: in development mode it can raise again without taking a token");
    }

    void CheckStatement(const SActionStatement& statement)
    {
        const SGrammarKeyword& keyword = *statement.keyword;
        if (keyword.keyword == TextAction)
            Warning(statement.line, "TEXT_ACTION does nothing");
        else if (!keyword.isParser)
            Error(statement.line, std::string(keyword.name) + " is not a keyword of the parser");
        if (statement.operands.size() != static_cast<std::size_t>(keyword.operands))
            return;
        if (keyword.roles[0] == 'k' && !IsElementName(statement.operands[0]))
            Error(statement.line,
                  "'" + statement.operands[0] + "' can't be the name of a node: it becomes an XML element");
        if (keyword.roles[0] == 'p')
            CheckCondition(statement);
    }

    // The parser looks the condition up among its tokens and hands the number to the scanner.
    void CheckCondition(const SActionStatement& statement)
    {
        const std::string& name = statement.operands[0];
        const auto ofParser = m_Tables.parser.tokens.find(name);
        const auto ofScanner = m_Tables.scanner.startConditions.find(name);
        if (ofScanner == m_Tables.scanner.startConditions.end())
            Error(statement.line, "there is no start condition " + name);
        else if (ofParser == m_Tables.parser.tokens.end())
            Error(statement.line, "the parser doesn't know " + name + ": declare %token " + name + ' ' +
                                      std::to_string(ofScanner->second));
        else if (ofParser->second != ofScanner->second)
            Error(statement.line, "the parser's " + name + " is " + std::to_string(ofParser->second) +
                                      ", the scanner's start condition is " +
                                      std::to_string(ofScanner->second));
    }

    bool IsNamedRoot(const SGrammarRule& rule) const
    {
        const SNodeMaking making = NodeMaking(rule);
        return making.statement != nullptr && !making.statement->operands.empty() &&
               making.statement->operands[0] == kRootName;
    }

    bool FillsResult(const SGrammarRule& rule) const
    {
        return IsNamedRoot(rule) && NodeMaking(rule).statement->keyword->keyword != CreateNodeWithError;
    }

    // True if the rule hands the value of its one symbol to its left side, and that symbol is one of `roots`.
    bool PassesOn(const SGrammarRule& rule, const std::set<std::string>& roots) const
    {
        return rule.right.size() == 1 && NodeMaking(rule).count == 0 && roots.count(rule.right.front()) != 0;
    }

    // The symbols that can't be reduced without a node named SQL: all, less those with a rule that neither
    // makes the node nor passes on such a symbol, until nothing changes.
    std::set<std::string> FillingSymbols() const
    {
        std::set<std::string> roots;
        for (const SGrammarRule& rule : m_Report.rules)
            roots.insert(rule.left);
        bool isChanged = true;
        while (isChanged) {
            isChanged = false;
            for (const SGrammarRule& rule : m_Report.rules) {
                if (roots.count(rule.left) == 0 || IsUnreadable(rule) || FillsResult(rule) ||
                    PassesOn(rule, roots))
                    continue;
                roots.erase(rule.left);
                isChanged = true;
            }
        }
        return roots;
    }

    // The result of a parse is filled when a node named SQL is made. That has to happen once, at the very
    // end: at the start symbol, or at symbols that rules without a node pass on to it.
    void CheckRoot()
    {
        if (m_Report.rules.front().right.empty())
            return;
        const std::set<std::string> filling = FillingSymbols();
        std::set<std::string> chain;
        std::vector<std::string> open{m_Report.rules.front().right.front()};
        while (!open.empty()) {
            const std::string symbol = open.back();
            open.pop_back();
            if (!chain.insert(symbol).second)
                continue;
            for (const SGrammarRule& rule : m_Report.rules) {
                if (rule.number > 1 && rule.left == symbol && PassesOn(rule, filling))
                    open.push_back(rule.right.front());
            }
        }
        for (const SGrammarRule& rule : m_Report.rules) {
            if (rule.number > 1 && !IsUnreadable(rule))
                CheckRootRule(rule, chain, filling);
        }
    }

    void CheckRootRule(const SGrammarRule& rule, const std::set<std::string>& chain,
                       const std::set<std::string>& filling)
    {
        const int line = LineOf(rule);
        const bool isRoot = chain.count(rule.left) != 0;
        const bool passesOn = isRoot && PassesOn(rule, filling);
        if (IsNamedRoot(rule) && !FillsResult(rule))
            Error(line, "CREATE_NODE_WITH_ERROR doesn't fill the result: wrap the rule in one with "
                        "CREATE_NODE(SQL, 1)");
        else if (isRoot && !passesOn && !FillsResult(rule))
            Error(line, "the start symbol has to make a node named SQL, or the parse has no result");
        else if (!isRoot && FillsResult(rule))
            Error(line, "a node named SQL inside the tree: the result would be filled before the end");
        if (passesOn)
            return;
        for (const std::string& symbol : rule.right) {
            if (chain.count(symbol) != 0)
                Error(line, "the root '" + symbol +
                                "' is used inside the tree: the result would be filled before the end");
        }
    }

    const CGrammarSource& m_Source;
    const SParserReport& m_Report;
    const SLoadedTables& m_Tables;
    CToolMessages& m_Messages;
    std::vector<int> m_RuleLines;
    std::map<int, std::pair<SActionCase, SActionStatements>> m_Actions;
};

} // namespace

void CheckParserRules(const CGrammarSource& source, const SGeneratedFiles& files, const SParserReport& report,
                      const SLoadedTables& tables, CToolMessages& messages)
{
    CParserRules(source, files, report, tables, messages).Check();
    const int terminals = DefinedNumber(files.parserText, "YYNTOKENS");
    if (terminals != tables.parser.tables->ntokens)
        messages.Write(enSeverity::Error, source.Place(0),
                       "the parser has " + std::to_string(terminals) + " terminals, but their names make " +
                           std::to_string(tables.parser.tables->ntokens) +
                           ": every terminal needs a name of its own");
}
