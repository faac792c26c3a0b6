#pragma once

#include "board/frm_Start.h"
#include "ui/shots/director.h"

namespace store {

/// The board of the program that is drawn.
frm_Start& Board();

/// Orders and receipts, in the order in which a clerk would come to them.
void ShootNewOrder(Director& director);
void ShootOrderTypes(Director& director);
void ShootQuickPick(Director& director);
void ShootStoredSlips(Director& director);
/// What the orders before it have left.
void ShootDrafts(Director& director);
void ShootDeleted(Director& director);

}  // namespace store
