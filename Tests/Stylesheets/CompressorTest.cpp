#include "Stylesheets/Archive/Compressor.h"

#include "Tests/Stylesheets/PackedText.h"
#include "Tests/Support/ScratchFolder.h"
#include "UVEnvironment/FileHelper.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <locale>
#include <random>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

// Bytes that hardly shrink, the same in every run.
std::string Noise(std::size_t size)
{
    std::mt19937 random(1);
    std::string noise(size, '\0');
    for (char& byte : noise)
        byte = static_cast<char>(random());
    return noise;
}

class Archive : public testing::Test
{
protected:
    std::string Write(const std::string& bytes) const
    {
        std::string path = (m_Directory / "file").string();
        fs::remove(path);
        EXPECT_TRUE(Uve::File::WriteAllText(path, bytes));
        return path;
    }

    std::string PackedForm(const std::string& path) const
    {
        testing::internal::CaptureStdout();
        EXPECT_TRUE(Compressor::Archive(path));
        const std::string notice = testing::internal::GetCapturedStdout();
        EXPECT_TRUE(notice == "\n" + path + " Unused XSLT = 0\n" ||
                    notice == "\n" + path + " Unused XSLT = 1\n");
        return m_Folder.Read("file");
    }

    const CScratchFolder m_Folder;
    const fs::path m_Directory = m_Folder.Path();
};

TEST(Scrambling, BytesAreThoseOfTheFormat)
{
    // (b + i) xor (i + 5), on eight bits
    struct SCase
    {
        std::size_t position;
        unsigned char plain;
        unsigned char scrambled;
    };
    const SCase cases[] = {
        {0, 0x78, 0x7D},   {1, 0xFF, 0x06},   {2, 0x00, 0x05},
        {250, 0x10, 0xF5}, {255, 0x01, 0x04}, {256, 0x78, 0x7D},
    };
    for (const SCase& c : cases) {
        std::string bytes(c.position + 1, '\0');
        bytes.back() = static_cast<char>(c.plain);
        Compressor::EncryptBuffer(bytes.data(), static_cast<int>(bytes.size()));
        EXPECT_EQ(static_cast<unsigned char>(bytes.back()), c.scrambled) << c.position;
    }
    char untouched = 'x';
    Compressor::EncryptBuffer(&untouched, -1);
    Compressor::DecryptBuffer(&untouched, 0);
    EXPECT_EQ(untouched, 'x');
}

TEST_F(Archive, WhatWasPackedUnpacksToTheSame)
{
    const std::string texts[] = {
        "x",
        "\0"s,
        std::string(255, '\0'),
        Noise(256),
        Noise(257),
        Noise(100000),               // bigger packed than plain
        std::string(5'000'000, 'a'), // the best ratio there is
        "<?xml version=\"1.0\"?><!-- THIS_XSLT_IS_UNUSED -->",
    };
    for (const std::string& text : texts) {
        SCOPED_TRACE(testing::Message() << text.size() << " bytes");
        const bool unused = Compressor::IsXSLTUnused(text);
        const std::string image = PackedForm(Write(text));
        EXPECT_EQ(image.substr(0, image.find('.', image.find('.') + 1) + 1),
                  std::to_string(text.size()) + (unused ? ".1." : ".0."));
        std::string unpacked = "old";
        bool damaged = true;
        EXPECT_EQ(Compressor::ResourceUnarchive(image, unpacked, &damaged), text.size());
        EXPECT_EQ(unpacked, text);
        EXPECT_FALSE(damaged);
    }
}

TEST_F(Archive, HostLocaleLeavesTheHeaderAlone)
{
    struct SGrouping : std::numpunct<char>
    {
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::string text = Noise(1234567);
    const std::string path = Write(text);
    const std::locale old = std::locale::global(std::locale(std::locale::classic(), new SGrouping));
    const std::string image = PackedForm(path);
    std::string unpacked;
    Compressor::ResourceUnarchive(image, unpacked);
    std::locale::global(old);
    EXPECT_EQ(image.substr(0, 10), "1234567.0.");
    EXPECT_EQ(unpacked, text);
}

TEST_F(Archive, NothingIsPackedWithoutAFile)
{
    EXPECT_FALSE(Compressor::Archive(""));
    EXPECT_FALSE(Compressor::Archive((m_Directory / "none").string()));
    EXPECT_FALSE(fs::exists(m_Directory / "none"));
    const std::string path = Write("");
    EXPECT_FALSE(Compressor::Archive(path));
    EXPECT_EQ(fs::file_size(path), 0u);
}

TEST_F(Archive, UnscrambledPayloadsAreForTheOtherTwo)
{
    const std::string text = "some text";
    std::string image = PackedText("9.0.", text);
    Compressor::DecryptBuffer(image.data() + 4, static_cast<int>(image.size()) - 4);
    const std::string path = Write(image);
    Compressor::Unarchive(path);
    EXPECT_EQ(m_Folder.Read("file"), image);
    Compressor::Decompress(path);
    EXPECT_EQ(m_Folder.Read("file"), text);
}

TEST(ArchiveHeader, FieldsAsFarAsTheyGo)
{
    struct SCase
    {
        std::string data;
        bool complete;
        unsigned int size;
        bool unused;
        unsigned int headerLength;
    };
    // 7, true and 77 are what the arguments held before.
    const SCase cases[] = {
        {"123456789.1.x", true, 123456789, true, 12},
        {"4294967295.0.", true, 4294967295u, false, 13},
        {"5.0.\0.x"s, true, 5, false, 4},
        {"0.1.", true, 0, true, 4},
        {"12.0", false, 12, false, 77},
        {"12", false, 7, true, 77},
        {"", false, 7, true, 77},
        {"x.1.", true, 0, true, 4},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.data));
        unsigned int size = 7;
        bool unused = true;
        unsigned int headerLength = 77;
        EXPECT_EQ(Compressor::ParceHeader(c.data, size, unused, headerLength), c.complete);
        EXPECT_EQ(size, c.size);
        EXPECT_EQ(unused, c.unused);
        EXPECT_EQ(headerLength, c.headerLength);
    }
}

TEST(ArchiveDamage, ClaimsThatNoPayloadCanMeetAreRefused)
{
    const std::string text(2000, 'a');
    const std::size_t payload = PackedText("", text).size();
    const std::pair<std::string, bool> cases[] = {
        {std::to_string(payload * 1040) + ".0.", false},
        {std::to_string(payload * 1040 + 1) + ".0.", true},
        {"4294967295.0.", true},
        {"99999999999999999999.0.", true},
        {"-1.0.", true},
        {"2000.0", true}, // no second separator
        {"", true},
    };
    for (const auto& [header, refused] : cases) {
        SCOPED_TRACE(header);
        std::string out = "old";
        bool damaged = false;
        const std::size_t length = Compressor::ResourceUnarchive(PackedText(header, text), out, &damaged);
        EXPECT_TRUE(damaged);
        EXPECT_EQ(length, refused ? 0 : text.size());
        EXPECT_EQ(out.empty(), refused);
    }
    // More than a gigabyte, however long the payload.
    std::string out;
    bool damaged = false;
    EXPECT_EQ(Compressor::ResourceUnarchive("1073741825.0." + std::string(2'000'000, 'x'), out, &damaged),
              0u);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(out.capacity(), std::string().capacity());
}

// A change goes unseen only where it says the same: a flag, the level of compression, a repeat from
// elsewhere.
TEST(ArchiveDamage, NoChangedByteGivesAnotherText)
{
    const std::string text = Noise(40) + std::string(200, 'b');
    const std::string header = std::to_string(text.size()) + ".0.";
    const std::string image = PackedText(header, text);
    std::string out;
    for (std::size_t at = 0; at < image.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            std::string changed = image;
            changed[at] = static_cast<char>(value);
            bool damaged = false;
            const std::size_t length = Compressor::ResourceUnarchive(changed, out, &damaged);
            ASSERT_LE(length, out.size());
            ASSERT_TRUE(damaged || out == text) << at << ": " << value;
        }
    }
}

TEST_F(Archive, PackedIsWhatDoesNotOpenAsXml)
{
    const std::pair<std::string, bool> cases[] = {
        {"<?xml", false},
        {"<?xm", true},
        {"", true},
        {std::string(95, ' ') + "<?xml", false},
        {std::string(96, ' ') + "<?xml", true}, // begins within the hundred bytes but doesn't end there
        {"\0<?xml"s, false},
    };
    for (const auto& [bytes, packed] : cases)
        EXPECT_EQ(Compressor::IsCompressed(Write(bytes)), packed) << testing::PrintToString(bytes);
    EXPECT_FALSE(Compressor::IsCompressed((m_Directory / "none").string()));
}

TEST_F(Archive, GzipTablesComeBackWhole)
{
    const std::string path = Write("something longer than what replaces it");
    for (const std::size_t size : {0u, 1u, 65535u, 65536u, 65537u, 300000u}) {
        const std::string data = Noise(size);
        EXPECT_EQ(CompressBinary(path, data.data(), static_cast<unsigned int>(size)), static_cast<int>(size));
        std::vector<unsigned char> whole;
        EXPECT_EQ(ZFile::ReadWhole(path, whole, size), ZFile::enResult::Done);
        EXPECT_EQ(std::string(whole.begin(), whole.end()), data);
        if (size != 0) {
            EXPECT_EQ(ZFile::ReadWhole(path, whole, size - 1), ZFile::enResult::TooLarge);
            EXPECT_TRUE(whole.empty());
        }
    }
    EXPECT_EQ(CompressBinary((m_Directory / "none/file").string(), "x", 1), 0);
}

TEST_F(Archive, GzipDamageReachesTheReader)
{
    constexpr unsigned int kHalf = 50000;
    constexpr unsigned int kWhole = 2 * kHalf;
    const std::string data = Noise(kWhole);
    const std::string path = Write("");
    ASSERT_EQ(CompressBinary(path, data.data(), kWhole), static_cast<int>(kWhole));
    const std::string packed = m_Folder.Read("file");
    std::string bytes(kWhole, '\0');
    std::vector<unsigned char> whole;
    // The two bytes of the magic number tell gzip from plain; after them every truncation shows.
    for (std::size_t size = 2; size < packed.size();
         size += size < 20 || size + 20 > packed.size() ? 1u : 997u) {
        Write(packed.substr(0, size));
        EXPECT_EQ(ZFile::ReadWhole(path, whole, 1u << 20), ZFile::enResult::Damaged) << size;
        ZFile file;
        ASSERT_TRUE(file.Open(path));
        file.Read(bytes.data(), kWhole);
        EXPECT_TRUE(file.AtEnd());
        EXPECT_TRUE(file.Failed()) << size;
    }

    // A checksum that doesn't fit is seen only where the end was reached.
    std::string flipped = packed;
    flipped[packed.size() - 6] ^= 1;
    Write(flipped);
    EXPECT_EQ(ZFile::ReadWhole(path, whole, 1u << 20), ZFile::enResult::Damaged);
    ZFile file;
    ASSERT_TRUE(file.Open(path));
    EXPECT_EQ(file.Read(bytes.data(), kHalf), static_cast<int>(kHalf));
    EXPECT_FALSE(file.Failed());
    file.Read(bytes.data(), kHalf);
    EXPECT_TRUE(file.AtEnd());
    EXPECT_TRUE(file.Failed());

    file.Close();
    EXPECT_EQ(file.Read(bytes.data(), 1), 0);
    EXPECT_FALSE(file.Open((m_Directory / "none").string()));
    EXPECT_EQ(ZFile::ReadWhole((m_Directory / "none").string(), whole, 1), ZFile::enResult::NotOpened);
    Write("plain");
    EXPECT_EQ(ZFile::ReadWhole(path, whole, 100), ZFile::enResult::Done);
    EXPECT_EQ(std::string(whole.begin(), whole.end()), "plain");
}

} // namespace
