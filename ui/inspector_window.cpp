#include "ui/inspector_window.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "handheld/FRM_NAMECHK.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr int kWidth = 320;

}  // namespace

InspectorWindow::InspectorWindow(FRM_NAMECHK& form) : FormWindow(form), check_(form) {
  auto* entry = Row();
  entry->addWidget(Named("Label1", CaptionLabel({})));
  entry->addWidget(Named("Text1", new QLineEdit), 1);
  auto* content = Column();
  content->addWidget(Group("card", entry));
  content->addStretch();
  content->addWidget(Buttons());
  FillWindow(*this, content);
  BindControls();
  FitContent(*this, {kWidth, 0});
}

QWidget* InspectorWindow::Buttons() {
  auto* accept = new KeyButton("확인");
  auto* cancel = new KeyButton("취소");
  accept->WriteKey("Enter");
  cancel->WriteKey("Esc");
  accept->MarkMain();
  OnPress(*accept, [this] { check_.Text1_KeyDown(Key::Enter); });
  OnPress(*cancel, [this] { check_.Text1_KeyDown(Key::Escape); });
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  row->addWidget(accept);
  row->addWidget(cancel);
  auto* buttons = new QWidget;
  buttons->setLayout(row);
  return buttons;
}

}  // namespace store
