// Calling code that recurses as deep as its data is nested, without the caller's stack being the limit.
// libxslt and libxml2 recurse so: a template in a template, a tree that is copied.
//
// The call gets a stack that is mapped for it, kOwnStackBytes of address space. Memory is taken only for the
// pages that the recursion reaches, and goes back when the call returns. No thread is started: thread locals,
// locks and the floating point state are the caller's.
#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>

namespace Uve {

// Why this much, measured in bytes of stack for each level with libxml2 2.9.14 and libxslt 1.1.35, which take
// the same in a sanitized program, since they aren't sanitized themselves:
//     template that calls itself        368     template that applies templates   640
//     the same inside variables         400     built-in template rules           128
//     copy-of a nested tree              96     copy of a whole document          160
// The 40000 levels that templates are allowed thus take 26 MB at most. The other rows have no limit of their
// own and follow the depth of the tree: 8,000,000 levels fit in 1.3 GB.
inline constexpr std::size_t kOwnStackBytes = std::size_t{2} << 30;

// The depth of nesting up to which a tree can be handed to any function of the two libraries on an own stack.
inline constexpr std::size_t kOwnStackTreeDepth = 8'000'000;

// Runs `work(argument)` on a stack of its own. Inside another such call it runs on that call's stack.
// Returns: false if the stack couldn't be mapped; `work` hasn't run then.
// Throws:  what `work` throws.
[[nodiscard]] bool CallOnOwnStack(void (*work)(void*), void* argument);

template <class Work>
[[nodiscard]] bool CallOnOwnStack(Work&& work)
{
    using Callable = std::remove_reference_t<Work>;
    return CallOnOwnStack([](void* argument) { (*static_cast<Callable*>(argument))(); },
                          const_cast<void*>(static_cast<const void*>(std::addressof(work))));
}

// Bytes of the own stack that are in use here; 0 outside of CallOnOwnStack.
std::size_t OwnStackBytesInUse() noexcept;

} // namespace Uve
