// Layout of the card, and how it shows that it is pointed at.
#include "ui/workbench/OpeningCard.h"

#include <QEvent>
#include <QGridLayout>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "simulation/Comparison.h"
#include "simulation/RunTexts.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"
#include "ui/workbench/RunMiniature.h"

namespace tarvelin {

namespace {

/// In pixels.
constexpr int kPicture = 32;
constexpr int kPictureGap = 6;
constexpr int kMargin = 12;
constexpr int kSpacing = 8;
constexpr int kButtonHeight = 28;
constexpr int kButtonWidth = 84;
constexpr qreal kRounding = 3;

}  // namespace

/// Three pictures with the levels or numbers that the plan reaches.
class OpeningCard::Highlights final : public QWidget {
  public:
    Highlights(const Opening& opening, const GameState& end, QWidget* parent) : QWidget(parent) {
        for (std::size_t i = 0; i < opening.highlights.size(); ++i) {
            const ItemId item = opening.highlights[i];
            m_items[i] = {item, {}, QString::number(end.GetStufe(item))};
        }
        const auto count = static_cast<int>(m_items.size());
        setFixedSize(count * kPicture + (count - 1) * kPictureGap + 2, kPicture + 2);
    }

    void SetPictures(const PerItem<QPixmap>& pictures) {
        for (Highlight& highlight : m_items) {
            highlight.picture = pictures[highlight.item];
        }
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const WorkbenchColors colors = ColorsFor(palette());
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setFont(TypeFont(font(), TypeSize::Caption, true));
        const QFontMetrics metrics = painter.fontMetrics();
        int x = 0;
        for (const Highlight& highlight : m_items) {
            painter.drawPixmap(QRect(x, 0, kPicture, kPicture), highlight.picture);
            const int width = metrics.horizontalAdvance(highlight.number) + kPictureGap;
            const QRect badge(x + kPicture + 2 - width, kPicture + 2 - metrics.height(), width,
                              metrics.height());
            painter.fillRect(badge, colors[Color::Badge]);
            painter.setPen(colors[Color::BadgeText]);
            painter.drawText(badge, Qt::AlignCenter, highlight.number);
            x += kPicture + kPictureGap;
        }
    }

  private:
    struct Highlight {
        ItemId item{};
        QPixmap picture;
        QString number;
    };

    std::array<Highlight, 3> m_items;
};

/// As the main button of a page while its card is marked. The style would mix the accent with
/// white, on which its text can't be read.
class OpeningCard::OpenButton final : public QPushButton {
  public:
    explicit OpenButton(QWidget* parent) : QPushButton(QStringLiteral("Öffnen"), parent) {}

    void SetMain(bool main) {
        m_main = main;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const WorkbenchColors colors = ColorsFor(palette());
        const bool main = m_main && !isDown();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(colors[m_main ? Color::Accent : Color::Edge]);
        painter.setBrush(colors[main ? Color::Accent : isDown() ? Color::Chosen : Color::Button]);
        PaintFrame(painter, kHalf);
        painter.setPen(colors[main ? Color::AccentText : Color::Text]);
        painter.drawText(rect(), Qt::AlignCenter, text());
        if (hasFocus()) {
            painter.setBrush(Qt::NoBrush);
            PaintFrame(painter, 2 + kHalf);
        }
    }

  private:
    static constexpr qreal kHalf = 0.5;

    void PaintFrame(QPainter& painter, qreal inset) const {
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kRounding,
                                kRounding);
    }

    bool m_main = false;
};

OpeningCard::OpeningCard(const Opening& opening, const RunTrace& trace, Long seconds,
                         QWidget* parent)
    : QWidget(parent),
      m_highlights(new Highlights(opening, trace.end, this)),
      m_button(new OpenButton(this)) {
    const QString title = ToQString(opening.title);
    setAccessibleName(title);
    m_button->setObjectName(ToQString(opening.file));
    m_button->setAccessibleName(title + QStringLiteral(" öffnen"));
    m_button->setAccessibleDescription(ToQString(opening.description));
    m_button->setAutoDefault(true);
    m_button->setFixedHeight(kButtonHeight);
    m_button->setMinimumWidth(kButtonWidth);
    m_button->installEventFilter(this);
    connect(m_button, &QPushButton::clicked, this, &OpeningCard::Chosen);
    Arrange(opening, trace, seconds);
}

void OpeningCard::Arrange(const Opening& opening, const RunTrace& trace, Long seconds) {
    const RunSummary summary = RunSummary::Of(trace);
    auto* const description =
        NewTypeLabel(ToQString(opening.description), TypeSize::Usual, false, this);
    description->setAlignment(Qt::AlignTop);
    auto* const duration =
        NewTypeLabel(ToQString(TimeSpanText(summary.duration)), TypeSize::Usual, true, this);
    duration->setWordWrap(false);
    auto* const counts = NewTypeLabel(
        QStringLiteral("%1 Zeilen   %2 Sitzungen").arg(trace.starts.size()).arg(summary.sittings),
        TypeSize::Usual, false, this);
    counts->setForegroundRole(QPalette::PlaceholderText);
    auto* const figures = new QHBoxLayout;
    figures->setSpacing(kMargin);
    figures->addWidget(duration);
    figures->addWidget(counts, 1);
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kSpacing);
    layout->setHorizontalSpacing(kMargin);
    layout->setVerticalSpacing(kSpacing);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(kSpacing / 2);
    texts->addWidget(NewTypeLabel(ToQString(opening.title), TypeSize::Usual, true, this));
    texts->addWidget(description, 1);
    layout->addLayout(texts, 0, 0);
    layout->addWidget(m_highlights, 0, 1, 1, 2, Qt::AlignRight | Qt::AlignTop);
    layout->addLayout(figures, 1, 0, 1, 3);
    layout->addWidget(new RunMiniature(trace, seconds, this), 2, 0, 1, 2);
    layout->addWidget(m_button, 2, 2);
    layout->setColumnStretch(0, 1);
    // Cards beside each other have their figures at one height.
    layout->setRowStretch(0, 1);
}

void OpeningCard::SetPictures(const PerItem<QPixmap>& pictures) {
    m_highlights->SetPictures(pictures);
}

void OpeningCard::ShowMark() {
    m_marked = underMouse() || m_button->hasFocus();
    m_button->SetMain(m_marked);
    update();
}

void OpeningCard::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    ShowMark();
}

void OpeningCard::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    ShowMark();
}

bool OpeningCard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        ShowMark();
    }
    return QWidget::eventFilter(watched, event);
}

void OpeningCard::paintEvent(QPaintEvent* /*event*/) {
    const WorkbenchColors colors = ColorsFor(palette());
    const qreal line = m_marked ? 2 : 1;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors[m_marked ? Color::Accent : Color::LineStrong], line));
    painter.setBrush(colors[m_marked ? Color::Hover : Color::Toolbar]);
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            kRounding, kRounding);
}

}  // namespace tarvelin
