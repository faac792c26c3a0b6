#include "start/start_data.h"

#include <algorithm>

#include "basics/numbers.h"
#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"

namespace store {
namespace {

constexpr std::int16_t kHalfUp = 3;
constexpr std::int16_t kLeastSlipLines = 100;

enum BaseColumn { kCode, kName1, kName2, kOp1, kOp2, kOp3, kOp4 };

std::string BaseCodesStatement() {
  return " SELECT BAS_CODE,BAS_NAME1,BAS_NAME2,BAS_OP1,BAS_OP2,BAS_OP3,BAS_OP4 "
         " FROM   BAS "
         " WHERE  LEFT(BAS_CODE,2) IN "
         "('ZY','Z4','TM','ZZ','Z2','M5','ZA','PP','U5','BO','GD','PR','ZO') ";
}

std::string Z1SettingsStatement() {
  return " SELECT BAS_CODE,BAS_NAME1,BAS_NAME2,BAS_OP1,BAS_OP2,BAS_OP3,BAS_OP4 "
         " FROM   BAS "
         " WHERE  LEFT(BAS_CODE,2) IN ('Z1') ";
}

std::string StoreStatement(const std::string& userStoreCode) {
  return Splice(
      " SELECT RCT.RCT_CODE,RCT_NAME,RCT_NO,RCTI_CPHONE,' ',RCT_SADDR1 ,RCT_SADDR2,RCT_GUBUN "
      " FROM   RCT LEFT JOIN RCTI ON RCT.RCT_CODE = RCTI.RCT_CODE "
      " WHERE  RCT.RCT_CODE = '{store}'   ",
      "store"_a = userStoreCode);
}

std::string DefaultDepotStatement(const std::string& storeCode) {
  return Splice(" SELECT HCT_CODE,HCT_NAME FROM HCT WHERE RCT_CODE = '{store}' AND HCT_BAS ='1' ",
                "store"_a = storeCode);
}

// The rows of a read through `SqlText`.
struct Answer {
  StringTable table;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;

  explicit Answer(const std::string& statement) {
    SqlText = statement;
    QueryRows(SqlText, table, rows, highestColumn);
  }
  const std::string& Text(int row, int column) const { return table.At(row, column); }
  void Number(int row, int column, std::int16_t& target) const {
    ToInt16(ParseNumber(table.At(row, column)), target);
  }
};

void TakeBaseRow(const Answer& bas, int row) {
  BaseSettingsRecord& set = BaseSettings;
  const std::string& code = bas.Text(row, kCode);
  if (code == "Z401") {
    bas.Number(row, kOp3, set.QtyDecimals);
    bas.Number(row, kOp4, set.QtyRounding);
  } else if (code == "Z402") {
    bas.Number(row, kOp3, set.PriceDecimals);
    bas.Number(row, kOp4, set.PriceRounding);
  } else if (code == "Z403") {
    bas.Number(row, kOp3, set.AmountDecimals);
    bas.Number(row, kOp4, set.AmountRounding);
  } else if (code == "Z404") {
    bas.Number(row, kOp3, set.RateDecimals);
    bas.Number(row, kOp4, set.RateRounding);
  } else if (code == "ZA05") {
    bas.Number(row, kOp1, set.MaxSlipLines);
    set.MaxSlipLines = std::max(set.MaxSlipLines, kLeastSlipLines);
  } else if (code == "ZY01") {
    bas.Number(row, kOp2, set.CodeLengthA);
  } else if (code == "ZY02") {
    set.ProductCodeMode = bas.Text(row, kOp1);
    bas.Number(row, kOp2, set.ProductCodeLength);
  }
}

}  // namespace

void LoadBaseCodes() {
  const Answer bas(BaseCodesStatement());
  if (bas.rows == 0) return;
  BaseSettingsRecord& set = BaseSettings;
  set.QtyDecimals = set.PriceDecimals = set.AmountDecimals = set.RateDecimals = 0;
  set.QtyRounding = set.PriceRounding = set.AmountRounding = set.RateRounding = kHalfUp;
  for (int row = 1; row <= bas.rows; ++row) TakeBaseRow(bas, row);
}

void LoadZ1Settings() {
  const Answer bas(Z1SettingsStatement());
  for (int row = 1; row <= bas.rows; ++row) {
    if (bas.Text(row, kCode) != "Z103") continue;
    BaseSettings.VatPercent = bas.Text(row, kOp2);
    BaseSettings.VatRounding = bas.Text(row, kOp4);
  }
}

void LoadStore() {
  const Answer store(StoreStatement(Session.UserStoreCode));
  if (store.rows > 0) {
    std::string* const fields[] = {
        &Session.StoreCode,  &Session.StoreName,     &Session.StoreNo,       &Session.StorePhone,
        &Session.StoreBlank, &Session.StoreAddress1, &Session.StoreAddress2, &Session.StoreKind};
    int column = 0;
    for (std::string* field : fields) *field = store.Text(1, column++);
  } else {
    Host.MsgBox("기본사용자를 등록하세요.              ", box::Question, "기본사용자오류");
  }
  const Answer depot(DefaultDepotStatement(Session.StoreCode));
  if (depot.rows == 0) return;
  Session.DepotCode = depot.Text(1, 0);
  Session.DepotName = depot.Text(1, 1);
}

}  // namespace store
