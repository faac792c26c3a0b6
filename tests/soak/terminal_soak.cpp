// Frames without end through the receive form, with seeded damage on the way: bits, bytes lost and
// doubled, pieces, noise between frames, transfers that break off. What must always hold is checked
// after every chunk; a failure prints the seed that repeats it.
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include "basics/text.h"
#include "forms/host.h"
#include "handheld/DT9RECEV.h"
#include "tests/handheld/terminal_text.h"
#include "tests/support/scripted_port.h"

namespace store {
namespace {

struct Options {
  long Frames = 100'000;
  unsigned Seed = 1;
};

constexpr int kMostRecords = 60;  // of a transfer
constexpr size_t kLargestReply = 8;

/// What the process holds in memory, in kilobytes.
long ResidentKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::strtol(line.c_str() + 6, nullptr, 10);
  }
  return 0;
}

class Soak {
 public:
  explicit Soak(const Options& options) : options_(options), random_(options.Seed) {
    Host = EmptyHost();
    Host.MakeSerialPort = [this] {
      auto port = std::make_unique<ScriptedPort>();
      port_ = port.get();
      return port;
    };
    Host.MsgBox = [](const std::string&, int, const std::string&) { return box::Ok; };
    form_ = std::make_unique<DT9RECEV>();
    form_->KindCaption = "매    입";
    form_->ModuleCode = "23";
    form_->EnsureLoaded();
    form_->Activate();
  }
  ~Soak() { Host = EmptyHost(); }
  Soak(const Soak&) = delete;
  Soak& operator=(const Soak&) = delete;

  int Run() {
    long warm = 0;
    for (long sent = 0; sent < options_.Frames;) {
      sent += Transfer();
      if (warm == 0 && sent > options_.Frames / 10) warm = ResidentKilobytes();
    }
    const long grown = ResidentKilobytes() - warm;
    std::printf("%ld frames, %ld rows, %ld replies; memory grew by %ld kB after a tenth of them\n",
                options_.Frames, rows_, replies_, grown);
    if (grown > 8L * 1024) Fail("memory grows");
    return EXIT_SUCCESS;
  }

 private:
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool Percent(int chance) { return Below(100) < chance; }

  int Transfer() {
    form_->SetPortOpen(false);
    form_->SetPortOpen(true);
    line_.clear();
    seenRows_ = form_->FLEX.Rows();
    Arrive(kOpening);
    const int records = 1 + Below(kMostRecords);
    for (int number = 1; number <= records; ++number) SendFrame(number);
    if (!Percent(10)) Arrive(kClosing);
    return records;
  }

  void SendFrame(int number) {
    const std::string text = std::to_string(number);
    std::string frame = FrameOf(TradeRecord(Percent(3) ? '2' : '0', text, "10006",
                                            std::to_string(8800000000000 + Below(1000)),
                                            Percent(50) ? "맑은생수" : "ABC", text, "500"));
    if (Percent(5)) Arrive(Noise());
    if (Percent(20)) Damage(frame);
    if (!Percent(20)) return Arrive(frame);
    // Pieces end between letters, as the port sees to.
    const int cut = Below(CharLength(frame) + 1);
    Arrive(LeftChars(frame, cut));
    Arrive(MidChars(frame, cut + 1));
  }

  std::string Noise() {
    std::string noise;
    for (int i = Below(12); i >= 0; --i) noise += static_cast<char>(Below(128));
    return noise;
  }

  /// Of ASCII bytes alone, so that the text stays text.
  void Damage(std::string& frame) {
    const auto at = static_cast<size_t>(Below(static_cast<int>(frame.size())));
    if ((frame[at] & 0x80) != 0) return;
    switch (Below(3)) {
      case 0:
        frame[at] = static_cast<char>(frame[at] ^ (1 << Below(7)));
        break;
      case 1:
        frame.erase(at, 1);
        break;
      default:
        frame.insert(at, 1, frame[at]);
        break;
    }
  }

  void Arrive(const std::string& text) {
    if (text.empty()) return;
    line_ += ToCodePage949(text);
    port_->Arrive(text);
    CheckReplies();
    CheckRows();
  }

  void CheckReplies() {
    for (const std::string& reply : port_->Sent) {
      ++replies_;
      const bool sound = reply.size() >= 7 && reply.size() <= kLargestReply && reply[0] == '\x02' &&
                         (reply[1] == '\x06' || reply[1] == '\x15') && reply.back() == '\x03';
      if (!sound) Fail("a reply that is none");
    }
    port_->Sent.clear();
  }

  /// Each new row must have stood on the line, byte for byte where a field was not cut in a letter.
  void CheckRows() {
    const Grid& grid = form_->FLEX;
    for (int row = seenRows_; row < grid.Rows(); ++row) {
      ++rows_;
      for (const int column : {received::Sequence, received::Barcode, received::Product}) {
        CheckField(grid.TextMatrix(row, column));
      }
    }
    seenRows_ = grid.Rows();
  }

  void CheckField(const std::string& text) const {
    constexpr const char* kBroken = "\uFFFD";
    if (text.find(kBroken) != std::string::npos) return;
    const bool told = text.find("선택오류") != std::string::npos;
    if (told || line_.find(ToCodePage949(text)) != std::string::npos) return;
    Fail("a row that never was on the line: " + text);
  }

  [[noreturn]] void Fail(const std::string& what) const {
    std::fprintf(stderr, "terminal_soak: %s; repeat it with --seed %u\n", what.c_str(),
                 options_.Seed);
    std::_Exit(EXIT_FAILURE);
  }

  const Options options_;
  std::mt19937 random_;
  ScriptedPort* port_ = nullptr;
  std::unique_ptr<DT9RECEV> form_;
  std::string line_;  // what it has brought in this transfer
  int seenRows_ = 0;
  long rows_ = 0;
  long replies_ = 0;
};

template <class Number>
bool TakeNumber(const char* text, Number& number) {
  const auto [end, error] = std::from_chars(text, text + std::strlen(text), number);
  return error == std::errc() && *end == '\0';
}

bool ParseArguments(int argc, char** argv, Options& options) {
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string_view option = argv[i];
    const bool taken = option == "--frames" ? TakeNumber(argv[i + 1], options.Frames)
                       : option == "--seed" ? TakeNumber(argv[i + 1], options.Seed)
                                            : false;
    if (!taken) return false;
  }
  return argc % 2 == 1;
}

}  // namespace
}  // namespace store

int main(int argc, char** argv) {
  store::Options options;
  if (!store::ParseArguments(argc, argv, options)) {
    std::fprintf(stderr, "usage: terminal_soak [--frames N] [--seed S]\n");
    return 2;
  }
  return store::Soak(options).Run();
}
