#include "platform/sound/qt_sound_player.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QByteArray>
#include <QLoggingCategory>
#include <QMediaDevices>
#include <QTimer>

#include "platform/sound/wave_file.h"

namespace tarnwick {
namespace {

/// More than a sound device keeps back, a wireless one included.
constexpr std::chrono::milliseconds kDeviceBuffer{1000};

// A machine without sound is no fault worth telling; the caller learns it from what `play` returns. Qt tells it on
// standard error none the less, in part outside of its logging categories.
QtMessageHandler earlierHandler = nullptr;

void dropSoundServerMessages(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!message.startsWith(QLatin1String("PulseAudioService:"))) {
    earlierHandler(type, context, message);
  }
}

QAudioFormat formatOf(const WaveSound& sound) {
  QAudioFormat format;
  format.setSampleFormat(QAudioFormat::Int16);
  format.setSampleRate(static_cast<int>(sound.sampleRate));
  format.setChannelCount(sound.channels);
  return format;
}

// Qt 6.4 takes its link to the PulseAudio server down at the end of the process while the link's own thread still uses
// it, and about every fourth process that has played a sound is aborted there, with everything else long done. Who has
// played a sound therefore ends just before that.
void endBeforeTheLink() {
#ifdef __GLIBC__
  static const bool registered = ::on_exit(
                                     [](int status, void*) {
                                       std::fflush(nullptr);
                                       std::_Exit(status);
                                     },
                                     nullptr) == 0;
  static_cast<void>(registered);
#endif
}

}  // namespace

/// A sound on its way to the device.
struct QtSoundPlayer::Playing {
  Playing(const WaveSound& sound, const QAudioDevice& device)
      : samples(reinterpret_cast<const char*>(sound.samples.data()),
                static_cast<qsizetype>(sound.samples.size() * sizeof(std::int16_t))),
        sink(device, formatOf(sound)) {
    source.setBuffer(&samples);
    source.open(QIODevice::ReadOnly);
    // The device is given back once it has played what it was handed: it is behind the source by its own buffer, which
    // stopping throws away.
    ending.setSingleShot(true);
    ending.setInterval(kDeviceBuffer);
    QObject::connect(&ending, &QTimer::timeout, &sink, &QAudioSink::stop);
    QObject::connect(&sink, &QAudioSink::stateChanged, &source, [this](QAudio::State state) {
      if (state == QAudio::IdleState && source.atEnd()) {
        ending.start();
      }
    });
    sink.start(&source);
  }
  // A sink that is still active while it is taken apart may ask its stream for more after that is gone, and aborts the
  // process.
  ~Playing() { sink.stop(); }
  Playing(const Playing&) = delete;
  Playing& operator=(const Playing&) = delete;

  QByteArray samples;
  QBuffer source;
  QAudioSink sink;
  QTimer ending;
};

QtSoundPlayer::QtSoundPlayer() {
  // Once for the process, and for good: the sound server is watched in the background until its end.
  static const bool quiet = [] {
    QLoggingCategory::setFilterRules(QStringLiteral("qt.multimedia.*=false"));
    earlierHandler = qInstallMessageHandler(dropSoundServerMessages);
    return true;
  }();
  static_cast<void>(quiet);
}

QtSoundPlayer::~QtSoundPlayer() = default;

long QtSoundPlayer::play(const std::string& fileName) {
  const std::optional<WaveSound> sound = readWave(bytesOfSound(fileName));
  const QAudioDevice device = sound ? QMediaDevices::defaultAudioOutput() : QAudioDevice();
  // A file that cannot be played leaves the sound before it alone.
  if (!sound || device.isNull()) {
    return 0;
  }
  playing_.reset();
  playing_ = std::make_unique<Playing>(*sound, device);
  endBeforeTheLink();
  return playing_->sink.error() == QAudio::NoError ? 1 : 0;
}

}  // namespace tarnwick
