// QMessageBox for messages and questions.
#include "ui/Meldungsfenster.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QMainWindow>

#include "ui/Bauteile.h"

namespace tarvelin {

namespace {

QMessageBox::Icon Symbol(Meldungssymbol symbol) {
    switch (symbol) {
        case Meldungssymbol::Fehler:
            return QMessageBox::Critical;
        case Meldungssymbol::Frage:
            return QMessageBox::Question;
        case Meldungssymbol::Warnung:
            return QMessageBox::Warning;
        case Meldungssymbol::Hinweis:
            return QMessageBox::Information;
        case Meldungssymbol::Ohne:
            break;
    }
    return QMessageBox::NoIcon;
}

/// Between two boxes no window is active for a moment.
QWidget* Elternfenster() {
    if (QWidget* const aktives = QApplication::activeWindow()) {
        return aktives;
    }
    for (QWidget* const fenster : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(fenster) != nullptr && fenster->isVisible()) {
            return fenster;
        }
    }
    return nullptr;
}

/// A box is as wide as its title, which the frame draws larger than our font, beside its buttons.
void GibTitelRaum(QMessageBox& box, const QString& titel) {
    if (auto* const raster = qobject_cast<QGridLayout*>(box.layout())) {
        constexpr int kKnoepfe = 120;
        const int breite = box.fontMetrics().horizontalAdvance(titel) * 3 / 2 + kKnoepfe;
        raster->addItem(new QSpacerItem(breite, 0), raster->rowCount(), 0, 1,
                        raster->columnCount());
    }
}

QMessageBox::StandardButton Oeffne(const std::string& text, const std::string& titel,
                                   Meldungssymbol symbol, QMessageBox::StandardButtons knoepfe) {
    QMessageBox box(Elternfenster());
    const QString titelzeile = titel.empty() ? QStringLiteral("Tarvelin") : AlsQString(titel);
    box.setWindowTitle(titelzeile);
    box.setTextFormat(Qt::PlainText);
    box.setText(AlsQString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    box.setIcon(Symbol(symbol));
    box.setStandardButtons(knoepfe);
    for (const auto& [knopf, aufschrift] : {std::pair(QMessageBox::Yes, QStringLiteral("&Ja")),
                                            std::pair(QMessageBox::No, QStringLiteral("&Nein"))}) {
        if (auto* const gezeigter = box.button(knopf)) {
            gezeigter->setText(aufschrift);
        }
    }
    GibTitelRaum(box, titelzeile);
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

std::filesystem::path Meldungsfenster::FragNachDatei(Zweck zweck,
                                                     const std::filesystem::path& ordner) {
    QFileDialog dialog(Elternfenster());
    const bool laden = zweck == Zweck::Laden;
    dialog.setAcceptMode(laden ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(laden ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(QStringLiteral("(*.tvf) Tarvelin Save-Files (*.tvf)"));
    constexpr QSize kGroesse(720, 420);
    dialog.resize(kGroesse);
    dialog.setDirectory(Pfadtext(ordner));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return AlsPfad(dialog.selectedFiles().constFirst());
}

}  // namespace tarvelin
