#include "forms/serial_port.h"

namespace store {
namespace {

class AbsentPort : public SerialPort {
 public:
  int CommPort() const override { return port_; }
  std::string SetCommPort(int port) override {
    port_ = port;
    return {};
  }
  std::string Settings() const override { return settings_; }
  std::string SetSettings(const std::string& settings) override {
    settings_ = settings;
    return {};
  }
  int Handshaking() const override { return handshaking_; }
  std::string SetHandshaking(int handshaking) override {
    handshaking_ = handshaking;
    return {};
  }
  bool PortOpen() const override { return false; }
  std::string SetPortOpen(bool open) override {
    return open ? "이 컴퓨터에는 통신포트가 없습니다." : std::string();
  }
  std::string Input() override { return {}; }
  void Output(const std::string& /*text*/) override {}

 private:
  int port_ = 1;
  std::string settings_ = "9600,n,8,1";
  int handshaking_ = 0;
};

}  // namespace

std::unique_ptr<SerialPort> MakeAbsentPort() { return std::make_unique<AbsentPort>(); }

}  // namespace store
