#include "Parser/UVDBErrorInfo.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct SBufferCase
{
    std::size_t size; // of the buffer
    const char* copied;
    std::size_t length;
};

constexpr SBufferCase kBuffers[] = {
    //  size copied  length
    {0, "######", 4},                // asks for the length alone
    {1, "", 0},       {4, "abc", 3}, // no room for the terminator: the last byte goes
    {5, "abcd", 4},   {6, "abcd", 4},
};

TEST(ErrorInfo, BufferSizeDecidesWhatIsCopied)
{
    CUVDBErrorInfo error;
    error.Description = "abcd";
    IUVDBErrorInfo& record = error;
    for (const SBufferCase& c : kBuffers) {
        SCOPED_TRACE(c.size);
        std::string buffer(6, '#');
        std::size_t length = 99;
        EXPECT_EQ(record.get_Description(buffer.data(), c.size, &length), UVDB_OK);
        EXPECT_STREQ(buffer.c_str(), c.copied);
        EXPECT_EQ(length, c.length);
    }
}

TEST(ErrorInfo, EachGetterReadsItsOwnText)
{
    CUVDBErrorInfo error;
    error.Description = "a";
    error.NativeInfo = "bb";
    error.FailedQuery = "ccc";
    error.Code = -5;
    std::size_t expected = 0;
    for (const auto getter : {&IUVDBErrorInfo::get_Description, &IUVDBErrorInfo::get_NativeInfo,
                              &IUVDBErrorInfo::get_FailedQuery}) {
        std::size_t length = 0;
        (error.*getter)(nullptr, 0, &length);
        EXPECT_EQ(length, ++expected);
    }
    long code = 0;
    EXPECT_EQ(error.get_Code(&code), UVDB_OK);
    EXPECT_EQ(code, -5);
}

TEST(ErrorInfo, NullArgumentsAreRefused)
{
    CUVDBErrorInfo error;
    char buffer[4];
    std::size_t length = 0;
    EXPECT_EQ(error.get_Code(nullptr), UVDB_INVALID_ARGUMENT);
    EXPECT_EQ(error.get_ErrorList(nullptr), UVDB_INVALID_ARGUMENT);
    EXPECT_EQ(error.get_Description(buffer, sizeof buffer, nullptr), UVDB_ERROR);
    EXPECT_EQ(error.get_Description(nullptr, 4, &length), UVDB_INVALID_ARGUMENT);
}

} // namespace
