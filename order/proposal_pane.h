#pragma once

#include <array>
#include <string>

#include "forms/form.h"
#include "order/pick_list_pane.h"
#include "order/progress_pane.h"
#include "order/supplier_pane.h"

namespace store {

/// Columns of the pick list when it holds a proposal.
namespace proposal {
inline constexpr int Kind = 2;   ///< Name of the top category.
inline constexpr int Base = 6;   ///< What to order: sales or safety stock; a person may change it.
inline constexpr int Stock = 7;  ///< Over all depots.
inline constexpr int Shortage = 8;  ///< Base less stock.
inline constexpr int Fetched = 9;   ///< The base as it was read, which the multiplier works on.
}  // namespace proposal

/// Works an order out from what the store has sold in a period, or from its safety stock, and puts
/// it into the pick list, where it is looked through and marked for the transfer.
class ProposalPane {
 public:
  ProposalPane(Form& form, const SupplierPane& supplier, PickListPane& pickList,
               ProgressPane& progress);
  ProposalPane(const ProposalPane&) = delete;
  ProposalPane& operator=(const ProposalPane&) = delete;

  TabStrip TabOne1;  ///< 0 by sales, 1 by safety stock.

  Label Label4{"판매기간"};
  std::array<DatePicker, 2> DTPicker1;  ///< First and last day of the sales period.
  CheckBox Check1{"일평균 예상발주"};   ///< Divides the sales by the days.
  TextBox Text2;                        ///< Days of the period, both ends counted.
  CheckBox Check3{"발주처 취급상품"};   ///< Only what the supplier deals in.
  TextBox Text3;                        ///< For how many days' worth to order.
  CheckBox Check4{"발주처 취급상품"};   ///< The same for the safety stock.
  std::array<Label, 2> LaEP;            ///< Start the proposal by sales, by safety stock.

  CheckBox Check2{"과족재고 제외"};  ///< Hides what there is enough of.
  std::array<OptionButton, 3> Option1 = {OptionButton("전체"), OptionButton("반전1"),
                                         OptionButton("반전2")};

  void LaOrder_Click(int tab);
  void DTPicker1_Change();
  void LaEP_Click(int index);
  void Text3_KeyPress(Key key);
  void Check2_Click();
  void Option1_Click(int index);

 protected:
  ~ProposalPane() = default;

 private:
  void PublishPeriod(Form& form);
  void PublishMarks(Form& form);
  std::string SalesProposal() const;
  std::string SafetyProposal() const;
  std::string DaysDivisor() const;
  std::string PeriodOrSupplier() const;
  void FillProposal(const std::string& statement);

  const SupplierPane& supplier_;
  PickListPane& pickList_;
  Grid& picks_;
  ProgressPane& progress_;
};

/// Works the shortage of a proposal's row out anew.
void RecalcShortage(Grid& picks, int row);

}  // namespace store
