#include "tests/ui/probe_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QtTest>

#include "forms/host.h"
#include "forms/open_forms.h"
#include "ui/bindings.h"
#include "ui/desk.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/real_host.h"
#include "ui/window_registry.h"

namespace store {

ProbeForm::ProbeForm(const std::string& name) : Form(name) {
  Caption = name;
  TabOne1.Captions = {"가", "나"};
  Option1[0] = OptionButton("하나");
  Option1[1] = OptionButton("둘");
  TabOrder = {&Text1, &Text2, &FLEX1};
  Text1.Change = [this] { Events.push_back("Text1=" + Text1.Text()); };
  Combo1.Click = [this] { Events.push_back("Combo1=" + std::to_string(Combo1.ListIndex())); };
  DTPicker1.Change = [this] { Events.push_back("DTPicker1=" + DTPicker1.Value()); };
  FLEX1.SetColumns({{.Header = "품명", .Alignment = Align::Left},
                    {.Header = "수량", .Alignment = Align::Right, .Format = "#,###"}});
}

ProbeForm::~ProbeForm() { TheDesk().CloseWindow(*this); }

void ProbeForm::Activate() { Events.push_back("Activate"); }

bool ProbeForm::QueryUnload() {
  Events.push_back("QueryUnload");
  return MayClose;
}

void ProbeForm::Unload() { Events.push_back("Unload"); }

bool ProbeForm::KeyDown(Key key) { return OnKeyDown && OnKeyDown(key); }

bool ProbeForm::Happened(const std::string& event) const {
  return std::find(Events.begin(), Events.end(), event) != Events.end();
}

ProbeWindow::ProbeWindow(ProbeForm& form) : FormWindow(form) {
  auto* places = new QVBoxLayout(this);
  const auto place = [places](auto* widget) -> auto& {
    places->addWidget(widget);
    return *widget;
  };
  BindTextBox(*this, "Text1", form.Text1, place(new QLineEdit));
  BindTextBox(*this, "Text2", form.Text2, place(new QLineEdit));
  BindPress(*this, "Command1", form.Command1, place(new KeyButton({}, Qt::Key_F9)), [&form] {
    form.Events.emplace_back("Command1");
    if (form.OnCommand1) form.OnCommand1();
  });
  BindLabel(*this, "Label1", form.Label1, place(new QLabel));
  BindComboBox(*this, "Combo1", form.Combo1, place(new QComboBox));
  BindDatePicker(*this, "DTPicker1", form.DTPicker1, place(new QDateEdit));
  BindCheckBox(*this, "Check1", form.Check1, place(new QCheckBox));
  for (size_t i = 0; i < form.Option1.size(); ++i) {
    BindOption(*this, QString("Option1_%1").arg(i), form.Option1[i], place(new QRadioButton),
               [&form, i] {
                 for (size_t other = 0; other < form.Option1.size(); ++other) {
                   form.Option1[other].Value = other == i;
                 }
               });
  }
  BindTabs(*this, "TabOne1", form.TabOne1, place(new QWidget), [&form](int tab) {
    form.TabOne1.CurrTab = tab;
    form.Events.push_back("tab " + std::to_string(tab));
  });
  BindProgress(*this, "ProgressBar1", form.ProgressBar1, place(new QProgressBar));
  BindTimer(*this, form.Timer1, [&form] {
    form.Events.emplace_back("Timer1");
    form.Timer1.Enabled = false;
  });
  BindGrid(*this, "FLEX1", form.FLEX1, place(new GridView(form.FLEX1)));
  OnGotFocus(form.Text2, [&form] { form.Events.emplace_back("Text2 got focus"); });
  OnKey(form.Text1, [&form](Key key) {
    if (key == Key::Enter) form.FocusNext();
    return key == Key::Enter;
  });
  ChainTabOrder();
  resize(400, 500);
}

void DeskTest::SetUp() {
  OpenRealHost();
  RegisterWindow("Probe", MakerOf<ProbeWindow, ProbeForm>());
  RegisterWindow("Second", MakerOf<ProbeWindow, ProbeForm>());
}

void DeskTest::TearDown() {
  TheDesk().Clear();
  DropAllForms();
  Host = EmptyHost();
}

FormWindow& DeskTest::Open(ProbeForm& form) {
  Host.Show(form);
  FormWindow* window = TheDesk().WindowOf(form);
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.Happened("Activate"); }));
  return *window;
}

void DeskTest::WhenModal(std::function<void(QWidget&)> act) {
  QTimer::singleShot(20, qApp, [act = std::move(act)] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && QTest::qWaitForWindowActive(modal)) {
      act(*modal);
    } else {
      WhenModal(act);
    }
  });
}

GridView& DeskTest::FindGrid(QWidget& window, const char* name) {
  return dynamic_cast<GridView&>(Find<QTableView>(window, name));
}

}  // namespace store
