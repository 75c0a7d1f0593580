#include "Grammar/Runtime/yyLexer.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace {

constexpr int kFirstTextSize = 200;
constexpr int kSpareSteps = 4; // a match runs over both NULs after the text

std::size_t StateSlots(int textSize)
{
    return static_cast<std::size_t>(textSize) * 2 + 2;
}

} // namespace

yyLexer::yyLexer() = default;

yyLexer::~yyLexer()
{
    yyLexer::yydestroy();
}

int yyLexer::yycreate()
{
    // a scanner that is linked again starts over
    yyLexer::yycleanup();
    yy_text_size = yy_text_initial_size;
    yy_state_initial.reset(static_cast<int*>(std::malloc(StateSlots(yy_text_size) * sizeof(int))));
    if (!yy_state_initial)
        return 0;
    yy_state_buf = yy_state_initial.get();
    yy_state_ptr = yy_state_buf;
    return 1;
}

int yyLexer::yybegin(int state)
{
    if (m_spTables && (state < 0 || state >= m_spTables->StartConditions()))
        throw std::out_of_range("the scanner has no start condition " + std::to_string(state));
    yy_start = state * 2 + 1;
    return yy_start;
}

void yyLexer::yyinit_locals()
{
    yylineno = 1;
    yyin = nullptr;
    yyout = nullptr;
    yy_cp = nullptr;
    yy_bp = nullptr;
    yytext_ptr = nullptr;
    yy_current_state = 0;
    yy_n_chars = 0;
    yyleng = 0;
    yyoldleng = 0;
    yy_init = 0;
    yy_start = 0;
    yy_match_length = 0;
    yy_hold_char = 0;
    yy_c_buf_p = nullptr;
    yy_did_buffer_switch_on_eof = 0;
    yy_state_ptr = nullptr;
    yy_lp = 0;
    yy_looking_for_trail_begin = 0;
    yy_action_returns = 0;
    yy_action_failed = 0;
}

void yyLexer::yycleanup()
{
    m_textCopy.clear();
    yytext = m_textCopy.data();
    while (yycurrent_buffer()) {
        yydelete_buffer(yycurrent_buffer());
        yycurrent_buffer_lvalue() = nullptr;
        yypop_buffer_state();
    }
    yy_state_grown.reset();
    yy_state_buf = yy_state_initial.get();
    yy_state_ptr = yy_state_buf;
    yy_text_size = yy_text_initial_size;
    yy_looking_for_trail_begin = 0;
    yyleng = 0;
    yyoldleng = 0;
    yy_init = 0;
    yylineno = 1;
}

void yyLexer::yyinitialize()
{
    if (yy_init)
        return;
    yy_init = 1;
    if (yy_start == 0)
        yy_start = 1;
    yyinputbuffer();
    if (yycurrent_buffer())
        yyload_buffer_state();
    else
        yyrestart(yyin);
}

void yyLexer::yyinittables()
{
    yy_accept = nullptr;
    yy_NUL_trans = nullptr;
    yy_base = nullptr;
    yy_def = nullptr;
    yy_nxt = nullptr;
    yy_chk = nullptr;
    yy_rule_can_match_eol = nullptr;
    yy_acclist = nullptr;
}

void yyLexer::yyremove_tables()
{
    yyinittables();
    m_spTables.reset();
}

void yyLexer::yydestroy()
{
    yyLexer::yycleanup();
    yyLexer::yyremove_tables();
    yy_buffer_stack.reset();
    yy_buffer_stack_top = 0;
    yy_buffer_stack_max = 0;
    yy_state_initial.reset();
    yytext = nullptr;
    yy_state_buf = nullptr;
    if (yyin)
        std::fclose(yyin);
    if (yyout)
        std::fclose(yyout);
    yyLexer::yyinit_locals();
}

void yyLexer::yyfatal_error(const char* text)
{
    std::fprintf(stderr, "%s\n", text);
    std::exit(1);
}

void yyLexer::yyerror(const char* text)
{
    std::fprintf(stderr, "%s\n", text);
}

void yyLexer::yyset_tables(std::shared_ptr<const CScannerTables> tables)
{
    m_spTables = std::move(tables);
    yy_accept = m_spTables->accept.values.get();
    yy_base = m_spTables->base.values.get();
    yy_chk = m_spTables->chk.values.get();
    yy_def = m_spTables->def.values.get();
    yy_NUL_trans = m_spTables->NUL_trans.values.get();
    yy_nxt = m_spTables->nxt.values.get();
    yy_rule_can_match_eol = m_spTables->rule_can_match_eol.values.get();
    yy_acclist = m_spTables->acclist.values.get();
    yyset_lastdfa(m_spTables->accept.count);
    yyset_jambase(m_spTables->base.count);
    yyset_rules_num(static_cast<int>(m_spTables->rule_can_match_eol.count));
}

void yyLexer::yyset_jambase(std::size_t count)
{
    if (yy_last_dfa + 1 >= count) {
        yyerror("Can't calculate jamstate value");
        return;
    }
    yy_jam_base = yy_base[yy_last_dfa + 1];
}

void yyLexer::yyset_text(std::string_view text)
{
    m_textCopy = text;
    yytext = m_textCopy.data();
}

void yyLexer::yykeep_text()
{
    if (yytext && yytext != m_textCopy.data())
        yyset_text({yytext, static_cast<std::size_t>(yyleng)});
}

void yyLexer::yyreplace_text(std::string_view text)
{
    yykeep_text();
    m_textCopy.resize(std::max(static_cast<std::size_t>(yyleng), text.size() + 1));
    yytext = m_textCopy.data();
    std::copy(text.begin(), text.end(), yytext);
    yytext[text.size()] = 0;
}

int yyLexer::yystep(int state, unsigned char byte) const
{
    if (m_spTables->IsCompiled())
        return m_spTables->Next(state, byte);
    int index = yy_base[state] + byte;
    while (yy_chk[index] != state) {
        state = yy_def[state];
        index = yy_base[state] + byte;
    }
    return yy_nxt[index];
}

int yyLexer::yyget_previous_state()
{
    int state = yystart_state();
    yy_state_ptr = yy_state_buf;
    *yy_state_ptr++ = state;
    for (const char* cp = yytext_ptr; cp < yy_c_buf_p; ++cp) {
        if (*cp)
            state = yystep(state, static_cast<unsigned char>(*cp));
        else
            state = yynul_state(state);
        // a NUL that no rule knows leads to the jam state, which nothing leads out of
        if (state == 0)
            state = static_cast<int>(yy_last_dfa) + 1;
        *yy_state_ptr++ = state;
    }
    return state;
}

// Doubling, so that a long match costs its length. What `n` counts can exceed the text, since bytes that were
// given back are walked again; arrays that hold the whole buffer hold every match in it.
bool yyLexer::yygrow_text(int n)
{
    const yybuffer_state* const buffer = yycurrent_buffer();
    if (buffer && !buffer->yy_fill_buffer && yy_text_size >= buffer->yy_buf_size + kSpareSteps)
        return true;
    std::size_t size = yy_text_size == 0 ? kFirstTextSize : static_cast<std::size_t>(yy_text_size);
    while (size <= static_cast<std::size_t>(n))
        size *= 2;
    if (yy_text_max_size > 0)
        size = std::min(size, static_cast<std::size_t>(yy_text_max_size));
    size = std::min(size, static_cast<std::size_t>(std::numeric_limits<int>::max()));
    return size > static_cast<std::size_t>(n) && yytext_relocate(static_cast<int>(size));
}

bool yyLexer::yytext_relocate(int size)
{
    if (size < yyleng || (yy_text_max_size > 0 && size > yy_text_max_size))
        return false;
    const std::ptrdiff_t states = yy_state_ptr - yy_state_buf;
    if (size <= yy_text_initial_size) {
        std::memmove(yy_state_initial.get(), yy_state_buf, static_cast<std::size_t>(states) * sizeof(int));
        yy_state_buf = yy_state_initial.get();
        yy_state_grown.reset();
    } else {
        const bool hadGrown = static_cast<bool>(yy_state_grown);
        // realloc moves large blocks without touching them
        auto* const stateBuffer =
            static_cast<int*>(std::realloc(yy_state_grown.get(), StateSlots(size) * sizeof(int)));
        if (!stateBuffer)
            return false;
        (void)yy_state_grown.release();
        yy_state_grown.reset(stateBuffer);
        if (!hadGrown)
            std::memcpy(stateBuffer, yy_state_buf, static_cast<std::size_t>(states) * sizeof(int));
        yy_state_buf = stateBuffer;
    }
    yy_state_ptr = yy_state_buf + states;
    yy_text_size = size;
    return true;
}

void yyLexer::yyless_lineno(int n)
{
    yylineno -= static_cast<int>(std::count(yytext + n, yytext + yyleng, '\n'));
}

void yyLexer::yyless(int n)
{
    yyless_lineno(n);
    yydecrementchar(yyleng - n);
    *yy_cp = yy_hold_char;
    yyoldleng = yyleng;
    yyleng = n;
    yy_cp = yy_bp + n;
    yy_c_buf_p = yy_cp;
    yy_hold_char = *yy_cp;
    *yy_cp = 0;
    yytext = yytext_ptr;
}
