#include "order/progress_pane.h"

#include "forms/host.h"

namespace store {
namespace {

constexpr int kPaintings = 50;  // of the bar, from its one end to the other

}  // namespace

ProgressPane::ProgressPane(Form& form) {
  form.Publish("SSPanel1", SSPanel1);
  form.Publish("SSPanel2", SSPanel2);
  form.Publish("ProgressBar1", ProgressBar1);
  form.Publish("Label2", Label2);
  SSPanel1.Visible = false;
}

void ProgressPane::ShowWaiting() {
  ProgressBar1.Value = 0;
  SSPanel2.Visible = true;
  SSPanel1.Visible = true;
  Host.DoEvents();
}

void ProgressPane::ShowProgress(int steps) {
  ProgressBar1.Max = steps;
  ProgressBar1.Value = painted_ = 0;
  SSPanel2.Visible = false;
  SSPanel1.Visible = true;
  Host.DoEvents();
}

void ProgressPane::StepProgress() {
  ++ProgressBar1.Value;
  if (ProgressBar1.Value - painted_ <= ProgressBar1.Max / kPaintings) return;
  painted_ = ProgressBar1.Value;
  Host.DoEvents();
}

void ProgressPane::HideProgress() { SSPanel1.Visible = false; }

}  // namespace store
