#include "slips/deleted_slip.h"

#include <algorithm>

#include "gateway/gateway.h"
#include "gateway/guard.h"
#include "slips/slip_statements.h"
#include "slips/stored_order.h"

namespace store {
namespace {

constexpr const char* kKeyTaken = "같은 번호의 전표가 이미 있습니다.";

// Every column, those too that only the customer's own programs know.
std::string HeaderStatement(const std::string& slipId) {
  return Splice(" SELECT * FROM PEM22 WHERE PE_ID = '{slip}' ", "slip"_a = slipId);
}

std::string LinesStatement(const std::string& slipId) {
  return Splice(" SELECT * FROM PSM22 WHERE PE_ID = '{slip}' ORDER BY PS_NO ", "slip"_a = slipId);
}

std::string KeyIsFreeGuard(const std::string& slipId) {
  return Guard(Splice(" SELECT 'free' FROM DUAL WHERE NOT EXISTS (SELECT PE_ID FROM PEM22 WHERE "
                      "PE_ID = '{slip}' FOR UPDATE) ",
                      "slip"_a = slipId),
               kKeyTaken);
}

std::string InHex(const std::string& text) {
  static constexpr const char* kDigits = "0123456789ABCDEF";
  std::string hex;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    hex.append({kDigits[byte >> 4], kDigits[byte & 15]});
  }
  return hex;
}

/// A value as it stands in a statement. Head office can store a name with a quote, which no text
/// between quotes may hold: such a one goes by its bytes.
std::string ValueText(const std::optional<std::string>& value) {
  if (!value) return "NULL";
  if (value->find('\'') == std::string::npos) return Splice("'{value}'", "value"_a = *value);
  return Splice("_utf8mb4 X'{bytes}'", "bytes"_a = InHex(*value));
}

/// Inserts a row of PEM22 or PSM22 with the columns that it was read with.
std::string InsertStatement(const char* table, const KeptRows& rows, const KeptRows::Row& row) {
  std::string columns;
  std::string values;
  for (size_t i = 0; i < row.size(); ++i) {
    columns += (i == 0 ? "`" : ",`") + rows.Columns[i] + "`";
    values += (i == 0 ? "" : ",") + ValueText(row[i]);
  }
  return Splice(" INSERT INTO {table} ({columns}) VALUES ({values}) ", "table"_a = table,
                "columns"_a = columns, "values"_a = values);
}

/// All rows of a read; nothing when it failed.
std::optional<KeptRows> WholeRows(const std::string& statement) {
  const RecordsetSlot read = FetchRecordset(statement);
  if (!read || !LastErrorText.empty()) return std::nullopt;
  KeptRows kept;
  for (int i = 0; i < read->FieldCount(); ++i) kept.Columns.push_back(read->FieldName(i));
  ForEachRow(read, [&] {
    KeptRows::Row& row = kept.Rows.emplace_back();
    for (int i = 0; i < read->FieldCount(); ++i) {
      row.push_back(read->IsNull(i) ? std::nullopt : std::optional(FieldText(read, i)));
    }
  });
  return kept;
}

StoredOrder AsStored(const DeletedSlip& slip) {
  const auto header = [&](const char* column) { return slip.Header.Text(0, column); };
  StoredOrder order{.State = header("PE_CK"),
                    .Store = header("PE_FCTCODE"),
                    .Supplier = header("PE_TCTCODE"),
                    .Date = header("PE_PDATE"),
                    .Total = BareNumber(header("PE_TOT")),
                    .Lines = {},
                    .Stamp = header("PE_SDATE"),
                    .Link = header("PE_LINK"),
                    .Sent = {}};
  for (size_t row = 0; row < slip.Lines.Rows.size(); ++row) {
    const auto line = [&](const char* column) { return slip.Lines.Text(row, column); };
    order.Lines.push_back({.Number = line("PS_NO"),
                           .Product = line("PR_CODE"),
                           .Quantity = BareNumber(line("PS_SQTY")),
                           .Price = BareNumber(line("PS_UP")),
                           .Depot = line("PS_HCTCODE")});
  }
  return order;
}

/// What the database says about a try that has failed, or whose answer was lost.
RestoreFate LookForIt(const DeletedSlip& slip, bool inDoubt) {
  const std::string words = LastErrorText;
  const TriesFound found = LookForTries(slip.Id(), {AsStored(slip)});
  LastErrorText = words;
  if (!found.Asked) return inDoubt ? RestoreFate::Unreachable : RestoreFate::Failed;
  if (found.Own) return inDoubt ? RestoreFate::Restored : RestoreFate::NeverGone;
  if (found.Taken) return RestoreFate::KeyTaken;
  return inDoubt ? RestoreFate::NotFound : RestoreFate::Failed;
}

}  // namespace

std::string KeptRows::Text(size_t row, const std::string& column) const {
  const auto found = std::find(Columns.begin(), Columns.end(), column);
  if (row >= Rows.size() || found == Columns.end()) return {};
  return Rows[row][static_cast<size_t>(found - Columns.begin())].value_or("");
}

std::optional<DeletedSlip> ReadWholeSlip(const std::string& slipId) {
  std::optional<KeptRows> header = WholeRows(HeaderStatement(slipId));
  if (!header) return std::nullopt;
  std::optional<KeptRows> lines = WholeRows(LinesStatement(slipId));
  if (!lines) return std::nullopt;
  DeletedSlip slip;
  slip.Header = std::move(*header);
  slip.Lines = std::move(*lines);
  return slip;
}

std::string StillAsReadGuard(const DeletedSlip& slip) {
  return UntouchedGuard(slip.Id(), {AsStored(slip)}, kSlipChanged);
}

RestoreFate RestoreSlip(const DeletedSlip& slip) {
  StartBatch();
  AddToBatch(KeyIsFreeGuard(slip.Id()));
  for (const KeptRows::Row& row : slip.Header.Rows) {
    AddToBatch(InsertStatement("PEM22", slip.Header, row));
  }
  for (const KeptRows::Row& row : slip.Lines.Rows) {
    AddToBatch(InsertStatement("PSM22", slip.Lines, row));
  }
  if (ExecuteBatch(SqlBatch) != 0) return RestoreFate::Restored;
  return LookForIt(slip, BatchInDoubt);
}

}  // namespace store
