#include "Tests/Support/ProgramFixture.h"
#include "Tools/Support/ToolFiles.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> Documents()
{
    std::vector<fs::path> documents;
    for (const auto& entry : fs::directory_iterator(UV_SOURCE_DIR))
        if (entry.path().extension() == ".md")
            documents.push_back(entry.path());
    for (const char* folder : {"Documentation", "Languages"})
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(UV_SOURCE_DIR) / folder))
            if (entry.path().extension() == ".md")
                documents.push_back(entry.path());
    return documents;
}

// A code block that shows a file of the project stands after a comment with the file's path.
TEST(Documents, CodeBlocksAreTheFilesThatTheyShow)
{
    int blocks = 0;
    for (const fs::path& document : Documents()) {
        const std::string text = ReadWholeFile(document.string());
        const std::string open = "<!-- Tests/";
        for (std::size_t at = text.find(open); at != std::string::npos; at = text.find(open, at + 1)) {
            const std::size_t nameEnd = text.find(" -->\n```cpp\n", at);
            const std::string name = text.substr(at + 5, nameEnd - at - 5);
            SCOPED_TRACE(document.string() + ": " + name);
            ASSERT_NE(nameEnd, std::string::npos);
            const std::size_t begin = text.find("```cpp\n", nameEnd) + 7;
            EXPECT_EQ(text.substr(begin, text.find("```", begin) - begin),
                      ReadWholeFile((fs::path(UV_SOURCE_DIR) / name).string()));
            ++blocks;
        }
    }
    EXPECT_EQ(blocks, 2);
}

// A path of the project, in one piece, that isn't made by a build.
bool IsProjectPath(const std::string& text)
{
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos || slash == 0 || text.find_first_of(" \n*<>") != std::string::npos)
        return false;
    const std::string folder = text.substr(0, slash);
    return folder != "build" && fs::exists(fs::path(UV_SOURCE_DIR) / folder);
}

TEST(Documents, PathsInThemLeadSomewhere)
{
    int paths = 0;
    for (const fs::path& document : Documents()) {
        std::istringstream text(ReadWholeFile(document.string()));
        // What stands between two backquotes is every second piece.
        bool isQuoted = false;
        for (std::string piece; std::getline(text, piece, '`'); isQuoted = !isQuoted)
            if (isQuoted && IsProjectPath(piece)) {
                EXPECT_TRUE(fs::exists(fs::path(UV_SOURCE_DIR) / piece)) << document << ": " << piece;
                ++paths;
            }
    }
    EXPECT_GT(paths, 20);
}

struct SRun
{
    int status;
    std::string output;
};

SRun Shell(const std::string& command)
{
    const CTemporaryFolder folder(UV_BIN_DIR "/../documents-test-");
    const std::string file = folder.Path() + "/output";
    const int status = std::system((command + " >'" + file + "' 2>&1").c_str());
    return {status, WithoutSanitizerNotice(ReadWholeFile(file))};
}

TEST(Documents, TheHostsInThemGiveTheTreesThatUvparseGives)
{
    const CTemporaryFolder folder(UV_BIN_DIR "/../documents-test-");
    const std::string file = folder.Path() + "/a.sql";
    WriteWholeFile(file, "select 'every byte' -- comes back\n from the, tree;");
    const SRun tree = Shell(UV_BIN_DIR "/uvparse -l PostgreSQL " + file);
    ASSERT_EQ(tree.status, 0) << tree.output;

    const SRun host = Shell(UV_BIN_DIR "/host_example " + file);
    EXPECT_EQ(host.status, 0);
    EXPECT_EQ(host.output, tree.output);
    const SRun readme = Shell(UV_BIN_DIR "/readme_host");
    EXPECT_EQ(readme.status, 0);
    EXPECT_EQ(readme.output, tree.output);

    WriteWholeFile(file, "select from from t;");
    const SRun bad = Shell(UV_BIN_DIR "/host_example " + file);
    EXPECT_NE(bad.status, 0);
    EXPECT_NE(bad.output.find("a.sql: "), std::string::npos) << bad.output;
}

// The exception's code lies in the library, which loses its last object before the host's handler runs.
TEST(Documents, TheHostsInThemSurviveARefusedGrammar)
{
    const CTemporaryFolder folder(UV_BIN_DIR "/../documents-test-");
    fs::create_hard_link(UV_BIN_DIR "/libUVParser.so", folder.Path() + "/libUVParser.so");
    for (const char* host : {"/host_example", "/readme_host"}) {
        SCOPED_TRACE(host);
        fs::create_hard_link(std::string(UV_BIN_DIR) + host, folder.Path() + host);
        const SRun run = Shell(folder.Path() + host);
        EXPECT_EQ(WIFEXITED(run.status) ? WEXITSTATUS(run.status) : -1, 2);
        EXPECT_NE(run.output.find("Grammar/PostgreSQL"), std::string::npos) << run.output;
    }
}

// A guide is a script: it puts files ("<!-- put NAME -->" and a block), runs commands (blocks "sh") and shows
// what they print (blocks "text").
struct SGuide
{
    const char* name;
    std::vector<std::string> programs; // the built files and folders that it uses
    int commands;
    std::vector<std::string> sources = {}; // the project's folders that it changes
};

void Follow(const SGuide& guide)
{
    const CTemporaryFolder folder(UV_BIN_DIR "/../documents-test-");
    const fs::path bin = fs::path(folder.Path()) / "build/dev/bin";
    fs::create_directories(bin);
    for (const std::string& file : guide.programs) {
        fs::create_directories((bin / file).parent_path());
        fs::copy(fs::path(UV_BIN_DIR) / file, bin / file,
                 fs::copy_options::recursive | fs::copy_options::create_hard_links);
    }

    for (const std::string& source : guide.sources) {
        const fs::path copy = fs::path(folder.Path()) / source;
        fs::create_directories(copy.parent_path());
        fs::copy(fs::path(UV_SOURCE_DIR) / source, copy, fs::copy_options::recursive);
    }

    const std::string text = ReadWholeFile(std::string(UV_SOURCE_DIR "/Documentation/") + guide.name);
    std::istringstream lines(text);
    std::string name;
    std::string printed;
    int commands = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("<!-- put "))
            name = line.substr(9, line.size() - 13);
        if (!line.starts_with("```"))
            continue;
        const std::string kind = line.substr(3);
        std::string content;
        while (std::getline(lines, line) && line != "```")
            content += line + '\n';
        SCOPED_TRACE(name + content);
        if (!name.empty()) {
            const fs::path file = fs::path(folder.Path()) / name;
            fs::create_directories(file.parent_path());
            WriteWholeFile(file.string(), content);
            name.clear();
        } else if (kind == "sh") {
            printed = Shell("cd '" + folder.Path() + "' && (" + content + ")").output;
            ++commands;
        } else {
            ASSERT_EQ(kind, "text");
            EXPECT_EQ(printed, content);
        }
    }
    EXPECT_EQ(commands, guide.commands);
}

TEST(Documents, GuidesWorkWhenFollowedToTheLetter)
{
    const SGuide guides[] = {
        {"LanguageGuide.md",
         {"uvgrammar", "uvgrammar-score", "uvgrammar-test", "uvparse", "libUVParser.so"},
         9,
         {"Languages/Common", "Languages/PostgreSQL"}},
        {"UvgrammarGuide.md",
         {"uvgrammar", "uvgrammar-elements", "uvgrammar-score", "uvgrammar-test", "libUVParser.so"},
         12},
        {"RuleFiles.md", {"uvrules"}, 5},
        {"TreeStyle.md", {"uvparse", "libUVParser.so", "Grammar/MySQL", "Grammar/PostgreSQL"}, 2},
        {"Types.md", {"uvtypes"}, 6},
        {"Names.md", {"uvnames"}, 6},
        {"NamesExample.md", {"uvnames"}, 6},
    };
    for (const SGuide& guide : guides) {
        SCOPED_TRACE(guide.name);
        Follow(guide);
    }
}

// The sources of a benchmark program, which this build may have without the program.
std::string SourcesOfBenchmark(const std::string& program)
{
    const fs::path folder = fs::path(UV_SOURCE_DIR) / "Benchmarks";
    const std::string lists = ReadWholeFile((folder / "CMakeLists.txt").string());
    const std::size_t at = lists.find("add_executable(" + program);
    if (at == std::string::npos)
        return {};
    std::string sources;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.is_regular_file() &&
            lists.substr(at, lists.find(')', at) - at).find(entry.path().filename()) != std::string::npos)
            sources += ReadWholeFile(entry.path().string());
    return sources;
}

// Commands of the page on performance stand in lines of four blanks, or between backquotes.
TEST(Documents, CommandsThatMeasureAreOnesThatRun)
{
    const std::string text = ReadWholeFile(UV_SOURCE_DIR "/Documentation/Performance.md");
    int programs = 0;
    const std::string folder = "build/release/bin/";
    for (std::size_t at = text.find(folder); at != std::string::npos; at = text.find(folder, at + 1)) {
        std::istringstream words(text.substr(at, text.find_first_of("`\n", at) - at));
        std::string word;
        words >> word;
        SCOPED_TRACE(word);
        const std::string sources = SourcesOfBenchmark(word.substr(folder.size()));
        EXPECT_FALSE(sources.empty());
        while (words >> word) {
            const std::string filter = "--benchmark_filter=";
            if (word.starts_with(filter)) {
                std::string names = word.substr(filter.size());
                std::erase(names, '\'');
                std::istringstream list(names);
                for (std::string name; std::getline(list, name, '|');)
                    EXPECT_NE(sources.find(name), std::string::npos) << name;
            } else if (word.starts_with("--")) {
                EXPECT_NE(sources.find('"' + word + '"'), std::string::npos) << word;
            }
        }
        ++programs;
    }
    EXPECT_EQ(programs, 8);

    const std::string sizes = "1M 10M 100M";
    const std::size_t begin = text.find("    for size in " + sizes);
    ASSERT_NE(begin, std::string::npos);
    std::string command = text.substr(begin, text.find('\n', begin) - begin);
    command.replace(command.find(sizes), sizes.size(), "2K");
    const CTemporaryFolder place(UV_BIN_DIR "/../documents-test-");
    fs::create_directory(place.Path() + "/build");
    fs::create_directory_symlink(UV_SOURCE_DIR "/Benchmarks", place.Path() + "/Benchmarks");
    const SRun run = Shell("cd '" + place.Path() + "' && " + command);
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_GE(fs::file_size(place.Path() + "/build/2K.sql"), 2000u);
}

} // namespace
