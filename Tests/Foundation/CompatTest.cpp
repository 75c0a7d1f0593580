#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/UVEBuffer.h"
#include "UVEnvironment/UVECompat.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <string>

namespace {

namespace Compat = Uve::Compat;
using Uve::U8CString;

TEST(Compat, ComparisonIgnoresTheCaseOfAsciiAlone)
{
    struct SCase
    {
        const char *a, *b;
        int sign;
    };
    const SCase cases[] = {
        {"-CL", "-cl", 0},           {"a", "B", -1},        {"ab", "A", 1}, {"", nullptr, 0}, {"Z", "_", 1},
        {"\xC3\xA9", "\xC3\x89", 1}, {"a", "\xC3\x89", -1},
    };
    for (const SCase& c : cases) {
        const int result = Compat::stricmp(c.a, c.b);
        EXPECT_EQ((result > 0) - (result < 0), c.sign) << c.a;
    }
    EXPECT_EQ(Compat::_strnicmp("abX", "ABy", 2), 0);
    EXPECT_NE(Compat::_strnicmp("abX", "ABy", 3), 0);
    EXPECT_EQ(Compat::_strnicmp("ab", "AB", 9), 0);
}

TEST(Compat, BoundedCopiesFitOrLeaveNothing)
{
    char target[4] = "xxx";
    EXPECT_EQ(Compat::strcpy_s(target, sizeof target, "abc"), 0);
    EXPECT_STREQ(target, "abc");
    EXPECT_EQ(Compat::strcpy_s(target, sizeof target, "abcd"), ERANGE);
    EXPECT_STREQ(target, "");
    EXPECT_EQ(Compat::strcat_s(target, sizeof target, "ab"), 0);
    EXPECT_EQ(Compat::strcat_s(target, sizeof target, "c"), 0);
    EXPECT_STREQ(target, "abc");
    EXPECT_EQ(Compat::strcat_s(target, sizeof target, "d"), ERANGE);
    EXPECT_EQ(Compat::strncpy_s(target, sizeof target, "abcdef", 3), 0);
    EXPECT_STREQ(target, "abc");
    EXPECT_EQ(Compat::strncpy_s(target, sizeof target, "abcdef", 4), ERANGE);
    EXPECT_EQ(Compat::strcpy_s(target, sizeof target, nullptr), EINVAL);
    EXPECT_STREQ(target, "");

    char unterminated[3] = {'a', 'b', 'c'};
    EXPECT_EQ(Compat::strcat_s(unterminated, sizeof unterminated, ""), ERANGE);
    unterminated[0] = 'a';
    EXPECT_EQ(Compat::_strupr_s(unterminated, sizeof unterminated), EINVAL);
    EXPECT_EQ(Compat::memcpy_s(unterminated, sizeof unterminated, "abcd", 4), ERANGE);
    EXPECT_EQ(unterminated[2], '\0');
}

TEST(Compat, PathsAreSplitAtTheLastDotOfTheName)
{
    struct SCase
    {
        const char* path;
        const char* parts[4];
    };
    const SCase cases[] = {
        {"/a.b/c.d.e", {"", "/a.b/", "c.d", ".e"}},
        {"/a.b/c", {"", "/a.b/", "c", ""}},
        {".rc", {"", "", "", ".rc"}},
        {"a/", {"", "a/", "", ""}},
        {nullptr, {"", "", "", ""}},
    };
    std::string buffers[4];
    for (std::string& buffer : buffers)
        buffer.resize(Compat::kSplitPathSize);
    for (const SCase& c : cases) {
        Compat::_splitpath(c.path, buffers[0].data(), buffers[1].data(), buffers[2].data(),
                           buffers[3].data());
        for (int i = 0; i < 4; ++i)
            EXPECT_STREQ(buffers[i].c_str(), c.parts[i]) << c.parts[1] << ' ' << i;
    }
    Compat::_splitpath(std::string(10000, 'x').c_str(), nullptr, nullptr, buffers[2].data(), nullptr);
    EXPECT_EQ(std::strlen(buffers[2].c_str()), Compat::kSplitPathSize - 1);
}

TEST(Compat, TemporaryFilesAreMade)
{
    U8CString directory;
    ASSERT_EQ(Compat::GetTempPathW(directory), 1);
    U8CString first;
    U8CString second;
    ASSERT_EQ(Compat::GetTempFileNameW(directory, "prefix", 0x2a, first), 1u);
    ASSERT_EQ(Compat::GetTempFileNameW(directory, "", 0, second), 1u);
    EXPECT_EQ(first.Find(Uve::Path::Combine(directory, "pre2a")), 0);
    EXPECT_EQ(Uve::Path::GetDirectory(second), Uve::Path::GetDirectory(first));
    EXPECT_EQ(Uve::File::GetFileSize(first), 0);
    EXPECT_EQ(Uve::File::GetFileSize(second), 0);
    Uve::File::Delete(first);
    Uve::File::Delete(second);
    EXPECT_EQ(Compat::GetTempFileNameW("/no/such/place", "a", 0, first), 0u);
    EXPECT_EQ(first, "");
}

TEST(IniFile, ValuesAreFoundAsPeopleWriteThem)
{
    const char* const kContent = "\xEF\xBB\xBF; [Main]\n"
                                 "early = outside\r\n"
                                 "[ Main ]\r\n"
                                 ";key = comment\r\n"
                                 "key = first ; not a comment\r\n"
                                 "KEY = second\r\n"
                                 "quoted=\" blanks \"\r\n"
                                 "open=\"x\n"
                                 "empty=\n"
                                 "no value\n"
                                 "a=b=c\n"
                                 "number= -12abc\n"
                                 "hex=0xFFFFFFFF\n"
                                 "huge=99999999999\n"
                                 "[Other\n"
                                 "key=other\n"
                                 "[Main]\n"
                                 "late=again";
    U8CString directory;
    ASSERT_EQ(Compat::GetTempPathW(directory), 1);
    U8CString path;
    ASSERT_EQ(Compat::GetTempFileNameW(directory, "ini", 0, path), 1u);
    ASSERT_TRUE(Uve::File::WriteAllText(path, kContent));

    struct SCase
    {
        const char *section, *key, *text;
        int number;
    };
    const SCase cases[] = {
        {"main", "Key", "first ; not a comment", 0},
        {"MAIN", "quoted", " blanks ", 0},
        {"Main", "open", "\"x", 0},
        {"Main", "empty", "", 0},
        {"Main", "no value", "default", 7},
        {"Main", "a", "b=c", 0},
        {"Main", "number", "-12abc", -12},
        {"Main", "hex", "0xFFFFFFFF", -1},
        {"Main", "huge", "99999999999", INT_MAX},
        {"Main", "early", "default", 7},
        {"Main", "late", "default", 7}, // the first section of a name is the one
        {"Other", "KEY", "other", 0},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.section << ' ' << c.key);
        U8CString text;
        EXPECT_EQ(Compat::GetPrivateProfileString(c.section, c.key, "default", text, path),
                  std::strlen(c.text));
        EXPECT_EQ(text, c.text);
        EXPECT_EQ(Compat::GetPrivateProfileInt(c.section, c.key, 7, path), c.number);
    }
    Uve::File::Delete(path);
    EXPECT_EQ(Compat::GetPrivateProfileInt("Main", "number", 7, path), 7);
}

TEST(Buffer, GrowthKeepsTheBytesAndZeroesTheRest)
{
    Uve::UVBuffer buffer;
    buffer.Assign("abcdef", 6);
    buffer.Resize(3);
    buffer.Resize(6); // the old bytes are gone for good
    EXPECT_EQ(std::memcmp(buffer.GetData(), "abc\0\0\0", 6), 0);
    buffer.ReserveMemory(100000);
    const unsigned char* const reserved = buffer.GetData();
    buffer.Resize(100000);
    EXPECT_EQ(buffer.GetData(), reserved);
    EXPECT_EQ(std::memcmp(buffer.GetData(), "abc\0", 4), 0);
    EXPECT_EQ(buffer.GetData()[99999], 0);

    buffer.Assign(buffer.GetData() + 1, 2); // from its own bytes
    EXPECT_EQ(std::memcmp(buffer.GetData(), "bc", 2), 0);
    Uve::UVBuffer copy = buffer;
    copy.GetData()[0] = 'x';
    EXPECT_EQ(buffer.GetData()[0], 'b');
    buffer = copy;
    EXPECT_EQ(std::memcmp(buffer.GetData(), "xc", 2), 0);
    EXPECT_EQ(buffer.GetSize(), 2u);
    buffer.Assign("0123456789", 10);
    buffer.Resize(2);
    buffer.Realloc(10); // nor do these come back
    EXPECT_EQ(std::memcmp(buffer.GetData(), "01\0\0\0\0\0\0\0\0", 10), 0);
    buffer.Assign("xc", 2);
    buffer.Realloc(1);
    EXPECT_EQ(buffer.GetCapacity(), 1u);
    buffer.Realloc(0);
    EXPECT_EQ(buffer.GetData(), nullptr);
}

} // namespace
