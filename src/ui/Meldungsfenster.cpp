// QMessageBox for messages and questions.
#include "ui/Meldungsfenster.h"

#include <QApplication>

#include "ui/Bauteile.h"

namespace tarvelin {

namespace {

QMessageBox::Icon Symbol(Meldungssymbol symbol) {
    switch (symbol) {
        case Meldungssymbol::Fehler:
            return QMessageBox::Critical;
        case Meldungssymbol::Frage:
            return QMessageBox::Question;
        case Meldungssymbol::Ohne:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton Oeffne(const std::string& text, const std::string& titel,
                                   Meldungssymbol symbol, QMessageBox::StandardButtons knoepfe) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(titel.empty() ? QStringLiteral("Tarvelin") : AlsQString(titel));
    box.setTextFormat(Qt::PlainText);
    box.setText(AlsQString(text));
    box.setIcon(Symbol(symbol));
    box.setStandardButtons(knoepfe);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void Meldungsfenster::Zeige(const Meldung& meldung) {
    Oeffne(meldung.Text, meldung.Titel, meldung.Symbol, QMessageBox::Ok);
}

void Meldungsfenster::Piepton() {
    QApplication::beep();
}

bool Meldungsfenster::Stelle(const Frage& frage) {
    return Oeffne(frage.Text, frage.Titel, frage.Symbol, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

}  // namespace tarvelin
