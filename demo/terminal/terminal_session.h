#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "demo/random.h"
#include "demo/terminal/terminal_line.h"
#include "demo/terminal/terminal_record.h"

namespace store::demo {

/// How the line and the terminal behave. As it stands, both do their best.
struct LineManners {
  int Baud = 0;           ///< Bytes go at this speed; 0 as fast as they can.
  std::size_t Piece = 0;  ///< Bytes sent at a time, with `Gap` between; 0 all at once.
  std::chrono::milliseconds Gap{0};
  int NoisePercent = 0;                      ///< Frames of a hundred before which stray bytes come.
  int LosePercent = 0;                       ///< Frames of a hundred that lose their first byte.
  int WrongKindPercent = 0;                  ///< Records of a hundred that are of another kind.
  bool NeverCloses = false;                  ///< The transfer stops before its end.
  std::chrono::milliseconds Patience{4000};  ///< For each reply.
  int Tries = 3;                             ///< Sendings of one message.
  std::uint64_t Seed = 1;
};

/// What came of a transfer.
struct TransferReport {
  bool Finished = false;
  std::size_t Accepted = 0;    ///< Records.
  std::size_t Rejected = 0;    ///< Replies.
  std::size_t Unanswered = 0;  ///< Messages that had to be sent again for want of a reply.
};

/// Sends one transfer: the opening, the records, the closing. It waits for each reply as a terminal
/// does, sends again on a reject or on none, and gives up after so many tries. `tell` gets a line
/// for each message.
TransferReport SendTransfer(const TerminalLine& line, const std::vector<TerminalRecord>& records,
                            const LineManners& manners,
                            const std::function<void(const std::string&)>& tell = {});

}  // namespace store::demo
