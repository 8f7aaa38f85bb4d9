// Beeps instead of playing, for builds without a player.
#include <QApplication>

#include "ui/services/SoundPlayer.h"

class QAudioSink {};

namespace tarvelin {

SoundPlayer::SoundPlayer() = default;
SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::Play(const std::filesystem::path& /*file*/) {
    QApplication::beep();
}

}  // namespace tarvelin
