#pragma once

#include <string>
#include <vector>

#include "forms/serial_port.h"

namespace store {

/// A serial line whose other end is the test. Settings that are refused answer with `Refusal`.
class ScriptedPort : public SerialPort {
 public:
  std::vector<std::string> Sent;  ///< What was put out, in order.
  std::string Refusal = "거절됨";
  std::string RefusedSettings;  ///< A text that is not taken.
  int RefusedPort = 0;
  int RefusedHandshaking = -1;
  bool RefusesToOpen = false;
  int Openings = 0;

  /// The line brings a text.
  void Arrive(const std::string& text) {
    arrived_ += text;
    OnComm(comm::Receive);
  }

  int CommPort() const override { return port_; }
  std::string SetCommPort(int port) override { return Set(port_, port, port == RefusedPort); }
  std::string Settings() const override { return settings_; }
  std::string SetSettings(const std::string& settings) override {
    return Set(settings_, settings, settings == RefusedSettings);
  }
  int Handshaking() const override { return handshaking_; }
  std::string SetHandshaking(int handshaking) override {
    return Set(handshaking_, handshaking, handshaking == RefusedHandshaking);
  }
  bool PortOpen() const override { return open_; }
  std::string SetPortOpen(bool open) override {
    Openings += open ? 1 : 0;
    return Set(open_, open, open && RefusesToOpen);
  }
  std::string Input() override { return std::exchange(arrived_, {}); }
  void Output(const std::string& text) override { Sent.push_back(text); }

 private:
  template <class Value>
  std::string Set(Value& value, const Value& wanted, bool refused) {
    if (!refused) value = wanted;
    return refused ? Refusal : std::string();
  }

  int port_ = 1;
  std::string settings_ = "9600,n,8,1";
  int handshaking_ = 0;
  bool open_ = false;
  std::string arrived_;
};

}  // namespace store
