#pragma once

#include <string>
#include <vector>

#include "forms/form.h"

namespace store {

/// A form of the handheld terminal's path. Its opener says for which kind of goods movement it
/// runs.
class HandheldForm : public Form {
 public:
  using Form::Form;

  std::string KindCaption;  ///< The terminal's kind text that a transfer must be of.
  std::string ModuleCode;   ///< DT_GU: "13" sale, "23" purchase, "14" shipment, "82" survey, "66".
  std::string ReturnMark;   ///< PS_MEMO: "R" for returns, else empty.
};

/// A run of such a form, as the menu of the board offers it.
struct HandheldRun {
  const char* MenuText;
  const char* FormName;
  const char* KindCaption;
  const char* ModuleCode;
  const char* ReturnMark;
};

/// Every run, in the menu's order: receiving of each kind, processing of each kind, and the export
/// to the cradle.
const std::vector<HandheldRun>& HandheldRuns();

/// Makes the form of a run ready and shows it modally. Nothing happens while its form has no maker.
void OpenHandheldRun(const HandheldRun& run);

}  // namespace store
