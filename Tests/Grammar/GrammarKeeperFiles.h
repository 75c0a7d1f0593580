// Scratch files for the tests of table files.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// A folder that goes with the object.
class CScratchFolder
{
public:
    CScratchFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "uvtest.XXXXXX").string();
        m_Path = mkdtemp(pattern.data());
    }
    CScratchFolder(const CScratchFolder&) = delete;
    CScratchFolder& operator=(const CScratchFolder&) = delete;
    ~CScratchFolder() { std::filesystem::remove_all(m_Path); }

    // With a slash at its end.
    std::string Path() const { return m_Path + '/'; }

    std::string Write(const std::string& name, const std::string& content) const
    {
        const std::string path = Path() + name;
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

private:
    std::string m_Path;
};

inline std::string FileContent(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The bytes of an uncompressed table that claims `count` entries.
inline std::string TableBytes(std::uint32_t count, const std::vector<std::int32_t>& entries)
{
    std::string bytes(reinterpret_cast<const char*>(&count), sizeof count);
    bytes.append(reinterpret_cast<const char*>(entries.data()), entries.size() * sizeof(std::int32_t));
    return bytes;
}
