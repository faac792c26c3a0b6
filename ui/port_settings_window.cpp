#include "ui/port_settings_window.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "handheld/frmProperties.h"
#include "ui/binding.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr int kWidth = 380;

}  // namespace

PortSettingsWindow::PortSettingsWindow(frmProperties& form) : FormWindow(form) {
  auto* content = Column();
  content->addWidget(Fields());
  content->addWidget(FlowControl(static_cast<int>(form.optFlow.size())));
  content->addStretch();
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindControls();
  FitContent(*this, {kWidth, 0});
}

QWidget* PortSettingsWindow::Fields() {
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(10);
  fields->setColumnStretch(1, 1);
  fields->addWidget(HeadingLabel("연결 기본 설정"), 0, 0, 1, 2);
  const auto place = [&](const QString& caption, const QString& list) {
    const int line = fields->rowCount();
    fields->addWidget(CaptionLabel(caption), line, 0);
    fields->addWidget(Named(list, new QComboBox), line, 1);
  };
  place("포트:", "cboPort");
  place("최대속도: ", "cboSpeed");
  place("데이터 비트:", "cboDataBits");
  place("패리티:", "cboParity");
  place("중단 비트:", "cboStopBits");
  return Group("card", fields);
}

QWidget* PortSettingsWindow::FlowControl(int count) {
  auto* choices = new QGridLayout;
  auto* heading = HeadingLabel("흐름 제어 (&F)");
  choices->addWidget(heading, 0, 0, 1, 2);
  for (int i = 0; i < count; ++i) {
    auto* choice = Named(QString("optFlow_%1").arg(i), new QRadioButton);
    choice->setProperty(kLetterProperty, QString::number(i));
    if (i == 0) heading->setBuddy(choice);
    choices->addWidget(choice, 1 + i / 2, i % 2);
  }
  return Group("card", choices);
}

QWidget* PortSettingsWindow::Foot() {
  auto* apply = Named("Command1_0", new KeyButton);
  auto* close = Named("Command1_1", new KeyButton);
  apply->WriteKey("F9");
  close->WriteKey("Esc");
  for (KeyButton* button : {apply, close}) button->setFocusPolicy(Qt::TabFocus);
  apply->MarkMain();
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(Named("LBL_MSG", ValueLabel()), 1);
  row->addWidget(apply);
  row->addWidget(close);
  auto* foot = new QWidget;
  foot->setLayout(row);
  return foot;
}

}  // namespace store
