#pragma once

#include "forms/control.h"
#include "forms/serial_port.h"

namespace store {

/// The serial settings of the user, in the per-user store under the program's title, section
/// "options": "설정" the settings text, "포트" the port's number, "흐름제어" the flow control.

/// Sets the port up from the store and shows in `status` what was read: "Com1:9600,n,8,1". Empty
/// settings are stored as the port has them; a 0 in the other two leaves the port as it is and
/// writes the port's value under a name with a blank in front, which nothing reads. What the
/// platform refuses is told in a box; refused settings or a refused flow control end the load.
void LoadPortSettings(SerialPort& port, Label& status);

/// Puts what is in force on the port into the store.
void StorePortSettings(const SerialPort& port);

/// What is in force on the port, as `status` shows it after the settings window: "Com1:9600,n,8,1".
std::string PortStatus(const SerialPort& port);

/// Tells in a box what the platform has refused. False when there is nothing to tell.
bool TellRefusal(const std::string& refused);

/// Shows the settings window over the receive form.
void ShowPortSettings();

}  // namespace store
