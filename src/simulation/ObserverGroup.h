// Several observers of one run.
#pragma once

#include <tuple>

#include "simulation/RunObserver.h"

namespace tarvelin {

/// Tells each event to all of them, one after the other. Their kinds are known, so that what an
/// observer doesn't ask for costs nothing.
template <class... Observer>
class ObserverGroup final : public RunObserver {
  public:
    /// They must outlive it.
    explicit ObserverGroup(Observer&... all) : m_all(all...) {}

    void OnStart(const StartEvent& event) override {
        ForAll([&](auto& b) { b.OnStart(event); });
    }
    void OnFinish(const Order& order) override {
        ForAll([&](auto& b) { b.OnFinish(order); });
    }
    void OnNegativeStock(const GameState& state) override {
        ForAll([&](auto& b) { b.OnNegativeStock(state); });
    }
    void OnUnknownOrder(UnknownOrderAt what) override {
        ForAll([&](auto& b) { b.OnUnknownOrder(what); });
    }
    void OnEmptyStep() override {
        ForAll([](auto& b) { b.OnEmptyStep(); });
    }
    void OnStepDone(const GameState& state) override {
        ForAll([&](auto& b) { b.OnStepDone(state); });
    }

  private:
    template <class Report>
    void ForAll(Report report) {
        std::apply([&](Observer&... b) { (report(b), ...); }, m_all);
    }

    std::tuple<Observer&...> m_all;
};

}  // namespace tarvelin
