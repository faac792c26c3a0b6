// The real port on a real device of the system, by itself and under the receive form.
#include "ui/serial_port.h"

#include <linux/capability.h>
#include <stdlib.h>
#include <sys/syscall.h>
#include <termios.h>
#include <unistd.h>

#include <QtTest>
#include <array>
#include <optional>

#include "tests/handheld/pseudo_terminal.h"
#include "tests/handheld/receive_desk.h"

namespace store {
namespace {

bool Within(const std::function<bool()>& come) { return QTest::qWaitFor(come, 5000); }

class RealPort : public testing::Test {
 protected:
  RealPort() {
    Plug(terminal);
    port->OnComm = [this](int code) {
      codes.push_back(code);
      if (code == comm::Receive) pieces.push_back(port->Input());
    };
  }
  static void Plug(const PseudoTerminal& plugged) {
    setenv("STORE_COM1", plugged.Device().c_str(), 1);
  }
  std::string Received() const {
    std::string all;
    for (const std::string& piece : pieces) all += piece;
    return all;
  }

  PseudoTerminal terminal;
  std::unique_ptr<SerialPort> port = MakeSerialPort();
  std::vector<int> codes;
  std::vector<std::string> pieces;
};

TEST_F(RealPort, BeginsWithItsFirstSettings) {
  EXPECT_EQ(port->CommPort(), 1);
  EXPECT_EQ(port->Settings(), "9600,n,8,1");
  EXPECT_EQ(port->Handshaking(), 0);
  EXPECT_FALSE(port->PortOpen());
}

TEST_F(RealPort, KoreanLettersComeWholeByteByByte) {
  ASSERT_EQ(port->SetPortOpen(true), "");
  const std::string text =
      "\x02"
      "맑은생수A힣\x03";
  std::string sent;
  for (const char byte : ToCodePage949(text)) {
    terminal.SendBytes(std::string(1, byte));
    sent += byte;
    std::string bytes = sent;
    const std::string whole = TakeWholeLetters(bytes);
    ASSERT_TRUE(Within([&] { return Received() == whole; })) << Received();
  }
  EXPECT_EQ(Received(), text);
  for (const std::string& piece : pieces) EXPECT_NE(piece, "") << "half a letter is no news";
}

TEST_F(RealPort, SendsInTheCodePage) {
  ASSERT_EQ(port->SetPortOpen(true), "");
  port->Output(
      "\x02\x06"
      "가\x03");
  std::string taken;
  EXPECT_TRUE(Within([&] {
    taken += terminal.Take();
    return taken == "\x02\x06\xB0\xA1\x03";
  }));
  ASSERT_EQ(port->SetPortOpen(false), "");
  port->Output("nobody hears it");
}

TEST_F(RealPort, OpeningForgetsWhatCameBefore) {
  terminal.Send("before");
  ASSERT_EQ(port->SetPortOpen(true), "");
  terminal.SendBytes("during\xB0");
  ASSERT_TRUE(Within([&] { return Received() == "during"; }));
  ASSERT_EQ(port->SetPortOpen(false), "");
  EXPECT_FALSE(port->PortOpen());
  ASSERT_EQ(port->SetPortOpen(true), "");
  terminal.Send("after");
  ASSERT_TRUE(Within([&] { return Received() == "duringafter"; })) << Received();
}

TEST_F(RealPort, TellsWhyItCannotBeOpened) {
  setenv("STORE_COM2", "/dev/no_such_port", 1);
  EXPECT_EQ(port->SetCommPort(2), "");
  const std::string refused = port->SetPortOpen(true);
  EXPECT_NE(refused.find("/dev/no_such_port: "), std::string::npos) << refused;
  EXPECT_FALSE(port->PortOpen());
  for (const int number : {0, 5, -1}) EXPECT_NE(port->SetCommPort(number), "") << number;
  EXPECT_EQ(port->CommPort(), 2);
  EXPECT_EQ(port->SetCommPort(1), "");
  EXPECT_EQ(port->SetPortOpen(true), "");
  EXPECT_NE(port->SetCommPort(2), "") << "an open one keeps its number";
  QTest::qWait(20);
  EXPECT_EQ(codes, std::vector<int>()) << "a refusal is no event";
}

/// While it lives, this program is refused what an administrator of the machine is not.
class OrdinaryRights {
 public:
  OrdinaryRights() {
    EXPECT_EQ(syscall(SYS_capget, &header_, all_.data()), 0);
    auto fewer = all_;
    fewer[0].effective &= ~(1U << CAP_SYS_ADMIN);
    EXPECT_EQ(syscall(SYS_capset, &header_, fewer.data()), 0);
  }
  ~OrdinaryRights() { EXPECT_EQ(syscall(SYS_capset, &header_, all_.data()), 0); }
  OrdinaryRights(const OrdinaryRights&) = delete;
  OrdinaryRights& operator=(const OrdinaryRights&) = delete;

 private:
  __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
  std::array<__user_cap_data_struct, 2> all_{};
};

TEST_F(RealPort, OneProgramHasItAtATime) {
  const OrdinaryRights rights;
  const std::unique_ptr<SerialPort> other = MakeSerialPort();
  ASSERT_EQ(other->SetPortOpen(true), "");
  EXPECT_NE(port->SetPortOpen(true), "");
  EXPECT_FALSE(port->PortOpen());
  ASSERT_EQ(other->SetPortOpen(false), "");
  EXPECT_EQ(port->SetPortOpen(true), "");
}

TEST_F(RealPort, TakesTheSettingsOfItsPlatform) {
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"19200,E,7,2", "19200,e,7,2"},
      {"115200,s,8,1", "115200,s,8,1"},
      {"9600,n,4,1", ""},
      {"9600,n,9,1", ""},
      {"9600,n,8,3", ""},
      {"9600,q,8,1", ""},
      {"0,n,8,1", ""},
      {"x,n,8,1", ""},
      {"9600,n,8", ""},
      {"", ""},
      {"9600,n,8,1.5", ""},
  };
  for (const auto& [text, inForce] : cases) {
    const std::string before = port->Settings();
    const std::string refused = port->SetSettings(text);
    EXPECT_EQ(refused.empty(), *inForce != '\0') << text;
    EXPECT_EQ(port->Settings(), *inForce == '\0' ? before : inForce) << text;
  }
  for (const int flow : {1, 2, 0}) {
    EXPECT_EQ(port->SetHandshaking(flow), "") << flow;
    EXPECT_EQ(port->Handshaking(), flow);
  }
  for (const int flow : {3, 4, -1}) EXPECT_NE(port->SetHandshaking(flow), "") << flow;
  EXPECT_EQ(port->Handshaking(), 0);
}

TEST_F(RealPort, SettingsComeIntoForceOnAnOpenPort) {
  ASSERT_EQ(port->SetPortOpen(true), "");
  EXPECT_EQ(terminal.Speed(), B9600);
  ASSERT_EQ(port->SetSettings("19200,n,8,1"), "");
  EXPECT_EQ(terminal.Speed(), B19200);
}

TEST_F(RealPort, ALineThatNobodyReadsFillsUp) {
  ASSERT_EQ(port->SetPortOpen(true), "");
  port->Output(std::string(513, 'x'));
  ASSERT_TRUE(Within([&] { return !codes.empty(); }));
  EXPECT_EQ(codes, std::vector<int>{comm::SendFull});
}

TEST_F(RealPort, ADeviceThatIsGoneClosesIt) {
  ASSERT_EQ(port->SetPortOpen(true), "");
  terminal.HangUp();
  ASSERT_TRUE(Within([&] { return !codes.empty(); }));
  EXPECT_EQ(codes, std::vector<int>{comm::DeviceLost});
  EXPECT_FALSE(port->PortOpen());
  const PseudoTerminal other;
  Plug(other);
  ASSERT_EQ(port->SetPortOpen(true), "");
  other.Send("again");
  EXPECT_TRUE(Within([&] { return Received() == "again"; }));
}

/// The receive form at a real port, its waits and events the real ones.
class RealTransfer : public ReceiveDesk {
 protected:
  RealTransfer() {
    Host.MakeSerialPort = MakeSerialPort;
    Host.DoEvents = [] { QCoreApplication::processEvents(); };
    Host.Sleep = [this](int milliseconds) {
      QThread::msleep(static_cast<unsigned long>(milliseconds));
      if (DuringWait) DuringWait();
    };
    terminal.emplace();
    setenv("STORE_COM1", terminal->Device().c_str(), 1);
  }

  void Start(DT9RECEV& form) {
    Inspector("u02");
    form.Press(Key::F5);
    ASSERT_TRUE(form.MSComm1->PortOpen());
  }
  /// The reply that the program gives to a message, sent letter by letter or at once.
  std::string ReplyTo(const std::string& message, bool byBytes) {
    const std::string bytes = ToCodePage949(message);
    if (byBytes) {
      for (const char byte : bytes) {
        terminal->SendBytes(std::string(1, byte));
        QCoreApplication::processEvents();
      }
    } else {
      terminal->SendBytes(bytes);
    }
    std::string reply;
    Within([&] {
      reply += terminal->Take();
      return reply.size() >= 7;
    });
    return reply;
  }

  std::optional<PseudoTerminal> terminal;
  std::function<void()> DuringWait;
};

TEST_F(RealTransfer, ComesOverTheLine) {
  DT9RECEV& form = Open();
  Start(form);
  const std::string first = TradeRecord('0', "0001", "C0001", "8801000", "맑은생수", "12", "480");
  // The terminal does not wait until the pause behind the reply is over.
  std::string opened;
  DuringWait = [&] {
    opened += terminal->Take();
    if (opened != AckText("0001")) return;
    terminal->Send(FrameOf(first));
    opened += "!";
  };
  EXPECT_EQ(ReplyTo(kOpening, false), AckText("0002"));
  EXPECT_EQ(opened, AckText("0001") + "!");
  DuringWait = nullptr;
  const std::string second = TradeRecord('0', "0002", "C0002", "88010004", "참기름", "3", "5500");
  EXPECT_EQ(ReplyTo(FrameOf(second), true), AckText("0003"));
  terminal->Send(kClosing);
  ASSERT_TRUE(Within([&] { return !form.MSComm1->PortOpen(); }));
  EXPECT_EQ(RowText(form.FLEX, 1), "0001|매    입|C0001|한빛상사|8801000|맑은생수|12|480|C0001");
  EXPECT_EQ(RowText(form.FLEX, 2), "0002|매    입|C0002|한빛식품|88010004|참기름|3|5500|C0002");
  EXPECT_TRUE(form.Command1[3].Enabled);
}

TEST_F(RealTransfer, ALineThatIsUnpluggedIsToldAndTheFormGoesOn) {
  DT9RECEV& form = Open();
  Start(form);
  EXPECT_EQ(ReplyTo(kOpening, false), AckText("0001"));
  host.ExpectBox("취소후 다시 전송하세요", box::Ok);
  terminal->HangUp();
  ASSERT_TRUE(Within([&] { return !host.Boxes.empty(); }));
  EXPECT_FALSE(form.MSComm1->PortOpen());

  terminal.emplace();
  setenv("STORE_COM1", terminal->Device().c_str(), 1);
  form.Press(Key::F5);
  form.Press(Key::F5);
  EXPECT_EQ(form.Command1[1].Caption, "수신 시작") << "stopped, and idle again";
  Start(form);
  EXPECT_EQ(ReplyTo(kOpening, false), AckText("0001"));
}

TEST_F(RealTransfer, ASilentTerminalIsWaitedForUntilTheOperatorStops) {
  DT9RECEV& form = Open();
  Start(form);
  EXPECT_EQ(ReplyTo(kOpening, false), AckText("0001"));
  terminal->Send(
      "\x02"
      "0001");
  QTest::qWait(300);
  EXPECT_TRUE(form.MSComm1->PortOpen());
  EXPECT_EQ(form.FLEX.Rows(), 1);
  form.Press(Key::F5);
  EXPECT_FALSE(form.MSComm1->PortOpen());
  EXPECT_EQ(form.Command1[1].Caption, "수신 시작");
  EXPECT_TRUE(form.Close());
}

}  // namespace
}  // namespace store
