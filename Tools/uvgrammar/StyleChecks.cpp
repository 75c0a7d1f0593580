#include "Tools/uvgrammar/GrammarChecks.h"

#include <algorithm>
#include <map>
#include <vector>

namespace {

using enum enGrammarKeyword;

constexpr std::string_view kTokenBegin = "T__";
constexpr std::string_view kStatement = "pl_sql_statement";
constexpr std::string_view kStatements = "pl_sql_statements"; // how the names of lists of statements end

// Whatever the style says, these are the names that the root and the flattening know.
constexpr std::string_view kGivenNames[] = {"SQL", "CONCAT_item_list"};

bool IsSnakeCase(std::string_view name)
{
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (name.empty() || !isLetter(name.front()) || name.back() == '_' || name.find("__") != name.npos)
        return false;
    return std::ranges::all_of(name, [&](char c) { return isLetter(c) || isDigit(c) || c == '_'; });
}

bool IsToken(std::string_view symbol)
{
    return symbol.starts_with(kTokenBegin);
}

class CStyleRules
{
public:
    CStyleRules(const CGrammarSource& source, const SGeneratedFiles& files, const SParserReport& report,
                CToolMessages& messages)
        : m_Source(source), m_Report(report), m_Messages(messages),
          m_RuleLines(ReadRuleLines(files.parserText))
    {
        for (const SActionCase& action : ReadParserActions(files.parserText)) {
            for (const SActionStatement& statement : ReadActionStatements(action).statements) {
                const enGrammarKeyword keyword = statement.keyword->keyword;
                if ((keyword == CreateNode || keyword == CreateNodeWithError || keyword == Empty) &&
                    !statement.operands.empty())
                    m_Nodes.emplace(action.number, SNode{statement.operands[0], statement.line});
            }
        }
    }

    void Check()
    {
        for (const SGrammarRule& rule : m_Report.rules) {
            const auto node = m_Nodes.find(rule.number);
            if (node == m_Nodes.end())
                continue;
            CheckName(node->second, m_Source.ListOf(LineOf(rule)) != 0);
            if (node->second.name == kStatement)
                CheckStatement(rule);
        }
    }

private:
    struct SNode
    {
        std::string name;
        int line = 0;
    };

    int LineOf(const SGrammarRule& rule) const
    {
        const auto at = static_cast<std::size_t>(rule.number);
        return at < m_RuleLines.size() ? m_RuleLines[at] : 0;
    }

    void Error(int line, const std::string& text)
    {
        m_Messages.Write(enSeverity::Error, m_Source.Place(line), text);
    }

    void CheckName(const SNode& node, bool isOfList)
    {
        const std::string& name = node.name;
        if (!m_Named.insert(name).second || std::ranges::find(kGivenNames, name) != std::end(kGivenNames))
            return;
        if (IsToken(name))
            Error(node.line, "the node '" + name + "' has the name of a token");
        else if (!IsSnakeCase(name))
            Error(node.line, "the name of the node '" + name + "' isn't of the form lower_case");
        else if (isOfList && !name.ends_with("_list") && !name.ends_with(kStatements))
            Error(node.line, "the name of the list '" + name + "' doesn't end in _list");
    }

    // What a symbol may be in the tree: nodes and tokens.
    void AppendElements(const std::string& symbol, std::set<std::string>& seen,
                        std::map<std::string, int>& elements) const
    {
        if (!seen.insert(symbol).second)
            return;
        for (const SGrammarRule& rule : m_Report.rules) {
            if (rule.left != symbol)
                continue;
            const auto node = m_Nodes.find(rule.number);
            if (node != m_Nodes.end())
                elements.emplace(node->second.name, node->second.line);
            else if (rule.right.size() == 1 && IsToken(rule.right.front()))
                elements.emplace(rule.right.front(), LineOf(rule));
            else if (rule.right.size() == 1)
                AppendElements(rule.right.front(), seen, elements);
        }
    }

    void CheckStatement(const SGrammarRule& rule)
    {
        if (rule.right.size() != 1 || rule.right.front() == "error")
            return;
        std::set<std::string> seen;
        std::map<std::string, int> elements;
        if (IsToken(rule.right.front()))
            elements.emplace(rule.right.front(), LineOf(rule));
        AppendElements(rule.right.front(), seen, elements);
        for (const auto& [name, line] : elements) {
            if (!name.ends_with("_statement") && m_Statements.insert(name).second)
                Error(line, IsToken(name)
                                ? "a statement that is the token " + name + " alone has no node of its own"
                                : "the name of the statement '" + name + "' doesn't end in _statement");
        }
    }

    const CGrammarSource& m_Source;
    const SParserReport& m_Report;
    CToolMessages& m_Messages;
    std::vector<int> m_RuleLines;
    std::map<int, SNode> m_Nodes; // by the number of the rule
    std::set<std::string> m_Named;
    std::set<std::string> m_Statements; // that were found at fault
};

} // namespace

void CheckStyle(const CGrammarSource& source, const SGeneratedFiles& files, const SParserReport& report,
                CToolMessages& messages)
{
    CStyleRules(source, files, report, messages).Check();
}
