// Looks and texts of the boxes.
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

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
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

/// Between two boxes no window is active for a moment: then the main window.
QWidget* ParentWindow() {
    if (QWidget* const active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// Makes a box wide enough for its title, which the window manager draws larger than our font.
void MakeRoomForTitle(QMessageBox& box, const QString& title) {
    if (auto* const grid = qobject_cast<QGridLayout*>(box.layout())) {
        constexpr int kButtons = 120;
        const int width = box.fontMetrics().horizontalAdvance(title) * 3 / 2 + kButtons;
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

class ModalBox : public QMessageBox {
  public:
    ModalBox(const std::string& text, const std::string& title, MessageIcon icon,
             QMessageBox::StandardButtons buttons)
        : QMessageBox(ParentWindow()) {
        const QString titleLine = title.empty() ? QStringLiteral("Tarvelin") : ToQString(title);
        setWindowTitle(titleLine);
        setTextFormat(Qt::PlainText);
        setText(ToQString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
        setIcon(IconOf(icon));
        setStandardButtons(buttons);
        for (const auto& [standardButton, caption] :
             {std::pair(QMessageBox::Yes, QStringLiteral("&Ja")),
              std::pair(QMessageBox::No, QStringLiteral("&Nein"))}) {
            if (auto* const shown = button(standardButton)) {
                shown->setText(caption);
            }
        }
        MakeRoomForTitle(*this, titleLine);
    }
    explicit ModalBox(const Message& message)
        : ModalBox(message.text, message.title, message.icon, QMessageBox::Ok) {}
};

/// Shows sizes and dates in German, where the toolkit would use the system's language.
class GermanFileModel : public QIdentityProxyModel {
  public:
    using QIdentityProxyModel::QIdentityProxyModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        const auto* const files = qobject_cast<const QFileSystemModel*>(sourceModel());
        if (role == Qt::DisplayRole && files != nullptr) {
            const QFileInfo file = files->fileInfo(mapToSource(index));
            if (index.column() == kSize && !file.isDir()) {
                return QLocale().formattedDataSize(file.size());
            }
            if (index.column() == kDateColumn) {
                return QLocale().toString(file.lastModified(), QLocale::ShortFormat);
            }
        }
        return QIdentityProxyModel::data(index, role);
    }

  private:
    /// Columns of `QFileSystemModel`.
    static constexpr int kSize = 1;
    static constexpr int kDateColumn = 3;
};

/// Offers the formats, the first one chosen; a name without a suffix gets that of the chosen
/// format.
void FollowFormats(QFileDialog& dialog, const QStringList& formats) {
    const auto choose = [&dialog](const QString& format) {
        dialog.setDefaultSuffix(format.mid(format.indexOf(QLatin1Char('.')) + 1).chopped(1));
    };
    dialog.setNameFilters(formats);
    choose(formats.first());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, choose);
}

}  // namespace

int QtDialogs::Exec(QDialog& dialog) {
    if (m_closed) {
        return QDialog::Rejected;
    }
    m_open.push_back(&dialog);
    const int answer = dialog.exec();
    m_open.pop_back();
    return answer;
}

void QtDialogs::CloseAll() {
    m_closed = true;
    for (QDialog* const dialog : m_open) {
        dialog->reject();
    }
}

void QtDialogs::Show(const Message& message) {
    ModalBox box(message);
    Exec(box);
}

bool QtDialogs::ShowSuppressible(const Message& message) {
    ModalBox box(message);
    // The box owns it.
    auto* const suppress = new QCheckBox(QStringLiteral("In diesem Lauf nicht mehr zeigen"));
    box.setCheckBox(suppress);
    Exec(box);
    return !suppress->isChecked();
}

void QtDialogs::Beep() {
    QApplication::beep();
}

bool QtDialogs::Ask(const Question& question) {
    ModalBox box(question.text, question.title, question.icon, QMessageBox::Yes | QMessageBox::No);
    return Exec(box) == QMessageBox::Yes;
}

std::filesystem::path QtDialogs::AskForFile(Purpose purpose, const std::filesystem::path& folder) {
    QFileDialog dialog(ParentWindow());
    const bool load = purpose == Purpose::Load;
    dialog.setAcceptMode(load ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    // Loading reports a file that doesn't exist.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setProxyModel(new GermanFileModel(&dialog));
    if (purpose == Purpose::Picture) {
        QStringList formats{QStringLiteral("Bild (*.png)"), QStringLiteral("Dokument (*.pdf)")};
        if (HasSvg()) {
            formats.insert(1, QStringLiteral("Vektorbild (*.svg)"));
        }
        FollowFormats(dialog, formats);
    } else if (purpose == Purpose::Calendar) {
        FollowFormats(dialog, {QStringLiteral("Kalender (*.ics)")});
    } else {
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.setNameFilter(QStringLiteral("(*.tvf) Tarvelin Save-Files (*.tvf)"));
    }
    constexpr QSize kSize(720, 420);
    dialog.resize(kSize);
    dialog.setDirectory(PathToQString(folder));
    if (Exec(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return ToPath(dialog.selectedFiles().constFirst());
}

}  // namespace tarvelin
