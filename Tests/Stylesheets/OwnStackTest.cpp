#include "Stylesheets/OwnStack.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

// The sanitizer needs address space itself.
#if defined(__SANITIZE_ADDRESS__)
#define UV_TEST_UNDER_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define UV_TEST_UNDER_ADDRESS_SANITIZER
#endif
#endif

namespace {

using Uve::CallOnOwnStack;
using Uve::OwnStackBytesInUse;

// The compiler can neither fold the levels into a loop nor shrink their frames.
__attribute__((noinline)) std::size_t Recurse(std::size_t levels)
{
    char frame[512];
    asm volatile("" : : "r"(frame) : "memory");
    const std::size_t deepest = levels == 0 ? OwnStackBytesInUse() : Recurse(levels - 1);
    asm volatile("" : : "r"(frame) : "memory");
    return deepest;
}

// Pages of this process: all that are mapped, and those in memory.
struct SPages
{
    std::size_t mapped = 0;
    std::size_t resident = 0;
};

SPages PagesOfProcess()
{
    SPages pages;
    std::ifstream("/proc/self/statm") >> pages.mapped >> pages.resident;
    return pages;
}

TEST(OwnStack, HoldsFarMoreThanTheCallersStack)
{
    const SPages before = PagesOfProcess();
    std::size_t deepest = 0;
    ASSERT_TRUE(CallOnOwnStack([&] { deepest = Recurse(400'000); }));
    EXPECT_GT(deepest, std::size_t{200} << 20);
    EXPECT_LT(deepest, Uve::kOwnStackBytes);

    // All of it went back. The sanitizer keeps some of its own.
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const SPages after = PagesOfProcess();
    EXPECT_LT(after.resident * page, before.resident * page + (std::size_t{100} << 20));
    EXPECT_LT(after.mapped * page, before.mapped * page + Uve::kOwnStackBytes / 2);
}

TEST(OwnStack, ExceptionsArriveAtTheCaller)
{
    std::string what;
    try {
        EXPECT_TRUE(CallOnOwnStack([] {
            Recurse(1000);
            throw std::runtime_error("from below");
        }));
    } catch (const std::runtime_error& failure) {
        what = failure.what();
    }
    EXPECT_EQ(what, "from below");
    EXPECT_EQ(OwnStackBytesInUse(), 0u);
    // And the next call is a first one again.
    bool hasRun = false;
    EXPECT_TRUE(CallOnOwnStack([&] { hasRun = OwnStackBytesInUse() > 0; }));
    EXPECT_TRUE(hasRun);
}

TEST(OwnStack, ACallInsideACallStaysOnItsStack)
{
    std::size_t outer = 0;
    std::size_t inner = 0;
    ASSERT_TRUE(CallOnOwnStack([&] {
        outer = OwnStackBytesInUse();
        EXPECT_TRUE(CallOnOwnStack([&] { inner = OwnStackBytesInUse(); }));
        EXPECT_THROW((void)CallOnOwnStack([] { throw 1; }), int);
        EXPECT_GT(OwnStackBytesInUse(), 0u);
    }));
    EXPECT_GT(outer, 0u);
    EXPECT_GT(inner, outer);
    EXPECT_LT(inner, outer + 65536);
}

#ifndef UV_TEST_UNDER_ADDRESS_SANITIZER
TEST(OwnStack, WithoutAddressSpaceNothingRuns)
{
    rlimit earlier;
    ASSERT_EQ(getrlimit(RLIMIT_AS, &earlier), 0);
    const std::size_t used = PagesOfProcess().mapped * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    rlimit tight = earlier;
    tight.rlim_cur = used + Uve::kOwnStackBytes / 2;
    ASSERT_EQ(setrlimit(RLIMIT_AS, &tight), 0);
    bool hasRun = false;
    const bool answer = CallOnOwnStack([&] { hasRun = true; });
    ASSERT_EQ(setrlimit(RLIMIT_AS, &earlier), 0);
    EXPECT_FALSE(answer);
    EXPECT_FALSE(hasRun);
}
#endif

} // namespace
