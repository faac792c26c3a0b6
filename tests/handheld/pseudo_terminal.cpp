#include "tests/handheld/pseudo_terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <utility>

#include "basics/text.h"

namespace store {

PseudoTerminal::PseudoTerminal() {
  int device = -1;
  std::array<char, 64> name{};
  termios raw{};
  cfmakeraw(&raw);
  if (openpty(&line_, &device, name.data(), &raw, nullptr) != 0) {
    ADD_FAILURE() << "no pseudo-terminal";
    return;
  }
  device_ = name.data();
  fcntl(line_, F_SETFL, O_NONBLOCK);
  close(device);
}

PseudoTerminal::~PseudoTerminal() { HangUp(); }

void PseudoTerminal::HangUp() {
  if (line_ >= 0) close(std::exchange(line_, -1));
}

void PseudoTerminal::Send(const std::string& text) const { SendBytes(ToCodePage949(text)); }

void PseudoTerminal::SendBytes(const std::string& bytes) const {
  EXPECT_EQ(write(line_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
}

std::string PseudoTerminal::Take() const {
  std::array<char, 256> bytes{};
  const ssize_t count = read(line_, bytes.data(), bytes.size());
  return count > 0 ? std::string(bytes.data(), static_cast<size_t>(count)) : std::string();
}

unsigned PseudoTerminal::Speed() const {
  termios settings{};
  tcgetattr(line_, &settings);
  return cfgetospeed(&settings);
}

}  // namespace store
