// Several observers of one run.
#pragma once

#include <tuple>

#include "simulation/RunObserver.h"

namespace tarvelin {

/// Passes each event on to all of them in turn. Their types are known at compile time, so a hook
/// that none of them overrides costs nothing.
template <class... Observer>
class ObserverGroup final : public RunObserver {
  public:
    /// They must outlive it.
    explicit ObserverGroup(Observer&... all) : m_all(all...) {}

    void OnStart(const StartEvent& event) override {
        ForAll([&](auto& observer) { observer.OnStart(event); });
    }
    void OnNegativeStock(const GameState& state) override {
        ForAll([&](auto& observer) { observer.OnNegativeStock(state); });
    }
    void OnUnknownOrder(UnknownOrderAt where) override {
        ForAll([&](auto& observer) { observer.OnUnknownOrder(where); });
    }
    void OnEmptyStep() override {
        ForAll([](auto& observer) { observer.OnEmptyStep(); });
    }
    void OnStepDone(const GameState& state) override {
        ForAll([&](auto& observer) { observer.OnStepDone(state); });
    }

  private:
    template <class Report>
    void ForAll(Report report) {
        std::apply([&](Observer&... observers) { (report(observers), ...); }, m_all);
    }

    std::tuple<Observer&...> m_all;
};

}  // namespace tarvelin
