#include "Tree/LargeMemory.h"

#include <cstdint>
#include <new>
#include <sys/mman.h>

namespace {

constexpr std::size_t kSmallPageBytes = 4096;

std::uintptr_t RoundedUp(std::uintptr_t address, std::size_t to)
{
    return (address + to - 1) / to * to;
}

} // namespace

void ReserveLarge(std::string& text, std::size_t bytes)
{
    text.reserve(bytes);
    if (text.capacity() < 2 * kLargePageBytes)
        return;
    // A request only: where the system has no large pages to give, small ones do.
    const auto begin = RoundedUp(reinterpret_cast<std::uintptr_t>(text.data()), kSmallPageBytes);
    const auto end = reinterpret_cast<std::uintptr_t>(text.data()) + text.capacity();
    madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
}

void SLargePageDeleter::operator()(void* page) const noexcept
{
    munmap(page, kLargePageBytes);
}

LargePage NewLargePage(bool isWhole)
{
    void* const mapped = mmap(nullptr, 2 * kLargePageBytes, PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED)
        throw std::bad_alloc();
    // one of two pages' length is aligned, the rest goes back
    const auto begin = reinterpret_cast<std::uintptr_t>(mapped);
    const auto page = RoundedUp(begin, kLargePageBytes);
    if (page != begin)
        munmap(mapped, page - begin);
    munmap(reinterpret_cast<void*>(page + kLargePageBytes), begin + kLargePageBytes - page);
    if (isWhole)
        madvise(reinterpret_cast<void*>(page), kLargePageBytes, MADV_HUGEPAGE);
    return LargePage(reinterpret_cast<void*>(page));
}
