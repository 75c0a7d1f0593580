#include "Catalogue/UVDBHelpers.h"
#include "UVEnvironment/UVEEncoding.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <benchmark/benchmark.h>

// What every parse passes through beside the engine.

namespace {

void FindByRisingIndex(benchmark::State& state)
{
    Uve::U8CString text;
    for (int i = 0; i < state.range(0); ++i)
        text += "sélect wörd, ";
    for (auto _ : state) {
        int found = 0;
        for (int at = text.Find(",", 0); at != -1; at = text.Find(",", at + 1))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(FindByRisingIndex)->Arg(1000)->Arg(100000);

void ValidateUtf8(benchmark::State& state)
{
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "select name from customers where city = 'Köln';\n";
    for (auto _ : state)
        benchmark::DoNotOptimize(UVDB::IsValidUTF8(text));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(ValidateUtf8);

void LookUpDatabaseByName(benchmark::State& state)
{
    const auto& catalogue = UVDB::DbinfoHelper::getInstance();
    for (auto _ : state)
        benchmark::DoNotOptimize(&catalogue.findDbInfoAnyNameIgnoreCase("singlestoredb", false));
}
BENCHMARK(LookUpDatabaseByName);

} // namespace
