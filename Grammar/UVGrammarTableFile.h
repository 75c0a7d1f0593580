// The quick way to a binary table: a file that is one sound gzip member with one table and nothing else is
// unpacked in one step.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

// T is int or unsigned int.
// Returns: true with the `count` entries and the CRC-32 of all that is unpacked, which has been compared with
//          the file's own. False for any other file, sound or not, and for one that can't be opened: the
//          general reader has to look at it.
template <class T>
[[nodiscard]] bool ReadPackedTable(const char* path, std::unique_ptr<T[]>& entries, std::size_t& count,
                                   std::uint32_t& checksum);

extern template bool ReadPackedTable<int>(const char* path, std::unique_ptr<int[]>& entries,
                                          std::size_t& count, std::uint32_t& checksum);
extern template bool ReadPackedTable<unsigned>(const char* path, std::unique_ptr<unsigned[]>& entries,
                                               std::size_t& count, std::uint32_t& checksum);
