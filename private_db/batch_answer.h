#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace store {

/// Three bytes of length, one of number.
inline constexpr size_t kPacketHead = 4;

/// The size of a packet of the database's wire, head and all, by its head.
inline size_t PacketSize(std::string_view head) {
  const auto byte = [&](size_t i) {
    return static_cast<size_t>(static_cast<unsigned char>(head[i]));
  };
  return kPacketHead + byte(0) + (byte(1) << 8) + (byte(2) << 16);
}

/// Follows what the server sends back to a batch, for whoever wants to lose exactly that. The
/// driver sends a batch as two requests in one go, to prepare it and to execute it. So the first
/// packet comes back while the server is still at work, and only the second says that all is
/// stored.
class BatchAnswer {
 public:
  BatchAnswer() = default;
  /// `request` begins with the packet in which the batch stands.
  explicit BatchAnswer(std::string_view request)
      : packets_(request.substr(kPacketHead, 1) == kPrepare ? 2 : 1) {}

  /// Whether `bytes`, the next ones from the server, bring the answer to its end.
  bool EndsWith(std::string_view bytes) {
    while (packets_ > 0 && !bytes.empty()) {
      const size_t wanted =
          (packet_.size() < kPacketHead ? kPacketHead : PacketSize(packet_)) - packet_.size();
      const size_t taken = std::min(wanted, bytes.size());
      packet_ += bytes.substr(0, taken);
      bytes.remove_prefix(taken);
      if (packet_.size() >= kPacketHead && packet_.size() == PacketSize(packet_)) {
        packet_.clear();
        --packets_;
      }
    }
    return packets_ == 0;
  }

 private:
  static constexpr std::string_view kPrepare = "\x16";

  int packets_ = 0;     // that are still to come
  std::string packet_;  // what has come of the one in hand
};

}  // namespace store
