// A growing byte buffer, and the exception of the older code that fills it. Sizes are bytes.
#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <utility>

namespace Uve {

class UVBuffer
{
public:
    UVBuffer() = default;
    explicit UVBuffer(std::size_t size) { Alloc(size); }
    UVBuffer(const UVBuffer& other);
    UVBuffer& operator=(const UVBuffer& other);
    UVBuffer(UVBuffer&& other) noexcept { Swap(other); }
    UVBuffer& operator=(UVBuffer&& other) noexcept;
    ~UVBuffer() { Free(); }

    // Gives up the old bytes and takes `size` zero bytes.
    // Throws: std::bad_alloc; the buffer is then empty.
    void Alloc(std::size_t size);

    // Changes memory and size to exactly `size`, keeping what fits; bytes gained are 0.
    // Throws: std::bad_alloc; the buffer is then as it was. So do the next three.
    void Realloc(std::size_t size);

    // Makes sure that a Resize up to `capacity` won't move the bytes. Never shrinks.
    void ReserveMemory(std::size_t capacity);

    // Changes the size, keeping what fits; bytes gained are 0. Memory at least doubles when it must grow, and
    // is kept when the buffer shrinks.
    void Resize(std::size_t size);

    // Copies `size` bytes, which may lie inside this buffer. A null `data` empties.
    void Assign(const void* data, std::size_t size);

    void Free() noexcept;

    // Null as long as nothing was allocated.
    unsigned char* GetData() noexcept { return m_Data; }
    const unsigned char* GetData() const noexcept { return m_Data; }
    std::size_t GetSize() const noexcept { return m_Size; }
    std::size_t GetCapacity() const noexcept { return m_Capacity; }
    bool IsEmpty() const noexcept { return m_Size == 0; }

    void Swap(UVBuffer& other) noexcept;

private:
    void SetCapacity(std::size_t capacity);

    unsigned char* m_Data = nullptr;
    std::size_t m_Size = 0;
    std::size_t m_Capacity = 0;
};

class UVException : public std::exception
{
public:
    UVException(int code, std::string message, std::string file = {}, int line = 0)
        : m_Code(code), m_Message(std::move(message)), m_File(std::move(file)), m_Line(line)
    {}

    int ErrCode() const noexcept { return m_Code; }
    const char* ErrMsg() const noexcept { return m_Message.c_str(); }
    const char* ErrFile() const noexcept { return m_File.c_str(); }
    int ErrLine() const noexcept { return m_Line; }
    const char* what() const noexcept override { return m_Message.c_str(); }

private:
    int m_Code;
    std::string m_Message;
    std::string m_File;
    int m_Line;
};

} // namespace Uve
