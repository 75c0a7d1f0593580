#pragma once

#include "Grammar/Runtime/yyLexer.h"

// The scanning loop over the tables.
class yyFlexLexer : public yyLexer
{
public:
    // One call yields one token.
    // Throws: std::runtime_error if the rules match nothing for ever, back up beyond the match, or miss the
    //         end of the text: only damaged or faulty tables do that.
    int yylex() override;
    void yymatch() override;
    void yyfindrule(int& act) override;

protected:
    // The three operations above over the operations of `self`, which is this object: yyFlexDriver.h has
    // them.
    template <class Scanner>
    int yydrive(Scanner& self);
    template <class Scanner>
    void yywalk(Scanner& self);
    template <class Scanner>
    void yybackup(Scanner& self, int& act);

private:
    // What comes next on the way to the rule of a match.
    enum class enStep
    {
        Walk,   // from state to state, until nothing leads on
        BackUp, // to the longest match
        Take    // the rule is known
    };

    void yybegin_match();
    template <class Next, class LeadsOn>
    void yyfollow(const Next& next, const LeadsOn& leadsOn);
    void yywalk_compressed();
    // `walked` is what was walked since the last token. The state buffer may move: `states` moves along.
    // Returns: how much further the walk may go before it has to ask again.
    int yymake_room(int walked, int*& states);
    template <class Scanner>
    int yytake_match(Scanner& self);
    bool yyaccepts(int& act);
    enStep yyend_of_buffer(int& act);
    void yyshow_last_match();
    void yycheck_progress();

    const char* m_pStuckAt = nullptr; // where the last match of length 0 was
    int m_nStuckCount = 0;
};
