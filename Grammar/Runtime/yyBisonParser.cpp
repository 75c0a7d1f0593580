#include "Grammar/Runtime/yyBisonDriver.h"

int yyBisonParser::yywork()
{
    return yydrive(*this);
}

int yyBisonParser::yyexhausted()
{
    yyerror("memory exhausted");
    return 2;
}

int yyBisonParser::yyrelease(int result)
{
    if (yychar != yyempty)
        yydestruct("Cleanup: discarding lookahead", yyttranslate(yychar), yylval);
    yypop_attributes(yylen);
    yylen = 0;
    while (yyssp != yyss) {
        yydestruct("Cleanup: popping", static_cast<int>(yystos[*yyssp]), yyvsp);
        yypop_attributes(1);
    }
    return result;
}
