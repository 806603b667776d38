#include <array>
#include <QFile>
#include <QStandardPaths>

#include "platform/terminal_sound.h"
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

/// Plays sounds where no multimedia library is loaded: through the first of the usual players that the machine has
/// (pw-play, paplay, aplay), started like an alert program.
class SoundProgram final : public SoundPlayer {
 public:
  explicit SoundProgram(ProgramStarter& programs) : programs_(programs) {}
  long play(const std::string& fileName) override;

 private:
  ProgramStarter& programs_;
};

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

}  // namespace

std::unique_ptr<SoundPlayer> makeTerminalSound(ProgramStarter& programs) {
  return std::make_unique<SoundProgram>(programs);
}

}  // namespace tarnwick
