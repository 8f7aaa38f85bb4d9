// Zoom, moves, cursor.
#include "ui/workbench/TimelineView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "ui/widgets/Controls.h"
#include "ui/workbench/StatusTexts.h"

namespace tarvelin {

namespace {

/// Pixels of a second at the strongest zoom, and how far a scroll bar can count.
constexpr qreal kGroesster = 20;
constexpr qreal kLaengste = 1e9;
constexpr qreal kStufe = 1.25;

}  // namespace

/// Changes what is shown. What is in sight stays, unless all was.
template <class Tat>
void Zeitleiste::Aendere(Tat tat) {
    const bool alles = ZeigtAlles();
    tat();
    m_szene.setSceneRect(m_bild->boundingRect());
    if (alles) {
        ZeigeAlles();
    } else {
        SetzeMassstab(JeSekunde());
    }
    viewport()->update();
}

Zeitleiste::Zeitleiste(QWidget* parent) : QGraphicsView(parent), m_bild(new Zeitbild) {
    setObjectName(QStringLiteral("Zeitleiste"));
    setAccessibleName(QStringLiteral("Zeitleiste"));
    m_szene.setItemIndexMethod(QGraphicsScene::NoIndex);
    m_szene.addItem(m_bild);
    setScene(&m_szene);
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(NoAnchor);
    // Names stand at the left of what is in sight.
    setViewportUpdateMode(FullViewportUpdate);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void Zeitleiste::Setze(const std::optional<RunTrace>& ablauf) {
    Aendere([&] { m_bild->Setze(ablauf); });
}

void Zeitleiste::SetzeAnderen(const std::optional<RunTrace>& anderer) {
    Aendere([&] { m_bild->SetzeAnderen(anderer); });
}

void Zeitleiste::SetzeAussehen(const QPalette& palette, const QFont& schrift) {
    const Werkbankfarben farben(palette);
    m_bild->SetzeAussehen(farben, schrift);
    setBackgroundBrush(farben.Grund);
    setMinimumHeight(static_cast<int>(std::ceil(m_bild->Mindesthoehe())) +
                     horizontalScrollBar()->sizeHint().height());
    PasseHoeheAn();
}

void Zeitleiste::Zeige(std::size_t zeile) {
    const auto balken = m_bild->BalkenVon(zeile);
    if (!balken) {
        return;
    }
    const int links = mapFromScene(balken->topLeft()).x();
    const int rechts = mapFromScene(balken->topRight()).x();
    const int breite = viewport()->width();
    if (links < 0 || links >= breite || (rechts >= breite && rechts - links < breite)) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + links - breite / 3);
    }
}

void Zeitleiste::SetzeJetzt(DateTime jetzt) {
    m_jetzt = jetzt;
    viewport()->update();
}

int Zeitleiste::SpalteVon(SimTime moment) const {
    return mapFromScene(QPointF(moment.Seconds(), 0)).x();
}

qreal Zeitleiste::KleinsterMassstab() const {
    constexpr int kRand = 4;
    return std::max(1, viewport()->width() - kRand) / m_bild->Ende();
}

bool Zeitleiste::ZeigtAlles() const {
    constexpr qreal kUngefaehr = 1.0001;
    return JeSekunde() <= KleinsterMassstab() * kUngefaehr || !m_bild->Lauf();
}

void Zeitleiste::ZeigeAlles() {
    SetzeMassstab(KleinsterMassstab());
}

void Zeitleiste::SetzeMassstab(qreal jeSekunde) {
    const qreal groesster =
        std::max(KleinsterMassstab(), std::min(kGroesster, kLaengste / m_bild->Ende()));
    setTransform(QTransform::fromScale(std::clamp(jeSekunde, KleinsterMassstab(), groesster), 1));
}

void Zeitleiste::Zoome(qreal faktor, int spalte) {
    const qreal sekunde = mapToScene(spalte, 0).x();
    SetzeMassstab(JeSekunde() * faktor);
    const int verschoben = mapFromScene(QPointF(sekunde, 0)).x() - spalte;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + verschoben);
}

void Zeitleiste::wheelEvent(QWheelEvent* event) {
    constexpr qreal kRaste = 120;
    const QPoint weite = event->angleDelta();
    if (weite.y() == 0) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    Zoome(std::pow(kStufe, weite.y() / kRaste), event->position().toPoint().x());
    event->accept();
}

void Zeitleiste::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_gedrueckt = event->pos();
        m_zuletzt = event->pos();
        m_zieht = false;
    }
}

void Zeitleiste::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        m_zieht = m_zieht || (event->pos() - m_gedrueckt).manhattanLength() >=
                                 QApplication::startDragDistance();
        if (m_zieht) {
            horizontalScrollBar()->setValue(horizontalScrollBar()->value() -
                                            (event->pos() - m_zuletzt).x());
            m_zuletzt = event->pos();
        }
    }
    SetzeZeiger(mapToScene(event->pos()).x());
}

void Zeitleiste::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_zieht) {
        Waehle(event->pos());
    }
    m_zieht = false;
}

void Zeitleiste::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
    ZeigeAlles();
    // The release behind it chooses nothing.
    m_zieht = true;
}

void Zeitleiste::Waehle(const QPoint& ort) {
    constexpr qreal kDaneben = 3;
    if (const auto zeile = m_bild->ZeileBei(mapToScene(ort), kDaneben / JeSekunde())) {
        emit Gewaehlt(*zeile);
    }
}

void Zeitleiste::keyPressEvent(QKeyEvent* event) {
    const qreal zeiger = m_zeiger.value_or(mapToScene(0, 0).x());
    const int spalte = mapFromScene(QPointF(zeiger, 0)).x();
    constexpr qreal kSchritt = 10;
    const bool vor = event->key() == Qt::Key_Right;
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
            if ((event->modifiers() & Qt::ControlModifier) != 0) {
                GeheZuStart(vor);
            } else {
                SetzeZeiger(zeiger + (vor ? kSchritt : -kSchritt) / JeSekunde());
            }
            ensureVisible(QRectF(m_zeiger.value_or(0), 0, 0, 1), static_cast<int>(kSchritt), 0);
            break;
        case Qt::Key_Plus:
            Zoome(kStufe, spalte);
            break;
        case Qt::Key_Minus:
            Zoome(1 / kStufe, spalte);
            break;
        case Qt::Key_Home:
            ZeigeAlles();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (m_bild->Lauf() && m_zeiger) {
                const auto& starts = m_bild->Lauf()->starts;
                const auto naechster = std::ranges::find_if(starts, [&](const StartEvent& s) {
                    return s.start.Seconds() >= std::floor(*m_zeiger);
                });
                if (naechster != starts.end()) {
                    emit Gewaehlt(naechster->row);
                }
            }
            break;
        default:
            QGraphicsView::keyPressEvent(event);
    }
}

void Zeitleiste::GeheZuStart(bool vor) {
    if (!m_bild->Lauf()) {
        return;
    }
    const qreal hier = m_zeiger.value_or(-1);
    std::optional<qreal> ziel;
    for (const StartEvent& start : m_bild->Lauf()->starts) {
        const auto dort = static_cast<qreal>(start.start.Seconds());
        if (vor ? dort > hier && !ziel : dort < hier) {
            ziel = dort;
        }
    }
    if (ziel) {
        SetzeZeiger(ziel);
    }
}

void Zeitleiste::SetzeZeiger(std::optional<qreal> sekunde) {
    if (sekunde) {
        sekunde = std::clamp(*sekunde, 0.0, m_bild->Ende());
    }
    m_zeiger = sekunde;
    viewport()->update();
    emit Zeiger(m_bild->Lauf() && sekunde
                    ? std::optional(SimTime(static_cast<Long>(std::floor(*sekunde))))
                    : std::nullopt);
}

bool Zeitleiste::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        SetzeZeiger(std::nullopt);
    }
    return QGraphicsView::viewportEvent(event);
}

void Zeitleiste::PasseHoeheAn() {
    m_bild->SetzeHoehe(viewport()->height());
    m_szene.setSceneRect(m_bild->boundingRect());
}

void Zeitleiste::resizeEvent(QResizeEvent* event) {
    // As it was before the change.
    const bool alles = event->oldSize().width() <= 0 ||
                       JeSekunde() * m_bild->Ende() <= static_cast<qreal>(event->oldSize().width());
    QGraphicsView::resizeEvent(event);
    PasseHoeheAn();
    if (alles) {
        ZeigeAlles();
    } else {
        SetzeMassstab(JeSekunde());
    }
}

void Zeitleiste::drawForeground(QPainter* painter, const QRectF& rect) {
    if (!m_bild->Lauf()) {
        return;
    }
    const auto linie = [&](qreal sekunde, const QColor& farbe) {
        painter->setPen(QPen(farbe, 0));
        painter->drawLine(QPointF(sekunde, rect.top()), QPointF(sekunde, rect.bottom()));
    };
    const RunTrace& ablauf = *m_bild->Lauf();
    const auto naechster = m_jetzt ? NaechsterAuftrag(ablauf, *m_jetzt) : std::nullopt;
    if (naechster) {
        const auto jetzt = static_cast<qreal>(*m_jetzt - ablauf.conditions.StartDate);
        linie(jetzt, m_bild->Farben().Jetzt);
        const QPoint ort = mapFromScene(QPointF(jetzt, 0));
        const QString text = QStringLiteral("jetzt: ") + ToQString(*naechster);
        const QFontMetrics mass(font());
        const bool links = ort.x() + mass.horizontalAdvance(text) > viewport()->width();
        painter->save();
        painter->resetTransform();
        painter->setFont(font());
        painter->setPen(m_bild->Farben().Jetzt);
        painter->drawText(QPoint(links ? ort.x() - mass.horizontalAdvance(text) - 4 : ort.x() + 4,
                                 viewport()->height() - mass.descent() - 2),
                          text);
        painter->restore();
    }
    if (m_zeiger) {
        linie(*m_zeiger, m_bild->Farben().Text);
    }
}

void Zeitleiste::Male(QPainter& painter, const QRectF& feld) {
    painter.fillRect(feld, m_bild->Farben().Grund);
    m_szene.render(&painter, feld, mapToScene(viewport()->rect()).boundingRect(),
                   Qt::IgnoreAspectRatio);
}

}  // namespace tarvelin
