#include <array>
#include <QStandardPaths>

#include "platform/sound/terminal_sound.h"
#include "platform/sound/wave_file.h"

namespace tarnwick {
namespace {

constexpr std::array kPlayers = {"pw-play", "paplay", "aplay"};

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
  if (!readWave(bytesOfSound(fileName))) {
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
