#include "slips/stored_order.h"

#include <algorithm>
#include <tuple>

#include "basics/deployment.h"
#include "basics/numbers.h"
#include "gateway/gateway.h"
#include "gateway/guard.h"
#include "slips/slip_statements.h"

namespace store {
namespace {

constexpr const char* kDeletedElsewhere =
    "다른 곳에서 삭제된 발주입니다. 필요하면 새 발주로 입력하세요.";
constexpr const char* kChangedElsewhere =
    "다른 곳에서 먼저 변경된 발주입니다. 다시 조회한 후 발주하세요.";

std::string ReadStatement(const std::string& slipId) {
  return Splice(
      " SELECT "
      "PE_CK,PE_FCTCODE,PE_TCTCODE,PE_PDATE,PE_TOT,PE_SDATE,PE_LINK,PS_NO,PR_CODE,PS_SQTY,PS_UP,"
      "PS_HCTCODE FROM PEM22 LEFT JOIN PSM22 ON PEM22.PE_ID = PSM22.PE_ID WHERE PEM22.PE_ID = "
      "'{slip}' ORDER BY PS_NO ",
      "slip"_a = slipId);
}

enum ReadField {
  kState,
  kStore,
  kSupplier,
  kDate,
  kTotal,
  kStamp,
  kLink,
  kNumber,
  kProduct,
  kQuantity,
  kPrice,
  kDepot
};

/// Texts joined by something between them.
template <class Items, class Text>
std::string Joined(const Items& items, const char* between, Text textOf) {
  std::string all;
  for (const auto& item : items) all += (all.empty() ? "" : between) + textOf(item);
  return all;
}

std::string LineRow(const StoredLine& line) {
  return Splice("({number},'{product}',{quantity},{price},'{depot}')", "number"_a = line.Number,
                "product"_a = line.Product, "quantity"_a = line.Quantity, "price"_a = line.Price,
                "depot"_a = line.Depot);
}

/// Holds a stored order's lines against these, row by row.
std::string LinesCondition(const std::vector<StoredLine>& lines) {
  const std::string count = std::to_string(lines.size());
  if (lines.empty()) {
    return "NOT EXISTS (SELECT 1 FROM PSM22 WHERE PSM22.PE_ID = PEM22.PE_ID)";
  }
  return Splice(
      "(SELECT COUNT(*) = {count} AND SUM((PS_NO,PR_CODE,PS_SQTY,PS_UP,PS_HCTCODE) IN ({rows})) = "
      "{count} FROM PSM22 WHERE PSM22.PE_ID = PEM22.PE_ID)",
      "count"_a = count, "rows"_a = Joined(lines, ",", LineRow));
}

/// More whole seconds than will have passed when the server reads its clock, which knows no parts
/// of a second: what is composed now may wait for a connection, or be sent again.
std::string SecondsSince(const Moment& sent) {
  const auto passed = std::max<std::chrono::duration<double>>(
      std::chrono::steady_clock::now() - sent.Steady, std::chrono::system_clock::now() - sent.Wall);
  const std::chrono::duration<double> underWay = ConnectTimeout() + BatchLimit();
  return std::to_string(static_cast<long long>((passed + underWay).count()) + 2);
}

std::string StampCondition(const StoredOrder& order) {
  if (!order.Stamp.empty()) return Splice("PE_SDATE = '{stamp}'", "stamp"_a = order.Stamp);
  return Splice("PE_SDATE >= DATE_SUB(now(), INTERVAL {seconds} SECOND)",
                "seconds"_a = SecondsSince(order.Sent));
}

/// That the order stands, in whatever state.
std::string StandsCondition(const StoredOrder& order) {
  return Splice(
      "({stamp} AND PE_FCTCODE = '{store}' AND PE_TCTCODE = '{supplier}' AND PE_PDATE = '{date}' "
      "AND PE_TOT = {total} AND {lines})",
      "stamp"_a = StampCondition(order), "store"_a = order.Store, "supplier"_a = order.Supplier,
      "date"_a = order.Date, "total"_a = order.Total, "lines"_a = LinesCondition(order.Lines));
}

std::string UntouchedCondition(const StoredOrder& order) {
  return Splice("(PE_CK = '{state}' AND {stands})", "state"_a = order.State,
                "stands"_a = StandsCondition(order));
}

std::string AnyUntouched(const std::vector<StoredOrder>& orders) {
  return orders.empty() ? "FALSE" : Joined(orders, " OR ", UntouchedCondition);
}

/// Gives the state and the number, from 1, of the try that stands; 0 for none of them.
std::string LookStatement(const std::string& slipId, const std::vector<StoredOrder>& tries) {
  int number = 0;
  const std::string cases = Joined(tries, " ", [&number](const StoredOrder& order) {
    return Splice("WHEN {stands} THEN {number}", "stands"_a = StandsCondition(order),
                  "number"_a = std::to_string(++number));
  });
  return Splice(
      " SELECT PE_CK,CASE {cases} ELSE 0 END FROM PEM22 WHERE PE_ID = '{slip}' LOCK IN SHARE MODE",
      "cases"_a = cases, "slip"_a = slipId);
}

}  // namespace

std::optional<StoredOrder> ReadStoredOrder(const std::string& slipId) {
  const RecordsetSlot rows = FetchRecordset(ReadStatement(slipId));
  if (AtEof(rows)) return std::nullopt;
  StoredOrder order{.State = FieldText(rows, kState),
                    .Store = FieldText(rows, kStore),
                    .Supplier = FieldText(rows, kSupplier),
                    .Date = FieldText(rows, kDate),
                    .Total = BareNumber(FieldText(rows, kTotal)),
                    .Lines = {},
                    .Stamp = FieldText(rows, kStamp),
                    .Link = FieldText(rows, kLink),
                    .Sent = {}};
  ForEachRow(rows, [&] {
    if (FieldText(rows, kNumber).empty()) return;  // a header without lines
    order.Lines.push_back({.Number = FieldText(rows, kNumber),
                           .Product = FieldText(rows, kProduct),
                           .Quantity = BareNumber(FieldText(rows, kQuantity)),
                           .Price = BareNumber(FieldText(rows, kPrice)),
                           .Depot = FieldText(rows, kDepot)});
  });
  return order;
}

StoredOrder OrderAsSent(const HeadArray& headValues, const StringTable& lineValues) {
  StoredOrder order{.State = headValues[head::State],
                    .Store = headValues[head::FromCode],
                    .Supplier = headValues[head::ToCode],
                    .Date = headValues[head::Date],
                    .Total = BareNumber(headValues[head::Total]),
                    .Lines = {},
                    .Stamp = {},
                    .Link = {},
                    .Sent = {}};
  ForEachLine(lineValues, [&](const LineFields& fields) {
    order.Lines.push_back({.Number = fields.Field(line::Number),
                           .Product = fields.Field(line::ProductCode),
                           .Quantity = fields.Field(line::Quantity),
                           .Price = fields.Field(line::Price),
                           .Depot = fields.Field(line::DepotCode)});
  });
  return order;
}

bool SameOrder(const StoredOrder& one, const StoredOrder& other) {
  const auto content = [](const StoredOrder& order) {
    return std::tie(order.Store, order.Supplier, order.Date, order.Total, order.Lines);
  };
  return content(one) == content(other);
}

std::string StillThereGuard(const std::string& slipId) {
  return Guard(
      Splice(" SELECT PE_ID FROM PEM22 WHERE PE_ID = '{slip}' FOR UPDATE", "slip"_a = slipId),
      kDeletedElsewhere);
}

std::string UntouchedGuard(const std::string& slipId, const std::vector<StoredOrder>& known) {
  return UntouchedGuard(slipId, known, kChangedElsewhere);
}

std::string UntouchedGuard(const std::string& slipId, const std::vector<StoredOrder>& known,
                           const char* refusal) {
  return Guard(Splice(" SELECT PE_ID FROM PEM22 WHERE PE_ID = '{slip}' AND ({any}) FOR UPDATE",
                      "slip"_a = slipId, "any"_a = AnyUntouched(known)),
               refusal);
}

std::string DeleteOwnStatement(const std::string& slipId, const std::vector<StoredOrder>& tries) {
  return Splice(" DELETE FROM PEM22 WHERE PE_ID = '{slip}' AND ({any}) ", "slip"_a = slipId,
                "any"_a = AnyUntouched(tries));
}

TriesFound LookForTries(const std::string& slipId, const std::vector<StoredOrder>& tries) {
  const RecordsetSlot row = FetchRecordset(LookStatement(slipId, tries));
  if (!row || !LastErrorText.empty()) return {};
  if (row->Eof()) return {.Asked = true, .Taken = false, .State = {}, .Own = {}};
  TriesFound found{.Asked = true, .Taken = true, .State = FieldText(row, 0), .Own = {}};
  const auto number = static_cast<std::size_t>(ParseNumber(FieldText(row, 1)));
  if (number > 0) found.Own = tries[number - 1];
  return found;
}

}  // namespace store
