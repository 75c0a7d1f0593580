#include "Grammar/Runtime/yyFlexLexer.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace {

constexpr int kTrailingMask = 0x2000;     // accepted with a trailing context, whose head lies further back
constexpr int kTrailingHeadMask = 0x4000; // the end of that head

// An action may match nothing and switch the start condition, but not without end.
constexpr int kMostEmptyMatches = 10000;

enum enEndOfBuffer
{
    MatchOn,
    FindRule,
    TakeRule
};

} // namespace

int yyFlexLexer::yylex()
{
    yy_match_length = 0;
    if (!yy_init)
        m_pStuckAt = nullptr;
    yyinitialize();
    for (;;) {
        yy_cp = yy_c_buf_p;
        *yy_cp = yy_hold_char;
        yy_bp = yy_cp;
        yy_current_state = yy_start + yyat_bol();
        yy_state_ptr = yy_state_buf;
        *yy_state_ptr++ = yy_current_state;
        yymatch();
        for (bool isNextMatch = false; !isNextMatch;) {
            yy_current_state = *--yy_state_ptr;
            yy_lp = yy_accept[yy_current_state];
            int act = 0;
            yyfindrule(act);
            yybefore_action();
            if (act != yy_end_of_buffer_action && yy_rule_can_match_eol[act])
                yylineno += static_cast<int>(std::count(yytext, yytext + yyleng, '\n'));
            for (;;) {
                if (yycheck_state_eof(act)) {
                    if (yyoldleng != 0) {
                        // the end of the text again shows the last match, for messages
                        const yybuffer_state* const buffer = yycurrent_buffer();
                        const int length = std::min(yyoldleng, buffer->yy_buf_size);
                        std::memcpy(yytext, buffer->yy_ch_buf + buffer->yy_buf_size - length,
                                    static_cast<std::size_t>(length) + 1);
                    }
                    return 0;
                }
                if (act > yy_end_of_buffer_action)
                    throw std::runtime_error("the text ends in a start condition without a name");
                if (act != yy_end_of_buffer_action) {
                    yyrule_setup();
                    const int result = yyaction(act);
                    if (yy_action_failed)
                        yyfatal_error("fatal flex scanner internal error--no action found");
                    if (yyleng == 0)
                        yycheck_progress();
                    if (yy_action_returns)
                        return result;
                    isNextMatch = true;
                    break;
                }
                const int next = yyend_of_buffer(act);
                if (next == MatchOn)
                    yymatch();
                if (next != TakeRule)
                    break;
            }
        }
    }
}

// The match ran into the NULs behind the text, or into a NUL inside it.
int yyFlexLexer::yyend_of_buffer(int& act)
{
    const std::ptrdiff_t amount = yy_cp - yytext_ptr - 1;
    *yy_cp = yy_hold_char;
    yybuffer_state* const buffer = yycurrent_buffer();
    if (buffer->yy_buffer_status == 0) {
        yy_n_chars = buffer->yy_n_chars;
        buffer->yy_input_file = yyin;
        buffer->yy_buffer_status = 1;
    }
    if (yy_c_buf_p <= buffer->yy_ch_buf + yy_n_chars) {
        yy_c_buf_p = yytext_ptr + amount;
        const int state = yyget_previous_state();
        const int next = static_cast<std::size_t>(state) <= yy_last_dfa ? yy_NUL_trans[state] : 0;
        yy_bp = yytext_ptr;
        if (next == 0) {
            yy_cp = yy_c_buf_p;
            return FindRule;
        }
        ++yy_c_buf_p;
        yy_cp = yy_c_buf_p;
        yy_current_state = next;
        // pushed as the table walk does, or backing up would miss the byte
        *yy_state_ptr++ = next;
        return MatchOn;
    }
    switch (yyget_next_buffer()) {
    case EndOfFile:
        yy_did_buffer_switch_on_eof = 0;
        yy_c_buf_p = yytext_ptr;
        act = (yy_start - 1) / 2 + yy_end_of_buffer_action + 1;
        return TakeRule;
    case Continue:
        yy_c_buf_p = yytext_ptr + amount;
        yy_current_state = yyget_previous_state();
        yy_cp = yy_c_buf_p;
        yy_bp = yytext_ptr;
        return MatchOn;
    case LastMatch:
        break;
    }
    yy_c_buf_p = buffer->yy_ch_buf + yy_n_chars;
    yy_current_state = yyget_previous_state();
    yy_cp = yy_c_buf_p;
    yy_bp = yytext_ptr;
    return FindRule;
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

void yyFlexLexer::yymatch()
{
    const char* const from = yy_cp;
    int room = yy_text_size - yy_match_length;
    const auto advance = [&](int state) {
        if (--room <= 0) {
            const int walked = yy_match_length + static_cast<int>(yy_cp - from) + 1;
            if (!yycheck_for_overflow(walked))
                yyfatal_error("yylex text buffer overflow");
            room = yy_text_size > walked ? yy_text_size - walked : yy_text_size;
        }
        *yy_state_ptr++ = state;
        ++yy_cp;
    };
    const CScannerTables& tables = *m_spTables;
    int state = yy_current_state;
    if (tables.IsCompiled()) {
        do {
            state = tables.Next(state, static_cast<unsigned char>(*yy_cp));
            advance(state);
        } while (!tables.IsJam(state));
    } else {
        do {
            state = yystep(state, static_cast<unsigned char>(*yy_cp));
            advance(state);
        } while (yy_base[state] != yy_jam_base);
    }
    yy_current_state = state;
    const auto walked = static_cast<int>(yy_cp - from);
    yy_match_length += walked;
    yyincrementchar(walked);
}

void yyFlexLexer::yyfindrule(int& act)
{
    int given = 0;
    for (;;) {
        if (yy_lp && yy_lp < yy_accept[yy_current_state + 1]) {
            act = yy_acclist[yy_lp];
            if (act & kTrailingHeadMask || yy_looking_for_trail_begin) {
                if (act == yy_looking_for_trail_begin) {
                    yy_looking_for_trail_begin = 0;
                    act &= ~kTrailingHeadMask;
                    break;
                }
            } else if (act & kTrailingMask) {
                yy_looking_for_trail_begin = (act & ~kTrailingMask) | kTrailingHeadMask;
                yy_full_match = yy_cp;
                yy_full_state = yy_state_ptr;
                yy_full_lp = yy_lp;
            } else {
                yy_full_match = yy_cp;
                yy_full_state = yy_state_ptr;
                yy_full_lp = yy_lp;
                break;
            }
            ++yy_lp;
            continue;
        }
        if (yy_state_ptr == yy_state_buf)
            throw std::runtime_error("the scanner's tables have no rule for the text");
        --yy_cp;
        ++given;
        yy_current_state = *--yy_state_ptr;
        yy_lp = yy_accept[yy_current_state];
    }
    if (given)
        yydecrementchar(given);
}
