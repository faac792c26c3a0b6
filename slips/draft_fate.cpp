#include "slips/draft_fate.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "basics/numbers.h"
#include "basics/text.h"
#include "gateway/gateway.h"
#include "slips/depot_choice.h"
#include "slips/received_order.h"

namespace store {
namespace {

/// Waits for a save under that key that is still running at the server.
std::string LookStatement(const std::string& slipId) {
  return Splice(" SELECT PE_ID FROM PEM22 WHERE PE_ID = '{slip}' LOCK IN SHARE MODE",
                "slip"_a = slipId);
}

/// The lines of an order, with what its header holds of a draft.
std::string ContentStatement(const std::string& slipId) {
  return Splice(
      "SELECT PSM22.PR_CODE,PS_SQTY,PE_PDATE,PE_TCTCODE,PS_HCTCODE FROM PEM22 JOIN PSM22 ON "
      "PEM22.PE_ID = PSM22.PE_ID WHERE PEM22.PE_ID='{slip}'",
      "slip"_a = slipId);
}

/// Waits for a save at which the server may still be working, though the program that sent it is
/// gone.
std::string WaitStatement(const std::string& slipId) {
  return Splice(" SELECT PE_ID FROM PEM22 WHERE PE_ID = '{slip}' LOCK IN SHARE MODE",
                "slip"_a = slipId);
}

using Quantities = std::vector<std::pair<std::string, double>>;

Quantities QuantitiesOf(const Draft& draft) {
  Quantities quantities;
  for (const DraftLine& line : draft.Lines) {
    quantities.emplace_back(line.Code, ParseGrouped(line.Quantity));
  }
  std::sort(quantities.begin(), quantities.end());
  return quantities;
}

/// Whether the order of that key holds what the draft holds.
bool Holds(const std::string& slipId, const Draft& draft) {
  const RecordsetSlot slip = FetchRecordset(ContentStatement(slipId));
  Quantities stored;
  bool same = true;
  ForEachRow(slip, [&] {
    stored.emplace_back(FieldText(slip, 0), ParseNumber(FieldText(slip, 1)));
    same =
        same && FieldText(slip, 2) == draft.Date && FieldText(slip, 4) == DepotCodeOf(draft.Depot);
    // An order to several suppliers has none of its own.
    same = same && (draft.PartnerCode.empty() || FieldText(slip, 3) == draft.PartnerCode);
  });
  std::sort(stored.begin(), stored.end());
  return same && !stored.empty() && stored == QuantitiesOf(draft);
}

}  // namespace

DraftFate FateOf(const Draft& draft) {
  const bool isOrder = draft.SlipTable == "PEM22";
  const std::string& key = draft.SlipId.empty() ? draft.TriedId : draft.SlipId;
  // Asked without a key too: whoever goes on needs the server for the prices.
  if (!FetchRecordset(LookStatement(key))) return DraftFate::Unreadable;
  if (key.empty()) return DraftFate::GoesOn;
  if (!draft.TriedId.empty() && !FetchRecordset(WaitStatement(draft.TriedId))) {
    return DraftFate::Unreadable;
  }
  const std::optional<OrderAsRead> order = ReadOrder(key);
  if (!order && !LastErrorText.empty()) return DraftFate::Unreadable;
  const std::string stand = order ? StandOf(*order) : std::string();
  if (stand == draft.Stamp) return DraftFate::GoesOn;
  if (isOrder && order && Holds(key, draft)) return DraftFate::AlreadyStored;
  return DraftFate::SlipChanged;
}

}  // namespace store
