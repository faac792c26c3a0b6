#include "basics/text.h"

#include <gtest/gtest.h>

namespace store {
namespace {

const std::string kLone = "\xEF\xBF\xBD";  // what a lone byte of the code page decodes to

TEST(Text, IsMeasuredAndCutInBytesOfTheCodePage) {
  struct Case {
    const char* text;
    int start;
    int length;
    std::string cut;
  };
  const Case cases[] = {
      {"가나다1", 1, 4, "가나"},
      {"가나다1", 7, 1, "1"},
      {"가나다1", 5, 99, "다1"},
      {"가나다1", 8, 1, ""},
      {"가나다1", 1, 3, "가" + kLone},
      {"abc", 2, 1, "b"},
      {"abc", 0, 2, ""},
      {"abc", -32768, 2, ""},
      {"abc", 1, 0, ""},
      {"abc", 1, -5, ""},
      {"", 1, 1, ""},
      {"똠방", 1, 2, "똠"},  // a letter of the extended half
  };
  for (const Case& c : cases)
    EXPECT_EQ(ByteMid(c.text, c.start, c.length), c.cut) << c.text << c.start << "," << c.length;
  EXPECT_EQ(ByteLen("가나다1"), 7);
  EXPECT_EQ(ByteLen(""), 0);
  EXPECT_EQ(ByteLen(std::string(32767, 'x')), 32767);
  EXPECT_EQ(ByteLen(std::string(32768, 'x')), 0);
}

// Fixed-width files depend on it: whatever a cut leaves, its width in bytes is what was asked for.
TEST(Text, EveryCutKeepsItsWidthWhenWrittenAgain) {
  const std::string name = "A나B다c라";
  const int bytes = ByteLen(name);
  for (int start = 1; start <= bytes; ++start)
    for (int length = 1; start + length - 1 <= bytes; ++length)
      EXPECT_EQ(ByteLen(ByteMid(name, start, length)), length) << start << "," << length;
}

TEST(Text, SurvivesWhatTheCodePageLacks) {
  EXPECT_EQ(ToCodePage949("a\xF0\x9F\x98\x80z"), "a?z");  // one mark for one character
  EXPECT_EQ(ToCodePage949("a\xFFz"), "a?z");
  EXPECT_EQ(ToCodePage949("가\xEA\xB0"), "\xB0\xA1?");  // a letter that breaks off
  EXPECT_EQ(FromCodePage949("\xB0\xA1\xB0"), "가" + kLone);
  EXPECT_EQ(FromCodePage949("\xB0 x"), kLone + " x");
  EXPECT_EQ(FromCodePage949("a\xA2\xE8\xFFz\xA2\xE8"),
            "a" + kLone + kLone + kLone + "z" + kLone + kLone);
  EXPECT_EQ(FromCodePage949(ToCodePage949("한글과 ASCII, 뷁")), "한글과 ASCII, 뷁");
  EXPECT_EQ(FromCodePage949(std::string("a\0b", 3)), std::string("a\0b", 3));
}

// A line brings a text in any pieces.
TEST(Text, ArrivingInTwoPiecesReadsTheSame) {
  const std::string bytes =
      ToCodePage949("가A나뷁") + "\xB0 \xFF\x80z\xB0\x03\xA2\xE8\xE8\xF3" + ToCodePage949("힣");
  for (size_t at = 0; at <= bytes.size(); ++at) {
    std::string arrived = bytes.substr(0, at);
    std::string text = TakeWholeLetters(arrived);
    EXPECT_LE(arrived.size(), 1U);
    arrived += bytes.substr(at);
    text += TakeWholeLetters(arrived);
    EXPECT_EQ(text, FromCodePage949(bytes)) << at;
    EXPECT_EQ(arrived, "") << at;
  }
  std::string half = "a\xB0";
  EXPECT_EQ(TakeWholeLetters(half), "a");
  EXPECT_EQ(half, "\xB0");
}

TEST(Text, PositionsOfCharactersCountLetters) {
  const std::string text = "한글ab";
  EXPECT_EQ(CharLength(text), 4);
  EXPECT_EQ(LeftChars(text, 3), "한글a");
  EXPECT_EQ(LeftChars(text, 9), text);
  EXPECT_EQ(LeftChars(text, -1), "");
  EXPECT_EQ(RightChars(text, 3), "글ab");
  EXPECT_EQ(RightChars(text, 9), text);
  EXPECT_EQ(RightChars(text, 0), "");
  EXPECT_EQ(MidChars(text, 2), "글ab");
  EXPECT_EQ(MidChars(text, 2, 2), "글a");
  EXPECT_EQ(MidChars(text, 5), "");
  EXPECT_EQ(MidChars(text, 0), "");
  EXPECT_EQ(Trim("  \t 가 나 \r\n "), "\t 가 나 \r\n");
  EXPECT_EQ(Trim("   "), "");
}

}  // namespace
}  // namespace store
