#pragma once

#include "Grammar/Runtime/yyParser.h"

// The main loop of the parser.
class yyBisonParser : public yyParser
{
public:
    // Throws: std::runtime_error if a rule pops more than the stack holds, or if reductions or the end of the
    //         text go on without end: only damaged tables do that.
    int yywork() override;
    // Returns: 2, after reporting.
    virtual int yyexhausted();
    // Ends a parse: everything on the stacks is discarded.
    // Returns: `result`.
    virtual int yyrelease(int result);

    // What recovery throws away, for whoever keeps account of it.

    // An error begins. `isReported`: yysyntaxerror has told of it; errors soon after another one are quiet.
    virtual void yyrecovery(bool /*isReported*/) {}
    // The topmost `count` symbols are about to be popped.
    virtual void yydiscard_symbols(int /*count*/) {}
    // The lookahead is about to go.
    virtual void yydiscard_lookahead() {}

protected:
    static constexpr int kErrorToken = 1;

    // The main loop over the operations of `self`, which is this object: yyBisonDriver.h has it.
    template <class Parser>
    int yydrive(Parser& self);

private:
    // What the tables order in a state: a state to go to, or a rule to reduce by.
    struct SStep
    {
        enum enKind
        {
            Shift,
            Reduce,
            Error
        } kind;
        int number;
    };

    template <class Parser>
    SStep NextStep(Parser& self, int state);
    int GotoState(int rule) const;
    template <class Parser>
    bool ShiftErrorToken(Parser& self, int& state);
};
