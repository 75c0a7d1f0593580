#include "Grammar/Runtime/yyParser.h"

#include <algorithm>
#include <new>
#include <utility>

yyParser::yyParser() = default;

// Derived classes free their values by yydestroy in their own destructors, while their operations are still
// there.
yyParser::~yyParser() = default;

int yyParser::yyparse()
{
    if (const int result = yysetup(); result != 0)
        return result;
    return yywork();
}

int yyParser::yycreate()
{
    // a parser that is linked again starts over
    yycleanup();
    for (void** value : {&yyvs_initial, &yylval, &yyval})
        if (*value) {
            yydeleteattribute(*value);
            *value = nullptr;
        }
    try {
        if (yyinitdepth > 0) {
            yyvs_initial = yynewattribute(yyinitdepth);
            yyss_initial = std::make_unique<short[]>(yyinitdepth);
        }
        yylval = yynewattribute(1);
        yyval = yynewattribute(1);
    } catch (const std::bad_alloc&) {
        for (void** value : {&yyvs_initial, &yylval, &yyval})
            if (*value) {
                yydeleteattribute(*value);
                *value = nullptr;
            }
        yyss_initial.reset();
        return 0;
    }
    yyreset_stacks();
    return 1;
}

void yyParser::yyreset_stacks()
{
    yyss = yyss_initial.get();
    yyssp = yyss;
    yyvs = yyvs_initial;
    yyvsp = yyvs;
    yystacksize = yyinitdepth;
}

void yyParser::yydestruct(const char*, int, void*)
{
    if (yydebug_stream) {
        std::fclose(yydebug_stream);
        yydebug_stream = nullptr;
    }
    yydebug = 0;
}

void yyParser::yyerror(const char* text)
{
    std::fprintf(stderr, "%s\n", text);
}

int yyParser::yysetup()
{
    if (!yy_needs_setup)
        return 0;
    yycleanup();
    // new values, so that nothing of the old parse survives in them
    yydeleteattribute(std::exchange(yylval, nullptr));
    yydeleteattribute(std::exchange(yyval, nullptr));
    yylval = yynewattribute(1);
    yyval = yynewattribute(1);
    yysize_used = 0;
    yy_needs_setup = 0;
    return 0;
}

bool yyParser::yystack_relocate()
{
    std::size_t size = yystacksize * 2;
    if (yymaxdepth != 0) {
        if (yymaxdepth <= yystacksize)
            return false;
        size = std::min(size, yymaxdepth);
    }
    const std::size_t used = std::min(yysize_used, yystacksize);
    if (size <= yyinitdepth) {
        std::copy(yyss, yyss + used, yyss_initial.get());
        yycopy_attributes(yyvs_initial, yyvs, used);
        yycleanup();
        return true;
    }
    try {
        auto states = std::make_unique_for_overwrite<short[]>(size);
        void* const values = yynewattribute(size);
        std::copy(yyss, yyss + used, states.get());
        yycopy_attributes(values, yyvs, used);
        yycleanup();
        yyss_grown = std::move(states);
        yyss = yyss_grown.get();
        yyssp = yyss;
        yyvs = values;
        yyvsp = values;
        yystacksize = size;
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

void yyParser::yysyntaxerror()
{
    yyerror("syntax error");
}

void yyParser::yyset_tables(std::shared_ptr<const CParserTables> tables)
{
    m_spTables = std::move(tables);
    yytranslate = m_spTables->translate.values.get();
    yypact = m_spTables->pact.values.get();
    yydefact = m_spTables->defact.values.get();
    yypgoto = m_spTables->pgoto.values.get();
    yydefgoto = m_spTables->defgoto.values.get();
    yytable = m_spTables->table.values.get();
    yycheck = m_spTables->check.values.get();
    yystos = m_spTables->stos.values.get();
    yyr1 = m_spTables->r1.values.get();
    yyr2 = m_spTables->r2.values.get();
    yyset_yymaxutok(m_spTables->maxutok);
    yyntokens = m_spTables->ntokens;
    yyset_yyfinal(m_spTables->final_);
    yyset_yybase_ninf(m_spTables->base_ninf);
    yyset_yylast(m_spTables->table.count);
}

void yyParser::yyset_yyntokens(std::size_t count, bool hasZero)
{
    yyntokens = static_cast<int>(count) + (hasZero ? 2 : 3);
}

void yyParser::yyinittables()
{
    yytranslate = nullptr;
    yypact = nullptr;
    yydefact = nullptr;
    yypgoto = nullptr;
    yydefgoto = nullptr;
    yytable = nullptr;
    yycheck = nullptr;
    yystos = nullptr;
    yyr1 = nullptr;
    yyr2 = nullptr;
}

void yyParser::yyremove_tables()
{
    yyinittables();
    m_spTables.reset();
}

void yyParser::yycleanup()
{
    if (yyvs != yyvs_initial)
        yydeleteattribute(yyvs);
    yyss_grown.reset();
    yyreset_stacks();
}

void yyParser::yydestroy()
{
    yycleanup();
    yyremove_tables();
    for (void** value : {&yyvs_initial, &yylval, &yyval})
        if (*value) {
            yydeleteattribute(*value);
            *value = nullptr;
        }
    yyss_initial.reset();
    yyreset_stacks();
    if (yydebug_stream)
        std::fclose(yydebug_stream);
    yydebug_stream = nullptr;
}
