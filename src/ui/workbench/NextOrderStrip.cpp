// Layout of the strip, and its texts.
#include "ui/workbench/NextOrderStrip.h"

#include <QGridLayout>

#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/look/TypeSizes.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

constexpr int kPicture = 32;

}  // namespace

NextOrderStrip::NextOrderStrip(QWidget* parent)
    : QWidget(parent),
      m_picture(new QLabel(this)),
      m_caption(new QLabel(QStringLiteral("Als Nächstes"), this)),
      m_name(NewLabel(QStringLiteral("LBL_Naechster"), {}, this)),
      m_remaining(NewLabel(QStringLiteral("LBL_Restzeit"), {}, this)),
      m_moment(NewLabel(QStringLiteral("LBL_Naechstzeit"), {}, this)) {
    setObjectName(QStringLiteral("NaechsterAuftrag"));
    setAutoFillBackground(true);
    m_picture->setScaledContents(true);
    m_picture->setFixedSize(kPicture, kPicture);
    m_name->setAccessibleDescription(QStringLiteral("Nächster Auftrag"));
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(12, 4, 12, 4);
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(0);
    layout->addWidget(m_picture, 0, 0, 2, 1);
    layout->addWidget(m_caption, 0, 1);
    layout->addWidget(m_name, 1, 1);
    layout->addWidget(m_remaining, 0, 2);
    layout->addWidget(m_moment, 1, 2);
    layout->setColumnStretch(3, 1);
    FollowAppearance();
}

void NextOrderStrip::FollowAppearance() {
    QPalette ground = palette();
    ground.setColor(QPalette::Window, ColorsFor(window()->palette())[Color::Toolbar]);
    setPalette(ground);
    m_caption->setFont(TypeFont(font(), TypeSize::Caption));
    m_moment->setFont(m_caption->font());
    m_name->setFont(TypeFont(font(), TypeSize::Usual, true));
    m_remaining->setFont(TypeFont(font(), TypeSize::Figure, true));
    m_caption->setForegroundRole(QPalette::PlaceholderText);
    m_moment->setForegroundRole(QPalette::PlaceholderText);
    const auto reserve = [](QLabel& label, const char* longest) {
        label.setMinimumWidth(label.fontMetrics().horizontalAdvance(QString::fromUtf8(longest)));
    };
    reserve(*m_name, "Verbrennungstriebwerk 10");
    reserve(*m_remaining, "in 2 Tage 00:00:00");
    constexpr int kFrame = 4;
    setFixedHeight(2 * kFrame + std::max(kPicture, m_remaining->fontMetrics().height() +
                                                       m_name->fontMetrics().height()));
}

void NextOrderStrip::ShowNext(const std::optional<RunTrace>& trace, DateTime now) {
    const StartEvent* const next = trace ? NextStart(*trace, now) : nullptr;
    const bool isItem = next != nullptr && next->order.kind == Order::Kind::Item;
    m_picture->setPixmap(isItem ? m_pictures[next->order.item] : QPixmap());
    if (next == nullptr) {
        const bool given = trace && !trace->starts.empty();
        m_name->setText(given ? QStringLiteral("alle Aufträge sind gegeben")
                              : QStringLiteral("noch kein Auftrag"));
        m_remaining->clear();
        m_moment->clear();
        return;
    }
    const DateTime at = trace->conditions.WallClock(next->start);
    m_name->setText(ToQString(OrderText(*next)));
    m_remaining->setText(ToQString("in " + TimeSpanText(at - now)));
    m_moment->setText(ToQString(ShortDateTimeText(at)));
}

}  // namespace tarvelin
