#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

void ExpectPrepared(const SPassCase& expected, const SPreparedText& prepared)
{
    SCOPED_TRACE(testing::Message() << "source:\n" << expected.input);
    EXPECT_EQ(static_cast<const std::string&>(prepared.text), expected.output);
    EXPECT_EQ(prepared.sourceLines, expected.sourceLines);
    ExpectLinesAreKept(expected.input, prepared);
}

void ExpectLinesAreKept(std::string_view source, const SPreparedText& prepared)
{
    const bool isOpen = !prepared.text.empty() && prepared.text.back() != '\n';
    const auto lineFeeds = static_cast<std::size_t>(std::ranges::count(prepared.text, '\n'));
    ASSERT_EQ(prepared.sourceLines.size(), lineFeeds + (isOpen ? 1 : 0));
    if (prepared.sourceLines.empty())
        return;
    EXPECT_EQ(std::ranges::adjacent_find(prepared.sourceLines, std::ranges::greater_equal()),
              prepared.sourceLines.end());
    EXPECT_GE(prepared.sourceLines.front(), 1u);
    EXPECT_LE(prepared.sourceLines.back(), 1 + std::ranges::count(source, '\n'));
}

std::vector<std::string> LinesOf(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string Padded(std::string text, std::size_t width)
{
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

std::string RandomText(std::mt19937& random, const std::vector<std::string>& pieces, std::size_t longest)
{
    std::string text;
    for (std::size_t left = random() % (longest + 1); left != 0; --left)
        text += pieces[random() % pieces.size()];
    return text;
}

std::vector<SCorpusFile> CorpusFiles(const char* folder)
{
    const char* const corpus = std::getenv("UV_CORPUS");
    if (corpus == nullptr || *corpus == '\0')
        return {};
    const std::filesystem::path root = std::filesystem::path(corpus) / folder;
    EXPECT_TRUE(std::filesystem::is_directory(root)) << root;
    std::vector<SCorpusFile> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root, error)) {
        const std::string name = entry.path().filename().string();
        if (!entry.is_regular_file() || name.starts_with("LICENSE") || name.starts_with("README"))
            continue;
        std::ifstream stream(entry.path(), std::ios::binary);
        files.push_back({entry.path().string(), std::string(std::istreambuf_iterator<char>(stream), {})});
    }
    EXPECT_FALSE(files.empty()) << root;
    std::ranges::sort(files, {}, &SCorpusFile::path);
    return files;
}
