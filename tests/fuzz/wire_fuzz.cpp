#include "tests/fuzz/wire_fuzz.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "basics/text.h"
#include "handheld/wire/line_receiver.h"
#include "handheld/wire/record.h"
#include "handheld/wire/replies.h"

namespace store {
namespace {

void Hold(bool rule, const char* words) {
  if (rule) return;
  std::fprintf(stderr, "broken: %s\n", words);
  std::abort();
}

/// The cuts of a text are as wide as they were asked for, and its two halves are the whole.
void HoldCuts(const std::string& text, int at) {
  const std::string bytes = ToCodePage949(text);
  if (bytes.size() > 32767) return;
  const int length = ByteLen(text);
  Hold(length == static_cast<int>(bytes.size()), "a text is as long as its bytes");
  const int cut = length == 0 ? 0 : at % (length + 1);
  Hold(ToCodePage949(ByteMid(text, 1, cut)).size() == static_cast<size_t>(cut), "the first half");
  Hold(ToCodePage949(ByteMid(text, cut + 1, length)).size() == static_cast<size_t>(length - cut),
       "the second half");
  Hold(ByteMid(text, length + 1, 1).empty() && ByteMid(text, 1, -at).empty(), "outside is nothing");
}

void HoldRecord(const std::string& text) {
  const HandheldRecord record = ParseRecord(text);
  const bool trade = record.Layout == RecordLayout::Trade;
  Hold(record.Kind.empty() == (record.Layout == RecordLayout::None), "a kind has a layout");
  Hold(trade || record.Partner.empty(), "only trade has a partner");
  Hold(record.Layout == RecordLayout::Trade || record.Layout == RecordLayout::Product ||
           record.Price == 0,
       "no price elsewhere");
  Hold(CharLength(record.Sequence) <= 4 && CharLength(record.Partner) <= 12 &&
           CharLength(record.Barcode) <= 15 && CharLength(record.Name) <= 20,
       "a field is no wider than its place");
  Hold(std::abs(record.Quantity) <= 99999 && std::abs(record.Price) <= 9999999,
       "a number is no longer than its place");
}

void HoldMessage(const LineMessage& message, int counter) {
  Hold(message.Record.empty() || message.Step == LineStep::Record, "a text is a record's");
  if (message.Step == LineStep::Record) HoldRecord(message.Record);
  const std::string reply =
      message.Step == LineStep::Reject ? Reject(counter) : AcceptRecord(counter);
  Hold(reply.size() == 7 && reply.front() == control::Stx && reply.back() == control::Etx,
       "a reply has seven bytes");
}

}  // namespace

void FuzzWire(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return;
  const size_t step = std::max<size_t>(data[0] % 64, 1);
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  LineReceiver receiver;
  std::string half;
  std::string all;
  int counter = 0;
  for (size_t at = 0; at < bytes.size(); at += step) {
    half += bytes.substr(at, step);
    const std::string chunk = TakeWholeLetters(half);
    all += chunk;
    HoldMessage(receiver.Take(chunk), counter++ % 10000);
  }
  Hold(half.size() <= 1, "half a letter is one byte");
  if (half.empty()) Hold(all == FromCodePage949(bytes), "pieces read like the whole");
  HoldCuts(all, data[0]);
  HoldRecord(all);
  receiver.Clear();
  Hold(receiver.Take(std::string(1, control::Enq)).Step == LineStep::Opening,
       "after all that a transfer can begin");
}

}  // namespace store
