#pragma once

#include <map>
#include <set>
#include <string>

namespace store {

/// What was found to be broken, counted by kind. The first few of each kind are printed with their
/// facts.
class Findings {
 public:
  /// `what` names the kind, `subject` what it happened to: the same pair counts once.
  void Add(const std::string& what, const std::string& subject, const std::string& facts);
  bool Empty() const { return counts_.empty(); }
  void Print() const;

 private:
  std::map<std::string, int> counts_;
  std::set<std::string> known_;
};

}  // namespace store
