#pragma once

namespace store {

/// The keys that forms ask for by name. Every other key arrives as text.
enum class Key {
  None,
  Enter,
  Escape,
  Tab,
  Up,
  Down,
  Delete,
  F1,
  F3,
  F4,
  F5,
  F6,
  F9,
  F10,
  F12,
};

}  // namespace store
