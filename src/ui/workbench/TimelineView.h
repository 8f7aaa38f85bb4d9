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
class TimelineView : public QGraphicsView {
    Q_OBJECT

  public:
    explicit TimelineView(QWidget* parent);

    /// Shows a run, or none. What is in sight stays, unless all was.
    void SetRun(const std::optional<RunTrace>& trace);
    /// Another run, whose curves stand pale behind those of the first; or none.
    void SetOtherRun(const std::optional<RunTrace>& other);
    void SetPictures(const PerItem<QPixmap>& pictures) { m_graphic->SetPictures(pictures); }
    void SetAppearance(const QPalette& palette, const QFont& font);
    void SetChosenRows(const std::set<std::size_t>& rows) { m_graphic->SetChosenRows(rows); }
    /// Brings a row's bar to sight.
    void BringIntoView(std::size_t row);
    /// The wall clock.
    void SetNow(DateTime now);

    /// Shows the whole plan.
    void ShowAll();
    /// What is in sight, as it is seen, on any painter's field.
    void PaintOn(QPainter& painter, const QRectF& rect);
    /// What a lack is written in.
    [[nodiscard]] const QColor& DeficitColor() const { return m_graphic->Colors().energyDeficit; }

  signals:
    /// The moment below the cursor; none when the pointer has left.
    void CursorMoved(std::optional<SimTime> moment);
    void RowChosen(std::size_t row);

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
    template <class Action>
    void ChangeKeepingView(Action action);
    [[nodiscard]] qreal PixelsPerSecond() const { return transform().m11(); }
    [[nodiscard]] qreal MinScale() const;
    [[nodiscard]] bool ShowsAll() const;
    void Zoom(qreal factor, int column);
    void SetPixelsPerSecond(qreal perSecond);
    void MoveCursor(std::optional<qreal> second);
    void GoToStart(bool forward);
    void ChooseAt(const QPoint& position);
    void FitHeight();

    QGraphicsScene m_scene;
    /// The scene owns it.
    TimelineGraphic* m_graphic;
    std::optional<qreal> m_cursor;
    std::optional<DateTime> m_now;
    QPoint m_pressed;
    QPoint m_lastPosition;
    bool m_dragging = false;
};

}  // namespace tarvelin
