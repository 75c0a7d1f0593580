// The grammar engine a second time, to compare with: the same machine in the plainest form that does the
// work. It walks the tables as they are stored, looks actions up by name, and builds the tree out of whole
// strings; only the readers of the table files are shared. Its cost grows with the square of the text.
#pragma once

#include "Grammar/UVGrammarKeeper.h"
#include "Tests/Support/EngineFixture.h"

#include <cstdlib>
#include <functional>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <vector>

class CModelEngine
{
public:
    explicit CModelEngine(const std::string& grammar, bool isCr = false);
    ~CModelEngine();
    CModelEngine(const CModelEngine&) = delete;
    CModelEngine& operator=(const CModelEngine&) = delete;

    // What the engine brings out, state that outlives a parse included.
    SParseOutcome Parse(const std::string& text, const SEngineSettings& settings = {});

private:
    using Operands = std::vector<std::string>;
    struct SNode
    {
        int start = -1;
        int length = 0;
        long line = 0;
        std::string text;    // XML
        std::string pending; // of empty children
    };
    struct SAction
    {
        std::string keyword;
        Operands operands;
    };
    using ActionTable = std::map<int, std::vector<SAction>>;
    using Handler = std::function<std::optional<int>(const Operands&)>;

    // ---- text ----
    static int Number(const std::string& text)
    {
        return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
    }
    static std::string Replaced(std::string text, const std::string& from, const std::string& to);
    static std::string EscapedToken(std::string text);
    static std::string SpaceElement(const std::string& text);

    // ---- loading ----
    static ActionTable ReadActions(const std::string& directory);
    std::map<std::string, std::vector<int>> ReadTables(const std::string& directory,
                                                       const std::vector<std::string>& names);
    void FillHandlers();

    // ---- scanner ----
    void StartScan(const std::string& text);
    int StartCondition();
    int Step(int state, unsigned char byte) const;
    int Scan();
    std::optional<int> RunActions(int rule);
    void Begin(const std::string& condition);
    void BeginNamed(const std::string& condition) { m_condition = m_conditions[condition]; }
    void SkipTo(const std::string& condition);
    int Token(const std::string& name, int color = 0, int length = 0, bool isPseudo = false);
    std::optional<int> Indentation();
    void GiveBack(int keep);
    void Color(const std::string& text) { m_coloring += text; }
    int MatchStart() const { return m_at - m_length; }
    void Define(const std::string& text, const std::string& mark, bool hasPipe, bool isCut);
    void Conditional(int from, const std::string& set, bool isUpper, bool skipIfDefined,
                     const std::string& state);
    void Else(const std::string& state);
    void StringAction(int number);
    std::optional<int> CodeAction(const Operands& operands);
    void SaveCondition(const std::string& condition);
    bool IsConditionTrue(const std::string& condition, const std::string& value);

    // ---- parser ----
    int Work();
    void Reduce(int rule);
    void CreateNode(const std::string& name, int count, int errorIndex);
    void Join(SNode& node, const SNode& child, int& lastEnd);
    void FinishRoot(const SNode& root);

    std::string m_grammar;
    bool m_isCr;
    ActionTable m_scanActions, m_parseActions;
    std::map<std::string, int> m_conditions, m_tokens;
    std::map<std::string, std::vector<int>> m_scan, m_parse;
    std::map<std::string, Handler> m_handlers;
    int m_terminals = 0, m_largestToken = 0, m_finalState = 0, m_none = 0;
    SEngineSettings m_settings;

    // the scan
    std::string m_query;
    int m_at = 0;         // end of the match
    int m_length = 0;     // of the match
    int m_lastLength = 0; // of the match before the end of the text
    std::string m_match;  // its text, or what an action put there
    int m_line = 1;
    bool m_isLineStart = true;
    int m_condition = 0, m_startCondition = 0;
    int m_lineStart = 0, m_previous = 0, m_brackets = 0;
    int m_emptyMatches = 0;
    std::string m_coloring;
    std::list<std::string> m_defines;
    std::vector<bool> m_skips;
    std::vector<int> m_indents;
    std::vector<std::string> m_owed;
    std::map<std::string, int> m_stacks;
    std::map<std::string, std::string> m_saved;
    SNode m_lookaheadNode;

    // the parse
    std::vector<int> m_states;
    std::vector<SNode> m_nodes;
    SNode m_result;
    bool m_hasRaised = false;
    std::string m_tree, m_lastError;
    std::multimap<unsigned long, std::string> m_errors;
};
