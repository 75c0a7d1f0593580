#include "UVEnvironment/FileHelper.h"

#include "Tests/Support/ScratchFolder.h"
#include "UVEnvironment/UVECompat.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using namespace std::string_view_literals;
using Uve::U8CString;

// A directory of its own for each test.
class FileHelper : public testing::Test
{
protected:
    U8CString PathOf(const std::string& name) const { return m_Folder.Path(name); }
    U8CString Write(const std::string& name, const std::string& bytes) const
    {
        return m_Folder.Write(name, bytes);
    }

    const CScratchFolder m_Folder;
};

TEST(Path, CombineTakesWhatIsAbsolute)
{
    struct SCase
    {
        const char *a, *b, *combined;
    };
    const SCase cases[] = {
        {"a", "b", "a/b"}, {"a/", "b", "a/b"}, {"a", "/b", "/b"}, {"", "b/../c", "b/../c"},
        {"a", "", "a"},    {"", "", ""},       {"/", "b", "/b"},  {"a", "..", "a/.."},
    };
    for (const SCase& c : cases)
        EXPECT_EQ(Uve::Path::Combine(c.a, c.b), c.combined) << c.a << ' ' << c.b;
    EXPECT_EQ(Uve::Path::Combine("a", "/b", "c"), "/b/c");
}

TEST(Path, PartsOfAPath)
{
    struct SCase
    {
        const char *path, *directory, *stem, *extension;
    };
    const SCase cases[] = {
        {"/a/b.tar.gz", "/a", "b.tar", ".gz"},
        {"b", "", "b", ""},
        {"/a.b/c", "/a.b", "c", ""},
        {"a/.rc", "a", ".rc", ""},
        {"a/", "a", "", ""},
        {"a/\xFF.x", "a", "\xFF", ".x"},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(c.path);
        const U8CString path = c.path;
        EXPECT_EQ(Uve::Path::GetDirectory(path), c.directory);
        EXPECT_EQ(Uve::Path::GetFileName(path, false), c.stem);
        EXPECT_EQ(Uve::Path::GetFileName(path, true), std::string(c.stem) + c.extension);
        EXPECT_EQ(Uve::Path::GetExtension(path, true), c.extension);
        EXPECT_EQ(Uve::Path::GetExtension(path, false), c.extension + (*c.extension == '.' ? 1 : 0));
        EXPECT_EQ(Uve::Path::IsAbsolute(path), *c.path == '/');
        EXPECT_NE(Uve::Path::IsRelative(path), *c.path == '/');
    }
}

TEST(Path, FullPathsHaveNoDots)
{
    const fs::path current = fs::current_path();
    EXPECT_EQ(Uve::Path::GetCurrentPath(), current.string());
    EXPECT_EQ(Uve::Path::GetFullPath("b/../c/./d", "/a/x"), "/a/x/c/d");
    EXPECT_EQ(Uve::Path::GetFullPath("/b/../c", "/a"), "/c");
    EXPECT_EQ(Uve::Path::GetFullPath("b", "a"), (current / "a/b").string());
    EXPECT_EQ(Uve::Path::GetFullPath("b"), (current / "b").string());
    EXPECT_EQ(Uve::Path::GetExePath(), fs::read_symlink("/proc/self/exe").string());
    EXPECT_EQ(Uve::GetPathOfExe() + "/" + Uve::Path::GetFileName(Uve::Path::GetExePath(), true),
              Uve::Path::GetExePath());
}

TEST_F(FileHelper, WritingOverALongerFileKeepsItsTail)
{
    constexpr const char* kName = "t\xC3\xA9.txt";
    const U8CString path = PathOf(kName);
    EXPECT_TRUE(Uve::File::WriteAllText(path, "first\0text"sv));
    EXPECT_EQ(m_Folder.Read(kName), "first\0text"s);
    EXPECT_TRUE(Uve::File::WriteAllText(path, "2nd"));
    EXPECT_EQ(m_Folder.Read(kName), "2ndst\0text"s);
    EXPECT_EQ(Uve::File::GetFileSize(path), 10);
    EXPECT_FALSE(Uve::File::WriteAllText(PathOf("none/t"), "x"));
    EXPECT_EQ(Uve::File::GetFileSize(PathOf("none/t")), -1);
}

TEST_F(FileHelper, MarkDecidesAndAnExplicitEncodingTrustsInOne)
{
    using namespace Uve::File;
    struct SCase
    {
        std::string_view bytes;
        Encoding requested;
        Encoding encoding;
        int markLength;
        std::string_view text;
    };
    // clang-format off
    const SCase cases[] = {
        {"\xFF\xFE\0\0a\0\0\0"sv,     ENCODING_AUTO,    ENCODING_UTF32LE, 4, "a"},
        {"\xFF\xFE\0\0"sv,            ENCODING_UTF16LE, ENCODING_UTF32LE, 4, ""},
        {"\xFF\xFE" "a\0\0\0"sv,      ENCODING_AUTO,    ENCODING_UTF16LE, 2, "a\0"sv},
        {"\xFF\xFE\0"sv,              ENCODING_AUTO,    ENCODING_UTF16LE, 2, ""},
        {"\xFE\xFF\x20\xAC"sv,        ENCODING_SYSTEM,  ENCODING_UTF16BE, 2, "\u20AC"},
        {"\xEF\xBB\xBF\u20AC"sv,      ENCODING_UTF32BE, ENCODING_UTF8,    3, "\u20AC"},
        {"\0\0\xFE\xFF\0\0\0a"sv,     ENCODING_AUTO,    ENCODING_UTF32BE, 4, "a"},
        {"\xEF\xBB"sv,                ENCODING_AUTO,    ENCODING_AUTO,    0, "\xEF\xBB"},
        {"a"sv,                       ENCODING_UTF16LE, ENCODING_UTF16LE, 2, ""},
        {""sv,                        ENCODING_UTF32LE, ENCODING_UTF32LE, 4, ""},
        {"abc\0d"sv,                  ENCODING_AUTO,    ENCODING_AUTO,    0, "abc"},
        {"abc\0d"sv,                  ENCODING_SYSTEM,  ENCODING_SYSTEM,  0, "abc\0d"sv},
        {"abcde"sv,                   ENCODING_UTF8,    ENCODING_UTF8,    3, "de"},
        {"a\0b\0c\0"sv,               ENCODING_UTF16LE, ENCODING_UTF16LE, 2, "bc"},
        {"\0a\0b\0c"sv,               ENCODING_UTF16BE, ENCODING_UTF16BE, 2, "bc"},
    };
    // clang-format on
    for (const SCase& c : cases) {
        SCOPED_TRACE(testing::Message() << testing::PrintToString(c.bytes) << ' ' << c.requested);
        std::istringstream stream{std::string(c.bytes)};
        const SEncodingMark mark = DetectEncoding(stream, c.requested);
        EXPECT_EQ(mark.encoding, c.encoding);
        EXPECT_EQ(mark.markLength, c.markLength);
        EXPECT_EQ(ReadAllText(Write("text", std::string(c.bytes)), c.requested), std::string(c.text));
    }
}

TEST_F(FileHelper, UnreadableFilesAreToldApart)
{
    using namespace Uve::File;
    const auto reading = [](const U8CString& path, Encoding encoding) {
        return [=] { ReadAllText(path, encoding); };
    };
    const auto missing =
        testing::ThrowsMessage<std::runtime_error>("Unable to open file. File does not exists.");
    EXPECT_THAT(reading(PathOf("none"), ENCODING_AUTO), missing);
    EXPECT_THAT(reading(PathOf("."), ENCODING_AUTO), missing);
    EXPECT_THAT(reading(Write("a", "text"), static_cast<Encoding>(7)),
                testing::ThrowsMessage<std::runtime_error>("Unable to detect file encoding."));
}

TEST_F(FileHelper, DirectoriesListTheirFilesByMask)
{
    for (const char* name : {"b.xsl", "a.xsl", "a.xs", "\xC3\xA9.xsl", "A.XSL", "a.xsl_"})
        Write(name, "");
    Uve::Directory::Create(PathOf("d.xsl"));
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"*.xsl", {"a.xsl", "b.xsl", "\xC3\xA9.xsl"}},
        {"?.xsl", {"a.xsl", "b.xsl", "\xC3\xA9.xsl"}},
        {"a*s*", {"a.xs", "a.xsl", "a.xsl_"}},
        {"a.xsl", {"a.xsl"}},
        {"*.*.*", {}},
        {"", {}},
    };
    for (const auto& [mask, names] : cases) {
        std::vector<U8CString> expected;
        for (const std::string& name : names)
            expected.push_back(PathOf(name));
        EXPECT_EQ(Uve::Directory::GetFiles(m_Folder.Path(), mask), expected) << mask;
    }
    EXPECT_EQ(Uve::Directory::GetFiles(m_Folder.Path()).size(), 6u);
    EXPECT_TRUE(Uve::Directory::GetFiles(PathOf("none")).empty());
}

TEST_F(FileHelper, DeletingSparesTheOtherKind)
{
    const U8CString file = Write("f", "x");
    EXPECT_TRUE(Uve::Directory::Create(PathOf("d/e")));
    EXPECT_TRUE(Uve::File::Delete(PathOf("d")));
    EXPECT_TRUE(Uve::Directory::Delete(file, true));
    EXPECT_TRUE(Uve::File::Exists(file));
    EXPECT_FALSE(Uve::Directory::Delete(PathOf("d"), false)); // not empty
    EXPECT_TRUE(Uve::Directory::Delete(PathOf("d"), true));
    EXPECT_FALSE(Uve::Directory::Exists(PathOf("d")));
    EXPECT_TRUE(Uve::File::Delete(file));
    EXPECT_FALSE(Uve::File::Exists(file));
}

TEST_F(FileHelper, FullDirectoryMakesWhatIsMissing)
{
    Write("file", "");
    const std::pair<const char*, bool> cases[] = {
        {"a/b/c", true}, {"a/b/c", true},   {"a/b/d/", true},
        {"e//f", true},  {"file/g", false}, {"file", false},
    };
    for (const auto& [name, made] : cases) {
        const U8CString path = PathOf(name);
        EXPECT_EQ(Uve::UVMakeFullDir(path.c_str()), made) << name;
        EXPECT_EQ(fs::is_directory(path.c_str()), made) << name;
    }
    EXPECT_FALSE(Uve::UVMakeFullDir(""));
    EXPECT_FALSE(Uve::UVMakeFullDir(nullptr));
    EXPECT_EQ(fs::status(m_Folder.Path("a/b")).permissions(), fs::perms::owner_all);
}

TEST(ScriptLines, BlankLinesDoNotCount)
{
    const std::pair<const char*, int> cases[] = {
        {"", 0}, {"a", 1}, {"a\n", 1}, {"a\nb", 2}, {"\n\na\n\n\u20AC\n", 2}, {"\n", 0}};
    for (const auto& [text, lines] : cases)
        EXPECT_EQ(Uve::GetScriptQuantityLines(text), lines) << testing::PrintToString(text);
}

} // namespace
