#include "Tests/Support/ModelEngine.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int kEmpty = -2; // no lookahead
} // namespace

// ---- Text ----

std::string CModelEngine::Replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

std::string CModelEngine::EscapedToken(std::string text)
{
    text = Replaced(text, "&", "&amp;");
    text = Replaced(text, "<", "&lt;");
    text = Replaced(text, ">", "&gt;");
    text = Replaced(text, "'", "&apos;");
    return Replaced(text, "\"", "&quot;");
}

std::string CModelEngine::SpaceElement(const std::string& text)
{
    std::string escaped = Replaced(EscapedToken(text), "\f", "");
    escaped = Replaced(escaped, "\x10", "ORVANTA_DATA_LINK_ESCAPE_REPLACER");
    return "<T__SPACE type=\"TOKEN\">" + escaped + "</T__SPACE>";
}

// ---- Loading ----

CModelEngine::CModelEngine(const std::string& grammar, bool isCr) : m_grammar(grammar), m_isCr(isCr)
{
    const std::string lexer = ComposeGrammarDirectory(grammar, isCr, "Lexer");
    const std::string parser = ComposeGrammarDirectory(grammar, isCr, "Parser");
    m_scanActions = ReadActions(lexer);
    m_parseActions = ReadActions(parser);
    UVDBGrammarKeeper::CreateDefinesMap(GetDatFile(lexer, lexer, "defines.dat"), m_conditions);
    const std::uint64_t largest =
        UVDBGrammarKeeper::CreateDefinesMap(GetDatFile(parser, parser, "defines.dat"), m_tokens);
    m_largestToken = static_cast<int>(largest & 0xffffffffu);
    m_terminals = static_cast<int>(m_tokens.size()) + (largest >> 32 != 0 ? 2 : 3);
    m_finalState = UVDBGrammarKeeper::GetFinalStateNum(GetDatFile(parser, parser, "const.dat"));
    m_scan = ReadTables(lexer, {"accept", "base", "chk", "def", "nxt", "rule_can_match_eol", "acclist"});
    m_parse =
        ReadTables(parser, {"pact", "defact", "pgoto", "defgoto", "table", "check", "r1", "r2", "translate"});
    for (const char* const name : {"pact", "pgoto"})
        for (const int base : m_parse[name])
            m_none = std::min(m_none, base);
    for (const char* const name :
         {"EAGL", "EAGLSERVER", "EAGLSERVERISAPI", "EAGLSERVERHTTP", "EAGLSERVERAF", "AGL570D", "AGL580",
          "AGL590", "ERADIO", "GCGC", "FOS5", "SANSCOMPTA", "CHR", "STK", "DEBUG", "MSWINDOWS"})
        m_defines.emplace_back(name);
    FillHandlers();
}

CModelEngine::~CModelEngine() = default;

CModelEngine::ActionTable CModelEngine::ReadActions(const std::string& directory)
{
    CActionsMap map;
    UVDBGrammarKeeper::CreateActionsMap(GetDatFile(directory, directory, "actions.dat"), map);
    ActionTable table;
    for (const auto& [rule, operations] : map) {
        table[rule];
        for (const auto& [key, operands] : *operations)
            if (operands)
                table[rule].push_back({key.substr(0, key.find('#')), *operands});
    }
    FreeActionsMap(map);
    return table;
}

std::map<std::string, std::vector<int>> CModelEngine::ReadTables(const std::string& directory,
                                                                 const std::vector<std::string>& names)
{
    std::map<std::string, std::vector<int>> tables;
    for (const std::string& name : names) {
        std::size_t count = 0;
        const std::string path = GetDatFilePath(directory, directory, name + ".dat");
        const std::unique_ptr<int[]> entries(
            UVDBGrammarKeeper::GetBinaryTableFromFile<int>(path.c_str(), count));
        tables[name].assign(entries.get(), entries.get() + count);
    }
    return tables;
}

SParseOutcome CModelEngine::Parse(const std::string& text, const SEngineSettings& settings)
{
    m_settings = settings;
    m_errors.clear();
    m_coloring.clear();
    m_tree.clear();
    m_lastError.clear();
    SParseOutcome outcome;
    try {
        StartScan(text);
        outcome.result = Work();
    } catch (const std::exception&) {
        outcome.hasThrown = true;
    }
    outcome.tree = m_tree;
    outcome.coloring = m_coloring;
    outcome.lastError = m_lastError;
    outcome.errors = m_errors;
    return outcome;
}

// ---- Parser ----

int CModelEngine::Work()
{
    const auto& pact = m_parse.at("pact");
    const auto& table = m_parse.at("table");
    const auto& check = m_parse.at("check");
    const auto at = [](const std::vector<int>& values, int index) {
        return values[static_cast<std::size_t>(index)];
    };
    const auto isEntry = [&](int slot, int symbol) {
        return slot >= 0 && slot < static_cast<int>(table.size()) && at(check, slot) == symbol;
    };
    const auto translate = [&](int token) {
        return token > m_largestToken ? 2 : at(m_parse.at("translate"), token);
    };

    m_states = {0};
    m_nodes = {SNode()};
    m_hasRaised = false;
    int lookahead = kEmpty;
    int recovery = 0;
    while (m_states.back() != m_finalState) {
        int action = 0; // above 0: shift to; below 0: reduce by
        if (const int base = at(pact, m_states.back()); base != m_none) {
            if (lookahead == kEmpty)
                lookahead = Scan();
            const int token = lookahead < 1 ? 0 : translate(lookahead);
            lookahead = std::max(lookahead, 0);
            if (isEntry(base + token, token))
                action = at(table, base + token);
        }
        if (action == 0)
            action = -at(m_parse.at("defact"), m_states.back());

        if (action > 0) {
            recovery -= recovery > 0 ? 1 : 0;
            lookahead = kEmpty;
            m_nodes.push_back(m_lookaheadNode);
            m_states.push_back(action);
            m_hasRaised = false;
            continue;
        }
        if (action < 0) {
            const int rule = -action;
            const int length = at(m_parse.at("r2"), rule);
            m_result = length > 0 ? m_nodes[m_nodes.size() - static_cast<std::size_t>(length)] : SNode();
            bool isRaised =
                m_settings.isDevelopmentMode &&
                std::any_of(m_parseActions[rule].begin(), m_parseActions[rule].end(),
                            [](const SAction& made) { return made.keyword == "CREATE_NODE_WITH_ERROR"; });
            try {
                Reduce(rule);
            } catch (const std::exception&) {
                m_lastError = "Syntax error";
                isRaised = true;
            }
            m_states.resize(m_states.size() - static_cast<std::size_t>(length));
            m_nodes.resize(m_nodes.size() - static_cast<std::size_t>(length));
            if (!isRaised) {
                const int made = at(m_parse.at("r1"), rule) - m_terminals;
                const int slot = at(m_parse.at("pgoto"), made) + m_states.back();
                m_nodes.push_back(m_result);
                m_states.push_back(isEntry(slot, m_states.back()) ? at(table, slot)
                                                                  : at(m_parse.at("defgoto"), made));
                continue;
            }
            if (m_hasRaised)
                return 1;
            m_hasRaised = true;
        } else if (recovery == 0) {
            m_lastError = std::to_string(m_line) + " '" + m_match + "'";
            m_errors.emplace(m_line, m_match);
        } else if (recovery == 3) {
            if (lookahead == 0)
                return 1;
            lookahead = kEmpty;
        }

        const auto errorState = [&](int state) {
            const int slot = at(pact, state) + 1;
            return at(pact, state) != m_none && isEntry(slot, 1) ? at(table, slot) : 0;
        };
        while (errorState(m_states.back()) <= 0) {
            m_states.pop_back();
            m_nodes.pop_back();
            if (m_states.empty())
                return 1;
        }
        m_states.push_back(errorState(m_states.back()));
        m_nodes.push_back(m_lookaheadNode);
        recovery = 3;
    }
    return 0;
}

void CModelEngine::Reduce(int rule)
{
    for (const SAction& action : m_parseActions[rule]) {
        const Operands& operands = action.operands;
        if (action.keyword == "CREATE_NODE")
            CreateNode(operands[0], Number(operands[1]), -1);
        else if (action.keyword == "CREATE_NODE_WITH_ERROR")
            CreateNode(operands[0], Number(operands[1]), Number(operands[2]));
        else if (action.keyword == "EMPTY")
            CreateNode(operands[0], 0, -1);
        else if (action.keyword == "yylexerptr->yybegin")
            m_condition = m_tokens[operands[0]];
    }
}

void CModelEngine::CreateNode(const std::string& name, int count, int errorIndex)
{
    SNode node;
    node.line = -1;
    node.text = "<" + name + ">";
    int lastEnd = -1;
    for (int child = 0; child < count; ++child)
        if (child != errorIndex)
            Join(node, m_nodes[m_nodes.size() - static_cast<std::size_t>(count - child)], lastEnd);
    if (errorIndex == -1)
        node.text += node.pending;
    node.text += "</" + name + ">";
    node.pending.clear();
    m_result = node;
    if (errorIndex == -1 && name == "SQL")
        FinishRoot(node);
}

void CModelEngine::Join(SNode& node, const SNode& child, int& lastEnd)
{
    if (node.start == -1)
        node.start = child.start;
    if (node.line == -1)
        node.line = child.line;
    if (lastEnd != -1 && child.start != -1 && child.start != -2) {
        const std::string gap = m_query.substr(static_cast<std::size_t>(lastEnd),
                                               static_cast<std::size_t>(std::max(child.start - lastEnd, 0)));
        node.length += child.start - lastEnd;
        if (!gap.empty())
            node.text += SpaceElement(gap);
    }
    if (child.length != 0) {
        node.length += child.length;
        node.text += node.pending + child.text;
        node.pending.clear();
        lastEnd = child.start + child.length;
    } else
        node.pending += child.text;
}

void CModelEngine::FinishRoot(const SNode& root)
{
    const std::string lead = root.start >= 1 ? m_query.substr(0, static_cast<std::size_t>(root.start)) : "";
    const std::string tail = m_query.substr(static_cast<std::size_t>(std::max(root.start + root.length, 0)));
    m_tree = "<SQL>" + SpaceElement(lead) + root.text + SpaceElement(tail) + "</SQL>";
    m_result.text.clear();
}
