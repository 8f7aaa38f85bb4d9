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
class TimelineGraphic : public QGraphicsItem {
  public:
    TimelineGraphic();

    /// Nothing for a plan that can't be run.
    void SetRun(const std::optional<RunTrace>& trace);
    /// A run whose curves are drawn pale behind the others.
    void SetOtherRun(const std::optional<RunTrace>& other);
    void SetPictures(const PerItem<QPixmap>& pictures);
    void SetAppearance(const TimelineColors& colors, const QFont& font);
    void SetHeight(qreal height);
    void SetChosenRows(std::set<std::size_t> rows);

    /// What it needs to be read.
    [[nodiscard]] qreal MinHeight() const;
    [[nodiscard]] const std::optional<RunTrace>& Run() const { return m_trace; }
    [[nodiscard]] const TimelineColors& Colors() const { return m_colors; }
    /// From where to where it shows the run, in seconds.
    [[nodiscard]] qreal EndSecond() const;
    /// The row whose bar, wait or mark lies at a point, that far off at most in seconds.
    [[nodiscard]] std::optional<std::size_t> RowAt(const QPointF& position, qreal beside) const;
    /// Of a row's bar, in the scene; nothing for a row that never started.
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
    /// When the order of a start began to wait.
    [[nodiscard]] SimTime WaitsSince(std::size_t index) const;

    std::optional<RunTrace> m_trace;
    std::optional<RunTrace> m_other;
    PerItem<QPixmap> m_pictures;
    TimelineColors m_colors{QPalette()};
    QFont m_font;
    qreal m_height = 0;
    std::set<std::size_t> m_chosen;
};

}  // namespace tarvelin
