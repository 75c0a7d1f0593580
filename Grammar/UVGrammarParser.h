#pragma once

#include "Grammar/ParserNode.h"
#include "Grammar/Runtime/yyBisonParser.h"
#include "Grammar/Runtime/yyFlexLexer.h"
#include "Grammar/UVGrammarActionRecords.h"
#include "Grammar/UVGrammarParserImplementation.h"
#include "Grammar/UVGrammarRuleWatch.h"
#include "Tree/FragmentTree.h"
#include "UVEnvironment/LogSystem.h"

#include <deque>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace boost::program_options {
class variables_map;
}

// The parser of one language: the LALR parser with the tables of a grammar folder and ParserNode values. Its
// result is one XML text that holds every byte of the query: each reduction puts its name around its
// children, and what stands between two tokens comes back as space.
//
// One object serves one parse at a time. Per text: m_Extension.set_Query, the scanner's set_Query, yyparse,
// then read m_Extension.
class CSQLGrammarParser final : public yyBisonParser
{
public:
    // Without tables; call yytables.
    CSQLGrammarParser();
    // Throws: Uve::U8CString with the line for the log if a table file is missing or bad.
    CSQLGrammarParser(const char* parserName, bool isPatternVersion);
    // The out-of-process tool's parameters: SHOWERR, DBNAME, PATTERNVER.
    explicit CSQLGrammarParser(const boost::program_options::variables_map& parameters);
    ~CSQLGrammarParser() override;

    // Throws: as the constructor.
    void yytables(const char* parserName, bool isPatternVersion);
    // Once there are tables.
    const CParserTables& Tables() const { return *m_spTables; }
    void Initialize() { yylexerptr = nullptr; }

    using yyBisonParser::yycreate;
    // Links the scanner.
    // Borrows: the scanner, until another is linked.
    // Returns: 1; 0 for null or if memory is short.
    int yycreate(yyFlexLexer* lexer);

    // Returns: 0 with the tree in m_Extension.m_strParsedXml, or in Tree(); 1 or 2 without one.
    // Throws:  std::runtime_error if damaged tables lead the engine astray.
    int yyparse() override;

    // Forgets the errors of all texts before, and which of them were told.
    void ForgetTexts();

    // From the next yyparse on, whether the tree stays in fragments, if flattening takes it as it is: no text
    // is made of it then.
    void set_FragmentsWanted(bool on) { m_bFragmentsWanted = on; }
    // The last yyparse's tree as fragments, if there is one. It lasts until the next yyparse or the next
    // query.
    const SFragmentTree& Tree() const { return m_Tree; }
    void ReleaseTree();

    // Called for each unexpected token from now on, with the stack of states, top last, and the token's terminal: it
    // tells what was expected. Empty, as at first: nobody asks.
    using TExpected = std::function<std::vector<std::string>(std::span<const short> stack, int terminal)>;
    void set_Expected(TExpected expected) { m_Expected = std::move(expected); }

    // As CSQLGrammarLexer's; off after yytables.
    void WatchRules(bool on) { m_Watch.Set(on); }
    std::vector<int> UsedRules() const { return m_Watch.Used(); }

    bool HasErrors() const { return !m_Extension.m_mapErrors.empty(); }
    void yyerror(const char* text) override;
    void yyset_last_error(const char* text) override;
    // Opens `directory`/ParserDebug.out as the debug stream; an empty one does nothing.
    void yyinitdebug(const std::string& directory);

    int yywork() override;
    void yylvaltostack() override { Push(yylval); }
    void yyvaltostack() override { Push(yyval); }
    void yystacktoval(int index) override
    {
        auto& value = *static_cast<ParserNode*>(yyval);
        // an empty rule has no first symbol; what lies above the top belongs to somebody else
        if (index > 0)
            static_cast<ParserNodeValue&>(value) = ParserNodeValue();
        else
            value.MoveFrom(StackEntry(index));
    }
    void yyshift_attributes(std::size_t index) override;
    void yypop_attributes(int count) override
    {
        yyvsp = static_cast<ParserNode*>(yyvsp) - count;
        yyssp -= count;
    }
    void yycopy_attributes(void* to, const void* from, std::size_t count) override;
    void* yynewattribute(std::size_t count) override;
    void yydeleteattribute(void* values) override;
    void yyaction(int rule) override
    {
        const SRule& actions = m_lstRules[static_cast<std::size_t>(rule)];
        if (actions.count != 0)
            RunActions(actions);
        else if (!actions.isKnown && CLogWrapper::HasLog())
            TraceEmptyAction(rule);
    }
    int yygettoken() override;
    void yysyntaxerror() override;
    void yyrecovery(bool isReported) override;
    void yydiscard_symbols(int count) override;
    void yydiscard_lookahead() override;

    // For the scanner that feeds this parser: the lookahead's value, and where its text goes. The value is
    // null until yycreate.
    ParserNode* LookaheadValue() { return static_cast<ParserNode*>(yylval); }
    CFragmentPool& Fragments() { return m_Fragments; }

    CSQLGrammarParserImplementation m_Extension;
    yyFlexLexer* yylexerptr = nullptr;       // borrowed
    std::map<std::string, int> m_mapDefines; // token name to number; the scanner reads it too
    std::string m_strParserName;
    bool m_bPatternVersion = false;

private:
    // One operation of a rule, ready to run.
    struct SOperation
    {
        enGrammarKeyword keyword = enGrammarKeyword::SqlReduced;
        bool isRoot = false;       // the node that ends the tree
        std::uint32_t element = 0; // node name
        int childCount = 0;
        int errorIndex = -1;
        const std::string* startCondition = nullptr; // in m_lstStartConditions
    };
    struct SRule
    {
        std::uint32_t first = 0; // into m_lstOperations
        std::uint32_t count = 0;
        bool isKnown = false; // has a record in the action text
    };
    // Where the children joined so far have led.
    struct SJoin
    {
        std::uint32_t element = 0;  // of the node
        std::uint32_t marks = 0;    // for its start tag
        int lastChildStartPos = -1; // end of the last child that had text
        int lastChildErrorPos = -1; // where text begins that the error symbol stands for
    };

    void RunActions(const SRule& actions);
    void RunSeldomAction(const SOperation& operation);
    static void TraceEmptyAction(int rule);
    void CompileActions();
    ParserNode& StackEntry(int index) { return static_cast<ParserNode*>(yyvsp)[index]; }
    void Push(const void* value)
    {
        auto* const top = static_cast<ParserNode*>(yyvsp) + 1;
        top->MoveFrom(*static_cast<const ParserNode*>(value));
        yyvsp = top;
    }
    void CreateNodeExt(const SOperation& operation);
    void CreateErrorNodeExt(const SOperation& operation);
    void CreateNode(ParserNodeValue& node, const ParserNode& child, SJoin& join, bool show);
    void ReportErrors(const ParserNode& child, std::string_view gap, bool show);
    void ReportRemainingErrors();
    void addRootSpaces(ParserNodeValue& root);
    void Append(ParserNodeValue& node, FragmentRef fragment)
    {
        SpliceFragments(m_Fragments, node.m_pFirst, node.m_pLast, fragment, fragment);
    }

    CActionRecords m_Actions; // as they were loaded
    std::deque<std::string> m_lstStartConditions;
    std::vector<SOperation> m_lstOperations;
    std::vector<SRule> m_lstRules;
    CRuleWatch<SRule, SOperation> m_Watch{m_lstRules, m_lstOperations};
    CFragmentPool m_Fragments;
    SFragmentTree m_Tree;
    bool m_bFragmentsWanted = false;
    TExpected m_Expected;
    std::uint32_t m_nRootElement = 0;
};

// Writes to standard error, but only in the parser tool's own process.
void WriteMessageToErrorStream(const std::string& text);
