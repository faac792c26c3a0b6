#pragma once

#include "forms/form.h"

namespace store {

/// The panel that stands over an order form during a long step, with a bar that moves.
class ProgressPane {
 public:
  explicit ProgressPane(Form& form);
  ProgressPane(const ProgressPane&) = delete;
  ProgressPane& operator=(const ProgressPane&) = delete;

  Panel SSPanel1;
  Panel SSPanel2;  ///< Stands in `SSPanel1` while the server works and nothing can be counted.
  ProgressBar ProgressBar1;
  Label Label2{"잠시만 기다려 주세요......."};

  /// Shows the panel for work on `steps` things; the window paints.
  void ShowProgress(int steps);
  /// Shows it while the count is not known yet; the window paints. `ShowProgress` follows.
  void ShowWaiting();
  /// One more is done. The window paints as often as the bar moves visibly.
  void StepProgress();
  void HideProgress();

 protected:
  ~ProgressPane() = default;

 private:
  int painted_ = 0;  // the value that the window last showed
};

}  // namespace store
