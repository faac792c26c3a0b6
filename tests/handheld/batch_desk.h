#pragma once

#include <string>

#include "handheld/FRM_DT900_01.h"
#include "tests/support/slip_desk.h"

namespace store {

/// A row of the staging table as the receiving form writes it.
struct Staged {
  std::string Id;
  std::string Mark;     ///< "*", "@" or "-".
  std::string Product;  ///< A blank for a barcode that nobody knows.
  std::string Quantity;
  std::string Price = "0";
  std::string Partner = "C0001";
  std::string PartnerName = "한빛상사";
};

/// A clerk before the list of staged rows; the depots of the store are 100101, 100100 and 100102.
class BatchDesk : public SlipDesk {
 protected:
  /// `module` and `mark` are those of the run that `Open` shows.
  void Stage(const Staged& row, const std::string& module, const std::string& mark = "");
  FRM_DT900_01& Open(const std::string& module, const std::string& mark = "");
  FRM_DT900_01& Batch() { return *dynamic_cast<FRM_DT900_01*>(OpenForm("FRM_DT900_01")); }
  void Tick(int row, bool ticked);
  /// Presses the button; the boxes have been announced.
  void MakeSlips() { Batch().Command1_Click(3); }

  /// PE_ID of what is left in the staging table, joined by ",".
  std::string Left();
  /// A product's rows in depot 100101 of 1001, "opening/in/out".
  std::string Stock(const std::string& product);
  /// Keys of today for u01 of store 1001: "{kind}{number}" behind what they all begin with.
  std::string Key(const std::string& kindAndNumber) { return keyStart_ + kindAndNumber; }
  std::string Today() const { return today_; }

 private:
  const std::string keyStart_ = Value("SELECT CONCAT(DATE_FORMAT(NOW(),'%Y%m%d'),'1001u01')");
  const std::string today_ = Value("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d')");
};

}  // namespace store
