#pragma once

namespace store {

/// The loads at the start of a run. What head office changes later reaches the workstation at its
/// next start. A failed read looks like an empty one and leaves the defaults.

/// Digits, rounding and limits from table BAS into `BaseSettings`. Without any row nothing is set,
/// the rounding modes included.
void LoadBaseCodes();

/// The tax settings from table BAS into `BaseSettings`.
void LoadZ1Settings();

/// The store of the logged-in user and its default depot, from RCT, RCTI and HCT, into `Session`. A
/// user without a store is told so in a box, and the run goes on.
void LoadStore();

}  // namespace store
