#pragma once

#include "forms/control.h"

namespace store {

/// Turns what was typed into `box` into a partner, "code name": at once when exactly one partner
/// matches the name, the code or, behind a "/", the phone, otherwise through the lookup window.
/// False when the box is empty afterwards.
bool PartnerHelp(TextBox& box);

}  // namespace store
