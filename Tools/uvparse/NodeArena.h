// Memory for the nodes of a document that is thrown away as a whole.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace uvparse {

class CNodeArena
{
public:
    // Zeroes, aligned for a record of pointers and numbers.
    void* Make(std::size_t size) { return std::memset(Take(size, alignof(void*)), 0, size); }

    // A copy with a NUL at its end.
    char* Copy(std::string_view text)
    {
        char* const copy = static_cast<char*>(Take(text.size() + 1, 1));
        std::memcpy(copy, text.data(), text.size());
        copy[text.size()] = '\0';
        return copy;
    }

    // Everything that was made is gone; its memory is used again.
    void Clear()
    {
        m_Block = 0;
        m_Used = 0;
    }

private:
    static constexpr std::size_t kBlock = std::size_t{1} << 18;

    struct SBlock
    {
        std::unique_ptr<std::byte[]> bytes;
        std::size_t size;
    };

    void* Take(std::size_t size, std::size_t alignment)
    {
        m_Used = (m_Used + alignment - 1) & ~(alignment - 1);
        while (m_Block < m_Blocks.size() && m_Blocks[m_Block].size < m_Used + size) {
            ++m_Block;
            m_Used = 0;
        }
        if (m_Block == m_Blocks.size()) {
            const std::size_t room = size > kBlock ? size : kBlock;
            m_Blocks.push_back({std::unique_ptr<std::byte[]>(new std::byte[room]), room});
        }
        void* const taken = m_Blocks[m_Block].bytes.get() + m_Used;
        m_Used += size;
        return taken;
    }

    std::vector<SBlock> m_Blocks;
    std::size_t m_Block = 0; // the one in use
    std::size_t m_Used = 0;  // bytes of it
};

} // namespace uvparse
