// QMessageBox for messages and questions.
#include "ui/services/QtDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QIdentityProxyModel>
#include <QLocale>
#include <QMainWindow>
#include <QMessageBox>

#include "ui/services/SvgImage.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

QMessageBox::Icon Symbol(MessageIcon symbol) {
    switch (symbol) {
        case MessageIcon::Error:
            return QMessageBox::Critical;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Warning:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::None:
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

/// A message box as ours look.
class Box : public QMessageBox {
  public:
    Box(const std::string& text, const std::string& titel, MessageIcon symbol,
        QMessageBox::StandardButtons knoepfe)
        : QMessageBox(Elternfenster()) {
        const QString titelzeile = titel.empty() ? QStringLiteral("Tarvelin") : ToQString(titel);
        setWindowTitle(titelzeile);
        setTextFormat(Qt::PlainText);
        setText(ToQString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
        setIcon(Symbol(symbol));
        setStandardButtons(knoepfe);
        for (const auto& [knopf, aufschrift] :
             {std::pair(QMessageBox::Yes, QStringLiteral("&Ja")),
              std::pair(QMessageBox::No, QStringLiteral("&Nein"))}) {
            if (auto* const gezeigter = button(knopf)) {
                gezeigter->setText(aufschrift);
            }
        }
        GibTitelRaum(*this, titelzeile);
    }
    explicit Box(const Message& meldung)
        : Box(meldung.text, meldung.title, meldung.icon, QMessageBox::Ok) {}
};

/// Files with sizes and dates in German: the toolkit's model takes the system's language for them.
class DeutscheDateien : public QIdentityProxyModel {
  public:
    using QIdentityProxyModel::QIdentityProxyModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        const auto* const dateien = qobject_cast<const QFileSystemModel*>(sourceModel());
        if (role == Qt::DisplayRole && dateien != nullptr) {
            const QFileInfo datei = dateien->fileInfo(mapToSource(index));
            if (index.column() == kGroesse && !datei.isDir()) {
                return QLocale().formattedDataSize(datei.size());
            }
            if (index.column() == kDatum) {
                return QLocale().toString(datei.lastModified(), QLocale::ShortFormat);
            }
        }
        return QIdentityProxyModel::data(index, role);
    }

  private:
    /// Columns of the toolkit's model.
    static constexpr int kGroesse = 1;
    static constexpr int kDatum = 3;
};

/// Formats, the first of them to begin with; the chosen one ends a name without an ending.
void StelleAufFormate(QFileDialog& dialog, const QStringList& formate) {
    const auto waehle = [&dialog](const QString& format) {
        dialog.setDefaultSuffix(format.mid(format.indexOf(QLatin1Char('.')) + 1).chopped(1));
    };
    dialog.setNameFilters(formate);
    waehle(formate.first());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, waehle);
}

}  // namespace

int Meldungsfenster::Oeffne(QDialog& dialog) {
    if (m_beendet) {
        return QDialog::Rejected;
    }
    m_offene.push_back(&dialog);
    const int antwort = dialog.exec();
    m_offene.pop_back();
    return antwort;
}

void Meldungsfenster::Beende() {
    m_beendet = true;
    for (QDialog* const dialog : m_offene) {
        dialog->reject();
    }
}

void Meldungsfenster::Show(const Message& meldung) {
    Box box(meldung);
    Oeffne(box);
}

bool Meldungsfenster::ZeigeAbstellbar(const Message& meldung) {
    Box box(meldung);
    // The box owns it.
    auto* const abstellen = new QCheckBox(QStringLiteral("In diesem Lauf nicht mehr zeigen"));
    box.setCheckBox(abstellen);
    Oeffne(box);
    return !abstellen->isChecked();
}

void Meldungsfenster::Beep() {
    QApplication::beep();
}

bool Meldungsfenster::Stelle(const Frage& frage) {
    Box box(frage.Text, frage.Titel, frage.Symbol, QMessageBox::Yes | QMessageBox::No);
    return Oeffne(box) == QMessageBox::Yes;
}

std::filesystem::path Meldungsfenster::FragNachDatei(Zweck zweck,
                                                     const std::filesystem::path& ordner) {
    QFileDialog dialog(Elternfenster());
    const bool laden = zweck == Zweck::Laden;
    dialog.setAcceptMode(laden ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    // A name that isn't there is answered by the load itself.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setProxyModel(new DeutscheDateien(&dialog));
    if (zweck == Zweck::Bild) {
        QStringList formate{QStringLiteral("Bild (*.png)"), QStringLiteral("Dokument (*.pdf)")};
        if (KannSvg()) {
            formate.insert(1, QStringLiteral("Vektorbild (*.svg)"));
        }
        StelleAufFormate(dialog, formate);
    } else if (zweck == Zweck::Kalender) {
        StelleAufFormate(dialog, {QStringLiteral("Kalender (*.ics)")});
    } else {
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.setNameFilter(QStringLiteral("(*.tvf) Tarvelin Save-Files (*.tvf)"));
    }
    constexpr QSize kGroesse(720, 420);
    dialog.resize(kGroesse);
    dialog.setDirectory(PathToQString(ordner));
    if (Oeffne(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return ToPath(dialog.selectedFiles().constFirst());
}

}  // namespace tarvelin
