// Proves the optimum of a small plan by branch and bound.
#include "OptimumProof.h"

#include <algorithm>
#include <limits>
#include <random>

#include "model/Cost.h"
#include "plan/OrderList.h"
#include "plan/Rules.h"
#include "simulation/Simulation.h"

namespace tarvelin {

namespace {

/// Notices an order that started without enough resources or behind a closed gate.
class Referee final : public RunObserver {
  public:
    void OnStart(const StartEvent& event) override {
        started = event.row + 1;
        good = good && !event.gateClosed;
    }
    void OnNegativeStock(const GameState& /*state*/) override { good = false; }

    std::size_t started = 0;
    bool good = true;
};

class BranchAndBound {
  public:
    explicit BranchAndBound(const SearchTask& task)
        : m_conditions(task.conditions),
          m_remaining(task.orders),
          m_final(Simulation({}, task.conditions).State()) {
        m_final.Stufe = FinalLevels(task.orders);
    }

    Long Run() {
        Deepen(Simulation({}, m_conditions));
        return m_best;
    }

  private:
    void Deepen(const Simulation& simulation) {
        if (m_remaining.empty()) {
            Play(simulation, m_list.size() + 1);
            return;
        }
        if (EarliestEnd(simulation.State()) >= m_best) {
            return;
        }
        PerItem<bool> tried{};
        for (std::size_t i = 0; i < m_remaining.size(); ++i) {
            const Order order = m_remaining[i];
            if (tried[order.item] || !IsAllowed(order.item, m_levels)) {
                continue;
            }
            // Equal orders needn't be tried twice at the same position.
            tried[order.item] = true;
            m_remaining.erase(m_remaining.begin() + static_cast<std::ptrdiff_t>(i));
            m_list.push_back(order);
            ++m_levels[order.item];
            if (const auto next = Play(simulation, m_list.size())) {
                Deepen(*next);
            }
            --m_levels[order.item];
            m_list.pop_back();
            m_remaining.insert(m_remaining.begin() + static_cast<std::ptrdiff_t>(i), order);
        }
    }

    /// Runs on until `starts` orders have started, or to the end. Nothing if one of them was
    /// invalid.
    std::optional<Simulation> Play(Simulation simulation, std::size_t starts) {
        simulation.ReplaceOrders(m_list);
        Referee referee;
        while (!simulation.IsFinished() && referee.started < starts) {
            simulation.Step(referee);
            if (!referee.good) {
                return std::nullopt;
            }
        }
        if (simulation.IsFinished()) {
            m_best = std::min(m_best, simulation.State().secsgone.Seconds());
        }
        return simulation;
    }

    /// A lower bound of the end: each queue works through its remaining orders without a wait, as
    /// fast as with all facilities that the plan will ever have.
    [[nodiscard]] Long EarliestEnd(const GameState& state) const {
        PerQueue<double> end{};
        PerItem<Byte> levels = m_levels;
        for (const Order& order : m_remaining) {
            const ItemRow& row = RowOf(order.item);
            const Cost& cost = CostOf(order.item, levels[order.item]++);
            end[order.queue] += row.upgradeTime(cost, m_final, m_conditions);
        }
        double latest = 0;
        for (const Order& order : m_remaining) {
            // FertigZeit includes the click buffer after the finish.
            const auto free = static_cast<double>(state.FertigZeit[order.queue].Seconds()) - 1 -
                              static_cast<double>(m_conditions.KlickPuffer);
            latest = std::max(latest, end[order.queue] + std::max(0.0, free));
        }
        // Each duration may have been rounded up.
        return static_cast<Long>(latest) - static_cast<Long>(m_remaining.size());
    }

    const RunConditions& m_conditions;
    std::vector<Order> m_remaining;
    std::vector<Order> m_list;
    PerItem<Byte> m_levels{};
    /// The state with all final levels of the plan.
    GameState m_final;
    Long m_best = std::numeric_limits<Long>::max();
};

}  // namespace

SearchTask SmallPlan(unsigned seed) {
    constexpr std::array<ItemId, 12> kEarlyItems{
        ItemId::MetMine,  ItemId::MetMine, ItemId::KrisMine, ItemId::KrisMine,
        ItemId::DeutMine, ItemId::SKW,     ItemId::SKW,      ItemId::Robo,
        ItemId::Werft,    ItemId::Folab,   ItemId::Solsats,  ItemId::ENTech};
    std::mt19937 random(seed);
    const auto upTo = [&random](unsigned max) { return static_cast<Long>(random() % (max + 1)); };
    SearchTask task;
    RunConditions& conditions = task.conditions;
    conditions.Speedfaktor = 1 + upTo(1);
    conditions.Temperatur = static_cast<Integer>(upTo(160) - 60);
    conditions.KlickPuffer = upTo(1) * upTo(600);
    conditions.StartDate = *ParseDateTime("18.11.2026 12:30:00");
    constexpr Long kHour = 3600;
    constexpr Long kNights = 4;
    const Long sleep = upTo(1) * (6 + upTo(3)) * kHour;
    for (Long night = 0; sleep > 0 && night < kNights; ++night) {
        const DateTime evening = conditions.StartDate + (9 + 24 * night) * kHour;
        conditions.Schlafzeiten.emplace_back(evening, evening + sleep);
    }
    OrderList list;
    for (Long count = 8 + upTo(2); static_cast<Long>(list.Size()) < count;) {
        const ItemId item =
            upTo(3) == 0 ? static_cast<ItemId>(upTo(kNumItems - 1))
                         : kEarlyItems[static_cast<std::size_t>(upTo(kEarlyItems.size() - 1))];
        if (!Refusal(item, list)) {
            list.Append(Order::Of(item));
        }
    }
    task.orders.assign(list.All().begin(), list.All().end());
    task.pinned.assign(task.orders.size(), false);
    return task;
}

std::optional<Long> ProvenDuration(const SearchTask& task) {
    const Long duration = BranchAndBound(task).Run();
    return duration == std::numeric_limits<Long>::max() ? std::nullopt : std::optional(duration);
}

}  // namespace tarvelin
