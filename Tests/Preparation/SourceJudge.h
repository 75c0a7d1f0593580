// Other programs that know a source language, asked what a text means. A test that needs one that isn't
// installed is skipped.
#pragma once

#include "Tests/Support/ScratchFolder.h"

#include <cstdio>
#include <cstdlib>
#include <string>

inline bool HasProgram(const char* name)
{
    return std::system((std::string("command -v ") + name + " >/dev/null 2>&1").c_str()) == 0;
}

class CSourceJudge
{
public:
    // Runs shell text in a folder that holds `text` as the file `name`.
    // Returns: all that it prints.
    std::string Ask(const std::string& name, const std::string& text, const std::string& command) const
    {
        m_Folder.Write(name, text);
        std::FILE* const pipe =
            popen(("cd '" + m_Folder.Path() + "' && { " + command + "; } 2>&1").c_str(), "r");
        if (pipe == nullptr)
            return {};
        std::string printed;
        char block[4096];
        for (std::size_t got; (got = std::fread(block, 1, sizeof(block), pipe)) > 0;)
            printed.append(block, got);
        pclose(pipe);
        return printed;
    }

private:
    CScratchFolder m_Folder;
};
