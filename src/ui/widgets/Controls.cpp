// Layout, painting and limits of the basic controls.
#include "ui/widgets/Controls.h"

#include <QCursor>
#include <QPainter>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

namespace tarvelin {

namespace {

constexpr int kTitleHeight = 14;
constexpr int kTitleMargin = 3;

}  // namespace

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString PathToQString(const std::filesystem::path& path) {
    const std::u8string utf8 = path.u8string();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::filesystem::path ToPath(const QString& path) {
    const QByteArray utf8 = path.toUtf8();
    return std::u8string(utf8.begin(), utf8.end());
}

void SetHint(QWidget& widget, const QString& text) {
    if (widget.toolTip() == text) {
        return;
    }
    widget.setToolTip(text);
    if (QToolTip::isVisible() && widget.underMouse()) {
        QToolTip::showText(QCursor::pos(), text, &widget);
    }
}

GroupBox::GroupBox(const QString& name, const QString& title, QWidget* parent)
    : QGroupBox(title, parent) {
    setObjectName(name);
    setAccessibleName(title);
}

void GroupBox::SetCornerLabel(QLabel* label) {
    m_corner = label;
}

// QGroupBox would add the style's frame, for which the surface has no room.
QSize GroupBox::sizeHint() const {
    return QWidget::sizeHint();
}

QSize GroupBox::minimumSizeHint() const {
    return QWidget::minimumSizeHint();  // NOLINT(bugprone-parent-virtual-call): skips QGroupBox
}

void GroupBox::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    setContentsMargins(1, kTitleHeight + 1, 1, 1);
    if (m_corner != nullptr) {
        const int cornerWidth = m_corner->sizeHint().width();
        m_corner->setGeometry(width() - cornerWidth - kTitleMargin, 0, cornerWidth, kTitleHeight);
    }
}

void GroupBox::paintEvent(QPaintEvent* /*event*/) {
    constexpr qreal kRounding = 3;
    QPainter painter(this);
    painter.setPen(palette().windowText().color());
    painter.drawText(QRect(kTitleMargin, 0, width(), kTitleHeight),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), title());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().mid().color());
    constexpr qreal kHalf = 0.5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(kHalf, kTitleHeight + kHalf, -kHalf, -kHalf),
                            kRounding, kRounding);
}

TextInput::TextInput(const QString& name, const QString& accessibleName, int limit, QWidget* parent)
    : QLineEdit(parent), m_limit(limit) {
    setObjectName(name);
    setAccessibleName(accessibleName);
    setAlignment(Qt::AlignCenter);
    constexpr int kHeight = 18;
    setFixedHeight(kHeight);
    setMaxLength(limit);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& changed) { LimitTo(changed.size()); });
}

bool TextInput::Assign(const std::string& value) {
    const QString text = ToQString(value);
    if (text == this->text()) {
        return false;
    }
    const QSignalBlocker quiet(this);
    LimitTo(text.size());
    setText(text);
    return true;
}

// Setting a limit moves the cursor to the end.
void TextInput::LimitTo(qsizetype length) {
    const int limit = std::max(m_limit, static_cast<int>(length));
    if (limit != maxLength()) {
        const int position = cursorPosition();
        setMaxLength(limit);
        setCursorPosition(position);
    }
}

NumberLabel::NumberLabel(const QString& name, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    // A long number must not widen the group.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void NumberLabel::Assign(const QString& number) {
    setText(number);
    RefreshHint();
}

QString NumberLabel::Elided() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void NumberLabel::RefreshHint() {
    SetHint(*this, Elided() == text() ? QString() : text());
}

void NumberLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QString elided = Elided();
    const Qt::Alignment position =
        elided == text() ? alignment() : Qt::AlignLeft | Qt::AlignVCenter;
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(position), palette(),
                          isEnabled(), elided, foregroundRole());
}

void NumberLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    RefreshHint();
}

void ChainTabOrder(const std::vector<QWidget*>& controls) {
    for (std::size_t i = 1; i < controls.size(); ++i) {
        QWidget::setTabOrder(controls[i - 1], controls[i]);
    }
}

QLabel* NewLabel(const QString& name, const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* NewPicture(const QString& name, const QSize& size, const QString& hint, QWidget* parent) {
    QLabel* const picture = NewLabel(name, {}, parent);
    picture->setFixedSize(size);
    picture->setScaledContents(true);
    picture->setToolTip(hint);
    picture->setAccessibleName(hint.trimmed());
    return picture;
}

QLabel* NewHoverInfo(const QString& name, const QString& hint, QWidget* parent) {
    QLabel* const label = NewLabel(name, QStringLiteral("HoverInfo"), parent);
    label->setToolTip(hint);
    label->setAccessibleDescription(hint);
    label->setCursor(Qt::WhatsThisCursor);
    QFont font = label->font();
    font.setUnderline(true);
    label->setFont(font);
    return label;
}

QPushButton* NewButton(const QString& name, const QString& text, QWidget* parent) {
    auto* const button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(true);
    constexpr int kMargin = 7;
    constexpr int kHeight = 20;
    button->setFixedHeight(kHeight);
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(text) + 2 * kMargin);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return button;
}

QSlider* NewSlider(const QString& name, const QString& accessibleName, int max, QWidget* parent) {
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    slider->setObjectName(name);
    slider->setAccessibleName(accessibleName);
    slider->setRange(0, max);
    slider->setSingleStep(1);
    return slider;
}

}  // namespace tarvelin
