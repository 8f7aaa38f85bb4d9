// The timeline: zooms and moves through the picture of a run, and tells what goes on at the cursor.
#pragma once

#include <QScrollBar>
#include <QToolButton>
#include <QWidget>
#include <optional>
#include <vector>

#include "ui/timeline/TimelineCanvas.h"
#include "ui/timeline/TimelineContent.h"
#include "ui/timeline/TimelineLayout.h"

namespace tarvelin {

/// The wheel zooms at the pointer, dragging moves, a double click shows all, a click chooses the
/// row below it. By keys: the arrows go from order to order and choose it, with Ctrl they move the
/// cursor alone and Enter chooses what starts there or next; plus and minus zoom at the cursor,
/// Home and End go to the first and the last order, 0 shows all.
class TimelineView : public QWidget {
    Q_OBJECT

  public:
    explicit TimelineView(QWidget* parent);

    /// Keeps the visible part, unless all was visible.
    void SetRun(const std::optional<RunTrace>& trace);
    void SetOtherRuns(std::vector<DashedRun> others);
    void SetProposedNights(std::vector<cSchlafzeit> nights);
    void SetPictures(const PerItem<QPixmap>& pictures);
    /// As they were set.
    [[nodiscard]] const PerItem<QPixmap>& Pictures() const { return m_pictures; }
    void SetAppearance(const QPalette& palette, const QFont& font);
    void SetChosenRows(const std::set<std::size_t>& rows);
    /// The next order, and the row for whose sake the last edit was refused.
    void SetMarks(std::optional<std::size_t> next, std::optional<std::size_t> refused);
    /// Moves to a row's picture, if it isn't in sight.
    void BringIntoView(std::size_t row);
    /// The time of the wall clock, which is marked.
    void SetNow(DateTime now);

    /// Shows the whole plan.
    void ShowAll();
    /// Paints what is in sight, without cursor and buttons.
    void PaintSection(QPainter& painter);
    [[nodiscard]] const TimelineContent& Content() const { return m_content; }
    /// Where the seconds of the plan are at present.
    [[nodiscard]] TimeScale Scale() const;
    [[nodiscard]] TimelineRows Rows() const;
    [[nodiscard]] TimelineLayout Layout() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

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
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Keeps the visible part, unless all was visible.
    template <class Action>
    void ChangeKeepingView(Action action);
    QToolButton* NewButton(const char* name, const QString& hint);
    /// The zoom at which all is visible.
    [[nodiscard]] double MinScale() const;
    /// Both are brought into their limits.
    void Show(double first, double perSecond);
    void Zoom(double factor, double x);
    /// Or in the middle, if the cursor isn't in sight.
    void ZoomAtCursor(double factor);
    /// Of the plot, in pixels.
    [[nodiscard]] double Middle() const;
    void MoveCursor(std::optional<double> second);
    [[nodiscard]] std::optional<SimTime> CursorInSight() const;
    /// The order before or after what is chosen, counted in the sequence of the starts; may be
    /// beyond them.
    [[nodiscard]] std::ptrdiff_t OrderBeside(int direction) const;
    /// Chooses an order; beyond the last it is the last.
    void GoToOrder(std::ptrdiff_t order);
    /// Moves to the cursor, if it isn't in sight.
    void ShowCursor();
    void ChooseAtCursor();
    void PlaceControls();
    void PaintOn(QPainter& painter, bool withCursor);
    void PaintTop(const TimelineCanvas& canvas, const TimelineRows& rows) const;

    TimelineContent m_content;
    TimelineLook m_look;
    PerItem<QPixmap> m_pictures;
    double m_first = 0;
    double m_perSecond = 1;
    std::optional<double> m_cursor;
    QPoint m_pressed;
    QPoint m_lastPosition;
    bool m_dragging = false;
    bool m_showsAll = true;
    bool m_keepsPlace = false;
    QScrollBar* m_scrollBar;
    QToolButton* m_minus;
    QToolButton* m_plus;
    QToolButton* m_whole;
};

}  // namespace tarvelin
