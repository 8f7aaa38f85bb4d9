// One sound at a time, by the platform's own player.
#include <windows.h>
// After what it needs.
#include <mmsystem.h>

#include <QApplication>

#include "ui/dienste/Klangausgabe.h"
#include "ui/dienste/Wellendatei.h"

class QAudioSink {};

namespace tarvelin {

Klangausgabe::Klangausgabe() {
    m_gleich.setSingleShot(true);
    m_gleich.callOnTimeout([this] { Beginne(); });
}

// The player ends with its file.
Klangausgabe::~Klangausgabe() {
    ::PlaySoundW(nullptr, nullptr, 0);
}

// Of many that are asked for at once only the last is opened.
void Klangausgabe::Spiele(const std::filesystem::path& datei) {
    m_datei = datei;
    m_gleich.start(0);
}

// The player says nothing of a file that it can't play; it is read here first.
void Klangausgabe::Beginne() {
    ::PlaySoundW(nullptr, nullptr, 0);
    if (!LiesWelle(m_datei) ||
        ::PlaySoundW(m_datei.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT) == 0) {
        QApplication::beep();
    }
}

}  // namespace tarvelin
