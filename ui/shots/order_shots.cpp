#include "ui/shots/order_shots.h"

#include <QDateEdit>
#include <QProgressBar>

#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "slips/deleted_slips.h"
#include "slips/item_list.h"
#include "ui/qt_text.h"

namespace store {
namespace {

/// A supplier of every order type; see docs/demo.md.
constexpr const char* kFoods = "명지식품";

/// One that the store has ordered from.
void ChooseSupplier(FormWindow& window) {
  Type(window, ToQt(Board().FLEX1.TextMatrix(1, 2)));
  Press(window, Qt::Key_Enter);
}

void FillOrder(FormWindow& window) {
  ChooseSupplier(window);
  GoTo(window, "PRHELP", 0, 0);
  Press(window, Qt::Key_Enter);
  GoTo(window, "FLEX2", 0, 8);
  for (const char* quantity : {"12", "5", "24", "10", "3"}) {
    Type(window, quantity);
    Press(window, Qt::Key_Enter);
  }
}

/// Opens a new order of a type, with the options that it lives from.
void OpenType(Director& director, std::int16_t type) {
  director.WhenShown("frm_Start", [type](FormWindow& window) {
    AppOptions.OrderType = type;
    AppOptions.OrderInfoPartnersOnly = 1;
    AppOptions.OrderZeroPrice = type == 1 ? 1 : 0;
    Press(window, Qt::Key_F2);
  });
}

/// Closes it, and the options are as they were.
void CloseType(FormWindow& window) {
  Press(window, Qt::Key_Escape);
  AppOptions.OrderType = AppOptions.OrderInfoPartnersOnly = AppOptions.OrderZeroPrice = 0;
  OpenItemList();
}

void ShootCombinedOrder(Director& director) {
  OpenType(director, 1);
  director.WhenShown("frm_Order02", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "order_type1_categories");
    ClickOn(window, "Option1_1");
    for (const int column : {0, 1, 2}) {
      GoTo(window, "PRHELP", 0, column);
      Press(window, Qt::Key_Enter);
      GoTo(window, "FLEX2", 0, 8);
      for (const char* quantity : {"24", "48"}) {
        Type(window, quantity);
        Press(window, Qt::Key_Enter);
      }
    }
    director.Save(window, "order_type1");
    CloseType(window);
  });
}

/// Draws the window while the transfer's panel stands over it.
class MiddleOfTransfer {
 public:
  MiddleOfTransfer(Director& director, FormWindow& window) : doEvents_(Host.DoEvents) {
    Host.DoEvents = [this, &director, &window] {
      doEvents_();
      const auto& bar = Find<QProgressBar>(window, "ProgressBar1");
      if (bar.isVisible() && bar.value() == bar.maximum() / 2) {
        director.Save(window, "order_type2_transfer");
      }
    };
  }
  ~MiddleOfTransfer() { Host.DoEvents = doEvents_; }
  MiddleOfTransfer(const MiddleOfTransfer&) = delete;
  MiddleOfTransfer& operator=(const MiddleOfTransfer&) = delete;

 private:
  std::function<void()> doEvents_;
};

void ShootProposals(Director& director) {
  OpenType(director, 2);
  director.WhenShown("frm_Order01", [&](FormWindow& window) {
    director.Fit(window);
    Type(window, kFoods);
    Press(window, Qt::Key_Enter);
    auto& from = Find<QDateEdit>(window, "DTPicker1_0");
    from.setDate(from.date().addDays(-30));
    Press(window, Qt::Key_F7);
    Find<QWidget>(window, "Text3").setFocus();
    Type(window, "3");
    Press(window, Qt::Key_Enter);
    ClickOn(window, "Option1_0");
    director.Save(window, "order_type2");
    {
      const MiddleOfTransfer middle(director, window);
      Press(window, Qt::Key_F11);
    }
    director.Save(window, "order_type2_transferred");
    Press(window, Qt::Key_2, Qt::AltModifier);
    Press(window, Qt::Key_F7, Qt::ShiftModifier);
    ClickOn(window, "Check2");
    director.Save(window, "order_type2_safety");
    CloseType(window);
  });
}

void ShootUnitOrder(Director& director) {
  OpenType(director, 3);
  director.WhenShown("frm_Order03", [&](FormWindow& window) {
    director.Fit(window);
    Type(window, kFoods);
    Press(window, Qt::Key_F1);
  });
  director.WhenShown("HELP_CT", [](FormWindow& window) {
    Press(window, Qt::Key_Enter);
    Press(window, Qt::Key_Enter);
  });
  director.WhenShown("frm_Order03", [&](FormWindow& window) {
    auto& from = Find<QDateEdit>(window, "DTPicker1_0");
    from.setDate(from.date().addDays(-30));
    ClickOn(window, "Check1");
    GoTo(window, "PRHELP", 0, 0);
    Press(window, Qt::Key_Enter);
    GoTo(window, "FLEX2", 0, 10);
    for (const char* quantity : {"12", "24"}) {
      Type(window, quantity);
      Press(window, Qt::Key_Enter);
    }
    director.Save(window, "order_type3");
    CloseType(window);
  });
}

}  // namespace

frm_Start& Board() { return dynamic_cast<frm_Start&>(*OpenForm("frm_Start")); }

void ShootNewOrder(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow& window) { Press(window, Qt::Key_F2); });
  director.WhenShown("frm_Order", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "order_empty");
    FillOrder(window);
    director.Save(window, "order_new");
    Press(window, Qt::Key_F4);
    director.Save(window, "order_history");
    Press(window, Qt::Key_F5);
    director.Save(window, "order_history_narrow");
    Press(window, Qt::Key_Escape);
  });
}

void ShootOrderTypes(Director& director) {
  ShootCombinedOrder(director);
  ShootProposals(director);
  ShootUnitOrder(director);
}

void ShootQuickPick(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow& window) { Press(window, Qt::Key_F2); });
  director.WhenShown("frm_Order", [](FormWindow& window) {
    ChooseSupplier(window);
    Type(window, ",라면");
    Press(window, Qt::Key_Enter);
    Press(window, Qt::Key_F1, Qt::ShiftModifier);
  });
  director.WhenShown("frm_OrderPLU", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "quick_pick");
    Find<QWidget>(window, "PRHELP_1").setFocus();
    for (int level = 1; level <= 3; ++level) {
      Press(window, Qt::Key_Down);
      Press(window, Qt::Key_Enter);
    }
    Press(window, Qt::Key_Right);
    Press(window, Qt::Key_Down);
    director.Save(window, "quick_pick_categories");
    Press(window, Qt::Key_Escape);
  });
  director.WhenShown("frm_Order", [](FormWindow& window) { Press(window, Qt::Key_Escape); });
}

void ShootDrafts(Director& director) {
  director.WhenShown("frm_Start", [&](FormWindow& window) {
    ClickOn(window, "Option1_0");
    director.Save(window, "board_drafts");
    Press(window, Qt::Key_D, Qt::ControlModifier);
  });
  director.WhenShown("frmDrafts", [&](FormWindow& window) {
    director.Save(window, "drafts");
    Press(window, Qt::Key_Escape);
  });
}

void ShootDeleted(Director& director) {
  director.WhenShown("frm_Start", [&](FormWindow& window) {
    GoTo(window, "FLEX1", 1, 2);
    // Kept as a deletion does; the demo data stays as it is.
    for (int row = 1; row <= 2; ++row) {
      const auto slip = ReadWholeSlip(Board().FLEX1.TextMatrix(row, board::SlipId));
      if (slip) SureOfDeleted(KeepDeleted(*slip));
    }
    Press(window, Qt::Key_F5);
    director.Save(window, "board_deleted");
    Press(window, Qt::Key_Z, Qt::ControlModifier);
  });
  director.WhenShown("frmDeleted", [&](FormWindow& window) {
    director.Save(window, "deleted");
    Press(window, Qt::Key_Escape);
  });
}

void ShootStoredSlips(Director& director) {
  const auto open = [](const QString& option) {
    return [option](FormWindow& window) {
      ClickOn(window, option);
      GoTo(window, "FLEX1", 0, 2);
      Press(window, Qt::Key_Enter);
    };
  };
  director.WhenShown("frm_Start", open("Option1_2"));
  director.WhenShown("frm_Order", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "order_confirmed");
    Press(window, Qt::Key_Escape);
  });
  director.WhenShown("frm_Start", open("Option1_3"));
  director.WhenShown("frm_PE_UNIT", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "receipt");
    Press(window, Qt::Key_Escape);
  });
}

}  // namespace store
