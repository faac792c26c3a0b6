#pragma once

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "slips/draft_file.h"
#include "slips/life_sign.h"

namespace store {

/// One file of drafts while this run has it open. A thread of its own writes, each change on the
/// disk before the next, so that whoever types never waits; what comes within a moment, or quicker
/// than the disk, is one write. A change that could not be written stays in memory and goes with
/// the next one.
class DraftKeeper {
 public:
  /// Opens the file and takes out what is too old; `HasFile` says whether that worked.
  explicit DraftKeeper(const std::filesystem::path& path);
  /// Writes what is left.
  ~DraftKeeper();
  DraftKeeper(const DraftKeeper&) = delete;
  DraftKeeper& operator=(const DraftKeeper&) = delete;

  std::string Notice;  ///< What the person has to be told about the file.

  bool HasFile() const { return reads_ != nullptr; }
  /// Whether the last write succeeded.
  bool Writes();
  std::string NewId() { return sign_.Token() + "-" + std::to_string(++ids_); }

  void Keep(Draft draft);
  void PutAside(const std::string& id);
  void Remove(const std::string& id);
  /// Waits until the thread has nothing left to write. False when that takes longer.
  bool Flush(std::chrono::milliseconds patience);
  /// Drafts that nobody writes, the one changed last first. What waits for the disk counts as done.
  std::vector<Draft> Kept();
  /// Makes a kept draft this run's; false when another run was quicker.
  bool Take(const std::string& id);

 private:
  using Changes = std::map<std::string, DraftChange>;

  void Add(const std::string& id, DraftChange change);
  void WriteUntilClosed();
  bool TakeUnwritten(const std::string& id);
  void RemoveOld();

  std::unique_ptr<DraftFile> file_;   // the thread's
  std::unique_ptr<DraftFile> reads_;  // the forms'
  LifeSign sign_;                     // in the folder that the file has made
  int ids_ = 0;
  std::mutex waiting_;  // what follows
  std::condition_variable changed_;
  std::condition_variable written_;
  Changes changes_;       // still to be written
  Changes writing_;       // on their way to the disk
  bool hasNews_ = false;  // changes came since the last write began
  bool hurry_ = false;    // the next write is waited for
  bool failed_ = false;
  bool closed_ = false;
  std::thread writer_;
};

}  // namespace store
