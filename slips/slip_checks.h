#pragma once

#include <string>

#include "forms/control.h"
#include "slips/line_grid.h"
#include "slips/slip.h"

namespace store {

/// CT_NAME of a partner. Empty for an empty code, which is not asked for, an unknown one and a
/// failed read. Reads through `SlotA`.
std::string PartnerNameOf(const std::string& code);

/// What orders and receipts have in common when they are saved. The checks tell the user what is
/// wrong and give false.

/// Fills the header's parties and sums: the session's store, the partner (name in the box, code in
/// its Tag) and the total labels.
void FillSlipHeader(HeadArray& headValues, const TextBox& partner, const TotalLabels& totals);

/// Whether the document date lies within a month of the key's.
bool CheckSlipDate(const HeadArray& headValues);
/// Whether the store that writes the slip has a code and a name.
bool CheckSlipStore(const HeadArray& headValues);
/// The partner's name is missing or not the one of its code.
void TellWrongPartner();
/// No line could be made.
void TellNoLines();
/// The batch failed; with the server's words.
std::string SaveFailedText();
void TellSaveFailed();  ///< In a box.

/// Whether a line got its depot; tells what is missing otherwise. A line behind the last of the
/// table took nothing in, so it has no depot either.
bool CheckLineDepot(const StringTable& lineValues, int number);

}  // namespace store
