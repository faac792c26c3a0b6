#include "ui/splash_window.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "start/frmSplash.h"
#include "ui/band_painter.h"
#include "ui/layout_pieces.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(460, 230);
constexpr int kBandHeight = 130;

}  // namespace

SplashWindow::SplashWindow(frmSplash& form) : FormWindow(form), splash_(form) {
  QLabel* version = Named("lblVersion", CaptionLabel({}));
  auto* step = Named("lblStep", new QLabel);
  auto* content = new QVBoxLayout;
  FollowLook(*this, [this, content] {
    setFixedSize(Scaled(kSize));
    content->setContentsMargins(Scaled(QMargins(28, kBandHeight + 16, 28, 20)));
  });
  content->addWidget(version);
  content->addStretch();
  content->addWidget(step);
  setLayout(content);
  BindControls();
}

void SplashWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintBandedGround(painter, rect(), Scaled(kBandHeight), ToQt(splash_.lblProductName.Caption));
}

}  // namespace store
