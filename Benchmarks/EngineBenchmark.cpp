#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"

#include <benchmark/benchmark.h>

#include <string>

// The parts of a parse on a fixed text, in bytes per second.

namespace {

constexpr const char* kParserName = "PostgreSQL";
constexpr int kPostgreSql = 8;

std::string Script(std::size_t statements)
{
    const char* const kinds[] = {
        "INSERT INTO orders (id, name, total) VALUES (1, 'light & copper', 12.50), (2, 'o''brien', NULL);\n",
        ("SELECT a.id, count(*) FROM orders a LEFT JOIN customers b ON a.id = b.id WHERE b.name IS NOT NULL "
         "GROUP BY a.id;\n"),
        "CREATE TABLE t (id integer PRIMARY KEY, name varchar(80) NOT NULL); -- a table\n",
    };
    std::string text;
    for (std::size_t i = 0; i < statements; ++i)
        text += kinds[i % std::size(kinds)];
    return text;
}

void Scan(benchmark::State& state)
{
    CSQLGrammarLexer lexer(kParserName, false);
    lexer.yycreate();
    lexer.set_ColoringWanted(false);
    const std::string text = Script(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        lexer.set_Query(text, kPostgreSql);
        while (lexer.yylex() != 0) {
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(Scan)->Arg(300)->Arg(30000);

void Parse(benchmark::State& state)
{
    CSQLGrammarLexer lexer(kParserName, false);
    CSQLGrammarParser parser(kParserName, false);
    parser.yycreate(&lexer);
    lexer.yycreate(&parser);
    lexer.set_ColoringWanted(false);
    const std::string text = Script(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        parser.m_Extension.set_Query(text);
        lexer.set_Query(text, kPostgreSql);
        benchmark::DoNotOptimize(parser.yyparse());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(Parse)->Arg(300)->Arg(30000);

void Load(benchmark::State& state)
{
    for (auto _ : state) {
        const CSQLGrammarLexer lexer(kParserName, false);
        const CSQLGrammarParser parser(kParserName, false);
        benchmark::DoNotOptimize(&lexer);
        benchmark::DoNotOptimize(&parser);
    }
}
BENCHMARK(Load)->Unit(benchmark::kMillisecond);

} // namespace
