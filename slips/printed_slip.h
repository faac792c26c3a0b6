#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/printed_document.h"

namespace store {

/// One line of a stored slip, as it goes on paper. Numbers are the database's own texts.
struct PrintedLine {
  std::string Number;    ///< PS_NO
  std::string Barcode;   ///< PR_BCODE of the product, empty where it is gone.
  std::string Name;      ///< PR_NAME
  std::string Standard;  ///< PR_STD
  std::string Unit;      ///< PS_UNT
  std::string Quantity;  ///< PS_SQTY: ordered on an order, received on a receipt.
  std::string OtherQty;  ///< PS_EQTY: shipped on an order, ordered on a receipt.
  std::string Price;     ///< PS_UP
  std::string Supply;    ///< PS_AMT
  std::string Tax;       ///< PS_TAX
};

/// A stored slip as it goes on paper: an order of PEM22, or the receipt of PEM23 that closed one.
struct PrintedSlip {
  bool IsReceipt = false;
  std::string Id;                   ///< PE_ID; empty when there is no such slip.
  std::string State;                ///< PE_CK
  std::string Date;                 ///< PE_PDATE
  std::string StoredAt;             ///< PE_SDATE
  std::string StoreCode;            ///< PE_FCTCODE
  std::string StoreName;            ///< PE_FCTNAME
  std::string PartnerCode;          ///< PE_TCTCODE
  std::string PartnerName;          ///< PE_TCTNAME
  std::string Supply;               ///< PE_AMT
  std::string Tax;                  ///< PE_TAX
  std::string Total;                ///< PE_TOT
  std::string Link;                 ///< PE_LINK: of an order its receipt, of a receipt its order.
  std::vector<std::string> Depots;  ///< PS_HCTNAME, each once.
  std::vector<PrintedLine> Lines;   ///< By their number.
};

/// Reads an order whole, in one statement. Nothing when the database could not be asked or the read
/// was stopped; `LastErrorText` says why. Without an `Id` when there is no such slip.
std::optional<PrintedSlip> ReadPrintedOrder(const std::string& orderId);
/// The same for a receipt.
std::optional<PrintedSlip> ReadPrintedReceipt(const std::string& receiptId);

/// The slip with the texts that stand on paper, money and quantities as every window shows them.
PrintedDocument DocumentOf(const PrintedSlip& slip);

}  // namespace store
