// Before the generated parser.
#include "Benchmarks/Native/NativeSupport.h"

#define YYMAXDEPTH 100000000
#define YYSTACK_USE_ALLOCA 0
int yylex();
static void yyerror(const char*)
{
    ++g_native.errors;
}
#define CREATE_NODE(name, count)                                                                           \
    (yyval = NativeReduce(NATIVE_ELEMENT(#name), sizeof(#name) == 4 && #name[0] == 'S' && #name[1] == 'Q', \
                          &yyvsp[1 - (count)], count, -1))
#define CREATE_NODE_WITH_ERROR(name, count, index) \
    (yyval = NativeReduce(NATIVE_ELEMENT(#name), false, &yyvsp[1 - (count)], count, index))
#define EMPTY(name) (yyval = NativeReduce(NATIVE_ELEMENT(#name), false, nullptr, 0, -1))
