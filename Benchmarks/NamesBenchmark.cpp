#include "Benchmarks/MeasuredProcess.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Names/NormalizeName.h"

#include <benchmark/benchmark.h>

#include <array>
#include <ctime>
#include <malloc.h>
#include <string>
#include <vector>

// Names: what the name of a table or a column costs on its way to another database, and how that grows.

namespace {

constexpr DB_VERSION_INFO kOracle{.db = UVDB_DB_ORA};
constexpr DB_VERSION_INFO kPostgreSql{.db = UVDB_DB_POSTGRESQL};
constexpr DB_VERSION_INFO kSqlServer{.db = UVDB_DB_MSSQL};
constexpr DB_VERSION_INFO kDb2{.db = UVDB_DB_DB2};
constexpr DB_VERSION_INFO kMySql{.db = UVDB_DB_MySQL};

struct SCatalogueName
{
    unsigned long type;
    Uve::U8CString schema;
    Uve::U8CString object;
    Uve::U8CString sub;
};

// Tables of eight schemas with nine columns each. Some names need a repair: a blank, a digit in front, a
// reserved word, too many characters.
std::vector<SCatalogueName> Catalogue(std::size_t count)
{
    constexpr std::array<const char*, 8> kSchemas{"SALES",    "STOCK", "HR",      "FINANCE",
                                                  "WEB SHOP", "AUDIT", "STAGING", "ARCHIVE"};
    constexpr std::array<const char*, 10> kTables{
        "CUSTOMERS",     "ORDERS",
        "ORDER_ITEMS",   "PRODUCTS",
        "PRICE LISTS",   "INVOICES",
        "PAYMENTS",      "DELIVERIES_TO_CUSTOMERS_OF_THE_NORTHERN_DISTRICTS_BY_ROAD",
        "BUSINESS_UNIT", "RETURNS"};
    constexpr std::array<const char*, 9> kColumns{"ID",         "CUSTOMER_NUMBER", "NAME",
                                                  "CREATED_AT", "STRASSE",         "UNIT PRICE",
                                                  "ORDER",      "2ND_ADDRESS",     "CURRENCY_CODE"};
    std::vector<SCatalogueName> names;
    names.reserve(count);
    for (std::size_t table = 0; names.size() < count; ++table) {
        const Uve::U8CString schema = kSchemas[table % kSchemas.size()];
        const Uve::U8CString object =
            std::string(kTables[table / kSchemas.size() % kTables.size()]) + '_' + std::to_string(table);
        names.push_back({UVDB_DBO_TABLE, schema, object, {}});
        for (std::size_t column = 0; column < kColumns.size() && names.size() < count; ++column)
            names.push_back({UVDB_DBO_COLUMN, schema, object, kColumns[column]});
    }
    return names;
}

// A normaliser with rules as hosts set them: repair by replacing, cut at the end.
void SetUp(CNormalizeName& normaliser, DB_VERSION_INFO from, DB_VERSION_INFO to)
{
    m_ReportMap.clear();
    normaliser.Init(UVDBMakeObject<CUVDBDatabaseInfo>(from), UVDBMakeObject<CUVDBDatabaseInfo>(to));
    normaliser.SetTranslateRules(true, "_", false, "x", true, false, "", true, "", "",
                                 normaliser.GetSourceQuotedCase(), normaliser.GetTargetQuotedCase(), 0, "");
    normaliser.SetAdditionalTranslateRules(false, false, false, false);
}

void Normalise(CNormalizeName& normaliser, const std::vector<SCatalogueName>& names)
{
    for (const SCatalogueName& name : names) {
        Uve::U8CString server;
        Uve::U8CString schema = name.schema;
        Uve::U8CString object = name.object;
        Uve::U8CString sub = name.sub;
        const int result =
            normaliser.NormalizeName(name.type, server, schema, object, sub, "", "", "", false, 0);
        benchmark::DoNotOptimize(result);
        benchmark::DoNotOptimize(sub);
    }
}

// Every name is new to its normaliser.
void NormalizeNames(benchmark::State& state, DB_VERSION_INFO from, DB_VERSION_INFO to)
{
    const std::vector<SCatalogueName> names = Catalogue(20'000);
    for (auto _ : state) {
        state.PauseTiming();
        {
            CNormalizeName normaliser;
            SetUp(normaliser, from, to);
            state.ResumeTiming();
            Normalise(normaliser, names);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(names.size()));
}
BENCHMARK_CAPTURE(NormalizeNames, OracleToPostgreSql, kOracle, kPostgreSql)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NormalizeNames, SqlServerToOracle, kSqlServer, kOracle)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NormalizeNames, Db2ToMySql, kDb2, kMySql)->Unit(benchmark::kMillisecond);

std::size_t AllocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

struct SGrowth
{
    double seconds;
    std::size_t bytes;
};

// What names cost in one normaliser: the time of its whole life, and the memory that it and the report hold
// at the end. Compare the times of the two sizes.
void NormalizeManyNames(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::vector<SCatalogueName> names = Catalogue(count);
    WarmMemory(count * 1000);
    m_ReportMap.clear(); // what another benchmark left would be given back while this one counts
    m_ReportMap.rehash(0);
    std::size_t bytes = 0;
    for (auto _ : state) {
        SGrowth growth{};
        const bool isDone = RunInProcess(growth, [&] {
            const std::size_t before = AllocatedBytes();
            CNormalizeName normaliser;
            const std::clock_t start = std::clock();
            SetUp(normaliser, kOracle, kPostgreSql);
            Normalise(normaliser, names);
            const auto ticks = static_cast<double>(std::clock() - start);
            return SGrowth{ticks / CLOCKS_PER_SEC, AllocatedBytes() - before};
        });
        if (!isDone) {
            state.SkipWithError("the process didn't come to its end");
            break;
        }
        state.SetIterationTime(growth.seconds);
        bytes = growth.bytes;
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
    state.counters["bytes_per_name"] = static_cast<double>(bytes) / static_cast<double>(count);
}
BENCHMARK(NormalizeManyNames)->Arg(100'000)->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
