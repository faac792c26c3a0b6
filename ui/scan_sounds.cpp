#include "ui/scan_sounds.h"

#include <canberra.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <cmath>
#include <numbers>
#include <vector>

#include "ui/user_choices.h"

namespace store {
namespace {

constexpr int kRate = 22050;  // samples a second
constexpr double kLoudness = 0.35;
constexpr double kFade = 0.008;  // seconds; without it a tone begins and ends with a click

struct Tone {
  double Hertz;
  double Seconds;
};

const std::vector<Tone> kTaken = {{1568, 0.07}};
const std::vector<Tone> kRefused = {{440, 0.11}, {294, 0.18}};

QByteArray Samples(const std::vector<Tone>& tones) {
  QByteArray samples;
  for (const auto& [hertz, seconds] : tones) {
    const int count = static_cast<int>(seconds * kRate);
    for (int at = 0; at < count; ++at) {
      const double time = static_cast<double>(at) / kRate;
      const double swell = std::min({1.0, time / kFade, (seconds - time) / kFade});
      const double height = std::sin(2 * std::numbers::pi * hertz * time) * swell * kLoudness;
      const auto sample = qToLittleEndian(static_cast<qint16>(std::lround(height * INT16_MAX)));
      samples.append(reinterpret_cast<const char*>(&sample), sizeof(sample));
    }
  }
  return samples;
}

/// A file of sound: RIFF, "fmt " for one channel of 16-bit samples, then the samples.
QByteArray WaveFile(const QByteArray& samples) {
  constexpr quint32 kFormatSize = 16;
  constexpr quint32 kHeaderSize = 36;  // behind the first size
  QByteArray file;
  const auto add = [&file](auto number) {
    const auto little = qToLittleEndian(number);
    file.append(reinterpret_cast<const char*>(&little), sizeof(little));
  };
  file += "RIFF";
  add(static_cast<quint32>(kHeaderSize + samples.size()));
  file += "WAVEfmt ";
  add(kFormatSize);
  add(quint16{1});  // plain samples
  add(quint16{1});  // channels
  add(quint32{kRate});
  add(quint32{kRate * sizeof(qint16)});
  add(quint16{sizeof(qint16)});
  add(quint16{16});  // bits
  file += "data";
  add(static_cast<quint32>(samples.size()));
  return file + samples;
}

/// The desktop's sound service, or the device where there is none. It plays beside the program.
class Player {
 public:
  Player() { ca_context_create(&context_); }
  ~Player() {
    if (context_ != nullptr) ca_context_destroy(context_);
  }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  /// False when it cannot be played. What could not be is not tried again: that takes its time.
  bool Play(const char* name, const std::vector<Tone>& tones) {
    if (context_ == nullptr || failed_) return false;
    const QString path = folder_.filePath(name);
    if (QFile file(path); !file.exists() && file.open(QIODevice::WriteOnly)) {
      file.write(WaveFile(Samples(tones)));
    }
    failed_ = ca_context_play(context_, 0, CA_PROP_MEDIA_FILENAME, path.toUtf8().constData(),
                              CA_PROP_MEDIA_ROLE, "event", nullptr) != CA_SUCCESS;
    return !failed_;
  }

 private:
  QTemporaryDir folder_;
  ca_context* context_ = nullptr;
  bool failed_ = false;
};

bool Play(const char* name, const std::vector<Tone>& tones) {
  static Player player;
  return player.Play(name, tones);
}

}  // namespace

void SoundTaken() {
  if (SoundsOn()) Play("taken.wav", kTaken);
}

QString SoundLibraryVersion() { return QString("%1.%2").arg(CA_MAJOR).arg(CA_MINOR); }

void SoundRefused() {
  if (SoundsOn() && !Play("refused.wav", kRefused)) QApplication::beep();
}

}  // namespace store
