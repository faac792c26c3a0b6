#include "start/frmSplash.h"

#include "basics/records.h"
#include "forms/form.h"
#include "forms/host.h"
#include "slips/item_list.h"
#include "start/start_data.h"

namespace store {
namespace {

constexpr int kStartDelay = 100;  // milliseconds

}  // namespace

frmSplash::frmSplash() : Form("frmSplash") {
  Publish("lblVersion", lblVersion);
  Publish("lblStep", lblStep);
  Publish("Timer1", Timer1);
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmSplash::Load() {
  ShapeWindow(*this, placement::Centered, true);
  const ProgramVersionNumbers& version = Host.Version;
  lblVersion.Caption = "Version " + std::to_string(version.Major) + "." +
                       std::to_string(version.Minor) + "." + std::to_string(version.Revision);
  lblProductName.Caption = Host.ProgramTitle;
  Caption = Host.ProgramTitle;
}

void frmSplash::Activate() {
  if (started_) return;
  started_ = true;
  Host.DoEvents();
  Timer1.Interval = kStartDelay;
  Timer1.Enabled = true;
}

void frmSplash::Timer1_Timer() {
  Timer1.Interval = 0;
  ShowStep("기초코드를 읽는 중입니다.");
  LoadBaseCodes();
  ShowStep("가맹점 정보를 읽는 중입니다.");
  LoadStore();
  // With the restricted partners the order form fetches the items it needs by itself.
  if (AppOptions.OrderInfoPartnersOnly == 0) {
    ShowStep("상품 목록을 읽는 중입니다.");
    OpenItemList();
  }
  Close();
}

// The reads block the window, so what stands on it has to be painted first.
void frmSplash::ShowStep(const std::string& text) {
  lblStep.Caption = text;
  Host.DoEvents();
}

}  // namespace store
