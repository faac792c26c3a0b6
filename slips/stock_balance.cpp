#include "slips/stock_balance.h"

#include <cstddef>
#include <map>

#include "basics/dates.h"
#include "basics/numbers.h"
#include "gateway/gateway.h"
#include "gateway/guard.h"
#include "slips/slip.h"

namespace store {
namespace {

std::string StockCountStatement(const LineFields& fields, const std::string& store) {
  return Splice(
      "select count(*) from IV where RCT_CODE='{store}' and HCT_CODE='{L17}' and PR_CODE='{L3}' ",
      fields, "store"_a = store);
}

std::string StockUpdateStatement(const LineFields& fields, const std::string& store,
                                 const std::string& column) {
  return Splice(
      "UPDATE IV SET {column} = {column} + {L8} WHERE  RCT_CODE='{store}' AND HCT_CODE='{L17}' AND "
      "PR_CODE='{L3}'",
      fields, "store"_a = store, "column"_a = column);
}

std::string StockInsertStatement(const LineFields& fields, const std::string& store,
                                 const std::string& column) {
  return Splice(
      "INSERT INTO IV (RCT_CODE, HCT_CODE, PR_CODE, PR_NAME, PR_STD, PR_UNT, PR_BCODE, {column}) "
      "values  ('{store}','{L17}','{L3}','{L4}','{L5} ','{L7}','',{L8})",
      fields, "store"_a = store, "column"_a = column);
}

std::string BalanceCountStatement(const HeadFields& fields, const std::string& kind,
                                  const std::string& month) {
  return Splice(
      "select count(*) from CMM where CM_FCTCODE='{H4}' and CM_TCTCODE='{H6}' and "
      "CM_MGU='{kind}' and CM_MM='{month}'",
      fields, "kind"_a = kind, "month"_a = month);
}

std::string BalanceUpdateStatement(const HeadFields& fields, const std::string& kind,
                                   const std::string& month, const std::string& column) {
  return Splice(
      " update CMM set {column} = {column} + {H10} where  CM_FCTCODE='{H4}' and CM_TCTCODE='{H6}' "
      "and CM_MGU='{kind}' and CM_MM='{month}' ",
      fields, "kind"_a = kind, "month"_a = month, "column"_a = column);
}

std::string BalanceInsertStatement(const HeadFields& fields, const std::string& kind,
                                   const std::string& month, const std::string& column) {
  return Splice(
      " insert into CMM (CM_FCTCODE, CM_TCTCODE, CM_MGU, CM_MM, {column}, CM_CK) values   "
      "('{H4}','{H6}','{kind}','{month}',{H10},'0')",
      fields, "kind"_a = kind, "month"_a = month, "column"_a = column);
}

std::string StockGuard(const std::string& store, const std::string& depot,
                       const std::vector<std::string>& products) {
  return Guard(
      Splice(" SELECT COUNT(*) FROM IV WHERE RCT_CODE='{store}' AND HCT_CODE='{depot}' AND PR_CODE "
             "IN ({products}) HAVING COUNT(*) = COUNT(DISTINCT PR_CODE) FOR UPDATE",
             "store"_a = store, "depot"_a = depot, "products"_a = QuotedList(products)),
      kCountsMoved);
}

std::string BalanceGuard(const HeadFields& fields, const std::string& kind,
                         const std::string& month) {
  return Guard(BalanceCountStatement(fields, kind, month) + " HAVING count(*) = 1 FOR UPDATE",
               kCountsMoved);
}

/// Others may make a further row between the count and the batch. Then the update would raise both,
/// and every reader, who sums, would see the goods twice.
void AddStockGuards(const std::string& store, const std::vector<LineFields>& lines,
                    const std::vector<bool>& ones) {
  std::map<std::string, std::vector<std::string>> raised;  // products by depot
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (ones[i])
      raised[lines[i].Field(line::DepotCode)].push_back(lines[i].Field(line::ProductCode));
  }
  for (const auto& [depot, products] : raised) AddToBatch(StockGuard(store, depot, products));
}

/// All counts in one read. The rows of a union come in no promised order, so each count has its
/// number beside it.
std::string CountsStatement(const std::vector<std::string>& counts) {
  std::string together;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    together += Splice("{joint}SELECT {number},({count})", "joint"_a = i == 0 ? "" : " UNION ALL ",
                       "number"_a = std::to_string(i), "count"_a = counts[i]);
  }
  return together;
}

/// For each of the counts whether exactly one row is there to be raised. With none, or with
/// several, a further one is inserted: every reader sums, and nobody can tell which of several to
/// raise.
std::vector<bool> CountOne(const std::vector<std::string>& counts) {
  std::vector<bool> ones(counts.size());
  OpenRecordset(SlotA, CountsStatement(counts));
  ForEachRow(SlotA, [&] {
    const auto number = static_cast<std::size_t>(ParseNumber(FieldText(SlotA, 0)));
    ones.at(number) = ParseNumber(FieldText(SlotA, 1)) == 1;
  });
  CloseRecordset(SlotA);
  return ones;
}

}  // namespace

void AddMovement(const HeadFields& head, const std::vector<LineFields>& lines,
                 const Movement& movement) {
  const bool movesBalance = !movement.BalanceColumn.empty();
  if (lines.empty() && !movesBalance) return;
  const std::string& store = head.Field(head::FromCode);
  const std::string month = FormatDateText(head.Field(head::Date), "YYYYMM");
  const std::string& kind = movement.PartyKind;
  std::vector<std::string> counts;
  counts.reserve(lines.size() + 1);
  for (const LineFields& line : lines) counts.push_back(StockCountStatement(line, store));
  if (movesBalance) counts.push_back(BalanceCountStatement(head, kind, month));
  const std::vector<bool> ones = CountOne(counts);

  AddStockGuards(store, lines, ones);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    AddToBatch(ones[i] ? StockUpdateStatement(lines[i], store, movement.StockColumn)
                       : StockInsertStatement(lines[i], store, movement.StockColumn));
  }
  if (!movesBalance) return;
  if (ones.back()) AddToBatch(BalanceGuard(head, kind, month));
  AddToBatch(ones.back() ? BalanceUpdateStatement(head, kind, month, movement.BalanceColumn)
                         : BalanceInsertStatement(head, kind, month, movement.BalanceColumn));
}

}  // namespace store
