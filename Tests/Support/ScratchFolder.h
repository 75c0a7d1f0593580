// A folder for the length of a test.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

class CScratchFolder
{
public:
    CScratchFolder()
    {
        std::string pattern = testing::TempDir() + "uvtest-XXXXXX";
        m_Path = mkdtemp(pattern.data()) != nullptr ? pattern : "";
        EXPECT_FALSE(m_Path.empty());
    }
    ~CScratchFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_Path, error);
    }
    CScratchFolder(const CScratchFolder&) = delete;
    CScratchFolder& operator=(const CScratchFolder&) = delete;

    // Without a name that of the folder, with a slash at its end.
    std::string Path(const std::string& name = "") const { return m_Path + "/" + name; }
    // Folders in `name` are made.
    // Returns: the path.
    std::string Write(const std::string& name, const std::string& text) const
    {
        std::filesystem::create_directories(std::filesystem::path(Path(name)).parent_path());
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }
    std::string Read(const std::string& name) const
    {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::string m_Path;
};
