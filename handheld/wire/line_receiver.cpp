#include "handheld/wire/line_receiver.h"

#include <array>
#include <cstdint>
#include <limits>

#include "basics/text.h"
#include "handheld/wire/replies.h"

namespace store {
namespace {

constexpr size_t kAbsent = std::string_view::npos;

constexpr std::array kBeginningBytes = {control::Enq, control::Stx, control::Eot};
constexpr std::string_view kBeginnings(kBeginningBytes.data(), kBeginningBytes.size());

/// Where a text's character begins as a text of two bytes a character, from 1; 0 when absent. The
/// cuts below are made at these positions.
int WidePosition(std::string_view text, size_t at) {
  return at == kAbsent ? 0 : 2 * CharLength(text.substr(0, at)) + 1;
}

/// A frame of the buffer: from its STX to its ETX, or to the end while that has not come.
struct Frame {
  size_t begin = kAbsent;
  size_t end = kAbsent;

  bool Holds(size_t at) const { return begin != kAbsent && at > begin && at < end; }
};

Frame FrameIn(std::string_view buffer) {
  Frame frame;
  frame.begin = buffer.find(control::Stx);
  if (frame.begin != kAbsent) frame.end = buffer.find(control::Etx, frame.begin);
  return frame;
}

/// A control byte inside a frame is content.
bool HasOutside(const Frame& frame, std::string_view buffer, char sought) {
  size_t at = buffer.find(sought);
  while (at != kAbsent && frame.Holds(at)) at = buffer.find(sought, at + 1);
  return at != kAbsent;
}

bool BeginsMessage(std::string_view buffer) {
  return !buffer.empty() && kBeginnings.find(buffer[0]) != kAbsent;
}

/// No text has more bytes in the code page than it has here, so that a short one, which comes with
/// every byte of the line, is not converted for this.
bool IsTooLongToMeasure(std::string_view buffer) {
  return buffer.size() > std::numeric_limits<std::int16_t>::max() && ByteLen(buffer) == 0;
}

/// The candidate without its STX and its last three bytes: two that nobody looks at, and the ETX.
/// Empty when there is no more to it than those.
std::string RecordOf(std::string_view candidate) {
  return ByteMid(candidate, 2, ByteLen(candidate) - 4);
}

}  // namespace

void LineReceiver::Clear() {
  buffer_.clear();
  inNoise_ = false;
}

LineMessage LineReceiver::Take(std::string_view chunk) {
  buffer_ += chunk;
  if (inNoise_) DropNoise();
  if (buffer_.empty()) return {};
  if (!BeginsMessage(buffer_)) return Reject();
  if (IsTooLongToMeasure(buffer_)) return Reject();  // it has lost its end
  const std::string candidate = Candidate();
  if (candidate.empty()) return {};
  Clear();
  switch (candidate[0]) {
    case control::Enq:
      return {LineStep::Opening, {}};
    case control::Stx:
      return {LineStep::Record, RecordOf(candidate)};
    case control::Eot:
      return {LineStep::Closing, {}};
    default:
      return {LineStep::Reject, {}};
  }
}

LineMessage LineReceiver::Reject() {
  inNoise_ = buffer_.find(control::Etx) == kAbsent;
  buffer_.clear();
  return {LineStep::Reject, {}};
}

// A frame that has lost its beginning comes in as many pieces as the line likes. It is told once,
// or the terminal would take the further rejects for those of what it sends next. What stands
// behind its end is that next message, which the terminal wants to have answered.
void LineReceiver::DropNoise() {
  const size_t end = BeginsMessage(buffer_) ? 0 : buffer_.find(control::Etx);
  inNoise_ = end == kAbsent;
  buffer_.erase(0, buffer_.find_first_of(kBeginnings, end));
}

std::string LineReceiver::Candidate() const {
  const Frame frame = FrameIn(buffer_);
  if (HasOutside(frame, buffer_, control::Eot)) return ByteMid(buffer_, 1, 1);
  if (frame.begin == kAbsent) {
    return HasOutside(frame, buffer_, control::Enq) ? ByteMid(buffer_, 1, 1) : std::string();
  }
  // The wide position of the ETX serves as the length: none while the frame is incomplete, and
  // always more than what is left once it is whole.
  return ByteMid(buffer_, WidePosition(buffer_, frame.begin),
                 WidePosition(buffer_, buffer_.find(control::Etx)));
}

}  // namespace store
