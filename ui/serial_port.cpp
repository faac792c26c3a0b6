#include "ui/serial_port.h"

#include <QSerialPort>
#include <QTimer>
#include <array>
#include <optional>
#include <utility>

#include "basics/deployment.h"
#include "basics/text.h"
#include "ui/desk.h"
#include "ui/qt_text.h"

namespace store {
namespace {

constexpr qint64 kSendBuffer = 512;

#ifdef Q_OS_WIN
constexpr bool kHasOneAndHalfStop = true;
#else
constexpr bool kHasOneAndHalfStop = false;
#endif

/// At first as the platform's layer begins.
struct LineSettings {
  qint32 speed = 9600;
  char parity = 'n';
  QSerialPort::Parity parityKind = QSerialPort::NoParity;
  QSerialPort::DataBits dataBits = QSerialPort::Data8;
  QString stopBits = "1";
  QSerialPort::StopBits stopKind = QSerialPort::OneStop;
};

bool TakeParity(const QString& text, LineSettings& settings) {
  constexpr std::array<std::pair<char, QSerialPort::Parity>, 5> kinds = {
      {{'e', QSerialPort::EvenParity},
       {'o', QSerialPort::OddParity},
       {'n', QSerialPort::NoParity},
       {'m', QSerialPort::MarkParity},
       {'s', QSerialPort::SpaceParity}}};
  for (const auto& [letter, kind] : kinds) {
    if (text.toLower() != QLatin1Char(letter)) continue;
    settings.parity = letter;
    settings.parityKind = kind;
    return true;
  }
  return false;
}

bool TakeStopBits(const QString& text, LineSettings& settings) {
  settings.stopBits = text;
  if (text == "1") settings.stopKind = QSerialPort::OneStop;
  if (text == "1.5") settings.stopKind = QSerialPort::OneAndHalfStop;
  if (text == "2") settings.stopKind = QSerialPort::TwoStop;
  return text == "1" || text == "2" || (text == "1.5" && kHasOneAndHalfStop);
}

/// Nothing for a text that this platform has no line for.
std::optional<LineSettings> ReadSettings(const std::string& text) {
  const QStringList fields = ToQt(text).split(',');
  if (fields.size() != 4) return std::nullopt;
  LineSettings settings;
  bool isNumber = false;
  settings.speed = fields[0].toInt(&isNumber);
  if (!isNumber || settings.speed <= 0 || !TakeParity(fields[1], settings)) return std::nullopt;
  const int dataBits = fields[2].toInt(&isNumber);
  if (!isNumber || dataBits < QSerialPort::Data5 || dataBits > QSerialPort::Data8) {
    return std::nullopt;
  }
  settings.dataBits = static_cast<QSerialPort::DataBits>(dataBits);
  if (!TakeStopBits(fields[3], settings)) return std::nullopt;
  return settings;
}

std::string SettingsText(const LineSettings& settings) {
  return FromQt(QString("%1,%2,%3,%4")
                    .arg(settings.speed)
                    .arg(QLatin1Char(settings.parity))
                    .arg(settings.dataBits)
                    .arg(settings.stopBits));
}

class RealSerialPort : public SerialPort {
 public:
  RealSerialPort() {
    // What a line brings is passed on from an event of its own: the layer raises no further
    // signal while one of its signals is being worked at, and the terminal would wait for ever.
    QObject::connect(&line_, &QSerialPort::readyRead, &line_, [this] { TakeArrived(); });
    QObject::connect(&line_, &QSerialPort::errorOccurred, &line_,
                     [this](QSerialPort::SerialPortError error) { NoteError(error); });
  }

  int CommPort() const override { return port_; }
  std::string SetCommPort(int port) override;
  std::string Settings() const override { return SettingsText(settings_); }
  std::string SetSettings(const std::string& text) override;
  int Handshaking() const override { return handshaking_; }
  std::string SetHandshaking(int handshaking) override;
  bool PortOpen() const override { return line_.isOpen(); }
  std::string SetPortOpen(bool open) override;
  std::string Input() override { return std::exchange(text_, {}); }
  void Output(const std::string& text) override;

 private:
  bool Apply(const LineSettings& settings);
  std::string Open();
  void Close();
  void Later(std::function<void()> work);
  void TakeArrived();
  void NoteError(QSerialPort::SerialPortError error);
  void Tell(int code);

  QSerialPort line_;
  LineSettings settings_;
  int port_ = 1;
  int handshaking_ = 0;
  std::string bytes_;  // the first half of a letter
  std::string text_;   // what nobody has taken yet
};

std::string RealSerialPort::SetCommPort(int port) {
  if (SerialDevice(port).empty()) return "없는 통신포트입니다: Com" + std::to_string(port);
  if (line_.isOpen() && port != port_) return "열려 있는 통신포트의 번호는 바꿀 수 없습니다.";
  port_ = port;
  return {};
}

bool RealSerialPort::Apply(const LineSettings& settings) {
  return line_.setBaudRate(settings.speed) && line_.setParity(settings.parityKind) &&
         line_.setDataBits(settings.dataBits) && line_.setStopBits(settings.stopKind);
}

std::string RealSerialPort::SetSettings(const std::string& text) {
  const std::optional<LineSettings> wanted = ReadSettings(text);
  if (!wanted) return "쓸 수 없는 통신포트 설정입니다: " + text;
  if (!Apply(*wanted)) {
    std::string refused = FromQt(line_.errorString());
    Apply(settings_);
    return refused;
  }
  settings_ = *wanted;
  return {};
}

std::string RealSerialPort::SetHandshaking(int handshaking) {
  constexpr std::array kinds = {QSerialPort::NoFlowControl, QSerialPort::SoftwareControl,
                                QSerialPort::HardwareControl};
  if (handshaking < 0 || handshaking >= static_cast<int>(kinds.size())) {
    return "쓸 수 없는 흐름 제어입니다: " + std::to_string(handshaking);
  }
  if (!line_.setFlowControl(kinds[static_cast<size_t>(handshaking)])) {
    return FromQt(line_.errorString());
  }
  handshaking_ = handshaking;
  return {};
}

std::string RealSerialPort::SetPortOpen(bool open) {
  if (open == line_.isOpen()) return {};
  if (open) return Open();
  Close();
  return {};
}

std::string RealSerialPort::Open() {
  const QString device = ToQt(SerialDevice(port_));
  line_.setPortName(device);
  if (!line_.open(QIODevice::ReadWrite)) {
    return FromQt(device + ": " + line_.errorString());
  }
  line_.clear();
  // A cradle may take its power from this line; one without modem lines does not need it.
  line_.setDataTerminalReady(true);
  line_.clearError();
  return {};
}

void RealSerialPort::Close() {
  line_.close();
  bytes_.clear();
  text_.clear();
}

void RealSerialPort::Output(const std::string& text) {
  if (!line_.isOpen()) return;
  const std::string bytes = ToCodePage949(text);
  const auto size = static_cast<qint64>(bytes.size());
  if (line_.bytesToWrite() + size > kSendBuffer) {
    Later([this] { Tell(comm::SendFull); });
    return;
  }
  line_.write(bytes.data(), size);
}

void RealSerialPort::Later(std::function<void()> work) {
  QTimer::singleShot(0, &line_, [this, work = std::move(work)] {
    if (TheDesk().InsideCall()) return Later(work);  // no event of the form may run there
    work();
  });
}

void RealSerialPort::TakeArrived() {
  bytes_ += line_.readAll().toStdString();
  const bool waiting = !text_.empty();
  text_ += TakeWholeLetters(bytes_);
  if (waiting || text_.empty()) return;
  Later([this] {
    if (!text_.empty()) Tell(comm::Receive);
  });
}

// Settings that the layer refuses answer where they are set; only what ends the line is an event.
void RealSerialPort::NoteError(QSerialPort::SerialPortError error) {
  if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError &&
      error != QSerialPort::WriteError)
    return;
  Later([this] {
    if (!line_.isOpen()) return;
    Close();
    Tell(comm::DeviceLost);
  });
}

// The form may end this port, so nothing follows the call.
void RealSerialPort::Tell(int code) {
  Dispatch([this, code] {
    if (OnComm) OnComm(code);
  });
}

}  // namespace

std::unique_ptr<SerialPort> MakeSerialPort() { return std::make_unique<RealSerialPort>(); }

}  // namespace store
