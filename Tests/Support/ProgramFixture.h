// Tests of a built program, run by the shell as users run it, in a folder of its own.
#pragma once

#include "Tests/Support/ResultRows.h"
#include "Tools/Support/ToolFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <utility>
#include <vector>

struct SRunResult
{
    int code = -1; // 128 plus the signal's number if a signal ended it
    std::string out;
    std::string err;
};

// A sanitized program that makes a stack of its own says so once. The program itself says nothing of it.
inline std::string WithoutSanitizerNotice(std::string output)
{
    const std::size_t notice = output.find("WARNING: ASan doesn't fully support makecontext/swapcontext");
    if (notice == std::string::npos)
        return output;
    const std::size_t lineBegin = output.rfind('\n', notice) + 1; // 0 on the first line
    return output.erase(lineBegin, output.find('\n', notice) + 1 - lineBegin);
}

struct SRefusal
{
    const char* arguments;
    const char* message = ""; // part of it
};

class CProgramFixture : public testing::Test
{
protected:
    // `program` stands in the folder of built programs.
    explicit CProgramFixture(std::string program) : m_Program(std::move(program))
    {
        setenv("UVPARSER_CACHE", "", 1); // nothing is kept in the user's own folder
    }

    void Put(const std::string& name, const std::string& content)
    {
        std::filesystem::create_directories((m_Folder / name).parent_path());
        std::ofstream(m_Folder / name, std::ios::binary) << content;
    }

    std::string Get(const std::string& name) const { return ReadWholeFile((m_Folder / name).string()); }
    bool Has(const std::string& name) const { return std::filesystem::exists(m_Folder / name); }

    // `arguments` is shell text; standard input is the file "in" if there is one.
    SRunResult Run(const std::string& arguments) const
    {
        return RunProgram(UV_BIN_DIR "/" + m_Program, arguments);
    }

    SRunResult RunProgram(const std::string& program, const std::string& arguments) const
    {
        const std::string command = "cd '" + m_Folder.string() + "' && '" + program +
                                    "' >out.txt 2>err.txt <" + (Has("in") ? "in" : "/dev/null") + ' ' +
                                    arguments;
        SRunResult result;
        const int status = std::system(command.c_str());
        result.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        result.out = Get("out.txt");
        result.err = WithoutSanitizerNotice(Get("err.txt"));
        return result;
    }

    // Calls that the program can't make sense of: it says so, and prints nothing else.
    void ExpectRefused(const std::vector<SRefusal>& refusals) const
    {
        for (const SRefusal& refusal : refusals) {
            SCOPED_TRACE(refusal.arguments);
            const SRunResult run = Run(refusal.arguments);
            EXPECT_EQ(run.code, 2);
            EXPECT_EQ(run.out, "");
            EXPECT_THAT(run.err, testing::StartsWith(m_Program + ": error: "));
            EXPECT_THAT(run.err, testing::HasSubstr(refusal.message));
        }
    }

    // A host that writes a line and waits for its answer. The lines are `before` (as of printf) and a word.
    void ExpectAnsweredLineByLine(const std::string& arguments, const std::string& before = "")
    {
        SCOPED_TRACE(arguments);
        Put("ask.sh",
            "rm -f asked answers\nmkfifo asked\n\"$1\" " + arguments +
                " - <asked >answers &\nexec 3>asked\n"
                "for word in DATE CLOB; do\n printf '" +
                before +
                "%s\\n' $word >&3\n tries=0\n until grep -q $word answers; do\n"
                "  tries=$((tries + 1))\n  [ $tries -lt 200 ] || exit 1\n  sleep 0.05\n done\ndone\n"
                "exec 3>&-\nwait $!\n");
        EXPECT_EQ(RunProgram("/bin/sh", "ask.sh '" UV_BIN_DIR "/" + m_Program + "'").code, 0);
    }

    // In the build folder, so that programs can be linked into it.
    CTemporaryFolder m_Owner{UV_BIN_DIR "/../program-test-"};
    std::filesystem::path m_Folder = m_Owner.Path();

private:
    std::string m_Program;
};
