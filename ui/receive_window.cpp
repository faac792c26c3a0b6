#include "ui/receive_window.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "handheld/DT9RECEV.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(940, 600);
constexpr int kCodeWidth = 150;

KeyButton* WithKey(const QString& name, const QString& key) {
  auto* button = Named(name, new KeyButton);
  button->WriteKey(key);
  return button;
}

QLineEdit* CodeField(const QString& name) {
  auto* field = Named(name, new QLineEdit);
  FollowLook(*field, [field] { field->setFixedWidth(Scaled(kCodeWidth)); });
  return field;
}

}  // namespace

ReceiveWindow::ReceiveWindow(DT9RECEV& form) : FormWindow(form) {
  auto* content = Column();
  content->addWidget(Heading());
  content->addWidget(State());
  auto* rows = Named("FLEX", new GridView(form.FLEX));
  content->addWidget(rows, 1);
  content->addWidget(PartnerChange());
  content->addWidget(Buttons());
  FillWindow(*this, content);
  BindControls();
  OfferActions(*rows, {KeyLine("품목등록", Key::Enter, form.FLEX),
                       {},
                       ButtonLine("Command1_1"),
                       ButtonLine("Command1_3"),
                       ButtonLine("Command2")});
  Layout().OpenAs(kSize, 1);
}

QWidget* ReceiveWindow::Heading() {
  auto* row = Row();
  row->addWidget(Named("LBL_TITLE_0", HeadingLabel({})));
  row->addWidget(Named("LBL_TITLE_1", HeadingLabel({})), 1);
  row->addWidget(CaptionLabel("수신 구분:"));
  row->addWidget(Named("laGubun", HeadingLabel({})));
  return Group("card", row);
}

QWidget* ReceiveWindow::State() {
  auto* row = Row();
  row->addWidget(CaptionLabel("수신 건수:"));
  row->addWidget(Named("Label1", ValueLabel()), 1);
  row->addWidget(CaptionLabel("검품자:"));
  row->addWidget(Named("Label7", ValueLabel()), 1);
  row->addWidget(CaptionLabel("연결상태:"));
  row->addWidget(Named("Label2", ValueLabel()), 2);
  return Group("card", row);
}

QWidget* ReceiveWindow::PartnerChange() {
  auto* row = Row();
  row->addWidget(CaptionLabel("거래처 전환   변경전"));
  row->addWidget(CodeField("Text1_0"));
  row->addWidget(CaptionLabel("변경후"));
  row->addWidget(CodeField("Text1_1"));
  row->addWidget(WithKey("Command3", "F1"));
  row->addWidget(WithKey("Command2", "F6"));
  row->addStretch();
  auto* hint = Row();
  hint->addStretch();
  hint->addWidget(CaptionLabel("********** 칸에서 Enter: 품목등록"));
  return Group("card", Alone(Folding(row, hint)));
}

QWidget* ReceiveWindow::Buttons() {
  auto* save = WithKey("Command1_3", "F9");
  save->MarkMain();
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(WithKey("Command1_0", "F3"));
  row->addWidget(WithKey("Command1_1", "F5"));
  row->addStretch();
  row->addWidget(save);
  row->addWidget(WithKey("Command1_2", "Esc"));
  auto* buttons = new QWidget;
  buttons->setLayout(row);
  return buttons;
}

}  // namespace store
