// Reserved words, and how long a name may be.
#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "Catalogue/UVDBHelpers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

constexpr std::uint64_t kNone = ~std::uint64_t{0};

struct SWordCase
{
    std::uint64_t db;
    std::uint64_t subType;
    std::string_view word;
    bool isReserved;
};

// Words by which the lists of neighbouring kinds and subtypes differ.
constexpr SWordCase kWords[] = {
    // db  subtype word          reserved
    {0, kNone, "SELECT", true},     {1, kNone, "VARCHAR2", true},
    {2, kNone, "CLUSTERED", true},  {8, kNone, "VARCHAR2", false},
    {8, kNone, "ANALYSE", true},    {8, kNone, "analyse", true},
    {8, kNone, "aNaLySe", true},    {8, kNone, "ANALYS", false},
    {8, kNone, "ANALYSES", false},  {8, kNone, "\"ANALYSE\"", false},
    {8, kNone, "", false},          {8, kNone, "\xC3\xBC", false},
    {19, kNone, "namespace", true}, {19, kNone, "VARCHAR2", false},
    {130, kNone, "ZEROFILL", true}, // shares the list of MySQL
    {12, kNone, "SELECT", false},   // a kind without a list
    {60, kNone, "SELECT", false},   {kNone, kNone, "SELECT", false},
};

TEST(ReservedWords, AreLookedUpWholeAndWithoutRegardToCase)
{
    for (const auto& c : kWords) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.word);
        EXPECT_EQ(UVDBIsReservedWord(c.word, {.db = c.db, .subType = c.subType}), c.isReserved);
    }
}

TEST(ReservedWords, SubtypesChooseTheList)
{
    const auto words = [](std::uint64_t db, std::uint64_t subType) {
        return GetReservedWords({.db = db, .subType = subType}).data();
    };
    EXPECT_NE(words(4, 1), words(4, 0));
    EXPECT_EQ(words(4, kNone), words(4, 0));
    EXPECT_NE(words(5, 1), words(5, kNone));
    EXPECT_EQ(words(130, 1), words(5, kNone)) << "the subtype of another kind means nothing here";
    EXPECT_NE(words(9, 0), words(9, 1));
    EXPECT_EQ(words(9, kNone), words(9, 1));
    EXPECT_EQ(words(61, kNone), words(14, kNone));
}

// Each list is searched by halves, so a word out of order would be there and not be found.
TEST(ReservedWords, EveryWordIsFoundInEitherCase)
{
    std::size_t lists = 0;
    for (std::uint64_t db = 0; db < 200; ++db) {
        const DB_VERSION_INFO version{.db = db, .subType = 1};
        lists += !GetReservedWords(version).empty();
        for (const std::string_view word : GetReservedWords(version)) {
            std::string lower(word);
            std::ranges::transform(lower, lower.begin(),
                                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
            ASSERT_TRUE(UVDBIsReservedWord(word, version)) << db << ' ' << word;
            ASSERT_TRUE(UVDBIsReservedWord(lower, version)) << db << ' ' << word;
        }
    }
    EXPECT_EQ(lists, 33u);
}

struct SSizeCase
{
    std::uint64_t db;
    std::uint64_t subType;
    std::uint64_t major;
    std::uint64_t minor;
    unsigned long type;
    const char* word;
    long size;
};

constexpr SSizeCase kSizes[] = {
    // db  sub    version       type  word    size
    {1, kNone, 12, 1, 0, "", 30},
    {1, kNone, 12, 2, 0, "", 128},
    {1, kNone, 11, 9, 0, "", 30},
    {1, kNone, 19, 0, 0, "", 128},
    {1, kNone, kNone, kNone, 0, "", 128}, // an unknown version is the newest
    {1, kNone, 12, 1, 38, "", 0},
    {1, kNone, 19, 0, 38, "", 0},
    // the three families of DB2
    {0, 2, 7, 1, 12, "", 18},
    {0, 2, 7, 1, 17, "", 0},
    {0, 2, 7, 1, 22, "", 30},
    {0, 2, 7, 1, 38, "", 128},
    {0, 2, 7, 1, 11, "", 128},
    {0, 2, 7, 1, 41, "", 128},
    {0, 1, 8, 9, 8, "", 8},
    {0, 1, 8, 9, 17, "", 0},
    {0, 1, 8, 9, 22, "", 18},
    {0, 1, 8, 9, 24, "", 128},
    {0, 1, 9, 0, 8, "", 128},
    {0, 1, 9, 0, 17, "", 255},
    {0, 1, 9, 0, 39, "", 30},
    {0, kNone, 8, 4, 17, "", 30},
    {0, kNone, 8, 4, 21, "", 18},
    {0, kNone, 8, 4, 26, "", 128},
    {0, kNone, 8, 5, 17, "", 128},
    {0, kNone, 9, 0, 21, "", 128},
    {0, kNone, 9, 0, 38, "", 0},
    {11, 0, 8, 4, 40, "", 30},
    {37, 1, 2, 0, 10, "", 18},
    {2, kNone, 15, 0, 0, "temp", 115},
    {2, kNone, 15, 0, 0, "TEMP", 115},
    {2, kNone, 15, 0, 0, "temp1", 128},
    {2, kNone, 15, 0, 17, "temp", 128},
    {2, kNone, 15, 0, 0, nullptr, 128},
    {4, 1, 16, 0, 42, "", 30},
    {4, 1, 16, 0, 38, "", 0},
    {4, 0, 16, 0, 39, "", 128},
    {4, 0, 16, 0, 38, "", 0},
    {4, 0, 16, 0, 40, "", 255},
    {5, kNone, 8, 0, 39, "", 18},
    {42, kNone, 8, 0, 0, "", 64},
    {6, kNone, 8, 0, 20, "", 20},
    {6, kNone, 8, 0, 21, "", 30},
    {7, kNone, 9, 3, 0, "", 18},
    {70, kNone, 9, 4, 0, "", 128},
    {8, kNone, 15, 0, 0, "", 63},
    {8, kNone, 15, 0, 1000, "", 63},
    {34, kNone, 13, 99, 0, "", 30},
    {34, kNone, 14, 0, 0, "", 128},
    {36, kNone, 3, 0, 38, "", 0},
    {43, kNone, 3, 0, 38, "", 30},
    {12, kNone, 0, 0, 0, "", 255},
    {131, kNone, 0, 0, 0, "", 255},
    {kNone, kNone, 0, 0, 1000, "", 255},
};

TEST(IdentifierSizes, DependOnVersionTypeAndWord)
{
    for (const auto& c : kSizes) {
        SCOPED_TRACE(testing::Message() << "db " << c.db << '/' << c.subType << ' ' << c.major << '.'
                                        << c.minor << " type " << c.type);
        EXPECT_EQ(
            GetDBMSMaxIdentifierSize(c.type, MakeDbVersionInfo(c.db, c.subType, c.major, c.minor), c.word),
            c.size);
    }
}

} // namespace
