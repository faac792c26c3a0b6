#pragma once

#include "forms/form.h"
#include "forms/printed_document.h"

namespace store {

/// The preview of a document, from where it goes to a printer or into a PDF file. The caller sets
/// `Document` and shows the form modally.
class frmPrint : public Form {
 public:
  frmPrint();

  PrintedDocument Document;

  Button Command1{"인쇄"};
  Button Command2{"PDF 저장"};
  Button Command3{"닫기"};
  Label LaSheet;  ///< What was done last: where the PDF file is, or that it was sent to a printer.

  void Load() override;
  bool KeyDown(Key key) override;

  void Command1_Click();
  void Command2_Click();
};

}  // namespace store
