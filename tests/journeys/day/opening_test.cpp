// A day of opening and closing: nothing breaks, and nothing piles up.
#include <malloc.h>

#include <QApplication>
#include <QPixmapCache>
#include <QtTest>

#include "forms/host.h"
#include "forms/open_forms.h"
#include "lookup/HELP_BPR.h"
#include "lookup/party_lookups.h"
#include "slips/slip_form.h"
#include "tests/journeys/day/store_day.h"
#include "tests/journeys/hands.h"
#include "ui/desk.h"
#include "ui/form_window.h"

namespace store {
namespace {

constexpr int kWarmUp = 40;
constexpr int kTimes = 200;
// What the heap may grow by over some two thousand openings: the toolkit keeps a little of each, a
// window that stayed would be fifty times as much.
constexpr size_t kSlack = size_t{4} << 20;

/// Closes the modal window of that name by the system's close as soon as it is on the screen.
void CloseWhenShown(const std::string& formName) {
  QTimer::singleShot(0, qApp, [formName] {
    FormWindow* window = TheDesk().WindowNamed(formName);
    if (window != nullptr && window->isActiveWindow()) {
      window->close();
    } else {
      CloseWhenShown(formName);
    }
  });
}

auto Widgets() {
  QTest::qWait(50);  // closed windows go when the event loop is next idle
  return QApplication::allWidgets().size();
}

/// Bytes of the heap in use, without the toolkit's cache of drawn pieces, which has a limit of its
/// own. 0 where a sanitizer has the heap.
size_t HeapInUse() {
  QPixmapCache::clear();
  return mallinfo2().uordblks;
}

void OpenAndClose(Form& form) {
  CloseWhenShown(form.Name);
  Dispatch([&] { Host.ShowModal(form); });
}

template <class Lookup>
void OpenAndCloseLookup() {
  Lookup lookup;
  OpenAndClose(lookup);
}

class Opening : public StoreDay {
 protected:
  void RoundOfAllForms() {
    for (const char* name : {"frmLogin", "frmOptions"}) OpenAndClose(*TheForm(name));
    Dispatch([] { Host.ShowModal(*TheForm("frmSplash")); });  // closes by itself
    OpenAndCloseLookup<HELP_CT>();
    OpenAndCloseLookup<HELP_RCT>();
    OpenAndCloseLookup<HELP_HCT>();
    OpenAndCloseLookup<HELP_ST>();
    OpenAndCloseLookup<HELP_CTM>();
    OpenAndCloseLookup<HELP_BPR>();
    ReceiveAndLeave();
    OrderAndLeave();
  }
  void ReceiveAndLeave() {
    auto& receipt = dynamic_cast<SlipForm&>(*TheForm("frm_PE_UNIT"));
    receipt.SlipId = "202405161001u01220003";
    receipt.SlipTable = "PEM23";
    OpenAndClose(receipt);
  }
  void OrderAndLeave() {
    Dispatch([this] { Board().Image1_Click(0); });
    FormWindow& order = Hands::Window("frm_Order");
    ASSERT_TRUE(Hands::Wait([this] { return Order().Combo1.ListIndex() == 0; }));
    order.close();
    ASSERT_TRUE(Hands::Wait([] { return OpenForm("frm_Order") == nullptr; }));
    Hands::Window("frm_Start");
  }
};

TEST_F(Opening, EveryFormTwoHundredTimesWithoutGrowth) {
  for (int i = 0; i < kWarmUp; ++i) RoundOfAllForms();
  const auto widgets = Widgets();
  const size_t heap = HeapInUse();
  for (int i = kWarmUp; i < kTimes && !HasFatalFailure(); ++i) RoundOfAllForms();
  EXPECT_EQ(Widgets(), widgets);
  EXPECT_LE(HeapInUse(), heap + kSlack);
}

}  // namespace
}  // namespace store
