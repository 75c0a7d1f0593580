// A folder for the length of a test.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

class CTemporaryFolder
{
public:
    CTemporaryFolder()
    {
        std::string pattern = testing::TempDir() + "preparation-XXXXXX";
        m_Path = mkdtemp(pattern.data()) != nullptr ? pattern : "";
        EXPECT_FALSE(m_Path.empty());
    }
    ~CTemporaryFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_Path, error);
    }
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    std::string Path(const std::string& name) const { return m_Path + "/" + name; }
    std::string Write(const std::string& name, const std::string& text) const
    {
        std::filesystem::create_directories(std::filesystem::path(Path(name)).parent_path());
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }

private:
    std::string m_Path;
};
