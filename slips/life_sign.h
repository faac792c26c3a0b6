#pragma once

#include <filesystem>
#include <string>

namespace store {

/// Tells other runs of the program that this one is alive: a file of its own in a folder, locked
/// for as long as the process lives, however it ends.
class LifeSign {
 public:
  /// Signs in `folder`. Where no file can be made nobody sees this run.
  explicit LifeSign(std::filesystem::path folder);
  ~LifeSign();
  LifeSign(const LifeSign&) = delete;
  LifeSign& operator=(const LifeSign&) = delete;

  /// The name of this run; no other one ever has it.
  const std::string& Token() const { return token_; }
  /// Whether the run of that name is alive. What a dead one has left is taken away.
  bool Lives(const std::string& token) const;

 private:
  std::filesystem::path FileOf(const std::string& token) const;

  std::filesystem::path folder_;
  std::string token_;
  int file_ = -1;
};

}  // namespace store
