#include "Preparation/MacroTokenPool.h"

#include <array>
#include <memory>
#include <new>
#include <utility>
#include <vector>

// With a sanitizer each token is a block of its own, so that a use behind its end of life is seen.
#if defined(__SANITIZE_ADDRESS__)
#define UV_SEPARATE_TOKENS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define UV_SEPARATE_TOKENS 1
#endif
#endif

namespace MacroPreprocessorChecker::internal {

#ifdef UV_SEPARATE_TOKENS

void* CTokenPool::Allocate(std::size_t size)
{
    return ::operator new(size);
}

void CTokenPool::Free(void* memory, std::size_t) noexcept
{
    ::operator delete(memory);
}

#else

namespace {

constexpr std::size_t kStep = 16; // sizes are multiples of it
constexpr std::size_t kLargest = 256;
constexpr std::size_t kBlockSize = std::size_t{1} << 18;

struct SFreeToken
{
    SFreeToken* next;
};

class CThreadPool
{
public:
    void* Allocate(std::size_t size)
    {
        SFreeToken*& free = m_Free[size / kStep];
        if (free != nullptr) {
            ++m_Live;
            return std::exchange(free, free->next);
        }
        if (m_Left < size) {
            m_Blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(kBlockSize));
            m_At = m_Blocks.back().get();
            m_Left = kBlockSize;
        }
        void* const memory = m_At;
        m_At += size;
        m_Left -= size;
        ++m_Live;
        return memory;
    }

    void Free(void* memory, std::size_t size) noexcept
    {
        m_Free[size / kStep] = new (memory) SFreeToken{m_Free[size / kStep]};
        if (--m_Live > 0)
            return;
        m_Free.fill(nullptr);
        m_Blocks.clear();
        m_Left = 0;
    }

private:
    std::array<SFreeToken*, kLargest / kStep + 1> m_Free{}; // by size
    std::vector<std::unique_ptr<std::byte[]>> m_Blocks;
    std::byte* m_At = nullptr; // what is left of the last block
    std::size_t m_Left = 0;
    std::size_t m_Live = 0;
};

CThreadPool& ThreadPool()
{
    thread_local CThreadPool pool;
    return pool;
}

std::size_t Rounded(std::size_t size)
{
    return (size + kStep - 1) / kStep * kStep;
}

} // namespace

void* CTokenPool::Allocate(std::size_t size)
{
    const std::size_t rounded = Rounded(size);
    return rounded > kLargest ? ::operator new(size) : ThreadPool().Allocate(rounded);
}

void CTokenPool::Free(void* memory, std::size_t size) noexcept
{
    const std::size_t rounded = Rounded(size);
    if (rounded > kLargest)
        ::operator delete(memory);
    else
        ThreadPool().Free(memory, rounded);
}

#endif

} // namespace MacroPreprocessorChecker::internal
