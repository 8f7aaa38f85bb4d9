// Painting of a run.
#include "ui/workbench/TimelineGraphic.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>
#include <utility>

#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/TimeAxis.h"

namespace tarvelin {

namespace {

/// How much of a lane its bars take; the waits lie below them.
constexpr qreal kBalkenanteil = 0.7;
constexpr qreal kRand = 3;

/// What a curve is drawn through: its value at each point, and where it goes until the next.
template <class Wert>
void JedesStueck(const RunTrace& ablauf, Wert wert) {
    for (std::size_t i = 0; i < ablauf.curve.size(); ++i) {
        const HistoryPoint& punkt = ablauf.curve[i];
        const SimTime bis =
            i + 1 < ablauf.curve.size() ? ablauf.curve[i + 1].time : ablauf.Duration();
        wert(punkt, std::max(bis, punkt.time));
    }
}

qreal Vorratszahl(const HistoryPoint& punkt, SimTime um, Resource r) {
    return StockAfter(punkt, um - punkt.time)[r].ToDouble();
}

qreal Bilanz(const HistoryPoint& punkt) {
    return static_cast<qreal>(punkt.EnergieProduktion) - static_cast<qreal>(punkt.EnergieVerbrauch);
}

struct Bereich {
    qreal Von = 0;
    qreal Bis = 0;

    void Nimm(qreal wert) {
        Von = std::min(Von, wert);
        Bis = std::max(Bis, wert);
    }
    /// The height of a value in a field.
    [[nodiscard]] qreal Y(qreal wert, const QRectF& feld) const {
        return feld.bottom() - (wert - Von) / std::max(1.0, Bis - Von) * feld.height();
    }
};

}  // namespace

const std::array<Zeitbild::Spur, 3> Zeitbild::kSpuren{{
    {Queue::Building, "Gebäude"},
    {Queue::Research, "Forschung"},
    {Queue::Shipyard, "Werft"},
}};

/// Paints in pixels, whatever the stretch of the scene.
class Zeitbild::Maler {
  public:
    Maler(const Zeitbild& bild, QPainter& painter, const QRectF& sicht)
        : m_bild(bild), m_ablauf(*bild.m_ablauf), m_painter(painter) {
        const QTransform vorher = painter.worldTransform();
        m_jeSekunde = vorher.m11() / vorher.m22();
        m_links = X(sicht.left());
        m_rechts = X(sicht.right());
        painter.setWorldTransform(
            QTransform(vorher.m22(), 0, 0, vorher.m22(), vorher.dx(), vorher.dy()));
        painter.setFont(bild.m_schrift);
    }

    void Male() {
        MaleSpuren();
        MaleAchse();
        MaleSchlaf();
        for (std::size_t i = 0; i < m_ablauf.starts.size(); ++i) {
            MaleWarten(i);
        }
        for (const StartEvent& start : m_ablauf.starts) {
            if (start.order.kind == Order::Kind::Item) {
                MaleBalken(start);
            }
        }
        MaleProduktionen();
        MaleVorraete();
        MaleEnergie();
        MaleNamen();
    }

  private:
    [[nodiscard]] qreal X(qreal sekunde) const { return sekunde * m_jeSekunde; }
    [[nodiscard]] qreal X(SimTime moment) const { return X(static_cast<qreal>(moment.Seconds())); }
    [[nodiscard]] QRectF Breit(const QRectF& flaeche) const {
        return {m_links, flaeche.top(), m_rechts - m_links, flaeche.height()};
    }
    [[nodiscard]] bool InSicht(qreal von, qreal bis) const {
        return bis >= m_links && von <= m_rechts;
    }

    /// Words at the left of what is in sight, on a ground that keeps them apart from what lies
    /// below. Where they end.
    qreal MaleWort(qreal x, qreal oben, const QString& wort, const QColor& farbe) {
        const QFontMetricsF mass(m_bild.m_schrift);
        const QRectF platz(x, oben, mass.horizontalAdvance(wort), mass.height());
        QColor grund = m_bild.m_farben.Grund;
        constexpr int kDeckung = 190;
        grund.setAlpha(kDeckung);
        m_painter.fillRect(platz, grund);
        m_painter.setPen(farbe);
        m_painter.drawText(QPointF(x, oben + mass.ascent()), wort);
        return platz.right();
    }

    void MaleSpuren() {
        for (const Spur& spur : kSpuren) {
            m_painter.fillRect(Breit(m_bild.Spurflaeche(spur.Queue)), m_bild.m_farben.Spur);
        }
    }

    void MaleAchse() {
        const QFontMetricsF mass(m_bild.m_schrift);
        const Zeitachse achse(m_jeSekunde,
                              mass.horizontalAdvance(QStringLiteral(" Mo 20.11. 00:00:00 ")));
        const QRectF unten = m_bild.Energieflaeche();
        QColor blass = m_bild.m_farben.Linie;
        constexpr int kBlass = 70;
        blass.setAlpha(kBlass);
        const DateTime beginn = m_ablauf.conditions.StartDate;
        achse.JederStrich(
            beginn, m_links / m_jeSekunde, m_rechts / m_jeSekunde,
            [&](std::int64_t sekunde, const std::string& text) {
                const qreal x = X(static_cast<qreal>(sekunde));
                m_painter.setPen(blass);
                m_painter.drawLine(QPointF(x, m_bild.Achse()), QPointF(x, unten.bottom()));
                m_painter.setPen(m_bild.m_farben.Text);
                m_painter.drawText(QPointF(x + kRand, mass.ascent() + kRand), ToQString(text));
            });
    }

    void MaleSchlaf() {
        for (const cSchlafzeit& fenster : m_ablauf.conditions.Schlafzeiten) {
            const DateTime beginn = m_ablauf.conditions.StartDate;
            const qreal von = X(static_cast<qreal>(fenster.Startzeit() - beginn));
            const qreal bis = X(static_cast<qreal>(fenster.Endzeit() - beginn));
            if (InSicht(von, bis)) {
                const QRectF unten = m_bild.Spurflaeche(kSpuren.back().Queue);
                m_painter.fillRect(QRectF(std::max(von, m_links), m_bild.Achse(),
                                          std::min(bis, m_rechts) - std::max(von, m_links),
                                          unten.bottom() - m_bild.Achse()),
                                   m_bild.m_farben.Schlaf);
            }
        }
    }

    void MaleWarten(std::size_t nummer) {
        const StartEvent& start = m_ablauf.starts[nummer];
        const qreal von = X(m_bild.WartetAb(nummer));
        const qreal bis = X(start.start);
        if (start.delay.cause == DelayCause::None || !InSicht(von, bis) || bis <= von) {
            return;
        }
        const QRectF spur = m_bild.Spurflaeche(start.order.queue);
        QColor farbe = m_bild.m_farben.Warten(start.delay);
        constexpr int kBlass = 130;
        farbe.setAlpha(kBlass);
        m_painter.fillRect(QRectF(von, spur.top() + kBalkenanteil * spur.height() + 1, bis - von,
                                  (1 - kBalkenanteil) * spur.height() - kRand),
                           farbe);
    }

    void MaleBalken(const StartEvent& start) {
        const QRectF szene = *m_bild.BalkenVon(start.row);
        const QRectF balken(X(szene.left()), szene.top(), std::max(1.0, X(szene.width())),
                            szene.height());
        if (!InSicht(balken.left(), balken.right())) {
            return;
        }
        const Werkbankfarben& farben = m_bild.m_farben;
        const bool gewaehlt = m_bild.m_auswahl.contains(start.row);
        m_painter.fillRect(balken, farben.Balken[start.order.queue]);
        m_painter.setPen(QPen(gewaehlt ? farben.Auswahl : farben.Linie, gewaehlt ? 2 : 1));
        constexpr qreal kSchmal = 3;
        if (gewaehlt || balken.width() > kSchmal) {
            m_painter.drawRect(balken);
        }
        // What is cut off at the left begins where the sight begins.
        MaleInhalt(start,
                   balken.intersected(QRectF(m_links, 0, m_rechts - m_links, balken.bottom()))
                       .adjusted(kRand, 0, -kRand, 0));
    }

    void MaleInhalt(const StartEvent& start, QRectF platz) {
        const QPixmap& bild = m_bild.m_bilder[start.order.item];
        const qreal seite = platz.height() - 2;
        if (!bild.isNull() && platz.width() >= seite) {
            m_painter.drawPixmap(QRectF(platz.left(), platz.top() + 1, seite, seite), bild,
                                 QRectF(bild.rect()));
            platz.setLeft(platz.left() + seite + kRand);
        }
        const QFontMetricsF mass(m_bild.m_schrift);
        if (platz.width() < mass.horizontalAdvance(QStringLiteral("Met..."))) {
            return;
        }
        m_painter.setPen(m_bild.m_farben.Text);
        m_painter.drawText(
            platz, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
            mass.elidedText(ToQString(OrderText(start)), Qt::ElideRight, platz.width()));
    }

    void MaleProduktionen() {
        for (const StartEvent& start : m_ablauf.starts) {
            const qreal x = X(start.start);
            if (start.order.kind != Order::Kind::Production || !InSicht(x - kRand, x + kRand)) {
                continue;
            }
            const bool gewaehlt = m_bild.m_auswahl.contains(start.row);
            const QRectF spur = m_bild.Spurflaeche(Queue::Building);
            m_painter.setPen(QPen(gewaehlt ? m_bild.m_farben.Auswahl : m_bild.m_farben.Produktion,
                                  2, Qt::DashLine));
            m_painter.drawLine(QPointF(x, spur.top()),
                               QPointF(x, m_bild.Energieflaeche().bottom()));
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(m_bild.m_farben.Produktion);
            const qreal seite = 2 * kRand;
            m_painter.drawPolygon(
                QPolygonF({QPointF(x - seite, spur.top()), QPointF(x + seite, spur.top()),
                           QPointF(x, spur.top() + seite)}));
            m_painter.setBrush(Qt::NoBrush);
        }
    }

    /// A line through the values of all pieces in sight.
    template <class Wert>
    void MaleKurve(const RunTrace& ablauf, const QRectF& feld, const Bereich& bereich,
                   const QColor& farbe, Wert wert) {
        QPolygonF linie;
        JedesStueck(ablauf, [&](const HistoryPoint& punkt, SimTime bis) {
            if (InSicht(X(punkt.time), X(bis))) {
                linie << QPointF(X(punkt.time), bereich.Y(wert(punkt, punkt.time), feld))
                      << QPointF(X(bis), bereich.Y(wert(punkt, bis), feld));
            }
        });
        constexpr qreal kStrich = 1.5;
        m_painter.setPen(QPen(farbe, kStrich));
        m_painter.drawPolyline(linie);
    }

    /// The line of nothing, and the words of a field; where they end.
    qreal MaleFeld(const QRectF& feld, const Bereich& bereich, const QString& name) {
        m_painter.setPen(m_bild.m_farben.Linie);
        const qreal null = bereich.Y(0, feld);
        m_painter.drawLine(QPointF(m_links, null), QPointF(m_rechts, null));
        const QString ab = bereich.Von < 0
                               ? QStringLiteral(" von %1").arg(std::ceil(bereich.Von), 0, 'f', 0)
                               : QString();
        const QString wort =
            name + ab + QStringLiteral(" bis %1 ").arg(std::floor(bereich.Bis), 0, 'f', 0);
        return MaleWort(m_links + kRand, feld.top(), wort, m_bild.m_farben.Text);
    }

    void MaleVorraete() {
        const QRectF feld = m_bild.Vorratsflaeche();
        Bereich bereich;
        const auto nimm = [&](const RunTrace& ablauf) {
            JedesStueck(ablauf, [&](const HistoryPoint& punkt, SimTime bis) {
                for (const Resource r : kResources) {
                    bereich.Nimm(Vorratszahl(punkt, punkt.time, r));
                    bereich.Nimm(Vorratszahl(punkt, bis, r));
                }
            });
        };
        nimm(m_ablauf);
        if (m_bild.m_anderer) {
            nimm(*m_bild.m_anderer);
        }
        m_painter.setRenderHint(QPainter::Antialiasing);
        for (const Resource r : kResources) {
            const auto vorrat = [r](const HistoryPoint& p, SimTime um) {
                return Vorratszahl(p, um, r);
            };
            const QColor& farbe = m_bild.m_farben.Vorrat[r];
            if (m_bild.m_anderer) {
                QColor blass = farbe;
                constexpr int kBlass = 90;
                blass.setAlpha(kBlass);
                MaleKurve(*m_bild.m_anderer, feld, bereich, blass, vorrat);
            }
            MaleKurve(m_ablauf, feld, bereich, farbe, vorrat);
        }
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        qreal x = MaleFeld(feld, bereich, QStringLiteral("Vorräte"));
        for (const auto& [r, name] :
             {std::pair(Resource::Metall, "  Metall"), std::pair(Resource::Kristall, "  Kristall"),
              std::pair(Resource::Deuterium, "  Deuterium ")}) {
            x = MaleWort(x, feld.top(), QString::fromLatin1(name), m_bild.m_farben.Vorrat[r]);
        }
    }

    void MaleEnergie() {
        const QRectF feld = m_bild.Energieflaeche();
        Bereich bereich;
        JedesStueck(m_ablauf,
                    [&](const HistoryPoint& punkt, SimTime) { bereich.Nimm(Bilanz(punkt)); });
        const qreal null = bereich.Y(0, feld);
        JedesStueck(m_ablauf, [&](const HistoryPoint& punkt, SimTime bis) {
            if (!InSicht(X(punkt.time), X(bis))) {
                return;
            }
            const qreal bilanz = Bilanz(punkt);
            const qreal y = bereich.Y(bilanz, feld);
            m_painter.fillRect(
                QRectF(X(punkt.time), std::min(y, null), X(bis) - X(punkt.time),
                       std::abs(null - y)),
                bilanz < 0 ? m_bild.m_farben.Energiemangel : m_bild.m_farben.Energie);
        });
        MaleFeld(feld, bereich, QStringLiteral("Energie"));
    }

    void MaleNamen() {
        const qreal hoehe = QFontMetricsF(m_bild.m_schrift).height();
        for (const Spur& spur : kSpuren) {
            const qreal unten = m_bild.Spurflaeche(spur.Queue).bottom();
            MaleWort(m_links + kRand, unten - hoehe, QString::fromUtf8(spur.Name),
                     m_bild.m_farben.Linie);
        }
    }

    const Zeitbild& m_bild;
    const RunTrace& m_ablauf;
    QPainter& m_painter;
    qreal m_jeSekunde = 1;
    /// What is in sight, in pixels.
    qreal m_links = 0;
    qreal m_rechts = 0;
};

Zeitbild::Zeitbild() {
    // What is in sight is told to `paint`.
    setFlag(ItemUsesExtendedStyleOption);
}

void Zeitbild::Setze(const std::optional<RunTrace>& ablauf) {
    prepareGeometryChange();
    m_ablauf = ablauf;
}

void Zeitbild::SetzeAnderen(const std::optional<RunTrace>& anderer) {
    prepareGeometryChange();
    m_anderer = anderer;
}

void Zeitbild::SetzeBilder(const PerItem<QPixmap>& bilder) {
    m_bilder = bilder;
    update();
}

void Zeitbild::SetzeAussehen(const Werkbankfarben& farben, const QFont& schrift) {
    prepareGeometryChange();
    m_farben = farben;
    m_schrift = schrift;
}

void Zeitbild::SetzeHoehe(qreal hoehe) {
    prepareGeometryChange();
    m_hoehe = std::max(hoehe, Mindesthoehe());
}

void Zeitbild::SetzeAuswahl(std::set<std::size_t> zeilen) {
    m_auswahl = std::move(zeilen);
    update();
}

qreal Zeitbild::Zeile() const {
    return QFontMetricsF(m_schrift).height();
}

qreal Zeitbild::Achse() const {
    return Zeile() + 2 * kRand;
}

qreal Zeitbild::Spurhoehe() const {
    constexpr qreal kZeilen = 2.5;
    return kZeilen * Zeile();
}

qreal Zeitbild::Mindesthoehe() const {
    constexpr qreal kKurven = 6;
    return Achse() + static_cast<qreal>(kSpuren.size()) * (Spurhoehe() + kRand) + kKurven * Zeile();
}

qreal Zeitbild::Ende() const {
    const auto bis = [](const std::optional<RunTrace>& ablauf) {
        return ablauf ? static_cast<qreal>(ablauf->Duration().Seconds()) : 0.0;
    };
    return std::max({1.0, bis(m_ablauf), bis(m_anderer)});
}

QRectF Zeitbild::Spurflaeche(Queue queue) const {
    const auto* const spur = std::ranges::find(kSpuren, queue, &Spur::Queue);
    const auto nummer = static_cast<qreal>(spur == kSpuren.end() ? 0 : spur - kSpuren.begin());
    return {0, Achse() + nummer * (Spurhoehe() + kRand), Ende(), Spurhoehe()};
}

QRectF Zeitbild::Vorratsflaeche() const {
    const qreal oben = Spurflaeche(kSpuren.back().Queue).bottom() + 2 * kRand;
    constexpr qreal kAnteil = 0.68;
    return {0, oben, Ende(), (m_hoehe - oben) * kAnteil - 2 * kRand};
}

QRectF Zeitbild::Energieflaeche() const {
    const qreal oben = Vorratsflaeche().bottom() + 2 * kRand;
    return {0, oben, Ende(), m_hoehe - oben - kRand};
}

SimTime Zeitbild::WartetAb(std::size_t nummer) const {
    return nummer == 0 ? SimTime() : m_ablauf->starts[nummer - 1].start;
}

std::optional<QRectF> Zeitbild::BalkenVon(std::size_t zeile) const {
    const StartEvent* const start = m_ablauf ? m_ablauf->StartOf(zeile) : nullptr;
    if (start == nullptr) {
        return std::nullopt;
    }
    const QRectF spur = Spurflaeche(start->order.queue);
    return QRectF(start->start.Seconds(), spur.top() + 1, start->finish - start->start,
                  kBalkenanteil * spur.height() - 1);
}

std::optional<std::size_t> Zeitbild::ZeileBei(const QPointF& ort, qreal daneben) const {
    if (!m_ablauf) {
        return std::nullopt;
    }
    std::optional<std::size_t> gefunden;
    for (std::size_t i = 0; i < m_ablauf->starts.size(); ++i) {
        const StartEvent& start = m_ablauf->starts[i];
        const QRectF balken = *BalkenVon(start.row);
        const QRectF spur = Spurflaeche(start.order.queue);
        const bool aufBalken = ort.y() <= balken.bottom();
        const qreal von = aufBalken ? balken.left() : static_cast<qreal>(WartetAb(i).Seconds());
        const qreal bis = aufBalken ? balken.right() : balken.left();
        if (ort.y() >= spur.top() && ort.y() <= spur.bottom() && ort.x() >= von - daneben &&
            ort.x() <= bis + daneben) {
            gefunden = start.row;
        }
    }
    return gefunden;
}

QRectF Zeitbild::boundingRect() const {
    return {0, 0, Ende(), m_hoehe};
}

void Zeitbild::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                     QWidget* /*widget*/) {
    if (!m_ablauf || m_ablauf->curve.empty()) {
        return;
    }
    painter->save();
    Maler(*this, *painter, option->exposedRect).Male();
    painter->restore();
}

}  // namespace tarvelin
