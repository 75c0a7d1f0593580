#pragma once

#include "Grammar/Runtime/ParserTables.h"

#include <cstddef>
#include <cstdio>
#include <memory>

// The LALR(1) parser without its values: the state stack, the tables and the growth of the stacks. Semantic
// values are of any type; every move of one is a virtual operation, and the value stack is seen here as an
// opaque array. The main loop is added by yyBisonParser.
class yyParser
{
public:
    yyParser();
    yyParser(const yyParser&) = delete;
    yyParser& operator=(const yyParser&) = delete;
    virtual ~yyParser();

    // Returns: 0 accepted, 1 aborted (an error that recovery could not repair, or yyabort), 2 stacks
    //          exhausted.
    virtual int yyparse();
    // Allocates the stacks and the two single values. Call once, after the tables are there.
    // Returns: 1, or 0 if memory is short.
    virtual int yycreate();
    virtual void yyset_last_error(const char* text) = 0;
    // Pushes the lookahead's value.
    virtual void yylvaltostack() = 0;
    // Pushes the reduction's value.
    virtual void yyvaltostack() = 0;
    // Copies the stack entry `index` (0: the top, negative: below) to the reduction's value.
    virtual void yystacktoval(int index) = 0;
    // Sets the top of the value stack to entry `index` from the bottom.
    virtual void yyshift_attributes(std::size_t index) = 0;
    // Pops `count` values and states.
    virtual void yypop_attributes(int count) = 0;
    virtual void yycopy_attributes(void* to, const void* from, std::size_t count) = 0;
    virtual void* yynewattribute(std::size_t count) = 0;
    virtual void yydeleteattribute(void* values) = 0;
    virtual void yydestruct(const char* message, int token, void* value);
    virtual void yyerror(const char* text);
    virtual void yyaction(int rule) = 0;
    virtual int yywork() = 0;
    virtual int yygettoken() = 0;
    // Prepares a further parse on the same object.
    // Returns: 0, or the result that the parse ends with at once.
    virtual int yysetup();
    virtual bool yystack_relocate();
    virtual void yysyntaxerror();

    // Shares the tables and takes their constants.
    void yyset_tables(std::shared_ptr<const CParserTables> tables);
    void yyset_yylast(std::size_t size) { yylast = static_cast<int>(size) - 1; }
    void yyset_yymaxutok(int n) { yymaxutok = n; }
    void yyset_yybase_ninf(int n) { yybase_ninf = n; }
    void yyset_yyntokens(std::size_t count, bool hasZero);
    void yyset_yyfinal(int n) { yyfinal = n; }

    // The internal number of an external token number; 2, the undefined token, for one that is too large.
    int yyttranslate(int external) const
    {
        return external > yymaxutok ? 2 : static_cast<int>(yytranslate[external]);
    }
    // Makes the running action fail, whatever the argument: the parser recovers as from a syntax error.
    void yythrowerror(int) { yyerror_flag = 1; }
    void yyabort() { yyabort_flag = 1; }

    void yyinittables();
    void yyremove_tables();
    void yycleanup();
    void yydestroy();

protected:
    void* yyval = nullptr;  // the value under construction in a reduction
    void* yylval = nullptr; // the lookahead's value, which the scanner writes
    std::FILE* yydebug_stream = nullptr;
    int yydebug = 0;
    int yychar = 0; // lookahead, or yyempty
    int yynerrs = 0;
    int yylast = 0;
    int yymaxutok = 0;
    int yybase_ninf = 0;
    int yyntokens = 0;
    int yyfinal = 0;
    int yyempty = -2;
    int yy_needs_setup = 0;
    int yyerror_flag = 0;
    int yyabort_flag = 0;
    short* yyss = nullptr;  // bottom of the state stack
    short* yyssp = nullptr; // top
    void* yyvs_initial = nullptr;
    void* yyvsp = nullptr;
    void* yyvs = nullptr;
    std::size_t yysize_used = 0; // depth noted before a relocation
    std::size_t yystacksize = 0;
    std::size_t yyinitdepth = 0;
    std::size_t yymaxdepth = 0; // 0: none
    int yytoken = 0;
    int yylen = 0;

    std::shared_ptr<const CParserTables> m_spTables;
    // The tables as the loop reads them; they belong to m_spTables.
    const unsigned* yytranslate = nullptr;
    const int* yypact = nullptr;
    const unsigned* yydefact = nullptr;
    const int* yypgoto = nullptr;
    const int* yydefgoto = nullptr;
    const int* yytable = nullptr;
    const int* yycheck = nullptr;
    const unsigned* yystos = nullptr;
    const unsigned* yyr1 = nullptr;
    const unsigned* yyr2 = nullptr;

private:
    void yyreset_stacks();

    std::unique_ptr<short[]> yyss_initial, yyss_grown;
};
