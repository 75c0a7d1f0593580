#include "Tests/Support/ProgramFixture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using namespace std::string_literals;
using nlohmann::json;

namespace {

class UvparseMessages : public CProgramFixture
{
protected:
    UvparseMessages() : CProgramFixture("uvparse") {}

    // Texts with one of everything.
    void PutSources()
    {
        Put("bad one.pgsql", "\xEF\xBB\xBFselect '\xE6\x97\xA5\t', \xF0\x9F\x98\x80 from from t;\r\nselec "
                             "1;\n/* op\xC3\xA9n\n");
        Put("wide.pgsql", "\xFF\xFEs\0e\0l\0e\0c\0t\0 \0"
                          "f\0r\0o\0m\0 \0\x3D\xD8\0\xDE\n\0"
                          "f\0r\0o\0m\0;\0"s);
        Put("latin.pgsql", "select 1;\nselect 'caf\xE9';\n");
        Put("clean.pgsql", "select 1;\n");
        Put("a.cl", "PGM\nCHGVAR VAR(&A) +\n  VALUE(1) VALUE VALUE((\nENDPGM\n");
    }

    // The files of PutSources and two that can't be read.
    static constexpr char kSources[] =
        "'bad one.pgsql' wide.pgsql clean.pgsql sub/../latin.pgsql a.cl missing.pgsql a.nothing";

    static std::vector<json> Lines(const std::string& text)
    {
        std::vector<json> lines;
        for (const std::string& line : Split(text, '\n'))
            lines.push_back(json::parse(line));
        return lines;
    }
};

std::string Percented(const std::string& uri)
{
    std::string path;
    for (std::size_t i = 0; i < uri.size(); ++i) {
        if (uri[i] != '%') {
            path += uri[i];
            continue;
        }
        path += static_cast<char>(std::stoi(uri.substr(i + 1, 2), nullptr, 16));
        i += 2;
    }
    return path;
}

TEST_F(UvparseMessages, FormsSayTheSame)
{
    PutSources();
    fs::create_directory(m_Folder / "sub");
    const SRunResult text = Run("--verify "s + kSources);
    const SRunResult asText = Run("--messages text --verify "s + kSources);
    EXPECT_EQ(asText.err, text.err);
    const SRunResult asJson = Run("--messages json --verify "s + kSources);
    const SRunResult asSarif = Run("--messages sarif --verify "s + kSources);
    EXPECT_EQ(text.code, 2);
    for (const SRunResult* run : {&asText, &asJson, &asSarif}) {
        EXPECT_EQ(run->code, text.code);
        EXPECT_EQ(run->out, text.out);
    }

    const json sarif = json::parse(asSarif.err)["runs"][0];
    std::size_t results = 0;
    std::size_t notifications = 0;
    for (const json& line : Lines(asJson.err)) {
        SCOPED_TRACE(line.dump());
        const std::string message = line["message"];
        EXPECT_NE(text.err.find(message), std::string::npos);
        const std::string kind = line["kind"];
        if (kind == "verified" || kind == "could-not-run") {
            const json& notification = sarif["invocations"][0]["toolExecutionNotifications"][notifications++];
            EXPECT_EQ(notification["message"]["text"], message);
            EXPECT_EQ(notification["level"], line["severity"]);
            EXPECT_EQ(notification["descriptor"]["id"], kind);
            continue;
        }
        const json& result = sarif["results"][results++];
        EXPECT_EQ(result["message"]["text"], message);
        EXPECT_EQ(result["level"], line["severity"]);
        EXPECT_EQ(result["ruleId"], kind);
        const json& region = result["locations"][0]["physicalLocation"]["region"];
        for (const auto& [ours, theirs] : {std::pair("line", "startLine"),
                                           {"column", "startColumn"},
                                           {"end_line", "endLine"},
                                           {"end_column", "endColumn"},
                                           {"byte_offset", "byteOffset"},
                                           {"byte_length", "byteLength"}})
            EXPECT_EQ(region.value(theirs, json()), line[ours]) << ours;
    }
    EXPECT_EQ(results, sarif["results"].size());
    EXPECT_EQ(notifications, sarif["invocations"][0]["toolExecutionNotifications"].size());
    EXPECT_GE(results, 6u);
    EXPECT_EQ(sarif["invocations"][0]["exitCode"], 2);
    EXPECT_EQ(sarif["invocations"][0]["executionSuccessful"], false);
    EXPECT_EQ(sarif["artifacts"].size(), 6u); // what has no language isn't looked at
}

// Whoever opens the file by its URI finds the text there.
TEST_F(UvparseMessages, RegionsHoldWhatTheyShow)
{
    PutSources();
    const json sarif = json::parse(Run("--messages sarif 'bad one.pgsql' wide.pgsql a.cl").err)["runs"][0];
    const std::string base = Percented(sarif["originalUriBaseIds"]["%SRCROOT%"]["uri"]);
    ASSERT_TRUE(base.starts_with("file:///"));
    std::size_t found = 0;
    for (const json& result : sarif["results"]) {
        SCOPED_TRACE(result.dump());
        const json& location = result["locations"][0]["physicalLocation"];
        const std::string path = base.substr(7) + Percented(location["artifactLocation"]["uri"]);
        const json& region = location["region"];
        if (!region.contains("snippet"))
            continue;
        std::string bytes =
            ReadWholeFile(path).substr(region["byteOffset"], region["byteLength"].get<std::size_t>());
        if (path.ends_with("wide.pgsql"))
            std::erase(bytes, '\0');
        const std::string snippet = region["snippet"]["text"];
        EXPECT_EQ(bytes, snippet);
        ++found;
    }
    EXPECT_GE(found, 5u);
}

// With the schema of the standard, where there is one: UV_SCHEMAS names a folder with it.
TEST_F(UvparseMessages, DocumentsAreValid)
{
    const char* const folder = std::getenv("UV_SCHEMAS");
    if (folder == nullptr || *folder == '\0')
        GTEST_SKIP() << "UV_SCHEMAS names no folder";
    if (RunProgram("/usr/bin/env", "python3 -c 'import jsonschema'").code != 0)
        GTEST_SKIP() << "not installed: python3-jsonschema";
    PutSources();
    Put("in", "select from from;");
    Put("b.c", "#include \"none.h\"\nint a;\n");
    Put("check.py", "import json, sys, jsonschema\n"
                    "schema = json.load(open(sys.argv[1]))\n"
                    "checker = jsonschema.Draft4Validator(schema)\n"
                    "for error in checker.iter_errors(json.load(open(sys.argv[2]))):\n"
                    "    sys.exit(error.message + ' at ' + str(list(error.path)))\n");
    const std::string schema = "'"s + folder + "/sarif-schema-2.1.0.json'";
    for (const std::string& arguments :
         {"--stat --time --verify "s + kSources, "clean.pgsql"s, "-l PostgreSQL -"s,
          "-l nonesuch clean.pgsql"s, "-o NOSUCH=1 clean.pgsql"s,
          "--pretty -l PostgreSQL -o ORVA_CHILD=1 'bad one.pgsql'"s, "--prepare -l C -o PREPROCESSOR=0 b.c"s,
          "../*/clean.pgsql \"$PWD/wide.pgsql\""s}) {
        SCOPED_TRACE(arguments);
        Run("--messages sarif --messages-to m.sarif " + arguments);
        const SRunResult check = RunProgram("/usr/bin/env", "python3 check.py " + schema + " m.sarif");
        EXPECT_EQ(check.code, 0) << check.err << Get("m.sarif");
    }
}

struct SKindCase
{
    const char* arguments;
    const char* file;
    const char* source;
    const char* kinds; // with line and column
};

const SKindCase kKindCases[] = {
    {"", "a.pgsql", "select from from;\nselect 1;\n/* x", "unexpected-token 1:13 unclosed-text 3:1 "},
    {"", "a.pgsql", "select ; creat x; selec 1; select 1;", "unexpected-token 1:10 skipped-text 1:19 "},
    {"", "a.pgsql", "select 1;\n\xE9", "invalid-text 2:1 "},
    {"--prepare -l C -o PREPROCESSOR=0", "a.c", "\n#include \"none.h\"\n", "missing-include 2:- "},
    {"--prepare -l C -o PREPROCESSOR=0", "a.c", "int \xC2\xA7;\n", "failed-parse 1:- "},

    {"--prepare -l Progress4GL -o INCLUDE_FILES=YES", "a.p", "x.\n{none.i}\n", "missing-include 2:- "},
    {"--prepare -l ASP", "a.asp", "<p>\n<!--#include file=\"none.inc\"-->\n", "missing-include 2:- "},
    {"-l IBMCL", "a.txt", "/* nothing */", ""},
    {"-o ORVA_CHILD=1", "a.pgsql", "select from from;", "unexpected-token 1:13 "},
    {"-o TREE2SERIAL=1", "a.pgsql", "select 1;", "bad-arguments -:- "},
    {"-l nonesuch", "a.pgsql", "select 1;", "could-not-run -:- "},
    {"--stat", "a.pgsql", "select 1;", "statistics -:- "},
    {"--time", "a.pgsql", "select 1;", "time -:- "},
    {"--verify", "a.pgsql", "select 1;", "verified -:- "},
};

TEST_F(UvparseMessages, EachHasItsKindAndPlace)
{
    for (const auto& c : kKindCases) {
        SCOPED_TRACE(c.arguments + "\n"s + c.source);
        Put(c.file, c.source);
        std::string kinds;
        for (const json& line : Lines(Run("--messages json "s + c.arguments + ' ' + c.file).err)) {
            const auto number = [&](const char* member) {
                return line[member].is_null() ? "-"s : line[member].dump();
            };
            kinds += line["kind"].get<std::string>() + ' ' + number("line") + ':' + number("column") + ' ';
        }
        EXPECT_EQ(kinds, c.kinds);
    }
}

TEST_F(UvparseMessages, GoWhereTheyAreWanted)
{
    Put("bad.pgsql", "select from from;\n");
    const SRunResult usual = Run("bad.pgsql");
    SRunResult run = Run("--messages-to m.txt bad.pgsql");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, usual.out);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(Get("m.txt"), usual.err);
    EXPECT_EQ(Run("--quiet --messages-to q.txt bad.pgsql").err, "");
    EXPECT_EQ(Get("q.txt"), usual.err);
    run = Run("--output trees --messages-to - bad.pgsql");
    EXPECT_EQ(run.out, usual.err);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(Get("trees/bad.pgsql.xml"), usual.out);

    run = Run("--messages sarif --messages-to none/m.sarif bad.pgsql");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "uvparse: error: none/m.sarif: No such file or directory\n");

    ExpectRefused({{"--messages xml bad.pgsql", "text, json or sarif, not 'xml'"},
                   {"--messages-to '' bad.pgsql", "--messages-to"},
                   {"--messages-to - bad.pgsql", "--output"},
                   {"--messages json --quiet bad.pgsql", "--messages-to"}});
}

} // namespace
