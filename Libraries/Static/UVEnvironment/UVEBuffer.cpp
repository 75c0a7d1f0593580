#include "UVEnvironment/UVEBuffer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace Uve {

UVBuffer::UVBuffer(const UVBuffer& other)
{
    Assign(other.m_Data, other.m_Size);
}

UVBuffer& UVBuffer::operator=(const UVBuffer& other)
{
    if (this != &other)
        Assign(other.m_Data, other.m_Size);
    return *this;
}

UVBuffer& UVBuffer::operator=(UVBuffer&& other) noexcept
{
    if (this != &other) {
        Free();
        Swap(other);
    }
    return *this;
}

void UVBuffer::SetCapacity(std::size_t capacity)
{
    void* data = std::realloc(m_Data, capacity);
    if (data == nullptr)
        throw std::bad_alloc();
    m_Data = static_cast<unsigned char*>(data);
    m_Capacity = capacity;
}

void UVBuffer::Alloc(std::size_t size)
{
    Free();
    Resize(size);
}

void UVBuffer::Realloc(std::size_t size)
{
    if (size == 0) {
        Free();
        return;
    }
    const std::size_t kept = std::min(size, m_Size);
    SetCapacity(size);
    std::memset(m_Data + kept, 0, size - kept);
    m_Size = size;
}

void UVBuffer::ReserveMemory(std::size_t capacity)
{
    if (capacity > m_Capacity)
        SetCapacity(capacity);
}

void UVBuffer::Resize(std::size_t size)
{
    if (size > m_Capacity)
        SetCapacity(std::max(size, m_Capacity > SIZE_MAX / 2 ? size : m_Capacity * 2));
    if (size > m_Size)
        std::memset(m_Data + m_Size, 0, size - m_Size);
    m_Size = size;
}

void UVBuffer::Assign(const void* data, std::size_t size)
{
    if (data == nullptr || size == 0) {
        m_Size = 0;
        return;
    }
    if (size > m_Capacity) {
        // More bytes than this buffer holds can't all lie inside it, but the first of them may.
        UVBuffer fresh;
        fresh.SetCapacity(size);
        std::memcpy(fresh.m_Data, data, size);
        fresh.m_Size = size;
        Swap(fresh);
        return;
    }
    std::memmove(m_Data, data, size);
    m_Size = size;
}

void UVBuffer::Free() noexcept
{
    std::free(m_Data);
    m_Data = nullptr;
    m_Size = 0;
    m_Capacity = 0;
}

void UVBuffer::Swap(UVBuffer& other) noexcept
{
    std::swap(m_Data, other.m_Data);
    std::swap(m_Size, other.m_Size);
    std::swap(m_Capacity, other.m_Capacity);
}

} // namespace Uve
