#pragma once

#include <functional>
#include <memory>
#include <string>

namespace store {

/// What a serial port reports through `SerialPort::OnComm`: what has happened on the line, or what
/// is wrong with it.
namespace comm {
inline constexpr int Send = 1;
inline constexpr int Receive = 2;
inline constexpr int CtsChanged = 3;
inline constexpr int DsrChanged = 4;
inline constexpr int CarrierChanged = 5;
inline constexpr int Ring = 6;
inline constexpr int EndOfFile = 7;
inline constexpr int Break = 1001;
inline constexpr int CtsTimeout = 1002;
inline constexpr int DsrTimeout = 1003;
inline constexpr int Framing = 1004;
inline constexpr int Overrun = 1006;
inline constexpr int CarrierTimeout = 1007;
inline constexpr int ReceiveOverflow = 1008;
inline constexpr int Parity = 1009;
inline constexpr int SendFull = 1010;
inline constexpr int DeviceBlock = 1011;
inline constexpr int DeviceLost = 1099;  ///< The device is gone, and the port has closed itself.
}  // namespace comm

/// One serial line of the workstation. Everything happens on the thread of the forms. What the
/// platform refuses comes back as its own text; an empty text means that it was done.
class SerialPort {
 public:
  virtual ~SerialPort() = default;

  /// 1 to 4 for "Com1" to "Com4". At first 1.
  virtual int CommPort() const = 0;
  virtual std::string SetCommPort(int port) = 0;

  /// "{speed},{parity letter},{data bits},{stop bits}"; parity and stop bits as "e o n m s" and
  /// "1", "1.5", "2". At first "9600,n,8,1". Takes effect at once on an open port.
  virtual std::string Settings() const = 0;
  virtual std::string SetSettings(const std::string& settings) = 0;

  /// Flow control: 0 none, 1 Xon/Xoff, 2 RTS, 3 both. At first 0.
  virtual int Handshaking() const = 0;
  virtual std::string SetHandshaking(int handshaking) = 0;

  virtual bool PortOpen() const = 0;
  /// Opening empties what was received before.
  virtual std::string SetPortOpen(bool open) = 0;

  /// Everything that has arrived, as UTF-8 of the line's code page 949. Half a Korean letter waits
  /// for its other byte.
  virtual std::string Input() = 0;
  /// Sends the text in code page 949.
  virtual void Output(const std::string& text) = 0;

  /// One of the `comm` codes has come.
  std::function<void(int code)> OnComm;
};

/// The port of a workstation that has no serial line: it keeps its settings and cannot be opened.
std::unique_ptr<SerialPort> MakeAbsentPort();

}  // namespace store
