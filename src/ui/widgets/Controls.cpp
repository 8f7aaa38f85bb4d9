// Groups, inputs and labels with the habits that all of ours share.
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

constexpr int kTitelhoehe = 14;
constexpr int kTitelrand = 3;

}  // namespace

QString AlsQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Pfadtext(const std::filesystem::path& pfad) {
    const std::u8string utf8 = pfad.u8string();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::filesystem::path AlsPfad(const QString& pfad) {
    const QByteArray utf8 = pfad.toUtf8();
    return std::u8string(utf8.begin(), utf8.end());
}

void SetzeHinweis(QWidget& widget, const QString& text) {
    if (widget.toolTip() == text) {
        return;
    }
    widget.setToolTip(text);
    if (QToolTip::isVisible() && widget.underMouse()) {
        QToolTip::showText(QCursor::pos(), text, &widget);
    }
}

Gruppe::Gruppe(const QString& name, const QString& titel, QWidget* parent)
    : QGroupBox(titel, parent) {
    setObjectName(name);
    setAccessibleName(titel);
}

void Gruppe::SetzeEcke(QLabel* label) {
    m_ecke = label;
}

// The style's own frame takes more room than the surface has.
QSize Gruppe::sizeHint() const {
    return QWidget::sizeHint();
}

QSize Gruppe::minimumSizeHint() const {
    return QWidget::minimumSizeHint();  // NOLINT(bugprone-parent-virtual-call): passed on purpose
}

void Gruppe::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    setContentsMargins(1, kTitelhoehe + 1, 1, 1);
    if (m_ecke != nullptr) {
        const int breite = m_ecke->sizeHint().width();
        m_ecke->setGeometry(width() - breite - kTitelrand, 0, breite, kTitelhoehe);
    }
}

void Gruppe::paintEvent(QPaintEvent* /*event*/) {
    constexpr qreal kRundung = 3;
    QPainter painter(this);
    painter.setPen(palette().windowText().color());
    painter.drawText(QRect(kTitelrand, 0, width(), kTitelhoehe),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), title());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().mid().color());
    constexpr qreal kHalb = 0.5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(kHalb, kTitelhoehe + kHalb, -kHalb, -kHalb),
                            kRundung, kRundung);
}

Eingabe::Eingabe(const QString& name, const QString& bedeutung, int grenze, QWidget* parent)
    : QLineEdit(parent), m_grenze(grenze) {
    setObjectName(name);
    setAccessibleName(bedeutung);
    setAlignment(Qt::AlignCenter);
    constexpr int kHoehe = 18;
    setFixedHeight(kHoehe);
    setMaxLength(grenze);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& neu) { BegrenzeAuf(neu.size()); });
}

bool Eingabe::Setze(const std::string& neu) {
    const QString text = AlsQString(neu);
    if (text == this->text()) {
        return false;
    }
    const QSignalBlocker still(this);
    BegrenzeAuf(text.size());
    setText(text);
    return true;
}

// A new limit sends the cursor to the end, so it is set only when it differs.
void Eingabe::BegrenzeAuf(qsizetype stehend) {
    const int grenze = std::max(m_grenze, static_cast<int>(stehend));
    if (grenze != maxLength()) {
        const int stelle = cursorPosition();
        setMaxLength(grenze);
        setCursorPosition(stelle);
    }
}

Zahlenlabel::Zahlenlabel(const QString& name, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    // However long a figure, what it stands in keeps its form.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void Zahlenlabel::Setze(const QString& zahl) {
    setText(zahl);
    FrischeHinweisAuf();
}

QString Zahlenlabel::Gekuerzt() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void Zahlenlabel::FrischeHinweisAuf() {
    SetzeHinweis(*this, Gekuerzt() == text() ? QString() : text());
}

void Zahlenlabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QString gekuerzt = Gekuerzt();
    const Qt::Alignment ort = gekuerzt == text() ? alignment() : Qt::AlignLeft | Qt::AlignVCenter;
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(ort), palette(), isEnabled(),
                          gekuerzt, foregroundRole());
}

void Zahlenlabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    FrischeHinweisAuf();
}

void ReiheAuf(const std::vector<QWidget*>& steuerelemente) {
    for (std::size_t i = 1; i < steuerelemente.size(); ++i) {
        QWidget::setTabOrder(steuerelemente[i - 1], steuerelemente[i]);
    }
}

QLabel* NeuesLabel(const QString& name, const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* NeuesBild(const QString& name, const QSize& groesse, const QString& hinweis,
                  QWidget* parent) {
    QLabel* const bild = NeuesLabel(name, {}, parent);
    bild->setFixedSize(groesse);
    bild->setScaledContents(true);
    bild->setToolTip(hinweis);
    bild->setAccessibleName(hinweis.trimmed());
    return bild;
}

QLabel* NeueHoverInfo(const QString& name, const QString& hinweis, QWidget* parent) {
    QLabel* const label = NeuesLabel(name, QStringLiteral("HoverInfo"), parent);
    label->setToolTip(hinweis);
    label->setAccessibleDescription(hinweis);
    label->setCursor(Qt::WhatsThisCursor);
    QFont schrift = label->font();
    schrift.setUnderline(true);
    label->setFont(schrift);
    return label;
}

QPushButton* NeuerKnopf(const QString& name, const QString& text, QWidget* parent) {
    auto* const knopf = new QPushButton(text, parent);
    knopf->setObjectName(name);
    knopf->setAutoDefault(true);
    constexpr int kRand = 7;
    constexpr int kHoehe = 20;
    knopf->setFixedHeight(kHoehe);
    knopf->setMinimumWidth(knopf->fontMetrics().horizontalAdvance(text) + 2 * kRand);
    knopf->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return knopf;
}

QSlider* NeuerRegler(const QString& name, const QString& bedeutung, int hoechstens,
                     QWidget* parent) {
    auto* const regler = new QSlider(Qt::Horizontal, parent);
    regler->setObjectName(name);
    regler->setAccessibleName(bedeutung);
    regler->setRange(0, hoechstens);
    regler->setSingleStep(1);
    return regler;
}

}  // namespace tarvelin
