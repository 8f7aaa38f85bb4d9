// The timeline: the picture of a run that can be zoomed, moved and asked.
#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>
#include <optional>

#include "ui/workbench/TimelineGraphic.h"

namespace tarvelin {

/// The wheel zooms at the pointer, a drag moves, a double click shows all, a click tells the row
/// below it. By keys: the arrows move the cursor, with Ctrl from start to start; plus and minus
/// zoom at it, Pos1 shows all, Enter tells its row.
class Zeitleiste : public QGraphicsView {
    Q_OBJECT

  public:
    explicit Zeitleiste(QWidget* parent);

    /// Shows a run, or none. What is in sight stays, unless all was.
    void Setze(const std::optional<RunTrace>& ablauf);
    /// Another run, whose curves stand pale behind those of the first; or none.
    void SetzeAnderen(const std::optional<RunTrace>& anderer);
    void SetzeBilder(const PerItem<QPixmap>& bilder) { m_bild->SetzeBilder(bilder); }
    void SetzeAussehen(const QPalette& palette, const QFont& schrift);
    void SetzeAuswahl(const std::set<std::size_t>& zeilen) { m_bild->SetzeAuswahl(zeilen); }
    /// Brings a row's bar to sight.
    void Zeige(std::size_t zeile);
    /// The wall clock.
    void SetzeJetzt(DateTime jetzt);

    /// Shows the whole plan.
    void ZeigeAlles();
    /// What is in sight, as it is seen, on any painter's field.
    void Male(QPainter& painter, const QRectF& feld);
    /// What a lack is written in.
    [[nodiscard]] const QColor& Mangelfarbe() const { return m_bild->Farben().Energiemangel; }
    /// The pixel column of a moment, in the viewport.
    [[nodiscard]] int SpalteVon(SimTime moment) const;

  signals:
    /// The moment below the cursor; none when the pointer has left.
    void Zeiger(std::optional<SimTime> moment);
    void Gewaehlt(std::size_t zeile);

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

  private:
    template <class Tat>
    void Aendere(Tat tat);
    [[nodiscard]] qreal JeSekunde() const { return transform().m11(); }
    [[nodiscard]] qreal KleinsterMassstab() const;
    [[nodiscard]] bool ZeigtAlles() const;
    void Zoome(qreal faktor, int spalte);
    void SetzeMassstab(qreal jeSekunde);
    void SetzeZeiger(std::optional<qreal> sekunde);
    void GeheZuStart(bool vor);
    void Waehle(const QPoint& ort);
    void PasseHoeheAn();

    QGraphicsScene m_szene;
    /// The scene owns it.
    Zeitbild* m_bild;
    std::optional<qreal> m_zeiger;
    std::optional<DateTime> m_jetzt;
    QPoint m_gedrueckt;
    QPoint m_zuletzt;
    bool m_zieht = false;
};

}  // namespace tarvelin
