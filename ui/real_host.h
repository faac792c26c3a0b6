#pragma once

namespace store {

/// Fills `Host` with this workstation: its screen, its clock, its settings. Needs the application
/// object.
void OpenRealHost();

}  // namespace store
