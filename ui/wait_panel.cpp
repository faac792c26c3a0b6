#include "ui/wait_panel.h"

#include <QLabel>
#include <QProgressBar>
#include <algorithm>

#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/progress_panel.h"
#include "ui/qt_text.h"

namespace store {

WaitPanel::~WaitPanel() { Hide(); }

void WaitPanel::Hide() { delete frame_; }

void WaitPanel::ShowWaiting(std::chrono::milliseconds lasted, bool stoppable) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(lasted).count();
  QString remark = QString("%1초").arg(std::max<qint64>(seconds, 1));
  if (stoppable) remark += "      Esc 중지";
  Show("데이터서버를 기다리는 중입니다.", remark, 0, 0);
}

void WaitPanel::ShowProgress(const std::string& what, int done, int of) {
  Show(ToQt(what), QString("%1 / %2").arg(done).arg(of), done, of);
}

void WaitPanel::Show(const QString& what, const QString& remark, int done, int of) {
  QWidget* window = TheDesk().FrontWindow();
  if (window == nullptr) return;
  if (frame_ != nullptr && frame_->parentWidget() != window) Hide();
  if (frame_ == nullptr) {
    frame_ = new ProgressPanel(*window, {"WaitPanel", "WaitingFor", "WaitingBar", "WaitingRemark"});
  }
  frame_->findChild<QLabel*>("WaitingFor")->setText(what);
  frame_->findChild<QLabel*>("WaitingRemark")->setText(remark);
  auto* bar = frame_->findChild<QProgressBar*>("WaitingBar");
  bar->setRange(0, of);
  bar->setValue(done);
  bar->setTextVisible(of > 0);
  frame_->show();
}

}  // namespace store
