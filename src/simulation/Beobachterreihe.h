// Several observers of one run.
#pragma once

#include <initializer_list>
#include <vector>

#include "simulation/Laufbeobachter.h"

namespace tarvelin {

/// Tells each event to all of them, one after the other.
class Beobachterreihe final : public Laufbeobachter {
  public:
    /// They must outlive it.
    Beobachterreihe(std::initializer_list<Laufbeobachter*> alle) : m_alle(alle) {}

    void Start(const Startereignis& ereignis) override {
        FuerAlle([&](Laufbeobachter& b) { b.Start(ereignis); });
    }
    void Finish(const Auftrag& order) override {
        FuerAlle([&](Laufbeobachter& b) { b.Finish(order); });
    }
    void Schulden(const Spielstand& stand) override {
        FuerAlle([&](Laufbeobachter& b) { b.Schulden(stand); });
    }
    void Unbekannt(Unbekanntes was) override {
        FuerAlle([&](Laufbeobachter& b) { b.Unbekannt(was); });
    }
    void Piepton() override {
        FuerAlle([](Laufbeobachter& b) { b.Piepton(); });
    }
    void NachSchritt(const Spielstand& stand) override {
        FuerAlle([&](Laufbeobachter& b) { b.NachSchritt(stand); });
    }

  private:
    template <class Melde>
    void FuerAlle(Melde melde) {
        for (Laufbeobachter* const beobachter : m_alle) {
            melde(*beobachter);
        }
    }

    std::vector<Laufbeobachter*> m_alle;
};

}  // namespace tarvelin
