#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/form.h"

namespace store {

/// The workstation of a clerk without a screen: it fills `Host`, answers boxes as a clerk who means
/// what she has pressed, and keeps what they said.
class ClerkHost {
 public:
  explicit ClerkHost(const std::string& folder);
  ~ClerkHost();
  ClerkHost(const ClerkHost&) = delete;
  ClerkHost& operator=(const ClerkHost&) = delete;

  std::vector<std::string> Boxes;  ///< Texts, in order.
  bool GoesOnOrdering = true;      ///< The answer to the question behind a stored order.
  int DaysAhead = 0;               ///< How far the workstation's clock is from the machine's.
  /// What is done in a form of that name while it is shown modally. It is closed afterwards.
  std::map<std::string, std::function<void(Form&)>> InForm;

 private:
  int Answer(const std::string& text, int style, const std::string& title);
  void ShowModal(Form& form);
};

}  // namespace store
