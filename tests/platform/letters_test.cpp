#include "platform/letters.h"

#include <gtest/gtest.h>

TEST(Letters, ACutLeavesThemWhole) {
    const std::string text = "a\xc3\xa9\xe6\x97\xa5\xf0\x9f\x98\x80";
    for (std::size_t bytes = 0; bytes <= text.size() + 1; ++bytes) {
        const std::size_t whole = bytes < 1 ? 0 : bytes < 3 ? 1 : bytes < 6 ? 3 : bytes < 10 ? 6 : 10;
        EXPECT_EQ(cutBetweenLetters(text, bytes).size(), whole) << bytes;
    }
    EXPECT_EQ(cutBetweenLetters("\xa9\xa9\xa9", 2), ""); // nothing but the ends of letters
}

TEST(Letters, TheirCodesGoInAndOut) {
    for (const char* text : {"a", "\xc3\xa9", "\xe6\x97\xa5", "\xf0\x9f\x98\x80"})
        EXPECT_EQ(letterText(firstLetter(std::string(text) + "b")), text);
    EXPECT_EQ(firstLetter("\xc3\xa9"), U'\u00e9');
    for (const char* text : {"", "\xa9", "\xc3", "\xc3z"}) EXPECT_EQ(firstLetter(text), 0U) << text;
}
