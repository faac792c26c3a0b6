#include "ui/barcode.h"

#include <zint.h>

#include <algorithm>
#include <memory>

namespace store {

Barcode Code128(const std::string& text) {
  const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> symbol(ZBarcode_Create(),
                                                                    ZBarcode_Delete);
  if (!symbol || text.empty()) return {};
  symbol->symbology = BARCODE_CODE128;
  symbol->input_mode = UNICODE_MODE;
  symbol->show_hrt = 0;
  const int failed =
      ZBarcode_Encode_and_Buffer_Vector(symbol.get(), reinterpret_cast<const uint8_t*>(text.data()),
                                        static_cast<int>(text.size()), 0);
  if (failed >= ZINT_ERROR || symbol->vector == nullptr) return {};
  Barcode barcode;
  for (const zint_vector_rect* bar = symbol->vector->rectangles; bar != nullptr; bar = bar->next) {
    barcode.Bars.push_back({static_cast<double>(bar->x), static_cast<double>(bar->width)});
  }
  if (barcode.Bars.empty()) return {};
  barcode.Width = static_cast<double>(symbol->vector->width);
  barcode.ModuleWidth =
      std::min_element(barcode.Bars.begin(), barcode.Bars.end(),
                       [](const auto& one, const auto& other) { return one.Width < other.Width; })
          ->Width;
  return barcode;
}

std::string BarcodeLibraryVersion() {
  const int version = ZBarcode_Version();  // two digits a part
  return std::to_string(version / 10000) + "." + std::to_string(version / 100 % 100) + "." +
         std::to_string(version % 100);
}

}  // namespace store
