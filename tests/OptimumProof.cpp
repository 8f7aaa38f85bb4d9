// All orders of a small plan, but for those that can't be the best.
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

/// Whether an order started that can't be paid, or whose gate was shut.
class Referee final : public RunObserver {
  public:
    void OnStart(const StartEvent& event) override {
        started = event.row + 1;
        good = good && !event.gateClosed;
    }
    void OnNegativeStock(const GameState& /*stand*/) override { good = false; }

    std::size_t started = 0;
    bool good = true;
};

class BranchAndBound {
  public:
    explicit BranchAndBound(const SearchTask& task)
        : m_conditions(task.conditions),
          m_remaining(task.orders),
          m_later(Simulation({}, task.conditions).State()) {
        m_later.Stufe = FinalLevels(task.orders);
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
            // Equal orders are one.
            tried[order.item] = true;
            m_remaining.erase(m_remaining.begin() + static_cast<std::ptrdiff_t>(i));
            m_list.push_back(order);
            ++m_levels[order.item];
            if (const auto further = Play(simulation, m_list.size())) {
                Deepen(*further);
            }
            --m_levels[order.item];
            m_list.pop_back();
            m_remaining.insert(m_remaining.begin() + static_cast<std::ptrdiff_t>(i), order);
        }
    }

    /// Goes on until so many orders have started, or to the end. Nothing if one can't.
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

    /// What each queue has still to do, one order after the other and each as quick as it gets with
    /// all facilities.
    [[nodiscard]] Long EarliestEnd(const GameState& state) const {
        PerQueue<double> end{};
        PerItem<Byte> levels = m_levels;
        for (const Order& order : m_remaining) {
            const ItemRow& row = RowOf(order.item);
            const Cost& cost = CostOf(order.item, levels[order.item]++);
            end[order.queue] += row.upgradeTime(cost, m_later, m_conditions);
        }
        double latest = 0;
        for (const Order& order : m_remaining) {
            // Its queue's finish, before the buffer that keeps it busy.
            const auto free = static_cast<double>(state.FertigZeit[order.queue].Seconds()) - 1 -
                              static_cast<double>(m_conditions.KlickPuffer);
            latest = std::max(latest, end[order.queue] + std::max(0.0, free));
        }
        // Durations are rounded.
        return static_cast<Long>(latest) - static_cast<Long>(m_remaining.size());
    }

    const RunConditions& m_conditions;
    std::vector<Order> m_remaining;
    std::vector<Order> m_list;
    PerItem<Byte> m_levels{};
    /// With all levels that the plan will ever have.
    GameState m_later;
    Long m_best = std::numeric_limits<Long>::max();
};

}  // namespace

SearchTask SmallPlan(unsigned seed) {
    constexpr std::array<ItemId, 12> kInitial{ItemId::MetMine,  ItemId::MetMine,  ItemId::KrisMine,
                                              ItemId::KrisMine, ItemId::DeutMine, ItemId::SKW,
                                              ItemId::SKW,      ItemId::Robo,     ItemId::Werft,
                                              ItemId::Folab,    ItemId::Solsats,  ItemId::ENTech};
    std::mt19937 source(seed);
    const auto until = [&source](unsigned highest) {
        return static_cast<Long>(source() % (highest + 1));
    };
    SearchTask task;
    RunConditions& world = task.conditions;
    world.Speedfaktor = 1 + until(1);
    world.Temperatur = static_cast<Integer>(until(160) - 60);
    world.KlickPuffer = until(1) * until(600);
    world.StartDate = *ParseDateTime("18.11.2026 12:30:00");
    constexpr Long kHour = 3600;
    constexpr Long kNights = 4;
    const Long sleep = until(1) * (6 + until(3)) * kHour;
    for (Long night = 0; sleep > 0 && night < kNights; ++night) {
        const DateTime evening = world.StartDate + (9 + 24 * night) * kHour;
        world.Schlafzeiten.emplace_back(evening, evening + sleep);
    }
    OrderList list;
    for (Long number = 8 + until(2); static_cast<Long>(list.Size()) < number;) {
        const ItemId item = until(3) == 0
                                ? static_cast<ItemId>(until(kNumItems - 1))
                                : kInitial[static_cast<std::size_t>(until(kInitial.size() - 1))];
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
