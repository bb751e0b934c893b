#include <zrproj/zrlibw.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>

TEST(BitmapTagList, OwnsCopiesOfTheData) {
    std::uint16_t values[] = {1, 2, 3};
    ZrBitmapTagList tags;
    ASSERT_TRUE(tags.Add({34735, 3, 3, values}));
    ZrBitmapTagList const copy = tags;
    values[1] = 99;
    ASSERT_TRUE(tags.Add({34735, 3, 1, values}));
    EXPECT_EQ(copy.Size(), 1);
    EXPECT_EQ(tags.Size(), 2);
    auto const* const first = tags.Find(34735); // of two, the first
    ASSERT_TRUE(first);
    EXPECT_EQ(first->Count, 3U);
    EXPECT_EQ(static_cast<std::uint16_t const*>(first->pData)[1], 2);
    EXPECT_EQ(first->pData, copy[0].pData); // shared, not copied again
    EXPECT_EQ(tags[1].Count, 1U);
    EXPECT_FALSE(tags.Find(33550));
}

// A count may claim more than there is: nothing of the data may be looked at before the size is known to be sane.
TEST(BitmapTagList, RefusesWhatNoTagCanBe) {
    char const data = 0;
    ZrBitmapTagList tags;
    for (std::uint16_t const type : std::initializer_list<std::uint16_t>{0, 14, 15, 19, 65535})
        EXPECT_FALSE(tags.Add({1, type, 1, &data})) << type;
    EXPECT_FALSE(tags.Add({1, 3, 1, nullptr}));
    EXPECT_FALSE(tags.Add({1, 12, 0xFFFFFFFF, &data}));
    EXPECT_FALSE(tags.Add({1, 1, (256U << 20) + 1, &data}));
    EXPECT_EQ(tags.Size(), 0);
    EXPECT_TRUE(tags.Add({1, 2, 0, nullptr}));
    EXPECT_EQ(tags.Find(1)->Count, 0U);
}
