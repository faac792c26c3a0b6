#include "handheld/wire/line_receiver.h"

#include <gtest/gtest.h>

#include <vector>

#include "handheld/wire/replies.h"
#include "tests/handheld/terminal_text.h"

namespace store {
namespace {

const std::string kRecord =
    TradeRecord('0', "0001", "C0001", "8801000", "맑은생수", "00012", "0000480");

/// What each chunk makes the program do: "W" wait, "O" opening, "C" closing, "X" reject, and the
/// record in brackets.
std::string Steps(const std::vector<std::string>& chunks) {
  LineReceiver receiver;
  std::string steps;
  for (const std::string& chunk : chunks) {
    const LineMessage message = receiver.Take(chunk);
    if (message.Step == LineStep::Wait) steps += "W";
    if (message.Step == LineStep::Opening) steps += "O";
    if (message.Step == LineStep::Closing) steps += "C";
    if (message.Step == LineStep::Reject) steps += "X";
    if (message.Step == LineStep::Record) steps += "[" + message.Record + "]";
  }
  return steps;
}

TEST(LineReceiver, TellsTheMessagesOfATransfer) {
  EXPECT_EQ(Steps({kOpening, FrameOf(kRecord), FrameOf("0002"), kClosing}),
            "O[" + kRecord + "][0002]C");
  EXPECT_EQ(Steps({"", kClosing}), "WC");
}

TEST(LineReceiver, AFrameMayComeInAnyTwoPieces) {
  const std::string frame = FrameOf(kRecord);
  for (int at = 1; at < CharLength(frame); ++at) {
    EXPECT_EQ(Steps({LeftChars(frame, at), MidChars(frame, at + 1)}), "W[" + kRecord + "]") << at;
  }
}

TEST(LineReceiver, AFrameMayComeLetterByLetter) {
  std::vector<std::string> letters;
  const std::string frame = FrameOf(kRecord);
  for (int at = 1; at <= CharLength(frame); ++at) letters.push_back(MidChars(frame, at, 1));
  EXPECT_EQ(Steps(letters), std::string(letters.size() - 1, 'W') + "[" + kRecord + "]");
}

TEST(LineReceiver, TakesWhatComesOutOfOrder) {
  struct Case {
    const char* what;
    std::vector<std::string> chunks;
    std::string steps;
  };
  const std::vector<Case> cases = {
      {"a letter that begins nothing", {"x"}, "X"},
      {"an end without a beginning", {"\x03", kOpening}, "XO"},
      {"a frame that has lost its beginning", {"0001" + kRecord + "ZZ\x03", kOpening}, "XO"},
      {"the same in pieces is told once", {"00", "01", "ZZ\x03", "00"}, "XWWX"},
      {"the next message ends the noise", {"00", "01", kOpening, "00"}, "XWOX"},
      {"a message behind the end of told noise is heard",
       {"00", "ZZ\x03" + FrameOf(kRecord), "00",
        "ZZ\x03\x02"
        "0002",
        "ZZ\x03"},
       "X[" + kRecord + "]XW[0002]"},
      {"noise that was told takes the message of its own burst with it",
       {"00", "01" + FrameOf(kRecord) + "\r", kOpening},
       "XWO"},
      {"noise in front takes the message with it", {"x" + kOpening, kOpening}, "XO"},
      {"content that closes and opens",
       {"\x02"
        "a\x04",
        "b\x05", "cZZ\x03"},
       "WW[a\x04"
       "b\x05"
       "c]"},
      {"content that begins again",
       {FrameOf("a\x02"
                "b")},
       "[a\x02"
       "b]"},
      {"a closing behind a frame leaves no record", {FrameOf(kRecord) + kClosing}, "[]"},
      {"an opening in front of a frame spoils it", {kOpening + FrameOf(kRecord)}, "X"},
      {"an opening in front of half a frame",
       {kOpening + "\x02"
                   "0001",
        "ZZ\x03"},
       "WX"},
      {"an opening and a closing", {kOpening + kClosing, kClosing + kOpening}, "OC"},
      {"two openings", {kOpening + kOpening, kClosing}, "OC"},
      {"frames without a record",
       {"\x02\x03", "\x02Z\x03", "\x02ZZ\x03",
        "\x02"
        "aZZ\x03"},
       "[][][][a]"},
      {"more behind the end counts to the frame", {FrameOf("0001") + "\r"}, "[0001Z]"},
      {"a broken letter keeps its width",
       {"\x02"
        "\xEF\xBF\xBD"
        "aZZ\x03"},
       "[?a]"},
  };
  for (const Case& c : cases) EXPECT_EQ(Steps(c.chunks), c.steps) << c.what;
}

TEST(LineReceiver, AFrameThatNeverEndsIsDropped) {
  const std::string piece(8000, '1');
  EXPECT_EQ(Steps({"x", "\x02", piece, piece, piece, piece, piece, "\x03", kOpening}), "XWWWWWXWO");
}

TEST(LineReceiver, ForgetsWithThePort) {
  LineReceiver receiver;
  receiver.Take(
      "\x02"
      "0001");
  receiver.Clear();
  EXPECT_EQ(receiver.Take(FrameOf("0002")).Record, "0002");
  receiver.Take("x");
  receiver.Clear();
  EXPECT_EQ(receiver.Take("y").Step, LineStep::Reject) << "noise of another transfer";
}

TEST(Replies, AreSevenBytesUpToFourDigits) {
  EXPECT_EQ(AcceptOpening(), AckText("0001"));
  EXPECT_EQ(AcceptRecord(2), AckText("0002"));
  EXPECT_EQ(Reject(0), NakText("0000"));
  EXPECT_EQ(AcceptRecord(9999).size(), 7U);
  EXPECT_EQ(AcceptRecord(10000), AckText("10000"));
}

}  // namespace
}  // namespace store
