#include "Tree/LargeMemory.h"

#include <cstdint>
#include <new>
#include <sys/mman.h>

namespace {

constexpr std::size_t kSmallPageBytes = 4096;

// From `address` on to the next page of that size.
std::size_t BytesBefore(const void* address, std::size_t pageBytes)
{
    const auto rest = reinterpret_cast<std::uintptr_t>(address) % pageBytes;
    return rest == 0 ? 0 : pageBytes - rest;
}

} // namespace

void ReserveLarge(std::string& text, std::size_t bytes)
{
    text.reserve(bytes);
    if (text.capacity() < 2 * kLargePageBytes)
        return;
    // A request only: where the system has no large pages to give, small ones do.
    const std::size_t before = BytesBefore(text.data(), kSmallPageBytes);
    madvise(text.data() + before, text.capacity() - before, MADV_HUGEPAGE);
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
    const std::size_t before = BytesBefore(mapped, kLargePageBytes);
    char* const page = static_cast<char*>(mapped) + before;
    if (before != 0)
        munmap(mapped, before);
    munmap(page + kLargePageBytes, kLargePageBytes - before);
    if (isWhole)
        madvise(page, kLargePageBytes, MADV_HUGEPAGE);
    return LargePage(page);
}
