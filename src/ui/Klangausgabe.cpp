// One sound at a time.
#include "ui/Klangausgabe.h"

#include <QApplication>
#include <QSoundEffect>
#include <QUrl>

#include "ui/Bauteile.h"
#include "ui/Wellendatei.h"

namespace tarvelin {

Klangausgabe::Klangausgabe() = default;
Klangausgabe::~Klangausgabe() = default;

// The player keeps what it read from a file under its name, and tells an error of it only once:
// each sound gets one of its own, whose end cuts off the one before.
void Klangausgabe::Spiele(const std::filesystem::path& datei) {
    m_effekt.reset();
    if (!IstSpielbar(datei)) {
        QApplication::beep();
        return;
    }
    m_effekt = std::make_unique<QSoundEffect>();
    QObject::connect(m_effekt.get(), &QSoundEffect::statusChanged, m_effekt.get(), [this] {
        if (m_effekt->status() == QSoundEffect::Error) {
            QApplication::beep();
        }
    });
    m_effekt->setSource(QUrl::fromLocalFile(Pfadtext(datei)));
    m_effekt->play();
}

}  // namespace tarvelin
