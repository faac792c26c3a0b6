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
  PublishControls();
  Text1.KeyDown = [this](Key key) {
    if (key == Key::Enter) FocusNext();
  };
  Text1.OwnKeys = {Key::Enter};
  Text2.GotFocus = [this] { Events.emplace_back("Text2 got focus"); };
  Command1.Click = [this] {
    Events.emplace_back("Command1");
    if (OnCommand1) OnCommand1();
  };
  for (size_t i = 0; i < Option1.size(); ++i) {
    Option1[i].Click = [this, i] {
      for (size_t other = 0; other < Option1.size(); ++other) Option1[other].Value = other == i;
    };
  }
  TabOne1.Click = [this](int tab) {
    TabOne1.CurrTab = tab;
    Events.push_back("tab " + std::to_string(tab));
  };
  Timer1.Tick = [this] {
    Events.emplace_back("Timer1");
    Timer1.Enabled = false;
  };
  Text1.Change = [this] { Events.push_back("Text1=" + Text1.Text()); };
  Combo1.Click = [this] { Events.push_back("Combo1=" + std::to_string(Combo1.ListIndex())); };
  DTPicker1.Change = [this] { Events.push_back("DTPicker1=" + DTPicker1.Value()); };
  FLEX1.SetColumns({{.Header = "품명", .Alignment = Align::Left},
                    {.Header = "수량", .Alignment = Align::Right, .Format = "#,###"}});
}

void ProbeForm::PublishControls() {
  Publish("Text1", Text1);
  Publish("Text2", Text2);
  Publish("Command1", Command1);
  Publish("Label1", Label1);
  Publish("Combo1", Combo1);
  Publish("DTPicker1", DTPicker1);
  Publish("Check1", Check1);
  Publish("Option1", Option1);
  Publish("TabOne1", TabOne1);
  Publish("ProgressBar1", ProgressBar1);
  Publish("Timer1", Timer1);
  Publish("FLEX1", FLEX1);
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
  const auto place = [places](const char* name, QWidget* widget) {
    places->addWidget(Named(name, widget));
  };
  place("Text1", new QLineEdit);
  place("Text2", new QLineEdit);
  place("Command1", new KeyButton({}, Qt::Key_F9));
  place("Label1", new QLabel);
  place("Combo1", new QComboBox);
  place("DTPicker1", new QDateEdit);
  place("Check1", new QCheckBox);
  place("Option1_0", new QRadioButton);
  place("Option1_1", new QRadioButton);
  place("TabOne1", new QWidget);
  place("ProgressBar1", new QProgressBar);
  place("FLEX1", new GridView(form.FLEX1));
  BindControls();
  resize(400, 500);
}

void DeskTest::SetUp() {
  OpenRealHost();
  Host.ForgetSettings(Host.ProgramTitle, "windows");  // where the last test left them
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
