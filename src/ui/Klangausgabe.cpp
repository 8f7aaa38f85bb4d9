// One sound at a time.
#include "ui/Klangausgabe.h"

#include <QApplication>
#include <QSoundEffect>
#include <QUrl>

#include "ui/Bauteile.h"

namespace tarvelin {

Klangausgabe::Klangausgabe() = default;
Klangausgabe::~Klangausgabe() = default;

void Klangausgabe::Spiele(const std::filesystem::path& datei) {
    // A new effect reads the file anew, and the end of the former one cuts it off.
    m_effekt = std::make_unique<QSoundEffect>();
    QObject::connect(m_effekt.get(), &QSoundEffect::statusChanged, m_effekt.get(),
                     [effekt = m_effekt.get()] {
                         if (effekt->status() == QSoundEffect::Error) {
                             QApplication::beep();
                         }
                     });
    m_effekt->setSource(QUrl::fromLocalFile(AlsQString(datei.native())));
    m_effekt->play();
}

}  // namespace tarvelin
