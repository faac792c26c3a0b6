#pragma once

#include <memory>

#include "forms/serial_port.h"

namespace store {

/// A serial port of this workstation, behind `Host.MakeSerialPort`. "Com1" to "Com4" are the
/// devices that the deployment names (`SerialDevice`).
///
/// Of the events it tells those that the platform's layer can see: what was received, a send buffer
/// without room, and a device that is gone, upon which it is closed. Breaks, framing and parity
/// errors, overruns and the modem lines are not reported to a program here.
std::unique_ptr<SerialPort> MakeSerialPort();

}  // namespace store
