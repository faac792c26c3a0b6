#pragma once

#include <string>

#include "slips/slip.h"

namespace store {

/// What a run of the terminal's path handles, DT_GU.
namespace handheld_module {
inline constexpr const char* Sale = "13";
inline constexpr const char* Purchase = "23";
inline constexpr const char* Shipment = "14";
inline constexpr const char* Survey = "82";
inline constexpr const char* Prices = "66";
}  // namespace handheld_module

/// A slip as it is built from staged rows: elements 0 to 20 of the header in the order of the
/// header's columns, lines as in every slip but that column 20 goes to PS_TMID.
struct HandheldSlip {
  HeadArray HandheldHeader;
  StringTable HandheldLines;
};

/// Each turns one finished slip into statements behind those of the batch; the batch is sent by the
/// form. What is to be raised and what inserted is read while that is done. Lines without a product
/// code are passed over. False when nothing was added.

/// A sale ("13": PES13, PSS13, stock out, CM_M13) or a purchase ("23": PEM23, PSM23,
/// stock in, CM_M23). Any other code is told in a box.
bool PE_DT900R(const HandheldSlip& slip, const std::string& moduleCode);

/// A shipment to another store, whose code is the partner of the slip: PEM13 and PSM13, stock out,
/// the balance with that store, and its mirror PES23 and PSS23, which waits for the other store.
/// It empties the batch first, so a batch holds one shipment. The mirror's key is taken here.
bool PostStoreShipment(const HandheldSlip& slip);

/// A stock survey: ME, and MS and stock for each line with an adjustment, which goes onto INQTY
/// with its sign.
bool PostStockSurvey(const HandheldSlip& slip);

/// A SELECT that gives a row when the slip of that module stands in its header table.
std::string SlipTrace(const HandheldSlip& slip, const std::string& moduleCode);

}  // namespace store
