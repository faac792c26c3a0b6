#include "ui/login_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include "forms/host.h"
#include "start/frmLogin.h"
#include "ui/band_painter.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(420, 250);
constexpr int kBandHeight = 84;

}  // namespace

LoginWindow::LoginWindow(frmLogin& form) : FormWindow(form) {
  LayOut();
  BindControls();
}

void LoginWindow::LayOut() {
  auto* user = Named("txtUserName", new QLineEdit);
  auto* password = Named("txtPassword", new QLineEdit);
  auto* ok = Named("cmdOK", new KeyButton({}, Qt::Key_Enter));
  auto* cancel = Named("cmdCancel", new KeyButton({}, Qt::Key_Escape));
  auto* options = new KeyButton("연결설정", Qt::Key_F10);
  ok->setFocusPolicy(Qt::TabFocus);
  cancel->setFocusPolicy(Qt::TabFocus);
  ok->MarkMain();
  // The password is a row of stars; hangul must not be put together under it.
  password->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhNoPredictiveText);

  auto* fields = new QGridLayout;
  fields->setVerticalSpacing(8);
  fields->setHorizontalSpacing(10);
  fields->addWidget(CaptionLabel("사용자"), 0, 0);
  fields->addWidget(user, 0, 1);
  fields->addWidget(CaptionLabel("비밀번호"), 1, 0);
  fields->addWidget(password, 1, 1);
  auto* buttons = Row();
  buttons->addWidget(options);
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* content = new QVBoxLayout;
  FollowLook(*this, [this, content] {
    setFixedSize(Scaled(kSize));
    content->setContentsMargins(Scaled(QMargins(48, kBandHeight + 22, 48, 20)));
  });
  content->addLayout(fields);
  content->addStretch();
  content->addLayout(buttons);
  setLayout(content);

  OnPress(*options, [this] { ShownForm().KeyDown(Key::F10); });
}

void LoginWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintBandedGround(painter, rect(), Scaled(kBandHeight), ToQt(Host.ProgramTitle));
}

}  // namespace store
