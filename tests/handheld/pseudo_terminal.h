#pragma once

#include <string>

namespace store {

/// A pair of a device and the line behind it: a port opens the device, the test holds the line.
class PseudoTerminal {
 public:
  PseudoTerminal();
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& Device() const { return device_; }
  /// Puts a text on the line in code page 949.
  void Send(const std::string& text) const;
  void SendBytes(const std::string& bytes) const;
  /// What has come over the line and was not taken yet; does not wait.
  std::string Take() const;
  /// The line's speed, as the device was set up: B9600 and so on.
  unsigned Speed() const;
  /// The line is unplugged.
  void HangUp();

 private:
  int line_ = -1;
  std::string device_;
};

}  // namespace store
