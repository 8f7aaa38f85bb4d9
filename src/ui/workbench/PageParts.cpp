// Makes the parts.
#include "ui/workbench/PageParts.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>

#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

QWidget* NewSection(const QString& caption, QWidget* parent) {
    auto* const section = new QWidget(parent);
    auto* const label = new TypeLabel(caption, TypeSize::Usual, true, section);
    auto* const line = new QFrame(section);
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    line->setFrameShadow(QFrame::Plain);
    auto* const layout = new QHBoxLayout(section);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(line, 1);
    return section;
}

void MainButton::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) {
        FollowAppearance();
    }
}

void MainButton::FollowAppearance() {
    const WorkbenchColors colors = ColorsFor(window()->palette());
    QPalette own = palette();
    own.setColor(QPalette::Button, colors[isEnabled() ? Color::Accent : Color::Window]);
    own.setColor(QPalette::ButtonText, colors[isEnabled() ? Color::AccentText : Color::Disabled]);
    if (own.color(QPalette::Button) != palette().color(QPalette::Button)) {
        setPalette(own);
    }
}

TypeLabel* NewTypeLabel(const QString& text, TypeSize size, bool bold, QWidget* parent) {
    auto* const label = new TypeLabel(text, size, bold, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QDateTime ToQDateTime(DateTime time) {
    return QDateTime::fromString(ToQString(DateTimeText(time)),
                                 QStringLiteral("dd.MM.yyyy hh:mm:ss"));
}

QLabel* NewHint(const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

}  // namespace tarvelin
