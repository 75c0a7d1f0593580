// The built tool in a folder of its own.
#pragma once

#include "Tests/Grammar/GrammarKeeperFiles.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <sys/wait.h>

struct SUvgrammarRun
{
    int exitCode = -1;
    std::string output, messages;
};

class CUvgrammarFixture : public testing::Test
{
protected:
    // A text that isn't in the source would make a case that tests nothing.
    static std::string Replaced(std::string text, const std::string& from, const std::string& to)
    {
        const std::size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return at == std::string::npos ? text : text.replace(at, from.size(), to);
    }

    SUvgrammarRun Run(const std::string& arguments, const std::string& environment = "")
    {
        const std::string command = "cd '" + m_Folder.Path() + "' && " + environment +
                                    " '" UV_BIN_DIR "/uvgrammar' " + arguments + " >stdout 2>stderr";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileContent(m_Folder.Path() + "stdout"),
                FileContent(m_Folder.Path() + "stderr")};
    }

    std::string File(const std::string& name) const { return FileContent(m_Folder.Path() + name); }

    // Every file below the folder with its content.
    std::map<std::string, std::string> Snapshot(const std::string& folder) const
    {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_Folder.Path() + folder)) {
            if (entry.is_regular_file())
                files[entry.path()] = FileContent(entry.path());
        }
        return files;
    }

    CScratchFolder m_Folder;
};
