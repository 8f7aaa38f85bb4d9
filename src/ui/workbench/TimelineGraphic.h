// The picture of a run: lanes with orders and waits, sleep windows, curves of stocks and energy.
#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <QPixmap>
#include <array>
#include <optional>
#include <set>

#include "simulation/RunTrace.h"
#include "ui/workbench/TimelineColors.h"

namespace tarvelin {

/// Lies in a scene whose horizontal unit is the second since the plan's start. It is stretched in
/// that direction alone; words and pictures keep their form.
class Zeitbild : public QGraphicsItem {
  public:
    Zeitbild();

    /// Nothing for a plan that can't be run.
    void Setze(const std::optional<RunTrace>& ablauf);
    /// A run whose curves are drawn pale behind the others.
    void SetzeAnderen(const std::optional<RunTrace>& anderer);
    void SetzeBilder(const PerItem<QPixmap>& bilder);
    void SetzeAussehen(const Werkbankfarben& farben, const QFont& schrift);
    void SetzeHoehe(qreal hoehe);
    void SetzeAuswahl(std::set<std::size_t> zeilen);

    /// What it needs to be read.
    [[nodiscard]] qreal Mindesthoehe() const;
    [[nodiscard]] const std::optional<RunTrace>& Lauf() const { return m_ablauf; }
    [[nodiscard]] const Werkbankfarben& Farben() const { return m_farben; }
    /// From where to where it shows the run, in seconds.
    [[nodiscard]] qreal Ende() const;
    /// The row whose bar, wait or mark lies at a point, that far off at most in seconds.
    [[nodiscard]] std::optional<std::size_t> ZeileBei(const QPointF& ort, qreal daneben) const;
    /// Of a row's bar, in the scene; nothing for a row that never started.
    [[nodiscard]] std::optional<QRectF> BalkenVon(std::size_t zeile) const;

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    class Maler;
    struct Spur {
        Queue Queue;
        const char* Name;
    };
    static const std::array<Spur, 3> kSpuren;

    [[nodiscard]] qreal Zeile() const;
    [[nodiscard]] qreal Achse() const;
    [[nodiscard]] qreal Spurhoehe() const;
    [[nodiscard]] QRectF Spurflaeche(Queue queue) const;
    [[nodiscard]] QRectF Vorratsflaeche() const;
    [[nodiscard]] QRectF Energieflaeche() const;
    /// When the order of a start began to wait.
    [[nodiscard]] SimTime WartetAb(std::size_t nummer) const;

    std::optional<RunTrace> m_ablauf;
    std::optional<RunTrace> m_anderer;
    PerItem<QPixmap> m_bilder;
    Werkbankfarben m_farben{QPalette()};
    QFont m_schrift;
    qreal m_hoehe = 0;
    std::set<std::size_t> m_auswahl;
};

}  // namespace tarvelin
