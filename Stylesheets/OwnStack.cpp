#include "Stylesheets/OwnStack.h"

#include <exception>
#include <sys/mman.h>
#include <ucontext.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#define UV_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define UV_ADDRESS_SANITIZER
#endif
#endif

#ifdef UV_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#include <sanitizer/common_interface_defs.h>
#endif

namespace Uve {

namespace {

// The mapping: a page that nobody may touch, then the stack. A recursion that gets past every limit ends the
// process there instead of writing into a neighbour.
class CMappedStack
{
public:
    CMappedStack() : m_GuardBytes(static_cast<std::size_t>(sysconf(_SC_PAGESIZE)))
    {
        void* const mapped = mmap(nullptr, m_GuardBytes + kOwnStackBytes, PROT_NONE,
                                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
        if (mapped == MAP_FAILED)
            return;
        m_Mapped = static_cast<char*>(mapped);
        if (mprotect(Bottom(), kOwnStackBytes, PROT_READ | PROT_WRITE) != 0)
            Unmap();
    }
    ~CMappedStack() { Unmap(); }
    CMappedStack(const CMappedStack&) = delete;
    CMappedStack& operator=(const CMappedStack&) = delete;

    bool IsMapped() const { return m_Mapped != nullptr; }
    char* Bottom() const { return m_Mapped + m_GuardBytes; }
    char* Top() const { return Bottom() + kOwnStackBytes; }

private:
    void Unmap()
    {
        if (m_Mapped == nullptr)
            return;
#ifdef UV_ADDRESS_SANITIZER
        // The first frame never returns, and what the sanitizer noted of it would hold for whatever comes to lie here. It
        // stands at the top; to clear the notes of all the stack would take as long as to use it.
        constexpr std::size_t kFirstFrames = 65536;
        __asan_unpoison_memory_region(Top() - kFirstFrames, kFirstFrames);
#endif
        munmap(m_Mapped, m_GuardBytes + kOwnStackBytes);
        m_Mapped = nullptr;
    }

    char* m_Mapped = nullptr;
    std::size_t m_GuardBytes;
};

struct SOwnStackCall
{
    void (*work)(void*) = nullptr;
    void* argument = nullptr;
    std::exception_ptr failure; // what `work` threw: unwinding can't cross from one stack to the other
    const CMappedStack* stack = nullptr;
    ucontext_t caller = {};
    ucontext_t callee = {};
    bool hasRun = false;
    // The caller's stack as the address sanitizer knows it.
    void* callerFakeStack = nullptr;
    const void* callerBottom = nullptr;
    std::size_t callerBytes = 0;
};

// The call whose stack this thread stands on.
thread_local SOwnStackCall* g_CurrentCall = nullptr;

#ifdef UV_ADDRESS_SANITIZER
void TellEntering(SOwnStackCall& call)
{
    __sanitizer_start_switch_fiber(&call.callerFakeStack, call.stack->Bottom(), kOwnStackBytes);
}
void TellEntered(SOwnStackCall& call)
{
    __sanitizer_finish_switch_fiber(nullptr, &call.callerBottom, &call.callerBytes);
}
void TellLeaving(SOwnStackCall& call)
{
    __sanitizer_start_switch_fiber(nullptr, call.callerBottom, call.callerBytes);
}
void TellLeft(SOwnStackCall& call)
{
    __sanitizer_finish_switch_fiber(call.callerFakeStack, nullptr, nullptr);
}
#else
void TellEntering(SOwnStackCall&) {}
void TellEntered(SOwnStackCall&) {}
void TellLeaving(SOwnStackCall&) {}
void TellLeft(SOwnStackCall&) {}
#endif

// makecontext passes integers alone, so the call is found through the thread's variable.
void RunCurrentCall()
{
    SOwnStackCall& call = *g_CurrentCall;
    TellEntered(call);
    try {
        call.work(call.argument);
    } catch (...) {
        call.failure = std::current_exception();
    }
    call.hasRun = true;
    TellLeaving(call);
    setcontext(&call.caller);
}

} // namespace

bool CallOnOwnStack(void (*work)(void*), void* argument)
{
    if (g_CurrentCall != nullptr) {
        work(argument);
        return true;
    }

    const CMappedStack stack;
    SOwnStackCall call;
    if (!stack.IsMapped() || getcontext(&call.callee) != 0)
        return false;
    call.work = work;
    call.argument = argument;
    call.stack = &stack;
    call.callee.uc_stack.ss_sp = stack.Bottom();
    call.callee.uc_stack.ss_size = kOwnStackBytes;
    call.callee.uc_link = nullptr;
    makecontext(&call.callee, &RunCurrentCall, 0);

    // getcontext returns once for the way there and once for the way back. swapcontext would do both in one
    // call, but the address sanitizer prints a warning for it.
    if (getcontext(&call.caller) != 0)
        return false;
    if (!call.hasRun) {
        g_CurrentCall = &call;
        TellEntering(call);
        setcontext(&call.callee);
    }
    TellLeft(call);
    g_CurrentCall = nullptr;

    if (call.failure)
        std::rethrow_exception(call.failure);
    return call.hasRun;
}

std::size_t OwnStackBytesInUse() noexcept
{
    if (g_CurrentCall == nullptr)
        return 0;
    const char* const here = static_cast<const char*>(__builtin_frame_address(0));
    return static_cast<std::size_t>(g_CurrentCall->stack->Top() - here);
}

} // namespace Uve
