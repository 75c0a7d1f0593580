#pragma once

#include "Grammar/Runtime/yyLexer.h"

// The scanning loop over the tables.
class yyFlexLexer : public yyLexer
{
public:
    // One call yields one token.
    // Throws: std::runtime_error if the rules match nothing for ever, back up beyond the match, or miss the
    // end of
    //         the text: only damaged or faulty tables do that.
    int yylex() override;
    void yymatch() override;
    void yyfindrule(int& act) override;

private:
    int yyend_of_buffer(int& act);
    void yycheck_progress();

    const char* m_pStuckAt = nullptr; // where the last match of length 0 was
    int m_nStuckCount = 0;
};
