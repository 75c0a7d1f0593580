// native_baseline [--repeat N] [--only ROW] FILE...: the table-driven engine beside the natively compiled grammar, and the
// flattening beside the stylesheet that defines it, on the same texts in one run. Each measurement runs in a
// process of its own, so that its peak memory is its own too. Seconds are processor time. With --only the row of
// that name alone is measured, for a profiler.

#include "Benchmarks/MeasuredProcess.h"
#include "Benchmarks/Native/NativeParse.h"
#include "Grammar/UVGrammarLexer.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Parser/UVParser.h"
#include "Tree/TreeFlattener.h"

#ifdef UV_PG_QUERY
#include <pg_query.h>
#endif

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace {

constexpr const char* kParserName = "PostgreSQL";
constexpr unsigned long kPostgreSql = 8;
constexpr double kMega = 1e6;
constexpr std::size_t kMostMemoryPerByte = 50; // of source, for all rows but the stylesheet's

struct SMeasure
{
    double seconds = 0;
    double kernelSeconds = 0; // of them, and of what the run did besides
    std::size_t tokens = 0;
    std::size_t output = 0;
    long peakKiB = 0;
    bool isDone = false;
};

std::unique_ptr<CUVDBSQLParser> MakeMeasuredParser(bool isStylesheetForced = false)
{
    auto parser = std::make_unique<CUVDBSQLParser>();
    parser->Load(kParserName);
    DB_VERSION_INFO version;
    version.db = kPostgreSql;
    const auto info = std::make_shared<CUVDBDatabaseInfo>(version);
    CUVDBOptionWrapper::SetParam(info, "HAND_OVER_RESULT", Uve::U8CString("1"));
    if (isStylesheetForced)
        CUVDBOptionWrapper::SetParam(info, "TREE2SERIAL_STYLESHEET", Uve::U8CString("1"));
    parser->set_DatabaseInfo(info);
    parser->Init("");
    return parser;
}

// The host takes the result over instead of copying it.
std::size_t ResultSize(CUVDBSQLParser& parser)
{
    Uve::U8CString tree;
    parser.get_SQLTree(tree);
    return tree.size();
}

SMeasure EngineScan(const std::string& text)
{
    static CSQLGrammarLexer lexer(kParserName, false);
    lexer.yycreate();
    lexer.set_ColoringWanted(false);
    SMeasure measure;
    const double start = CpuSeconds();
    lexer.set_Query(text, static_cast<int>(kPostgreSql));
    while (lexer.yylex() != 0)
        ++measure.tokens;
    measure.seconds = CpuSeconds() - start;
    return measure;
}

SMeasure CompiledScan(const std::string& text)
{
    SMeasure measure;
    const double start = CpuSeconds();
    measure.tokens = NativeScan(text);
    measure.seconds = CpuSeconds() - start;
    return measure;
}

SMeasure EngineParse(const std::string& text)
{
    static const auto parser = MakeMeasuredParser();
    SMeasure measure;
    parser->set_Query(text.c_str());
    const double start = CpuSeconds();
    const std::string xml = parser->FastParse();
    measure.seconds = CpuSeconds() - start;
    measure.output = xml.size();
    return measure;
}

SMeasure CompiledParse(const std::string& text)
{
    SMeasure measure;
    const double start = CpuSeconds();
    const SNativeResult result = NativeParse(text);
    measure.seconds = CpuSeconds() - start;
    measure.tokens = result.tokens;
    measure.output = result.xml.size();
    return measure;
}

SMeasure WholeParse(const std::string& text)
{
    static const auto parser = MakeMeasuredParser();
    SMeasure measure;
    parser->set_Query(text.c_str());
    const double start = CpuSeconds();
    const int result = parser->Parse(false);
    measure.seconds = CpuSeconds() - start;
    measure.output = result == UVDB_OK ? ResultSize(*parser) : 0;
    return measure;
}

SMeasure Flatten(const std::string& text)
{
    static const std::string raw = [&] {
        const auto parser = MakeMeasuredParser();
        parser->set_Query(text.c_str());
        return parser->FastParse();
    }();
    SMeasure measure;
    std::string flat;
    const double start = CpuSeconds();
    const bool isFlattened = FlattenTree(raw, flat);
    measure.seconds = CpuSeconds() - start;
    measure.output = isFlattened ? flat.size() : 0;
    return measure;
}

SMeasure FlattenByStylesheet(const std::string& text)
{
    static const auto parser = MakeMeasuredParser(true);
    static const Uve::U8CString raw = [&] {
        parser->set_Query(text.c_str());
        return parser->FastParse();
    }();
    SMeasure measure;
    Uve::U8CString xml = raw;
    std::shared_ptr<IUVDBDatabaseInfo2> info;
    parser->get_DatabaseInfo(info);
    const double start = CpuSeconds();
    const int result = parser->Tree2Serial(info, xml);
    measure.seconds = CpuSeconds() - start;
    measure.output = result == UVDB_OK ? xml.size() : 0;
    return measure;
}

SMeasure LoadTables(const std::string&)
{
    SMeasure measure;
    const double start = CpuSeconds();
    CUVDBSQLParser parser;
    parser.Load(kParserName);
    measure.seconds = CpuSeconds() - start;
    return measure;
}

using Work = SMeasure (*)(const std::string& text);

#ifdef UV_PG_QUERY
// The database's own parser with its serialisers. A text that it refuses has no output.
SMeasure ParseToProtobuf(const std::string& text)
{
    SMeasure measure;
    const double start = CpuSeconds();
    const PgQueryProtobufParseResult result = pg_query_parse_protobuf(text.c_str());
    measure.seconds = CpuSeconds() - start;
    measure.output = result.error == nullptr ? result.parse_tree.len : 0;
    pg_query_free_protobuf_parse_result(result);
    return measure;
}

SMeasure ParseToJson(const std::string& text)
{
    SMeasure measure;
    const double start = CpuSeconds();
    const PgQueryParseResult result = pg_query_parse(text.c_str());
    measure.seconds = CpuSeconds() - start;
    measure.output = result.error == nullptr ? std::strlen(result.parse_tree) : 0;
    pg_query_free_parse_result(result);
    return measure;
}
#else
constexpr Work ParseToProtobuf = nullptr;
constexpr Work ParseToJson = nullptr;
#endif

SMeasure Measure(Work work, const char* path, int repeat)
{
    SMeasure measure;
    measure.isDone = RunInProcess(measure, [&] {
        const std::string text = path ? ReadFile(path) : std::string();
        SMeasure best;
        for (int run = 0; run < repeat; ++run) {
            WarmMemory(text.size() * kMostMemoryPerByte);
            const double kernelBefore = KernelSeconds();
            SMeasure made = work(text);
            made.kernelSeconds = KernelSeconds() - kernelBefore;
            if (run == 0 || made.seconds < best.seconds)
                best = made;
        }
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        best.peakKiB = usage.ru_maxrss;
        return best;
    });
    return measure;
}

} // namespace

int main(int argc, char** argv)
{
    int repeat = 3;
    const char* only = nullptr;
    std::vector<const char*> files;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--repeat") == 0 && i + 1 < argc)
            repeat = std::max(1, std::atoi(argv[++i]));
        else if (std::strcmp(argv[i], "--only") == 0 && i + 1 < argc)
            only = argv[++i];
        else
            files.push_back(argv[i]);
    }
    if (files.empty()) {
        std::fprintf(stderr, "usage: native_baseline [--repeat N] [--only ROW] FILE...\n");
        return 2;
    }

    enum enRow
    {
        kEngineScan,
        kNativeScan,
        kEngineParse,
        kNativeParse,
        kWholeParse,
        kFlatten,
        kStylesheet,
        kPgQueryProtobuf,
        kPgQueryJson,
        kRowCount
    };
    const struct
    {
        const char* name;
        Work work;
        double mostBytes; // of source: beyond, memory would be short
    } rows[kRowCount] = {
        // clang-format off
        {"engine scan", EngineScan, HUGE_VAL},
        {"native scan", CompiledScan, HUGE_VAL},
        {"engine parse", EngineParse, HUGE_VAL},
        {"native parse", CompiledParse, HUGE_VAL},
        {"whole Parse", WholeParse, HUGE_VAL},
        {"flatten", Flatten, HUGE_VAL},
        {"stylesheet", FlattenByStylesheet, 2e6},
        {"pg_query protobuf", ParseToProtobuf, 2e7},
        {"pg_query JSON", ParseToJson, 2e7},
        // clang-format on
    };
    const SMeasure load = Measure(LoadTables, nullptr, 20);
    std::printf("loading the tables of %s: %.1f ms\n", kParserName, load.seconds * 1000);
    bool isAllDone = load.isDone;
    for (const char* file : files) {
        const auto bytes = static_cast<double>(ReadFile(file).size());
        std::printf("\n%s: %.2f MB\n", file, bytes / kMega);
        std::printf("%-18s %9s %9s %9s %10s %12s %11s %16s\n", "", "seconds", "kernel s", "MB/s", "Mtokens/s",
                    "output MB", "peak MB", "beyond output/B");
        double seconds[kRowCount] = {};
        std::size_t tokens = 0;
        double wholeTree = 0;
        double wholePeak = 0;
        for (std::size_t row = 0; row < kRowCount; ++row) {
            if (rows[row].work == nullptr || bytes > rows[row].mostBytes)
                continue;
            if (only && std::strcmp(only, rows[row].name) != 0)
                continue;
            const SMeasure measure = Measure(rows[row].work, file, repeat);
            isAllDone = isAllDone && measure.isDone;
            seconds[row] = measure.seconds;
            tokens = measure.tokens ? measure.tokens : tokens;
            const double peak = static_cast<double>(measure.peakKiB) * 1024;
            std::printf("%-18s %9.3f %9.3f %9.2f %10.2f %12.2f %11.1f %16.1f\n", rows[row].name,
                        measure.seconds, measure.kernelSeconds, bytes / measure.seconds / kMega,
                        static_cast<double>(tokens) / measure.seconds / kMega,
                        static_cast<double>(measure.output) / kMega, peak / kMega,
                        (peak - static_cast<double>(measure.output)) / bytes);
            if (row == kWholeParse) {
                wholeTree = static_cast<double>(measure.output);
                wholePeak = peak;
            }
        }
        if (only)
            continue;
        std::printf("engine to native: scan %.2f, parse %.2f\n", seconds[kNativeScan] / seconds[kEngineScan],
                    seconds[kNativeParse] / seconds[kEngineParse]);
        std::printf("to the raw parse: flatten %.2f, whole Parse %.2f; peak of the whole to its tree %.2f\n",
                    seconds[kEngineParse] / seconds[kFlatten], seconds[kEngineParse] / seconds[kWholeParse],
                    wholePeak / wholeTree);
        if (seconds[kPgQueryProtobuf] > 0)
            std::printf("whole Parse to pg_query: protobuf %.2f, JSON %.2f\n",
                        seconds[kPgQueryProtobuf] / seconds[kWholeParse],
                        seconds[kPgQueryJson] / seconds[kWholeParse]);
        if (seconds[kStylesheet] > 0)
            std::printf("flatten to the stylesheet: %.1f\n", seconds[kStylesheet] / seconds[kFlatten]);
    }
    return isAllDone ? 0 : 1;
}
