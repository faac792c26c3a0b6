#pragma once

#include <string>
#include <vector>

namespace store {

/// The bars of a text as Code 128, which any scanner of a shop reads.
struct Barcode {
  struct Bar {
    double Left;
    double Width;
  };
  double Width = 0;        ///< Of the whole, in the units of the bars; 0 when there is none.
  double ModuleWidth = 1;  ///< Of the narrowest bar.
  std::vector<Bar> Bars;
};

/// Without bars for a text that Code 128 cannot hold, such as one with Korean letters.
Barcode Code128(const std::string& text);

/// Of the library that makes the bars, as "2.11.1".
std::string BarcodeLibraryVersion();

}  // namespace store
