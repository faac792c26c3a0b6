#include "tests/soak/clerk.h"

#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <thread>

#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "forms/options_file.h"
#include "gateway/gateway.h"
#include "handheld/FRM_DT900_01.h"
#include "handheld/handheld_forms.h"
#include "lookup/NEW_PR.h"
#include "lookup/lookup_form.h"
#include "order/order_form.h"
#include "receipt/frm_PE_UNIT.h"
#include "start/Main_Start.h"
#include "start/frmSplash.h"
#include "tests/soak/franchise.h"

namespace store {
namespace {

constexpr int kMostTries = 4;
constexpr int kManyWaiting = 25;  // orders: the goods come first

/// What the boxes say when something was stored.
constexpr std::array<std::string_view, 5> kStoredWords = {
    "발주가 정상적으로 처리되었습니다", "입고처리가 정상적으로 처리되었습니다",
    "전표가 삭제되었습니다", "상태로 전환되었습니다", "저장이 완료되었습니다"};
/// And when nobody can be sure. A try that was looked for and not found may still be running.
constexpr std::array<std::string_view, 4> kOpenWords = {
    "알 수 없습니다", "아직 저장되지 않았습니다", "저장이 확인되지 않았습니다", "건 중 "};
/// The clerk is asked to look into the list before she goes on.
constexpr std::string_view kLookFirst = "저장되지 않았으면 다시 저장하세요";

bool Holds(const std::string& text, std::string_view words) {
  return text.find(words) != std::string::npos;
}

template <class Words>
bool AnyHolds(const std::vector<std::string>& boxes, const Words& anyOf) {
  return std::any_of(boxes.begin(), boxes.end(), [&](const std::string& text) {
    return std::any_of(anyOf.begin(), anyOf.end(),
                       [&](std::string_view words) { return Holds(text, words); });
  });
}

const char* VerdictOf(const std::vector<std::string>& boxes) {
  if (AnyHolds(boxes, kOpenWords)) return verdict::Unknown;
  return AnyHolds(boxes, kStoredWords) ? verdict::Stored : verdict::Failed;
}

/// A fault and how often it is drawn.
struct Chance {
  Fault What;
  int Weight;
};

constexpr std::array<Chance, 10> kChances = {{{Fault::CutBefore, 14},
                                              {Fault::CutHalf, 8},
                                              {Fault::CutDuring, 16},
                                              {Fault::CutAfter, 20},
                                              {Fault::Mute, 1},
                                              {Fault::Delay, 16},
                                              {Fault::CutRead, 10},
                                              {Fault::KillBefore, 3},
                                              {Fault::KillDuring, 6},
                                              {Fault::KillAfter, 6}}};
constexpr int kFaultPercent = 8;
constexpr int kOutagePercent = 30;

ClerkNumbers& NumbersOf(const ClerkPlace& place) {
  ClerkNumbers* numbers = MapClerkNumbers(place.Folder + "/numbers");
  if (numbers == nullptr) _exit(4);
  return *numbers;
}

}  // namespace

std::string MicrosecondsNow() {
  timeval now{};
  gettimeofday(&now, nullptr);
  return std::to_string(static_cast<long long>(now.tv_sec) * 1'000'000 + now.tv_usec);
}

Clerk::Clerk(const ClerkPlace& place)
    : place_(place),
      numbers_(NumbersOf(place)),
      log_(place.Folder + "/log"),
      host_(place.Folder),
      proxy_(place.ServerPorts,
             [this](Fault fault) {
               log_.Line({entry::Fault, FaultName(fault)});
             }),
      random_(place.Seed * 1'000'003U +
              static_cast<unsigned>(place.Store * kTerminals + place.Terminal) * 7919U +
              numbers_.Process++) {
  RegisterStartForms();
  RegisterLookupForms();
  RegisterBoardForms();
  RegisterOrderForms();
  RegisterReceiptForms();
  RegisterHandheldForms();
  host_.InForm["frmSplash"] = [](Form& form) { dynamic_cast<frmSplash&>(form).Timer1_Timer(); };
  host_.InForm["HELP_CT"] = [this](Form& form) { TakePartner(dynamic_cast<LookupForm&>(form)); };
  host_.InForm["frm_PE_UNIT"] = [this](Form& form) {
    WorkOnReceipt(dynamic_cast<frm_PE_UNIT&>(form));
  };
  host_.InForm["FRM_DT900_01"] = [this](Form& form) {
    WorkOnPass(dynamic_cast<FRM_DT900_01&>(form));
  };
  log_.Line({entry::Begin});
}

void Clerk::WriteOptions() const {
  const StoreOptions options = OptionsOf(place_.Store);
  const auto write = [](const char* key, const std::string& value) {
    WriteOption(kOptionSection, key, value);
  };
  write("데이터서버", "127.0.0.1;PORT=" + std::to_string(proxy_.Port()));
  write("회사아이디", kCompany);
  write("일괄발주단가", options.PricePolicy);
  write("단가[0]발주", "1");
  write("발주정보거래처", std::to_string(options.PartnersOnly));
  write("입고량0제외", std::to_string(options.SkipZeroReceipt));
  write(kOrderTypeKey, std::to_string(options.OrderType));
}

bool Clerk::LogIn() {
  WriteOptions();
  const bool in = Main_Start(UserCodeOf(place_.Store, place_.Terminal) + "," + kPassword);
  Release();
  return in && Session.StoreCode == StoreCodeOf(place_.Store) && BaseSettings.MaxSlipLines > 0 &&
         !BaseSettings.VatPercent.empty();
}

int Clerk::Run(const volatile bool& stop) {
  if (!LogIn()) return clerk_end::NoLogin;
  while (!stop) {
    Act();
    Release();
    if (Percent(1)) PassMidnight();
    // Without a server there is nothing to do but to try again in a while.
    if (!LastErrorText.empty()) std::this_thread::sleep_for(std::chrono::milliseconds(20));
    if (Below(400) == 0) {
      log_.Line({entry::Fault, "restart"});
      return clerk_end::Restart;
    }
  }
  return clerk_end::Closing;
}

void Clerk::Act() {
  const int draw = Below(100);
  if (draw < 30) {
    if (waiting_ > kManyWaiting) return ReceiveGoods();
    return NewOrder();
  }
  if (draw < 46) return ChangeOrder();
  if (draw < 51) return DeleteOrRevert(false);
  if (draw < 56) return DeleteOrRevert(true);
  if (draw < 88) return ReceiveGoods();
  if (draw < 90) return ReceiveAgain();
  RunPass();
}

void Clerk::Release() const { ReleaseDroppedForms(); }

frm_Start& Clerk::Board() const { return dynamic_cast<frm_Start&>(*TheForm("frm_Start")); }

/// Somebody else may do something meanwhile.
void Clerk::Pause() {
  if (Percent(25)) std::this_thread::sleep_for(std::chrono::milliseconds(1 + Below(30)));
}

void Clerk::PassMidnight() {
  host_.DaysAhead = host_.DaysAhead >= 3 ? 0 : host_.DaysAhead + 1;
  log_.Line({entry::Fault, "midnight"});
}

std::string Clerk::NextGroup() { return std::to_string(++numbers_.Group); }

/// A quantity that no other order of the store has at its top line with that product.
std::string Clerk::TokenQuantity(int product) {
  const auto slot = static_cast<size_t>(product);
  const auto number = numbers_.Quantity[slot]++;
  return std::to_string(1000 +
                        (number * kTerminals + static_cast<unsigned>(place_.Terminal)) % 9000);
}

void Clerk::ArmFault() {
  if (!Percent(kFaultPercent)) return;
  int total = 0;
  for (const Chance& chance : kChances) total += chance.Weight;
  int draw = Below(total);
  size_t i = 0;
  while (draw >= kChances[i].Weight) draw -= kChances[i++].Weight;
  proxy_.SetOutage(Percent(kOutagePercent) ? 10 + Below(150) : 0);
  proxy_.Arm(kChances[i].What);
}

std::string Clerk::PressOnce(const Work& work) {
  const std::string press = std::to_string(++numbers_.Press);
  host_.Boxes.clear();
  ArmFault();
  work.NoteIntent(press);
  work.Press();
  proxy_.Disarm();
  const char* told = VerdictOf(host_.Boxes);
  std::string texts;
  for (const std::string& text : host_.Boxes) texts += (texts.empty() ? "" : " | ") + text;
  log_.Line({entry::Told, press, work.Group, told, work.Key ? work.Key() : "", texts});
  return told;
}

bool Clerk::PressUntilDone(const Work& work) {
  std::string told = PressOnce(work);
  const auto mayPressAgain = [&] {
    return told != verdict::Stored && !AnyHolds(host_.Boxes, std::array{kLookFirst});
  };
  for (int tries = 1; mayPressAgain() && tries < kMostTries && Percent(80); ++tries) {
    const bool atOnce = Percent(50);
    if (atOnce) {
      log_.Line({entry::Fault, "duplicate press"});
    } else {
      std::this_thread::sleep_for(std::chrono::milliseconds(20 + Below(80)));
    }
    told = PressOnce(work);
  }
  log_.Line({entry::Closed, work.Group});
  return told == verdict::Stored;
}

bool Clerk::SelectOnBoard(int option) {
  frm_Start& board = Board();
  for (size_t i = 0; i < board.Option1.size(); ++i)
    board.Option1[i].Value = static_cast<int>(i) == option;
  board.Option1_Click(option);
  const int rows = board.FLEX1.Rows() - 1;
  if (option == 3) waiting_ = rows;
  if (rows < 1) return false;
  // Those of one store look at the same few slips at the top of the list.
  board.FLEX1.Select(1 + Below(std::min(rows, 8)), board::Date);
  board.FLEX1_Click();
  Pause();
  return true;
}

}  // namespace store
