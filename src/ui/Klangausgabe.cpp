// One sound at a time.
#include "ui/Klangausgabe.h"

#include <QApplication>
#include <QSoundEffect>
#include <QUrl>

#include "ui/Bauteile.h"
#include "ui/Wellendatei.h"

namespace tarvelin {

Klangausgabe::Klangausgabe() : m_effekt(std::make_unique<QSoundEffect>()) {
    QObject::connect(m_effekt.get(), &QSoundEffect::statusChanged, m_effekt.get(), [this] {
        if (m_effekt->status() == QSoundEffect::Error) {
            QApplication::beep();
        }
    });
}

Klangausgabe::~Klangausgabe() = default;

void Klangausgabe::Spiele(const std::filesystem::path& datei) {
    m_effekt->stop();
    if (!IstSpielbar(datei)) {
        QApplication::beep();
        return;
    }
    m_effekt->setSource(QUrl::fromLocalFile(Pfadtext(datei)));
    m_effekt->play();
}

}  // namespace tarvelin
