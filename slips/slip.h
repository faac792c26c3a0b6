#pragma once

#include <string>
#include <vector>

#include "gateway/string_table.h"

namespace store {

/// A slip in memory: its header is an array of texts, its lines a table of texts. Everything is
/// text until posting; numbers stand in it without thousands separators, because the posting reads
/// the leading numeric part. The form that shows the slip owns both.

/// Elements of a header, in the order of the columns they go to.
namespace head {
// The same in orders and posted slips.
inline constexpr int Id = 0;        ///< PE_ID
inline constexpr int State = 1;     ///< PE_CK
inline constexpr int Date = 2;      ///< PE_PDATE
inline constexpr int Today = 3;     ///< Stored by the terminal's slips; others store now().
inline constexpr int FromCode = 4;  ///< PE_FCTCODE
inline constexpr int FromName = 5;  ///< PE_FCTNAME
inline constexpr int ToCode = 6;    ///< PE_TCTCODE
inline constexpr int ToName = 7;    ///< PE_TCTNAME
inline constexpr int Supply = 8;    ///< PE_AMT
inline constexpr int Tax = 9;       ///< PE_TAX
inline constexpr int Total = 10;    ///< PE_TOT
// An order: 11 to 22 are PE_TMAN, ST_CODE, PE_PRJ, PE_LINK, PE_COND, PE_GRDAY, PE_CSDAY, PE_CSCT,
// PE_TYPE, PE_MEMO1, PE_MEMO2, PE_MEMO3.
inline constexpr int OrderFirstBlank = 11;
inline constexpr int OrderLast = 22;
// A posted slip.
inline constexpr int Unpaid = 11;      ///< PE_MISU
inline constexpr int Extra = 12;       ///< PE_EC
inline constexpr int Discount = 13;    ///< PE_DC
inline constexpr int PayKind = 14;     ///< PE_PAYGU
inline constexpr int Accounting = 15;  ///< PE_ACCK
inline constexpr int Manager = 16;     ///< PE_TMAN
inline constexpr int Memo = 17;        ///< PE_MEMO
inline constexpr int PostedUser = 18;  ///< ST_CODE
inline constexpr int Project = 19;     ///< PE_PRJ
inline constexpr int Link = 20;        ///< PE_LINK
inline constexpr int PostedLast = 21;  ///< Unused.
}  // namespace head

/// Columns of a line. Row 0 of a line table is unused; a row whose product code is empty is no
/// line.
namespace line {
inline constexpr int Id = 0;           ///< PE_ID
inline constexpr int Number = 1;       ///< PS_NO
inline constexpr int Date = 2;         ///< PS_DATE
inline constexpr int ProductCode = 3;  ///< PR_CODE
inline constexpr int ProductName = 4;  ///< PR_NAME
inline constexpr int Standard = 5;     ///< PR_STD
inline constexpr int TaxKind = 6;      ///< PS_TAXGU
inline constexpr int Unit = 7;         ///< PS_UNT
inline constexpr int Quantity = 8;     ///< PS_SQTY
inline constexpr int OtherQty = 9;     ///< PS_EQTY: shipped on an order, ordered on a receipt.
inline constexpr int Cost = 10;        ///< PS_COST
inline constexpr int Price = 11;       ///< PS_UP
inline constexpr int Supply = 12;      ///< PS_AMT
inline constexpr int Tax = 13;         ///< PS_TAX
inline constexpr int User = 14;        ///< ST_CODE
inline constexpr int Type = 15;        ///< PS_TYPE
inline constexpr int Memo = 16;        ///< PS_MEMO
inline constexpr int DepotCode = 17;   ///< PS_HCTCODE
inline constexpr int DepotName = 18;   ///< PS_HCTNAME
inline constexpr int OrderLast = 18;
inline constexpr int InMark = 19;      ///< PS_INCK, posted slips only.
inline constexpr int TerminalId = 21;  ///< PS_TMID, posted slips only.
inline constexpr int PostedLast = 22;
}  // namespace line

using HeadArray = std::vector<std::string>;

/// State words of an order, PE_CK "0" to "4".
inline constexpr const char* kWordEditing = "발주편집";
inline constexpr const char* kWordConfirmed = "발주확정";
inline constexpr const char* kWordApproved = "본부승인";
inline constexpr const char* kWordShipped = "물류출고";
inline constexpr const char* kWordReceived = "입고완료";

/// The word of a state; any value without one stands as it is.
std::string StateWord(const std::string& state);

/// Supplier of an order that goes to several: no partner bears this code.
inline constexpr const char* kCombinedSupplierCode = "1000000000000000";
inline constexpr const char* kCombinedSupplierName = "통합 발주";

}  // namespace store
