#include "slips/order_in_hand.h"

#include <algorithm>
#include <utility>

#include "basics/log.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/post_order.h"
#include "slips/received_order.h"
#include "slips/slip_keys.h"
#include "slips/stored_once.h"

namespace store {
namespace {

/// New orders whose forms were closed, or turned to another order, before their fate was known.
std::vector<OrderInHand> Aside;

constexpr const char* kSavedAtMostOnce = "\r다시 저장하여도 두 번 저장되지 않습니다.";
constexpr const char* kNotYetStored =
    "데이터서버의 응답이 끊겼고, 확인한 결과 아직 저장되지 않았습니다.\r다시 저장하세요.";
constexpr const char* kStillUnknown =
    "앞서 보낸 발주가 저장되었는지 아직 확인할 수 없습니다.\r잠시 후 다시 저장하세요.";
constexpr const char* kWentOn =
    "앞서 보낸 발주가 이미 저장되어 처리되고 있습니다. 지금 내용은 저장하지 않았습니다.\r다시 "
    "조회한 후 발주하세요.";
constexpr const char* kKeyTaken =
    "앞서 보낸 발주의 전표번호에 다른 내용의 발주가 있습니다.\r앞서 보낸 발주가 저장되었는지 "
    "조회한 후, 저장되지 않았으면 다시 저장하세요.";

/// Whether what was found is just what was to be stored: the same content, in the state asked for
/// or in one to which others have moved it since.
bool HasBrought(const TriesFound& found, const StoredOrder& order) {
  if (!found.Own || !SameOrder(*found.Own, order)) return false;
  return found.State == order.State ||
         (found.Own->State == order.State && found.State > order.State);
}

void LogTriesFound(const std::string& slipId, const TriesFound& found, const StoredOrder& order) {
  const char* words = !found.Asked               ? ", and the database could not be asked"
                      : HasBrought(found, order) ? ", and stored"
                                                 : ", and not stored as it is now";
  WriteLog(LogWeight::Note, "batch in doubt", "order " + slipId + " looked for" + words);
}

bool WereAskedFor(const TriesFound& found) {
  if (!found.Asked) LastErrorText = kStillUnknown;
  return found.Asked;
}

void GiveKey(const std::string& slipId, HeadArray& headValues, StringTable& lineValues) {
  headValues[head::Id] = slipId;
  for (int row = 1; row <= lineValues.LastRow(); ++row) {
    if (!lineValues.At(row, line::Id).empty()) lineValues.Set(row, line::Id, slipId);
  }
}

}  // namespace

void OrderInHand::Open(const std::string& slipId) {
  *this = {};
  openedId_ = slipId;
  opened_ = ReadStoredOrder(slipId);
}

std::string OrderInHand::Depot() const {
  return opened_ && !opened_->Lines.empty() ? opened_->Lines.front().Depot : std::string();
}

std::string OrderInHand::Stand() const {
  return opened_
             ? StandOf({openedId_, opened_->State, opened_->Link, opened_->Stamp, opened_->Total})
             : std::string();
}

bool OrderInHand::TriesCanBeAskedFor() const {
  return tries_.empty() || WereAskedFor(LookForTries(KeyToAskFor(), tries_));
}

/// When the order is found it is looked for once more.
TriesFound OrderInHand::LookFor(const std::string& slipId, const StoredOrder& order) const {
  TriesFound found = LookForTries(slipId, tries_);
  if (HasBrought(found, order)) {
    Host.Sleep(kUntilOnDisk);
    found = LookForTries(slipId, tries_);
  }
  LogTriesFound(slipId, found, order);
  return found;
}

void OrderInHand::FindItsKey(HeadArray& headValues, StringTable& lineValues) {
  // An opened key that is none was replaced by a new one, and so the order is a new one.
  if (openedId_ != headValues[head::Id]) openedId_.clear();
  if (!IsNew() || !tries_.empty()) return;
  const StoredOrder order = OrderAsSent(headValues, lineValues);
  const auto same = std::find_if(Aside.begin(), Aside.end(), [&](const OrderInHand& aside) {
    return std::any_of(aside.tries_.begin(), aside.tries_.end(),
                       [&](const StoredOrder& lost) { return SameOrder(lost, order); });
  });
  if (same == Aside.end()) return;
  *this = std::move(*same);
  Aside.erase(same);
  GiveKey(keyOfTries_, headValues, lineValues);
}

bool OrderInHand::Save(const HeadArray& headValues, const StringTable& lineValues,
                       const std::string& table) {
  const StoredOrder order = OrderAsSent(headValues, lineValues);
  const std::string& slipId = headValues[head::Id];
  TriesFound found;
  if (!tries_.empty()) {
    found = LookFor(KeyToAskFor(), order);
    if (!WereAskedFor(found)) return false;
  }
  const bool stored = HasBrought(found, order) || Post(headValues, lineValues, table) ||
                      (BatchInDoubt ? AfterLostAnswer(slipId, order) : AfterRefusal(slipId, order));
  if (stored) *this = {};
  return stored;
}

bool OrderInHand::Post(const HeadArray& headValues, const StringTable& lineValues,
                       const std::string& table) {
  if (IsNew()) return PostNewOrder(headValues, lineValues, table, tries_) == -1;
  std::vector<StoredOrder> known = tries_;
  if (opened_) known.push_back(*opened_);
  return PostOrderChange(headValues, lineValues, table, known) == -1;
}

bool OrderInHand::AfterLostAnswer(const std::string& slipId, const StoredOrder& order) {
  const std::string words = LastErrorText;
  if (IsNew()) keyOfTries_ = slipId;
  tries_.push_back(order);
  const TriesFound found = LookFor(slipId, order);
  LastErrorText = found.Asked ? kNotYetStored : words + kSavedAtMostOnce;
  return HasBrought(found, order);
}

bool OrderInHand::AfterRefusal(const std::string& slipId, const StoredOrder& order) {
  // The number may have been somebody else's, so the next one comes from the database.
  if (IsNew()) SlipSeqCounter = 0;
  if (tries_.empty()) return false;
  const std::string words = LastErrorText;
  const TriesFound found = LookFor(slipId, order);
  LastErrorText = words;
  if (HasBrought(found, order)) return true;
  if (!IsNew() || !found.Taken) return false;
  if (!found.Own) {
    LastErrorText = kKeyTaken;
    *this = {};
  } else if (found.State != found.Own->State) {
    LastErrorText = kWentOn;
    told_ = true;
  }
  return false;
}

void OrderInHand::PutAside() {
  if (!IsNew()) return;
  if (!tries_.empty() && !told_) Aside.push_back(std::move(*this));
  *this = {};
}

void ResetOrdersInHand() { Aside.clear(); }

}  // namespace store
