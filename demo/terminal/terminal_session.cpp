#include "demo/terminal/terminal_session.h"

#include <algorithm>
#include <thread>

namespace store::demo {
namespace {

constexpr char kStart = 2;
constexpr char kEnd = 3;
constexpr char kClosing = 4;
constexpr char kOpening = 5;
constexpr char kAccept = 6;
constexpr std::size_t kReplyBytes = 7;
constexpr int kBitsOfByte = 10;

enum class Answer { Accepted, Rejected, None };

class Transfer {
 public:
  Transfer(const TerminalLine& line, const LineManners& manners,
           const std::function<void(const std::string&)>& tell)
      : line_(line), manners_(manners), tell_(tell), random_(manners.Seed) {}

  TransferReport Send(const std::vector<TerminalRecord>& records) {
    if (!SendUntilAccepted("opening", std::string(1, kOpening), false)) return report_;
    int number = 0;
    for (const TerminalRecord& record : records) {
      const std::string frame = Frame(record, ++number);
      if (!SendUntilAccepted("record " + std::to_string(number), frame, true)) return report_;
      ++report_.Accepted;
    }
    if (manners_.NeverCloses) return report_;
    report_.Finished = Put(std::string(1, kClosing));
    Tell("closing");
    return report_;
  }

 private:
  std::string Frame(TerminalRecord record, int number) {
    if (random_.Percent(manners_.WrongKindPercent)) record.Kind = record.Kind == '0' ? '2' : '0';
    // Two bytes that the receiver never looks at stand before the end.
    return kStart + RecordBytes(record, number) + "00" + kEnd;
  }

  bool SendUntilAccepted(const std::string& what, const std::string& message, bool isFrame) {
    for (int attempt = 0; attempt < manners_.Tries; ++attempt) {
      line_.Drain();
      if (!Put(isFrame ? Damaged(message) : message)) return false;
      const Answer answer = AwaitReply();
      Tell(what + (answer == Answer::Accepted   ? ": accepted"
                   : answer == Answer::Rejected ? ": rejected"
                                                : ": no reply"));
      if (answer == Answer::Accepted) return true;
      if (answer == Answer::Rejected) ++report_.Rejected;
      if (answer == Answer::None) ++report_.Unanswered;
    }
    Tell("given up");
    return false;
  }

  std::string Damaged(const std::string& frame) {
    std::string sent = random_.Percent(manners_.NoisePercent) ? "\x7f#" : "";
    return sent + (random_.Percent(manners_.LosePercent) ? frame.substr(1) : frame);
  }

  bool Put(const std::string& bytes) const {
    const std::size_t piece = manners_.Piece == 0 ? bytes.size() : manners_.Piece;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      if (at > 0) std::this_thread::sleep_for(manners_.Gap);
      const std::string part = bytes.substr(at, piece);
      if (!line_.Send(part)) return false;
      if (manners_.Baud > 0) {
        std::this_thread::sleep_for(std::chrono::microseconds(
            1'000'000LL * kBitsOfByte * static_cast<long long>(part.size()) / manners_.Baud));
      }
    }
    return true;
  }

  Answer AwaitReply() const {
    std::string reply;
    while (reply.size() < kReplyBytes) {
      const int byte = line_.Receive(manners_.Patience);
      if (byte < 0) return Answer::None;
      if (reply.empty() && byte != kStart) continue;
      reply += static_cast<char>(byte);
      if (byte == kEnd) break;
    }
    return reply.size() > 1 && reply[1] == kAccept ? Answer::Accepted : Answer::Rejected;
  }

  void Tell(const std::string& what) const {
    if (tell_) tell_(what);
  }

  const TerminalLine& line_;
  const LineManners& manners_;
  const std::function<void(const std::string&)>& tell_;
  Random random_;
  TransferReport report_;
};

}  // namespace

TransferReport SendTransfer(const TerminalLine& line, const std::vector<TerminalRecord>& records,
                            const LineManners& manners,
                            const std::function<void(const std::string&)>& tell) {
  return Transfer(line, manners, tell).Send(records);
}

}  // namespace store::demo
