#include "demo/terminal/terminal_line.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace store::demo {
namespace {

[[noreturn]] void Refuse(const std::string& what) {
  throw std::runtime_error(what + ": " + std::strerror(errno));
}

void MakeRaw(int handle) {
  termios settings{};
  if (tcgetattr(handle, &settings) != 0) return;
  cfmakeraw(&settings);
  cfsetspeed(&settings, B9600);
  settings.c_cflag |= CLOCAL | CREAD;
  tcsetattr(handle, TCSANOW, &settings);
}

}  // namespace

TerminalLine TerminalLine::OnPort(const std::string& path) {
  const int handle = open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (handle < 0) Refuse(path);
  MakeRaw(handle);
  return TerminalLine(handle);
}

TerminalLine TerminalLine::OnPseudoTerminal(const std::string& link) {
  const int handle = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (handle < 0 || grantpt(handle) != 0 || unlockpt(handle) != 0) Refuse("pseudo-terminal");
  const std::string other = ptsname(handle);
  // Opened and closed once, so that the line knows the difference between open and not.
  const int once = open(other.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (once < 0) Refuse(other);
  MakeRaw(once);
  close(once);
  unlink(link.c_str());
  if (symlink(other.c_str(), link.c_str()) != 0) Refuse(link);
  TerminalLine line(handle);
  line.pseudo_ = true;
  line.link_ = link;
  return line;
}

TerminalLine::TerminalLine(TerminalLine&& other) noexcept
    : handle_(std::exchange(other.handle_, -1)),
      pseudo_(other.pseudo_),
      link_(std::exchange(other.link_, {})) {}

TerminalLine::~TerminalLine() {
  if (!link_.empty()) unlink(link_.c_str());
  if (handle_ >= 0) close(handle_);
}

bool TerminalLine::IsOpenElsewhere() const {
  if (!pseudo_) return true;
  pollfd asked{handle_, POLLIN, 0};
  poll(&asked, 1, 0);
  return (asked.revents & POLLHUP) == 0;
}

bool TerminalLine::Send(const std::string& bytes) const {
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    const ssize_t put = write(handle_, bytes.data() + sent, bytes.size() - sent);
    if (put < 0 && errno != EINTR) return false;
    if (put > 0) sent += static_cast<std::size_t>(put);
  }
  return true;
}

int TerminalLine::Receive(std::chrono::milliseconds patience) const {
  pollfd asked{handle_, POLLIN, 0};
  if (poll(&asked, 1, static_cast<int>(patience.count())) <= 0) return -1;
  unsigned char byte = 0;
  return read(handle_, &byte, 1) == 1 ? byte : -1;
}

void TerminalLine::Drain() const {
  while (Receive(std::chrono::milliseconds(0)) >= 0) {
  }
}

}  // namespace store::demo
