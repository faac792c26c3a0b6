#pragma once

#include <chrono>
#include <string>

namespace store::demo {

/// The cable at the terminal's end: a serial port, or a pseudo-terminal whose other end a program
/// opens as if it were one.
class TerminalLine {
 public:
  /// Opens a port of the machine, 9600 baud, 8 bits, no parity. Throws std::runtime_error.
  static TerminalLine OnPort(const std::string& path);
  /// Makes a pseudo-terminal and lets `link` lead to its other end. Throws std::runtime_error.
  static TerminalLine OnPseudoTerminal(const std::string& link);
  ~TerminalLine();
  TerminalLine(TerminalLine&& other) noexcept;
  TerminalLine(const TerminalLine&) = delete;
  TerminalLine& operator=(const TerminalLine&) = delete;

  /// Whether somebody has the other end open. A real port cannot tell and says yes.
  bool IsOpenElsewhere() const;
  /// Sends bytes as they are; false when the line is gone.
  bool Send(const std::string& bytes) const;
  /// The next byte, waiting so long; -1 when none came.
  int Receive(std::chrono::milliseconds patience) const;
  /// Throws away what has come.
  void Drain() const;

 private:
  explicit TerminalLine(int handle) : handle_(handle) {}
  int handle_ = -1;
  bool pseudo_ = false;
  std::string link_;
};

}  // namespace store::demo
