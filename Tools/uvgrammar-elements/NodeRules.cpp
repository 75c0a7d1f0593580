#include "Tools/uvgrammar-elements/NodeRules.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar/ActionText.h"
#include "Tools/uvgrammar/Generators.h"
#include "Tools/uvgrammar/GrammarChecks.h"
#include "Tools/uvgrammar/ParserReport.h"
#include "Tools/uvgrammar/ParserSource.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>

namespace uvelements {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kError = "error";
constexpr int kCharacters = 256;

// The nodes of the rules, by their numbers.
std::map<int, std::string> ReadNodes(const std::string& parserText)
{
    using enum enGrammarKeyword;
    std::map<int, std::string> nodes;
    for (const SActionCase& action : ReadParserActions(parserText)) {
        for (const SActionStatement& statement : ReadActionStatements(action).statements) {
            const enGrammarKeyword keyword = statement.keyword->keyword;
            if ((keyword == CreateNode || keyword == CreateNodeWithError || keyword == Empty) &&
                !statement.operands.empty())
                nodes.emplace(action.number, statement.operands[0]);
        }
    }
    return nodes;
}

// A token that bears the number of a character is no element: its text is space.
bool IsCharacter(const std::string& parserText, const std::string& symbol)
{
    const std::string entry = "\n    " + symbol + " = ";
    const std::size_t at = parserText.find(entry);
    if (at == std::string::npos)
        return false;
    const int number = std::atoi(parserText.c_str() + at + entry.size());
    return number > 0 && number < kCharacters;
}

// The token that a text in quotes stands for in bison's report.
std::string TokenOf(const std::string& parserText, const std::string& symbol)
{
    if (!symbol.starts_with('"'))
        return symbol;
    const std::size_t at = parserText.find("/* " + symbol);
    const std::size_t line = parserText.rfind('\n', at) + 1;
    const std::size_t name = parserText.find_first_not_of(' ', line);
    return at == std::string::npos ? symbol : parserText.substr(name, parserText.find(' ', name) - name);
}

class CRulesMaker
{
public:
    CRulesMaker(const SGeneratedFiles& files, const CGrammarSource& source, fs::path folder,
                SNodeRules& rules)
        : m_Text(files.parserText), m_Source(source), m_Folder(std::move(folder)), m_Rules(rules),
          m_Nodes(ReadNodes(files.parserText)), m_Lines(ReadRuleLines(files.parserText))
    {}

    void Make(const SParserReport& report)
    {
        for (const SGrammarRule& rule : report.rules)
            m_Lefts.insert(rule.left);
        for (const SGrammarRule& rule : report.rules) {
            if (rule.number == 1) // bison's own: the start symbol and the end
                m_Rules.start = Number(rule.right.front());
            else
                Add(rule);
        }
    }

private:
    std::size_t Number(const std::string& symbol)
    {
        const auto [known, isNew] = m_Numbers.emplace(symbol, m_Rules.symbols.size());
        if (isNew) {
            m_Rules.symbols.push_back(symbol);
            m_Rules.rulesOf.emplace_back();
        }
        return known->second;
    }

    // What is only a character has none.
    bool IsElement(const std::string& symbol)
    {
        if (symbol == kError)
            return false;
        const auto [known, isNew] = m_IsElement.emplace(symbol, true);
        if (isNew)
            known->second = m_Lefts.count(symbol) != 0 || !IsCharacter(m_Text, symbol);
        return known->second;
    }

    void Add(const SGrammarRule& rule)
    {
        SNodeRule made;
        made.left = Number(rule.left);
        const auto node = m_Nodes.find(rule.number);
        if (node != m_Nodes.end())
            made.node = node->second;
        for (const std::string& shown : rule.right) {
            const std::string symbol = TokenOf(m_Text, shown);
            made.hasError = made.hasError || symbol == kError;
            if (IsElement(symbol))
                made.right.push_back(Number(symbol));
        }
        const auto number = static_cast<std::size_t>(rule.number);
        const int line = number < m_Lines.size() ? m_Lines[number] : 0;
        const SSourcePlace place = m_Source.Place(line);
        made.isOfList = m_Source.ListOf(line) != 0;
        made.file = fs::absolute(place.file).lexically_normal().lexically_relative(m_Folder).generic_string();
        made.line = place.line;
        m_Rules.rulesOf[made.left].push_back(m_Rules.rules.size());
        m_Rules.rules.push_back(std::move(made));
    }

    const std::string& m_Text;
    const CGrammarSource& m_Source;
    fs::path m_Folder;
    SNodeRules& m_Rules;
    std::map<int, std::string> m_Nodes;
    std::vector<int> m_Lines; // by the number of the rule
    std::set<std::string> m_Lefts;
    std::map<std::string, std::size_t> m_Numbers;
    std::map<std::string, bool> m_IsElement;
};

} // namespace

void ReadNodeRules(const uvscore::SLanguageSources& sources, CToolMessages& messages, SNodeRules& rules)
{
    const CGrammarSource source = AssembleParser(sources.parserPath, messages);
    if (messages.ErrorCount() > 0)
        return;
    const CTemporaryFolder scratch((fs::temp_directory_path() / "uvgrammar.").string());
    SGeneratedFiles files;
    RunBison(source, scratch.Path(), files, messages);
    if (messages.ErrorCount() > 0)
        return;
    const fs::path folder = fs::absolute(sources.parserPath).lexically_normal().parent_path();
    CRulesMaker(files, source, folder, rules).Make(ReadParserReport(files.parserReport));
}

} // namespace uvelements
