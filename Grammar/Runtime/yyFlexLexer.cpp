#include "Grammar/Runtime/yyFlexDriver.h"

namespace {

// An action may match nothing and switch the start condition, but not without end.
constexpr int kMostEmptyMatches = 10000;

} // namespace

int yyFlexLexer::yylex()
{
    return yydrive(*this);
}

void yyFlexLexer::yymatch()
{
    yywalk(*this);
}

void yyFlexLexer::yyfindrule(int& act)
{
    yybackup(*this, act);
}

void yyFlexLexer::yywalk_compressed()
{
    yyfollow([this](int state, unsigned char byte) { return yystep(state, byte); },
             [this](int state) { return yy_base[state] != yy_jam_base; });
}

int yyFlexLexer::yymake_room(int walked, int*& states)
{
    yy_state_ptr = states;
    if (!yycheck_for_overflow(walked))
        yyfatal_error("yylex text buffer overflow");
    states = yy_state_ptr;
    return yy_text_size > walked ? yy_text_size - walked : yy_text_size;
}

// The match ran into the NULs after the text, or into a NUL inside it.
// Returns: the step that follows; `act` is the rule for the end of the text if that is to be taken.
yyFlexLexer::enStep yyFlexLexer::yyend_of_buffer(int& act)
{
    const std::ptrdiff_t amount = yy_cp - yytext_ptr - 1;
    *yy_cp = yy_hold_char;
    yybuffer_state* const buffer = yycurrent_buffer();
    if (buffer->yy_buffer_status == yybuffer_state::kNew) {
        yy_n_chars = buffer->yy_n_chars;
        buffer->yy_input_file = yyin;
        buffer->yy_buffer_status = yybuffer_state::kNormal;
    }
    if (yy_c_buf_p <= buffer->yy_ch_buf + yy_n_chars) {
        yy_c_buf_p = yytext_ptr + amount;
        const int next = yynul_state(yyget_previous_state());
        yy_bp = yytext_ptr;
        if (next == 0) {
            yy_cp = yy_c_buf_p;
            return enStep::BackUp;
        }
        ++yy_c_buf_p;
        yy_cp = yy_c_buf_p;
        yy_current_state = next;
        // pushed as the table walk does, or backing up would miss the byte
        *yy_state_ptr++ = next;
        return enStep::Walk;
    }
    const enRefill refill = yyget_next_buffer();
    if (refill == EndOfFile) {
        yy_did_buffer_switch_on_eof = 0;
        yy_c_buf_p = yytext_ptr;
        act = yystart_condition() + yy_end_of_buffer_action + 1;
        return enStep::Take;
    }
    yy_c_buf_p = refill == Continue ? yytext_ptr + amount : buffer->yy_ch_buf + yy_n_chars;
    yy_current_state = yyget_previous_state();
    yy_cp = yy_c_buf_p;
    yy_bp = yytext_ptr;
    return refill == Continue ? enStep::Walk : enStep::BackUp;
}

// At the end of the text yytext again holds the last match, for messages.
void yyFlexLexer::yyshow_last_match()
{
    if (yyoldleng == 0)
        return;
    const yybuffer_state* const buffer = yycurrent_buffer();
    const int length = std::min(yyoldleng, buffer->yy_buf_size);
    yyset_text({buffer->yy_ch_buf + buffer->yy_buf_size - length, static_cast<std::size_t>(length)});
}

void yyFlexLexer::yycheck_progress()
{
    if (m_pStuckAt != yy_c_buf_p) {
        m_pStuckAt = yy_c_buf_p;
        m_nStuckCount = 0;
    }
    if (++m_nStuckCount > kMostEmptyMatches)
        throw std::runtime_error("the scanner's rules match nothing for ever");
}
