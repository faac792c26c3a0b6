#pragma once

#include <array>
#include <string>

#include "forms/form.h"

namespace store {

/// Registers a new product (table PR), as when a scanned code is not known. The caller sets the two
/// suggestions, shows the form modally and reads `SuggestedName` back:
///
///     auto* product = dynamic_cast<NEW_PR*>(TheForm("NEW_PR"));
///     product->SuggestedBarcode = barcode;
///     Host.ShowModal(*product);
///     const std::string name = product->SuggestedName;
///
/// The form is closed by then and the next `TheForm` makes a fresh one, but the object lives on to
/// the end of the event in which the caller runs.
class NEW_PR : public Form {
 public:
  NEW_PR();

  /// In: the name to begin with. Out: the name of the registered product; empty without one.
  std::string SuggestedName;
  std::string SuggestedBarcode;  ///< The barcode to begin with.

  /// 0 code, 1 name, 2 standard, 3 short code, 4 barcode, 5 least stock, 6 main supplier, 7
  /// purchase price, 8 consumer price, 9 sale price, 10 margin.
  std::array<TextBox, 11> txBox;
  /// 0 unit, 1 tax kind, 2 stock kind, 3 valuation, 4 stock handling, 5 category.
  std::array<ComboBox, 6> Combo1;
  std::array<Button, 2> Command1;  ///< 0 saves, 1 closes.
  Label LaCodeinformation;         ///< How codes are made.
  Label LBL_MSG;                   ///< How the last save went.

  void Load() override;
  void Activate() override;
  void Unload() override;
  bool KeyDown(Key key) override;

  void txBox_GotFocus(int index);
  void txBox_LostFocus(int index);
  void txBox_KeyDown(int index, Key key);
  void Command1_Click(int index);
  /// Finds the main supplier in the partner lookup.
  void OpenSupplierLookup();

 private:
  struct Product;
  /// Whether the customer's product codes are made here rather than typed.
  static bool CodesAreMade();

  void PublishControls();
  void PublishField(int index);
  void FillChoices();
  void BeginInput();
  void Walk(Key key);
  void Enter(int index);
  bool ResolveSupplier();

  // Saving: product_save.cpp.
  void Save();
  bool Refuse(Control& field, const std::string& title, const std::string& text);
  bool CheckCode();
  bool CheckRequired(const Product& product);
  bool CheckLowerBound(const std::string& code);
  bool MakeCode(Product& product);
  bool CheckBarcode(Product& product);
  Product Entered() const;
  void TellFailure();
  static void MakeOrderable();

  bool activated_ = false;
  bool registered_ = false;
};

/// Makes `NEW_PR` known by its name. Called once at start.
void RegisterLookupForms();

}  // namespace store
