#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tools/uvtypes/TypeMap.h"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <dlfcn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

// Data types: what a column costs on its way to another database, and what the library costs with all its
// tables.

namespace {

constexpr DB_VERSION_INFO kOracle{.db = UVDB_DB_ORA};
constexpr DB_VERSION_INFO kPostgreSql{.db = UVDB_DB_POSTGRESQL};

void FindInternalType(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(DBMSToUVDBDataType(kOracle, "NUMBER", 10, 10, 2));
}
BENCHMARK(FindInternalType);

void MapWithFormatting(benchmark::State& state)
{
    for (auto _ : state) {
        long uvdbType = -1;
        benchmark::DoNotOptimize(
            GetDefDBMSToDBMSConverting(kOracle, kPostgreSql, "NUMBER", uvdbType, 0, 10, 0, 2, false, true));
    }
}
BENCHMARK(MapWithFormatting);

// As the tool does it: text in, text out.
void MapTypeTexts(benchmark::State& state)
{
    const std::array<std::string, 8> texts{"NUMBER(10,2)", "VARCHAR2(30 CHAR)",
                                           "DATE",         "TIMESTAMP(6) WITH TIME ZONE",
                                           "CLOB",         "NUMBER",
                                           "RAW(16)",      "INTERVAL DAY(2) TO SECOND(6)"};
    std::size_t next = 0;
    for (auto _ : state) {
        uvtypes::SMappedType mapped;
        std::string error;
        const bool isMapped =
            uvtypes::MapType(kOracle, kPostgreSql, texts[next++ % texts.size()], false, mapped, error);
        if (!isMapped)
            state.SkipWithError(error.c_str());
        benchmark::DoNotOptimize(mapped);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(MapTypeTexts);

// The whole library, from the call to the point where its entry can be found. The tables are constant data
// and can't be told apart from the rest: the time is an upper bound for them. Each load is in a process of
// its own, where nothing of the library is there yet.
void LoadLibrary(benchmark::State& state)
{
    for (auto _ : state) {
        int ends[2];
        if (pipe(ends) != 0) {
            state.SkipWithError("no pipe");
            break;
        }
        const pid_t child = fork();
        if (child == 0) {
            const auto start = std::chrono::steady_clock::now();
            const bool isLoaded = dlopen(UV_LIBRARY, RTLD_NOW | RTLD_LOCAL) != nullptr;
            const double seconds =
                isLoaded ? std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count()
                         : -1;
            const bool isWritten = write(ends[1], &seconds, sizeof(seconds)) == sizeof(seconds);
            _exit(isWritten ? 0 : 1);
        }
        close(ends[1]);
        double seconds = -1;
        const bool isRead = child > 0 && read(ends[0], &seconds, sizeof(seconds)) == sizeof(seconds);
        close(ends[0]);
        if (child > 0)
            waitpid(child, nullptr, 0);
        if (!isRead || seconds < 0) {
            state.SkipWithError("the library can't be loaded");
            break;
        }
        state.SetIterationTime(seconds);
    }
}
BENCHMARK(LoadLibrary)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
