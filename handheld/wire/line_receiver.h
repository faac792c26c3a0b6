#pragma once

#include <string>
#include <string_view>

namespace store {

/// What the receiver makes of what has arrived.
enum class LineStep {
  Wait,     ///< Nothing is complete yet.
  Opening,  ///< The terminal asks to begin.
  Record,   ///< A frame with a record.
  Closing,  ///< The terminal has sent everything.
  Reject,   ///< What came can never become a message.
};

struct LineMessage {
  LineStep Step = LineStep::Wait;
  std::string Record;  ///< The text of the record, of `LineStep::Record` alone.
};

/// Cuts the terminal's messages out of what the line brings. The terminal waits for a reply to each
/// message, so one message at a time stands in the buffer: whatever stands there besides the
/// message that has been found goes with it.
///
/// Texts are UTF-8; positions in a frame are bytes of code page 949. A chunk never ends within a
/// letter (see `TakeWholeLetters`). Any text will do: nothing here fails.
class LineReceiver {
 public:
  /// Adds what has arrived and says what to do about it.
  LineMessage Take(std::string_view chunk);
  /// Forgets what has arrived. The line was opened or closed.
  void Clear();

 private:
  LineMessage Reject();
  void DropNoise();
  std::string Candidate() const;

  std::string buffer_;
  bool inNoise_ = false;  // it was rejected, and its end has not come yet
};

}  // namespace store
