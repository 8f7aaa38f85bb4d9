// Several observers of one run.
#pragma once

#include <tuple>

#include "simulation/RunObserver.h"

namespace tarvelin {

/// Tells each event to all of them, one after the other. Their kinds are known, so that what an
/// observer doesn't ask for costs nothing.
template <class... Beobachter>
class Beobachterreihe final : public Laufbeobachter {
  public:
    /// They must outlive it.
    explicit Beobachterreihe(Beobachter&... alle) : m_alle(alle...) {}

    void Start(const Startereignis& ereignis) override {
        FuerAlle([&](auto& b) { b.Start(ereignis); });
    }
    void Finish(const Order& order) override {
        FuerAlle([&](auto& b) { b.Finish(order); });
    }
    void Schulden(const GameState& stand) override {
        FuerAlle([&](auto& b) { b.Schulden(stand); });
    }
    void Unbekannt(Unbekanntes was) override {
        FuerAlle([&](auto& b) { b.Unbekannt(was); });
    }
    void Piepton() override {
        FuerAlle([](auto& b) { b.Piepton(); });
    }
    void NachSchritt(const GameState& stand) override {
        FuerAlle([&](auto& b) { b.NachSchritt(stand); });
    }

  private:
    template <class Melde>
    void FuerAlle(Melde melde) {
        std::apply([&](Beobachter&... b) { (melde(b), ...); }, m_alle);
    }

    std::tuple<Beobachter&...> m_alle;
};

}  // namespace tarvelin
