// The timeline: zooms and scrolls the picture of a run and moves a cursor over it.
#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>
#include <optional>

#include "ui/workbench/TimelineGraphic.h"

namespace tarvelin {

/// The wheel zooms at the pointer, dragging scrolls, a double click shows all, a click chooses the
/// row below it. By keys: the arrows move the cursor, with Ctrl from start to start; plus and minus
/// zoom at the cursor, Home shows all, Enter chooses the row that starts at the cursor or next.
class TimelineView : public QGraphicsView {
    Q_OBJECT

  public:
    explicit TimelineView(QWidget* parent);

    /// Keeps the visible part, unless all was visible.
    void SetRun(const std::optional<RunTrace>& trace);
    /// A second run, whose stocks are drawn pale behind those of the first.
    void SetOtherRun(const std::optional<RunTrace>& other);
    void SetPictures(const PerItem<QPixmap>& pictures) { m_graphic->SetPictures(pictures); }
    void SetAppearance(const QPalette& palette, const QFont& font);
    void SetChosenRows(const std::set<std::size_t>& rows) { m_graphic->SetChosenRows(rows); }
    /// Scrolls to a row's bar.
    void BringIntoView(std::size_t row);
    /// The time of the wall clock, which is marked.
    void SetNow(DateTime now);

    /// Shows the whole plan.
    void ShowAll();
    /// Paints the visible part into `rect`.
    void PaintOn(QPainter& painter, const QRectF& rect);

  signals:
    /// Nothing when the pointer has left, or there is no run.
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
