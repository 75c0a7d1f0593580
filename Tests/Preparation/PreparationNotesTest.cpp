#include "Preparation/PreparationNotes.h"

#include "Tests/Preparation/ToldNotes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(PreparationNotes, EqualOnesAreOneWithACount)
{
    CPreparationNotes notes;
    notes.AddWarning("a", 3);
    notes.AddError("a", 4);
    notes.AddWarning("a", 5, "b.h");
    for (std::uint32_t line = 6; line < 8; ++line)
        notes.AddWarning("a\n", line);
    EXPECT_EQ(Told(notes.Take()), "W :3 a (3 times)\nE :4 a\nW b.h:5 a\n");
    EXPECT_TRUE(notes.empty());
    EXPECT_EQ(Told(notes.Take()), "");
}

TEST(PreparationNotes, ThereIsAMost)
{
    CPreparationNotes notes;
    const auto fill = [&](std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            notes.AddWarning(std::to_string(i));
    };
    fill(CPreparationNotes::kMostNotes);
    EXPECT_EQ(notes.Take().size(), CPreparationNotes::kMostNotes);
    fill(CPreparationNotes::kMostNotes + 2);
    auto taken = notes.Take();
    EXPECT_EQ(taken.size(), CPreparationNotes::kMostNotes + 1);
    EXPECT_EQ(taken.back().text, "notes left out: 2");
    EXPECT_FALSE(taken.back().isError);
    // what says that a text was refused is never lost
    fill(CPreparationNotes::kMostNotes);
    notes.AddError("refused");
    EXPECT_TRUE(notes.Take().back().isError);
}

TEST(PreparationNotes, TextsAreLinesOfNoGreatLength)
{
    CPreparationNotes notes;
    notes.AddWarning("a\nb\tc\x01");
    notes.AddWarning(std::string(CPreparationNotes::kLongestText - 1, 'x') + "\xC3\xA4");
    notes.AddWarning(std::string(CPreparationNotes::kLongestText, 'y'));
    const auto taken = notes.Take();
    EXPECT_EQ(taken[0].text, "a b c ");
    EXPECT_EQ(taken[1].text, std::string(CPreparationNotes::kLongestText - 1, 'x') + "...");
    EXPECT_EQ(taken[2].text, std::string(CPreparationNotes::kLongestText, 'y'));
}

} // namespace
