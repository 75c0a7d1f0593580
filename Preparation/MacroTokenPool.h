// Memory for tokens. A source of some megabytes is some millions of them, made in a row and given back in a
// row, which costs the general allocator more than all the rest of the run.
#pragma once

#include <cstddef>

namespace MacroPreprocessorChecker::internal {

// Each thread has memory of its own, handed back to the system when its last token is gone. A token is
// therefore deleted by the thread that made it.
class CTokenPool
{
public:
    // Memory for an object of `size` bytes. Throws: std::bad_alloc.
    static void* Allocate(std::size_t size);
    // Takes back what Allocate(size) gave.
    static void Free(void* memory, std::size_t size) noexcept;
};

} // namespace MacroPreprocessorChecker::internal
