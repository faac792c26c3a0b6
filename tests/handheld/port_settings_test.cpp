#include "handheld/frmProperties.h"
#include "tests/handheld/receive_desk.h"

namespace store {
namespace {

class PortSettings : public testing::Test {
 protected:
  PortSettings() { RegisterHandheldForms(); }

  DT9RECEV& Receiver() { return dynamic_cast<DT9RECEV&>(*TheForm("DT9RECEV")); }
  std::string& Stored(const std::string& key) { return host.Settings[{"STORE", "options", key}]; }
  /// Everything in the store, as "key=value" joined by "|".
  std::string AllStored() const {
    std::string all;
    for (const auto& [key, value] : host.Settings)
      all += (all.empty() ? "" : "|") + std::get<2>(key) + "=" + value;
    return all;
  }
  /// The settings window over the receive form, as its button opens it.
  void InWindow(const std::function<void(frmProperties&)>& work) {
    host.OnModal("frmProperties", [&](Form& form) { work(dynamic_cast<frmProperties&>(form)); });
    Receiver().Press(Key::F3);
  }

  ScriptedHost host;
};

TEST_F(PortSettings, TheFirstRunSetsSoftwareHandshake) {
  Receiver().EnsureLoaded();
  EXPECT_EQ(AllStored(), "설정=9600,n,8,1");
  EXPECT_EQ(host.Port->CommPort(), 1);
  EXPECT_EQ(host.Port->Handshaking(), 1);
  EXPECT_EQ(Receiver().Label2.Caption, "Com1:");
}

TEST_F(PortSettings, StoredOnesComeIntoForce) {
  Stored("설정") = "19200,e,7,2";
  Stored("포트") = "3";
  Stored("흐름제어") = "2";
  Receiver().EnsureLoaded();
  EXPECT_EQ(host.Port->Settings(), "19200,e,7,2");
  EXPECT_EQ(host.Port->CommPort(), 3);
  EXPECT_EQ(host.Port->Handshaking(), 2);
  EXPECT_EQ(Receiver().Label2.Caption, "Com3:19200,e,7,2");
}

TEST_F(PortSettings, AZeroIsNoSetting) {
  Stored("설정") = "9600,n,8,1";
  Stored("포트") = "0";
  Stored("흐름제어") = "x";
  Receiver().EnsureLoaded();
  EXPECT_EQ(AllStored(), " 포트=1| 흐름제어=0|설정=9600,n,8,1|포트=0|흐름제어=x");
  EXPECT_EQ(host.Port->CommPort(), 1);
  EXPECT_EQ(host.Port->Handshaking(), 0);
  EXPECT_EQ(Receiver().Label2.Caption, "Com0:9600,n,8,1");
}

TEST_F(PortSettings, RefusedOnesAreToldAndEndTheLoad) {
  Stored("설정") = "1,n,8,1";
  Stored("포트") = "2";
  DT9RECEV& form = Receiver();
  host.Port->RefusedSettings = "1,n,8,1";
  host.ExpectBox("거절됨");
  form.EnsureLoaded();
  EXPECT_EQ(host.Boxes.back().Style, box::Warning);
  EXPECT_EQ(host.Boxes.back().Title, "");
  EXPECT_EQ(host.Port->CommPort(), 1);
  EXPECT_EQ(form.Label2.Caption, "");
}

TEST_F(PortSettings, TheWindowShowsWhatIsInForce) {
  struct Case {
    std::string settings;
    std::string speed;
    int parity;
    std::string dataBits;
    std::string stopBits;
  };
  const std::vector<Case> cases = {
      {"9600,n,8,1.5", "9600", 2, "8", "1.5"}, {"115200,e,7,2", "115200", 0, "7", "2"},
      {"19200,m,4,1", "19200", 3, "4", "1"},   {"9600,E,8,1", "9600", -1, "8", "1"},
      {"4800,o,8,1", "4800", 1, "8", "1"},     {"x", "", -1, "", ""},
  };
  DT9RECEV& form = Receiver();
  form.EnsureLoaded();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.settings);
    host.Port->SetSettings(c.settings);
    host.Port->SetCommPort(4);
    host.Port->SetHandshaking(3);
    InWindow([&](frmProperties& window) {
      EXPECT_TRUE(window.Place.OnTop);
      EXPECT_EQ(window.cboSpeed.Text(), c.speed);
      EXPECT_EQ(window.cboParity.ListIndex(), c.parity);
      EXPECT_EQ(window.cboDataBits.Text(), c.dataBits);
      EXPECT_EQ(window.cboStopBits.Text(), c.stopBits);
      EXPECT_EQ(window.cboPort.Text(), "Com4");
      EXPECT_TRUE(window.optFlow[3].Value);
      EXPECT_EQ(window.ActiveControl, &window.cboPort);
    });
  }
}

TEST_F(PortSettings, AreAppliedStoredAndShown) {
  DT9RECEV& form = Receiver();
  form.EnsureLoaded();
  InWindow([&](frmProperties& window) {
    window.cboPort.SetListIndex(1);
    window.cboSpeed.SetText("115200");
    window.cboParity.SetText("Even");
    window.optFlow_Click(2);
    host.Port->SetPortOpen(true);
    window.Press(Key::F9);
    EXPECT_FALSE(host.Port->PortOpen()) << "another port is closed and not opened again";
    EXPECT_EQ(host.Port->Settings(), "115200,E,8,1");
    EXPECT_EQ(AllStored(), "설정=115200,E,8,1|포트=2|흐름제어=2");
    EXPECT_EQ(form.Label2.Caption, "Com2:115200,E,8,1");
    EXPECT_EQ(window.LBL_MSG.Caption, "적용되었습니다.");
    window.Timer1_Timer();
    EXPECT_EQ(window.LBL_MSG.Caption, "");
    EXPECT_FALSE(window.Timer1.Enabled);

    host.Port->SetPortOpen(true);
    window.Press(Key::F9);
    EXPECT_TRUE(host.Port->PortOpen()) << "the same port stays open";
    EXPECT_FALSE(window.IsClosed());
    window.Press(Key::Escape);
    EXPECT_TRUE(window.IsClosed());
  });
}

TEST_F(PortSettings, ARefusedPortChangesNothing) {
  DT9RECEV& form = Receiver();
  form.EnsureLoaded();
  const std::string before = AllStored();
  host.Port->RefusedPort = 4;
  InWindow([&](frmProperties& window) {
    window.cboPort.SetListIndex(3);
    window.cboSpeed.SetText("19200");
    host.ExpectBox("거절됨");
    window.Press(Key::F9);
  });
  EXPECT_EQ(host.Port->CommPort(), 1);
  EXPECT_EQ(host.Port->Settings(), "9600,n,8,1");
  EXPECT_EQ(AllStored(), before);
  host.Port->RefusedSettings = "19200,N,8,1";
  host.Port->RefusedHandshaking = 3;
  InWindow([&](frmProperties& window) {
    window.cboSpeed.SetText("19200");
    window.optFlow_Click(3);
    host.ExpectBox("거절됨");
    host.ExpectBox("거절됨");
    window.Press(Key::F9);
  });
  EXPECT_EQ(AllStored(), "설정=9600,n,8,1|포트=1|흐름제어=1") << "what is in force is stored";
}

using Inspector = SmallStoreTest;

TEST_F(Inspector, IsAUserOfThisStore) {
  RegisterHandheldForms();
  const auto find = [&](const std::string& code) {
    auto& form = dynamic_cast<FRM_NAMECHK&>(*TheForm("FRM_NAMECHK"));
    form.EnsureLoaded();
    form.Activate();
    EXPECT_EQ(form.ActiveControl, &form.Text1);
    form.Text1.SetText(code);
    form.Press(Key::Enter);
    const bool open = !form.IsClosed();
    if (open) form.Press(Key::Escape);
    EXPECT_TRUE(form.IsClosed());
    EXPECT_EQ(form.InspectorCode.empty(), open);
    return form.InspectorCode;
  };
  EXPECT_EQ(find("u01"), "u01");
  EXPECT_EQ(find("U02"), "u02") << "as it is stored";
  for (const char* refused : {"u09", "", "u'", "x"}) {
    host.ExpectBox("사용자코드가 올바르지 않습니다.");
    EXPECT_EQ(find(refused), "") << refused;
    EXPECT_EQ(host.Boxes.back().Style, box::Critical);
  }
}

}  // namespace
}  // namespace store
