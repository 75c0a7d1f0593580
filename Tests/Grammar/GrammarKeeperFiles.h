// Scratch files for the tests of table files.
#pragma once

#include "Tests/Support/ScratchFolder.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

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
