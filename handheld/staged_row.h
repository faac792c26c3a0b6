#pragma once

#include <string>

namespace store {

/// A row of table DT900: what was scanned, until it becomes a line of a slip.
struct StagedRow {
  std::string Id;           ///< PE_ID: time, inspector and row number; see `StagedRowId`.
  int Row = 0;              ///< From 1, in the order of the transfer.
  std::string Date;         ///< "YYYY-MM-DD"
  std::string ShortCode;    ///< PR_PTNO
  std::string TaxMark;      ///< "*" free of tax, "@" tax included, "-" tax on top.
  std::string ProductCode;  ///< PR_CODE
  std::string ProductName;  ///< PR_NAME
  std::string Standard;     ///< PR_STD
  std::string Unit;         ///< PR_UNT
  std::string Quantity;     ///< PS_SQTY, never negative on a return.
  std::string Price;        ///< PS_UP, negative on a return.
  std::string ReturnMark;   ///< PS_MEMO
  std::string UserCode;     ///< Who stages.
  std::string PartyCode;    ///< PS_rctCODE: the partner, or the store of a shipment.
  std::string PartyName;    ///< PS_rctNAME
  std::string Inspector;    ///< DT_CHECK
  std::string ModuleCode;   ///< DT_GU
};

/// The key of a row: the transfer's time and inspector, then the row's number, six digits wide.
/// With a number as wide as it happens to be, row 11 of inspector "u0" would be row 1 of "u01".
std::string StagedRowId(const std::string& transfer, int row);

/// The mark of the product's tax column (PR_TAX or PR_TAX2): "1" is "*", "2" is "@".
std::string TaxMarkOf(const std::string& tax);

/// The row's INSERT. The table is written by position, 25 values.
std::string StagedRowStatement(const StagedRow& row);

/// The guard of a transfer: none of its rows is staged. They are staged together, so one stands for
/// all.
std::string NotStagedYet(const StagedRow& row);
/// What a batch's error text is when that guard has refused it.
inline constexpr const char* kStagedAlready = "이미 저장된 전송입니다.";

/// A SELECT that gives a row when this one is staged.
std::string StagedRowTrace(const StagedRow& row);

}  // namespace store
