#include "ui/shots/handheld_shots.h"

#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <QApplication>
#include <array>
#include <vector>

#include "basics/text.h"
#include "forms/host.h"
#include "handheld/wire/replies.h"
#include "slips/handheld_runs.h"
#include "ui/desk.h"

namespace store {
namespace {

/// The other end of "Com1".
class Terminal {
 public:
  Terminal() {
    int device = -1;
    std::array<char, 64> name{};
    termios raw{};
    cfmakeraw(&raw);
    if (openpty(&line_, &device, name.data(), &raw, nullptr) != 0)
      Director::Fail("no pseudo-terminal");
    fcntl(line_, F_SETFL, O_NONBLOCK);
    close(device);
    qputenv("STORE_COM1", name.data());
  }
  void Send(const std::string& text) const {
    const std::string bytes = ToCodePage949(text);
    if (write(line_, bytes.data(), bytes.size()) < 0) Director::Fail("the line takes nothing");
  }
  /// Whether the program has answered since the last time.
  bool Answered() const {
    std::array<char, 64> reply{};
    return read(line_, reply.data(), reply.size()) > 0;
  }

 private:
  int line_ = -1;
};

std::string Field(const std::string& text, int width) {
  const std::string cut = ByteLen(text) > width ? ByteMid(text, 1, width) : text;
  return cut + std::string(static_cast<size_t>(width - ByteLen(cut)), ' ');
}

struct Scanned {
  std::string partner;
  std::string barcode;
  std::string name;
  std::string quantity;
  std::string price;
};

std::string FrameOf(const Scanned& scanned, int number) {
  const std::string record = FourDigits(number) + "0" + Field(scanned.partner, 12) +
                             Field(scanned.barcode, 15) + Field(scanned.name, 20) +
                             Field(scanned.quantity, 5) + Field(scanned.price, 7);
  return control::Stx + record + "00" + control::Etx;
}

/// Goods from partners of the demo franchise, one that the terminal does not know, and one of a
/// partner that nobody knows.
const std::vector<Scanned>& Goods() {
  static const std::vector<Scanned> goods = {
      {"10018", "8801043953016", "토담 유기농 된장찌개", "12", "24260"},
      {"10018", "8805948539818", "ECO 튼튼한 수세미", "24", "1850"},
      {"10018", "8809990000011", "신규상품", "6", "3200"},
      {"999999", "8806012148615", "자연숲 우유 XL", "10", "2500"},
      {"10010", "8808665145195", "수제 감자스틱", "48", "810"},
      {"10010", "8803633340794", "골드 초코우유", "3", "51300"},
      {"10010", "8802475741288", "국산 수정과 라이트", "5", "29700"},
      {"10011", "8807443936888", "순한 치약 혼합", "30", "2240"},
  };
  return goods;
}

}  // namespace

void ShootReceive(Director& director) {
  // The user's own settings of the port are neither read nor written.
  director.WhenShown("frm_Start", [](FormWindow&) {
    Host.GetSetting = EmptyHost().GetSetting;
    Host.SaveSetting = EmptyHost().SaveSetting;
    OpenHandheldRun(HandheldRuns().front());
  });
  director.WhenShown("DT9RECEV", [](FormWindow& window) { Press(window, Qt::Key_F3); });
  director.WhenShown("frmProperties", [&](FormWindow& window) {
    Press(window, Qt::Key_F9);
    director.Save(window, "handheld_port");
    Press(window, Qt::Key_Escape);
  });
  static const Terminal terminal;
  director.WhenShown("DT9RECEV", [](FormWindow& window) { Press(window, Qt::Key_F5); });
  director.WhenShown("FRM_NAMECHK", [&](FormWindow& window) {
    Type(window, "u01");
    director.Save(window, "handheld_inspector");
    Press(window, Qt::Key_Enter);
  });
  director.WhenShown("DT9RECEV", [&](FormWindow& window) {
    director.Fit(window);
    terminal.Send(std::string(1, control::Enq));
  });
  constexpr int kRecords = 24;
  for (int number = 1; number <= kRecords; ++number) {
    director.When([] { return terminal.Answered(); },
                  [number] {
                    const size_t at = static_cast<size_t>(number - 1) % Goods().size();
                    terminal.Send(FrameOf(Goods()[at], number));
                  });
  }
  director.When([] { return terminal.Answered(); },
                [&director] {
                  FormWindow& window = *TheDesk().WindowNamed("DT9RECEV");
                  director.Save(window, "handheld_receiving");
                  terminal.Send(std::string(1, control::Eot));
                });
  director.When(
      [] {
        const FormWindow* window = TheDesk().WindowNamed("DT9RECEV");
        auto* save = window->findChild<QAbstractButton*>("Command1_3");
        return save != nullptr && save->isEnabled();
      },
      [&director] {
        FormWindow& window = *TheDesk().WindowNamed("DT9RECEV");
        GoTo(window, "FLEX", 2, 5);
        director.Save(window, "handheld_review");
        Press(window, Qt::Key_Escape);
      });
}

void ShootCradle(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow& window) { Press(window, Qt::Key_F7); });
  director.When([] { return QApplication::activePopupWidget() != nullptr; },
                [&director] {
                  director.SaveWithMenu(*TheDesk().WindowNamed("frm_Start"), "handheld_menu");
                  Dispatch([] { OpenHandheldRun(HandheldRuns().back()); });
                });
  director.WhenShown("FRM_CRDIMP", [&](FormWindow& window) {
    director.Save(window, "handheld_cradle");
    Press(window, Qt::Key_Escape);
  });
}

}  // namespace store
