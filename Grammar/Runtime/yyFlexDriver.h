// The scanning loop, for whoever derives from yyFlexLexer to make one of its own: with the final class the
// operations of that class are called directly, and the compiler sees through them. With yyFlexLexer itself
// every operation is a virtual call.
#pragma once

#include "Grammar/Runtime/yyFlexLexer.h"

#include <algorithm>
#include <stdexcept>

// Note: the scanner's machine
// A DFA walks over the bytes and leaves each state that it comes through on a stack. Where nothing leads on
// it backs up, state by state, to the last one that accepts a rule: the longest match, and of several rules
// the one that the source names first. It differs from the textbook in four ways.
//
// A rule with a trailing context accepts after the context, but its match is the head alone: from there the
// machine backs up further, to a state that accepts the end of that rule's head.
//
// Two NUL bytes end the text. Every state leads on the first of them to one that accepts the end of the
// buffer, as if that were a rule, and nothing else does. If there was text before the NUL, it is walked again
// and matched without it. If there was none, the rule is the one for the end of the text in the current start
// condition. And if the NUL belongs to the text, NUL_trans tells where it leads.
//
// A start condition has two start states: the second one is for the beginning of a line.
//
// A match whose action makes no token is followed by the next one in the same call.

template <class Scanner>
int yyFlexLexer::yydrive(Scanner& self)
{
    yy_match_length = 0;
    if (!yy_init)
        m_pStuckAt = nullptr;
    self.yyinitialize();
    for (;;) {
        yybegin_match();
        int act = 0;
        bool goesOn = false;
        for (enStep step = enStep::Walk;; step = yyend_of_buffer(act)) {
            if (step == enStep::Walk)
                self.yymatch();
            if (step != enStep::Take)
                act = yytake_match(self);
            if (act < yy_end_of_buffer_action) [[likely]]
                break;
            if (act > yy_end_of_buffer_action && self.yywrap() == 0) {
                goesOn = true;
                break;
            }
            if (self.yycheck_state_eof(act)) {
                yyshow_last_match();
                return 0;
            }
            if (act != yy_end_of_buffer_action)
                break;
        }
        if (goesOn)
            continue;
        if (act > yy_end_of_buffer_action)
            throw std::runtime_error("the text ends in a start condition without a name");
        yyrule_setup();
        const int result = self.yyaction(act);
        if (yy_action_failed)
            self.yyfatal_error("fatal flex scanner internal error--no action found");
        if (yyleng == 0)
            yycheck_progress();
        if (yy_action_returns)
            return result;
    }
}

inline void yyFlexLexer::yybegin_match()
{
    yy_cp = yy_c_buf_p;
    *yy_cp = yy_hold_char;
    yy_bp = yy_cp;
    yy_current_state = yystart_state();
    yy_state_ptr = yy_state_buf;
    *yy_state_ptr++ = yy_current_state;
}

// Walks at least one byte, from state to state as `next` says, while `leadsOn`.
template <class Next, class LeadsOn>
void yyFlexLexer::yyfollow(const Next& next, const LeadsOn& leadsOn)
{
    char* const from = yy_cp;
    char* cp = from;
    int state = yy_current_state;
    int* states = yy_state_ptr;
    int room = yy_text_size - yy_match_length;
    do {
        state = next(state, static_cast<unsigned char>(*cp));
        if (--room <= 0) [[unlikely]]
            room = yymake_room(yy_match_length + static_cast<int>(cp - from) + 1, states);
        *states++ = state;
        ++cp;
    } while (leadsOn(state));
    yy_match_length += static_cast<int>(cp - from);
    yy_current_state = state;
    yy_state_ptr = states;
    yy_cp = cp;
}

template <class Scanner>
void yyFlexLexer::yywalk(Scanner& self)
{
    const char* const from = yy_cp;
    if (m_spTables->IsCompiled()) [[likely]] {
        const CScannerTables::SWalk walk = m_spTables->Walk();
        yyfollow([&](int state, unsigned char byte) { return walk.Next(state, byte); },
                 [&](int state) { return !walk.IsJam(state); });
    } else {
        yywalk_compressed();
    }
    self.yyincrementchar(static_cast<int>(yy_cp - from));
}

// Leaves the walk's last state, and finds the rule of the match.
template <class Scanner>
int yyFlexLexer::yytake_match(Scanner& self)
{
    yy_current_state = *--yy_state_ptr;
    yy_lp = yyfirst_rule(yy_current_state);
    int act = 0;
    self.yyfindrule(act);
    yybefore_action();
    if (act != yy_end_of_buffer_action && yycan_match_eol(act))
        yylineno += static_cast<int>(std::count(yytext, yytext + yyleng, '\n'));
    return act;
}

// Whether the current state ends the match, by the entries of its accept list from yy_lp on; `act` is the
// rule then. An entry that is the end of a head counts for the rule alone whose context has been met.
inline bool yyFlexLexer::yyaccepts(int& act)
{
    for (; yy_lp != 0 && yy_lp < yyend_of_rules(yy_current_state); ++yy_lp) {
        act = yyrule_at(yy_lp);
        if (yy_looking_for_trail_begin != 0 || (act & kTrailingHeadMask) != 0) {
            if (act == yy_looking_for_trail_begin) {
                yy_looking_for_trail_begin = 0;
                act &= ~kTrailingHeadMask;
                return true;
            }
        } else if ((act & kTrailingMask) != 0) {
            yy_looking_for_trail_begin = (act & ~kTrailingMask) | kTrailingHeadMask;
        } else {
            return true;
        }
    }
    return false;
}

template <class Scanner>
void yyFlexLexer::yybackup(Scanner& self, int& act)
{
    int given = 0;
    while (!yyaccepts(act)) {
        if (yy_state_ptr == yy_state_buf)
            throw std::runtime_error("the scanner's tables have no rule for the text");
        ++given;
        yy_current_state = *--yy_state_ptr;
        yy_lp = yyfirst_rule(yy_current_state);
    }
    if (given > 0) {
        yy_cp -= given;
        self.yydecrementchar(given);
    }
}
