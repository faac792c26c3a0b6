#include "slips/life_sign.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <random>
#include <utility>

namespace store {
namespace {

std::string RandomName() {
  std::random_device random;
  std::array<char, 17> text{};
  std::snprintf(text.data(), text.size(), "%08x%08x", random(), random());
  return text.data();
}

}  // namespace

LifeSign::LifeSign(std::filesystem::path folder)
    : folder_(std::move(folder)), token_(RandomName()) {
  file_ = open(FileOf(token_).c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (file_ >= 0) flock(file_, LOCK_EX | LOCK_NB);
}

LifeSign::~LifeSign() {
  if (file_ < 0) return;
  unlink(FileOf(token_).c_str());
  close(file_);
}

bool LifeSign::Lives(const std::string& token) const {
  if (token == token_) return true;
  const std::filesystem::path path = FileOf(token);
  const int file = open(path.c_str(), O_RDWR | O_CLOEXEC);
  if (file < 0) return false;
  const bool dead = flock(file, LOCK_EX | LOCK_NB) == 0;
  if (dead) unlink(path.c_str());
  close(file);
  return !dead;
}

std::filesystem::path LifeSign::FileOf(const std::string& token) const {
  return folder_ / (token + ".run");
}

}  // namespace store
