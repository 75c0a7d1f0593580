// Before the generated scanner.
#include "Benchmarks/Native/NativeSupport.h"

#include <NativeParser.h> // generated

static struct
{
    int m_nStartState;
} m_Extension;
extern int g_nativeBufferSize;
extern const char* g_nativeBase;

#define YY_BUF_SIZE g_nativeBufferSize
#define YYLMAX (256 * 1024 * 1024)
#define YY_NO_INPUT 1
#define NATIVE_START (static_cast<int>(yytext_ptr - g_nativeBase))
#define NATIVE_TOKEN(number, name)                                                                   \
    do {                                                                                             \
        NativeToken(yylval, NATIVE_ELEMENT(name), NATIVE_START, static_cast<int>(yyleng), yylineno); \
        return number;                                                                               \
    } while (0)
#define TOKEN_ACTIONE(name, color) NATIVE_TOKEN(T##name, "T" #name)
#define TOKEN_ACTION(name) NATIVE_TOKEN(T##name, "T" #name)
#define ColoringFunc(color)
#define BRACKETS_ACTION(n) (g_native.brackets = (n) == 1 ? 1 : g_native.brackets + ((n) == 2 ? 1 : -1))
#define IF_BRACKETS_ACTION(n)                                              \
    do {                                                                   \
        if (g_native.brackets == 0 || ((n) == 1 && g_native.brackets < 2)) \
            BEGIN m_Extension.m_nStartState;                               \
    } while (0)
#define PATTERNS_ACTION(patterns, others) \
    do {                                  \
        BEGIN others;                     \
        g_native.brackets = 1;            \
    } while (0)
#define SET_CONDITION(c) \
    g_native.conditions.emplace(#c, std::string(yytext, static_cast<std::size_t>(yyleng)))
#define CONDITIONAL_BEGIN(c, a, b)                                     \
    do {                                                               \
        if (g_native.conditions.find(#c) != g_native.conditions.end()) \
            BEGIN a;                                                   \
        else                                                           \
            BEGIN b;                                                   \
    } while (0)
#define TNO_ACTION (-1)
#define CONDITIONAL_TOKEN_ACTION(c, v, a, b)                                                \
    do {                                                                                    \
        const auto saved = g_native.conditions.find(#c);                                    \
        const bool isMatch = saved != g_native.conditions.end() && saved->second == yytext; \
        if (isMatch) {                                                                      \
            g_native.conditions.erase(saved);                                               \
            BEGIN m_Extension.m_nStartState;                                                \
        }                                                                                   \
        if ((isMatch ? T##a : T##b) != TNO_ACTION) {                                        \
            if (isMatch)                                                                    \
                NATIVE_TOKEN(T##a, "T" #a);                                                 \
            NATIVE_TOKEN(T##b, "T" #b);                                                     \
        }                                                                                   \
    } while (0)
