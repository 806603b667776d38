#include "platform/sound_program.h"

#include <array>
#include <QFile>
#include <QStandardPaths>

#include "platform/wave_file.h"

namespace tarnwick {
namespace {

constexpr std::array kPlayers = {"pw-play", "paplay", "aplay"};

bool isSound(const std::string& fileName) {
  QFile file(QString::fromStdString(fileName));
  if (!file.open(QIODevice::ReadOnly)) {
    return false;
  }
  const QByteArray bytes = file.readAll();
  return readWave({bytes.constData(), static_cast<std::size_t>(bytes.size())}).has_value();
}

}  // namespace

long SoundProgram::play(const std::string& fileName) {
  if (!isSound(fileName)) {
    return 0;
  }
  for (const char* player : kPlayers) {
    const QString found = QStandardPaths::findExecutable(QString::fromLatin1(player));
    if (!found.isEmpty()) {
      return programs_.start({found.toStdString(), fileName}) ? 1 : 0;
    }
  }
  return 0;
}

}  // namespace tarnwick
