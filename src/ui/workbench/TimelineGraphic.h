// Draws a run: lanes with orders and waits, sleep windows, stocks and energy.
#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <QPixmap>
#include <array>
#include <optional>
#include <set>

#include "simulation/RunTrace.h"
#include "ui/workbench/WorkbenchColors.h"

namespace tarvelin {

/// The scene's x is in seconds since the plan's start. A view may scale it in that direction only;
/// texts and pictures aren't distorted.
class TimelineGraphic : public QGraphicsItem {
  public:
    TimelineGraphic();

    /// None if the plan can't be run.
    void SetRun(const std::optional<RunTrace>& trace);
    /// A second run, whose stocks are drawn pale behind those of the first.
    void SetOtherRun(const std::optional<RunTrace>& other);
    void SetPictures(const PerItem<QPixmap>& pictures);
    void SetAppearance(const WorkbenchColors& colors, const QFont& font);
    void SetHeight(qreal height);
    void SetChosenRows(std::set<std::size_t> rows);

    /// The least height at which it can be read.
    [[nodiscard]] qreal MinHeight() const;
    [[nodiscard]] const std::optional<RunTrace>& Run() const { return m_trace; }
    [[nodiscard]] const WorkbenchColors& Colors() const { return m_colors; }
    /// Where the picture ends, in seconds since the plan's start: the end of the longer run, at
    /// least 1.
    [[nodiscard]] qreal EndSecond() const;
    /// The row whose bar, wait or mark is at a point, or at most `beside` seconds away.
    [[nodiscard]] std::optional<std::size_t> RowAt(const QPointF& position, qreal beside) const;
    /// In the scene. Nothing for a row that never started.
    [[nodiscard]] std::optional<QRectF> BarOf(std::size_t row) const;

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    class Renderer;
    struct Lane {
        Queue queue;
        const char* name;
    };
    static const std::array<Lane, 3> kLanes;

    [[nodiscard]] qreal LineHeight() const;
    [[nodiscard]] qreal AxisHeight() const;
    [[nodiscard]] qreal LaneHeight() const;
    [[nodiscard]] QRectF LaneRect(Queue queue) const;
    [[nodiscard]] QRectF StockRect() const;
    [[nodiscard]] QRectF EnergyRect() const;
    /// When the order of start `index` became the next one to give.
    [[nodiscard]] SimTime WaitsSince(std::size_t index) const;

    std::optional<RunTrace> m_trace;
    std::optional<RunTrace> m_other;
    PerItem<QPixmap> m_pictures;
    WorkbenchColors m_colors;
    QFont m_font;
    qreal m_height = 0;
    std::set<std::size_t> m_chosen;
};

}  // namespace tarvelin
