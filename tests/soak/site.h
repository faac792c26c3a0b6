#pragma once

#include <functional>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <string>
#include <vector>

#include "private_db/private_db_server.h"

namespace store {

/// The database of the seeded days: one server, or a cluster whose nodes hold the same data and all
/// serve terminals. What befalls it is drawn here.
class Site {
 public:
  /// `failed` is told what goes wrong, and must not return. It is called in the caller's thread.
  Site(int nodes, std::function<void(const std::string& what)> failed);

  /// Starts every node, with an empty database of that name.
  void Start(const std::string& database);
  /// The servers' ports, one a node.
  std::vector<int> Ports() const;
  const std::string& Folder() const { return nodes_.front()->Folder(); }
  bool IsCluster() const { return nodes_.size() > 1; }

  /// One server loses its power or stands still for a while, as `random` draws. A server alone is
  /// back when this returns; a node is brought back beside the work, and nothing happens while one
  /// is away. What has happened is counted in `faults`.
  void Strike(std::mt19937& random, std::map<std::string, long>& faults);
  /// Waits until every node is back.
  void AwaitEverybody();

 private:
  void Note(const std::string& what);
  void TellWhatFailed();
  bool SomebodyIsAway() const;

  const std::function<void(const std::string& what)> failed_;
  std::mutex mutex_;
  std::string wrong_;  // what has failed, also in the thread that brings a node back
  std::vector<std::unique_ptr<PrivateDbServer>> nodes_;
  std::future<void> comingBack_;
};

}  // namespace store
