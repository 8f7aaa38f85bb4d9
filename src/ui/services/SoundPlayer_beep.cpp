// The beep in the place of all sounds, for builds without Qt Multimedia.
#include <QApplication>

#include "ui/services/SoundPlayer.h"

class QAudioSink {};

namespace tarvelin {

Klangausgabe::Klangausgabe() = default;
Klangausgabe::~Klangausgabe() = default;

void Klangausgabe::Spiele(const std::filesystem::path& /*datei*/) {
    QApplication::beep();
}

}  // namespace tarvelin
