// The main loop of the parser, for whoever derives from yyBisonParser to make one of its own: yydrive with
// the final class calls the operations of that class directly, and the compiler sees through the moves of the
// value stack. With yyBisonParser itself every operation is a virtual call.
#pragma once

#include "Grammar/Runtime/yyBisonParser.h"

#include <new>
#include <stdexcept>

// Note: the parser's machine
// A stack of states; the top state and the lookahead choose between shifting the lookahead and reducing the
// topmost symbols to one. It differs from the textbook in three ways. States whose action doesn't depend on
// the lookahead reduce without reading it, since an action may switch the scanner's start condition and a
// token fetched before was scanned under the old one. After an error the stack is popped to a state that can
// shift the error symbol, and three tokens have to be shifted before another error is reported. And the
// action of a rule may fail, which counts as an error in that place.

namespace parser_limits {

inline constexpr int kQuietTokens = 3;

// Rules may name the end of the text, but nothing comes after it.
inline constexpr int kMostEnds = 1000;

// Between two shifts every symbol on the stack takes part in a bounded number of reductions, and the empty
// rules of one long rule come on top. A grammar stays far below this; damaged tables go on for ever.
inline constexpr std::size_t kSpareReductions = 100000;

inline std::size_t ReductionLimit(std::size_t depth, std::size_t rules)
{
    return (depth + 2) * (rules + 2) + kSpareReductions;
}

} // namespace parser_limits

template <class Parser>
yyBisonParser::SStep yyBisonParser::NextStep(Parser& self, int state)
{
    int slot = yypact[state];
    if (slot != yybase_ninf) {
        if (yychar == yyempty)
            yychar = self.yygettoken();
        if (yychar < 1) {
            yytoken = 0;
            yychar = 0;
        } else {
            yytoken = yyttranslate(yychar);
            slot += yytoken;
        }
        if (slot >= 0 && slot <= yylast && yycheck[slot] == yytoken) {
            const int action = yytable[slot];
            return action > 0 ? SStep{SStep::Shift, action} : SStep{SStep::Reduce, -action};
        }
    }
    const auto rule = static_cast<int>(yydefact[state]);
    return rule == 0 ? SStep{SStep::Error, 0} : SStep{SStep::Reduce, rule};
}

inline int yyBisonParser::GotoState(int rule) const
{
    const int nonterminal = static_cast<int>(yyr1[rule]) - yyntokens;
    const int slot = yypgoto[nonterminal] + *yyssp;
    if (slot >= 0 && slot <= yylast && yycheck[slot] == *yyssp)
        return yytable[slot];
    return yydefgoto[nonterminal];
}

// Pops to a state that can shift the error symbol.
// Returns: false if there is none; otherwise `state` is where that shift leads.
template <class Parser>
bool yyBisonParser::ShiftErrorToken(Parser& self, int& state)
{
    for (;;) {
        int slot = yypact[state];
        if (slot != yybase_ninf) {
            slot += kErrorToken;
            if (slot >= 0 && slot <= yylast && yycheck[slot] == kErrorToken && yytable[slot] > 0) {
                state = yytable[slot];
                return true;
            }
        }
        if (yyssp == yyss)
            return false;
        self.yydiscard_symbols(1);
        self.yydestruct("Error: popping", static_cast<int>(yystos[state]), yyvsp);
        self.yypop_attributes(1);
        state = *yyssp;
    }
}

template <class Parser>
int yyBisonParser::yydrive(Parser& self)
{
    using namespace parser_limits;
    yytoken = 0;
    yylen = 0;
    yynerrs = 0;
    yy_needs_setup = 1;
    yyerror_flag = 0;
    yyabort_flag = 0;
    yychar = yyempty;
    int state = 0;
    int recovery = 0;
    bool hasRaised = false; // an action has failed since the last token was shifted
    const std::size_t rules = m_spTables->Rules();
    int ends = 0;
    std::size_t reductions = 0; // since then
    std::size_t depth = 0;      // of the stack after the last token shifted

    for (;;) {
        *yyssp = static_cast<short>(state);
        if (yyssp >= yyss + yystacksize - 1) {
            yysize_used = static_cast<std::size_t>(yyssp - yyss) + 1;
            if (!self.yystack_relocate())
                return self.yyrelease(self.yyexhausted());
            yyssp = yyss + yysize_used - 1;
            self.yyshift_attributes(yysize_used - 1);
            if (yyssp >= yyss + yystacksize - 1)
                return self.yyrelease(1);
        }
        if (state == yyfinal)
            return self.yyrelease(0);

        const SStep step = NextStep(self, state);
        if (step.kind == SStep::Shift) {
            if (yychar == 0 && ++ends > kMostEnds)
                throw std::runtime_error("the parser's tables lead beyond the end of the text");
            if (recovery > 0)
                --recovery;
            yychar = yyempty;
            self.yylvaltostack();
            ++yyssp;
            state = step.number;
            hasRaised = false;
            reductions = 0;
            depth = static_cast<std::size_t>(yyssp - yyss);
            continue;
        }
        if (step.kind == SStep::Reduce) {
            const int rule = step.number;
            yylen = static_cast<int>(yyr2[rule]);
            if (yyssp - yyss < yylen)
                throw std::runtime_error("a rule pops more than the parser's stack holds");
            if (++reductions > kSpareReductions && reductions > ReductionLimit(depth, rules))
                throw std::runtime_error("the parser's tables reduce without end");
            self.yystacktoval(1 - yylen);
            bool isRaised = false;
            try {
                self.yyaction(rule);
            } catch (const std::bad_alloc&) {
                throw; // no fault of the text, which recovery would throw away
            } catch (...) {
                self.yyerror("Syntax error");
                isRaised = true;
            }
            if (yyerror_flag || isRaised) {
                yyerror_flag = 0;
                self.yyrecovery(false);
                self.yydiscard_symbols(yylen);
                self.yypop_attributes(yylen);
                yylen = 0;
                state = *yyssp;
                // a rule that ends in the error symbol and fails would fail in the same place for ever
                if (hasRaised)
                    return self.yyrelease(1);
                hasRaised = true;
            } else if (yyabort_flag) {
                return self.yyrelease(1);
            } else {
                self.yypop_attributes(yylen);
                yylen = 0;
                self.yyvaltostack();
                state = GotoState(rule);
                if (state < 0)
                    throw std::runtime_error("the parser's tables lead nowhere");
                ++yyssp;
                continue;
            }
        } else {
            yytoken = yychar == yyempty ? yyempty : yyttranslate(yychar);
            if (recovery < kQuietTokens)
                self.yyrecovery(recovery == 0);
            if (recovery == 0) {
                ++yynerrs;
                self.yysyntaxerror();
            } else if (recovery == kQuietTokens) {
                if (yychar == 0)
                    return self.yyrelease(1);
                if (yychar > 0) {
                    self.yydiscard_lookahead();
                    self.yydestruct("Error: discarding", yytoken, yylval);
                    yychar = yyempty;
                    reductions = 0;
                }
            }
        }

        if (!ShiftErrorToken(self, state))
            return self.yyrelease(1);
        self.yylvaltostack();
        recovery = kQuietTokens;
        ++yyssp;
    }
}
