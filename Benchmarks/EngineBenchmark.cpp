#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"

#include <benchmark/benchmark.h>

#include <string>

// The parts of a parse on texts that each of the languages reads, in bytes per second.

namespace {

struct SLanguage
{
    const char* parserName;
    int kind; // of database
};

constexpr SLanguage kPostgreSql = {"PostgreSQL", 8};
constexpr SLanguage kMySql = {"MySQL", 5};

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

// Statements of many rows, as dumps hold them.
std::string Dump(std::size_t statements)
{
    constexpr int kRows = 2000;
    std::string text;
    for (std::size_t i = 0; i < statements; ++i) {
        text += "INSERT INTO rides VALUES ";
        for (int row = 0; row < kRows; ++row) {
            const std::string number = std::to_string(row);
            text.append(row == 0 ? "(" : ",(").append(number).append(",'to the lake & back, ").append(number);
            text.append("','it''s far',").append(number).append(".50,NULL,'2024-01-01 10:00:00',-1)");
        }
        text += ";\n";
    }
    return text;
}

void Scan(benchmark::State& state, SLanguage language)
{
    CSQLGrammarLexer lexer(language.parserName, false);
    lexer.yycreate();
    lexer.set_ColoringWanted(false);
    const std::string text = Script(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        lexer.set_Query(text, language.kind);
        while (lexer.yylex() != 0) {
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(Scan, PostgreSQL, kPostgreSql)->Arg(300)->Arg(30000);
BENCHMARK_CAPTURE(Scan, MySQL, kMySql)->Arg(300)->Arg(30000);

void ParseText(benchmark::State& state, SLanguage language, const std::string& text)
{
    CSQLGrammarLexer lexer(language.parserName, false);
    CSQLGrammarParser parser(language.parserName, false);
    parser.yycreate(&lexer);
    lexer.yycreate(&parser);
    lexer.set_ColoringWanted(false);
    for (auto _ : state) {
        parser.m_Extension.set_Query(text);
        lexer.set_Query(text, language.kind);
        benchmark::DoNotOptimize(parser.yyparse());
        if (parser.HasErrors())
            state.SkipWithError("the language doesn't read the text");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void Parse(benchmark::State& state, SLanguage language)
{
    ParseText(state, language, Script(static_cast<std::size_t>(state.range(0))));
}
BENCHMARK_CAPTURE(Parse, PostgreSQL, kPostgreSql)->Arg(300)->Arg(30000);
BENCHMARK_CAPTURE(Parse, MySQL, kMySql)->Arg(300)->Arg(30000);

void ParseDump(benchmark::State& state, SLanguage language)
{
    ParseText(state, language, Dump(static_cast<std::size_t>(state.range(0))));
}
BENCHMARK_CAPTURE(ParseDump, PostgreSQL, kPostgreSql)->Arg(10);
BENCHMARK_CAPTURE(ParseDump, MySQL, kMySql)->Arg(10);

void Load(benchmark::State& state, SLanguage language)
{
    for (auto _ : state) {
        const CSQLGrammarLexer lexer(language.parserName, false);
        const CSQLGrammarParser parser(language.parserName, false);
        benchmark::DoNotOptimize(&lexer);
        benchmark::DoNotOptimize(&parser);
    }
}
BENCHMARK_CAPTURE(Load, PostgreSQL, kPostgreSql)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, MySQL, kMySql)->Unit(benchmark::kMillisecond);

} // namespace
