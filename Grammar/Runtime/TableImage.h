// Tables in one block of bytes that is used as it lies, in memory or in a file:
//     image   = { part }
//     part    = size content filling      `size` counts the content's bytes and has 8 of them itself
// The filling makes each content begin at a multiple of 8. Numbers are those of the machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

// One table: an array of its own, or a part of an image that it keeps alive.
template <class T>
struct STable
{
    std::shared_ptr<const T[]> values;
    std::size_t count = 0;

    STable() = default;
    explicit STable(std::vector<T> entries) : count(entries.size())
    {
        const auto owner = std::make_shared<const std::vector<T>>(std::move(entries));
        values = std::shared_ptr<const T[]>(owner, owner->data());
    }

    const T& operator[](std::size_t index) const { return values.get()[index]; }
};

class CTableImageWriter
{
public:
    template <class T>
    void Add(const STable<T>& table)
    {
        static_assert(std::is_trivially_copyable_v<T>);
        AddBytes(table.values.get(), table.count * sizeof(T));
    }
    void AddText(std::string_view text) { AddBytes(text.data(), text.size()); }
    void AddNumber(std::int64_t number) { AddBytes(&number, sizeof number); }

    const std::string& Bytes() const { return m_Bytes; }

private:
    void AddBytes(const void* content, std::size_t size)
    {
        const std::uint64_t stored = size;
        m_Bytes.append(reinterpret_cast<const char*>(&stored), sizeof stored);
        m_Bytes.append(static_cast<const char*>(content), size);
        m_Bytes.resize((m_Bytes.size() + 7) / 8 * 8);
    }

    std::string m_Bytes;
};

// Takes the parts in the order in which they were added. Each answers false, and leaves its argument alone,
// if the image goes on otherwise.
class CTableImageReader
{
public:
    // Shares: the image, which begins at a multiple of 8.
    CTableImageReader(std::shared_ptr<const char[]> image, std::size_t size)
        : m_Image(std::move(image)), m_nSize(size)
    {}

    // The table keeps the image alive.
    template <class T>
    [[nodiscard]] bool Take(STable<T>& table)
    {
        static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= 8);
        std::string_view content;
        if (!TakeBytes(content) || content.size() % sizeof(T) != 0)
            return false;
        table.values = std::shared_ptr<const T[]>(m_Image, reinterpret_cast<const T*>(content.data()));
        table.count = content.size() / sizeof(T);
        return true;
    }
    [[nodiscard]] bool TakeText(std::string& text)
    {
        std::string_view content;
        if (!TakeBytes(content))
            return false;
        text = content;
        return true;
    }
    template <class T>
    [[nodiscard]] bool TakeNumber(T& number)
    {
        std::string_view content;
        std::int64_t stored = 0;
        if (!TakeBytes(content) || content.size() != sizeof stored)
            return false;
        std::memcpy(&stored, content.data(), sizeof stored);
        if (!std::in_range<T>(stored))
            return false;
        number = static_cast<T>(stored);
        return true;
    }
    bool AtEnd() const { return m_nAt == m_nSize; }

private:
    bool TakeBytes(std::string_view& content)
    {
        std::uint64_t size = 0;
        if (m_nSize - m_nAt < sizeof size)
            return false;
        std::memcpy(&size, m_Image.get() + m_nAt, sizeof size);
        const std::size_t left = m_nSize - m_nAt - sizeof size;
        if (size > left || (size + 7) / 8 * 8 > left)
            return false;
        content = {m_Image.get() + m_nAt + sizeof size, static_cast<std::size_t>(size)};
        m_nAt += sizeof size + (content.size() + 7) / 8 * 8;
        return true;
    }

    std::shared_ptr<const char[]> m_Image;
    std::size_t m_nSize = 0;
    std::size_t m_nAt = 0;
};
