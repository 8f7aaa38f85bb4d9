// A search that runs beside its caller.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include "search/PlanTask.h"

namespace tarvelin {

/// Begins with its construction; its end stops the search and waits the few milliseconds that this
/// takes.
class Hintergrundsuche {
  public:
    /// Both are called from another thread than the caller's.
    struct Empfaenger {
        std::function<void(const Fortschritt&)> Stand;
        std::function<void(const Suchergebnis&)> Fertig;
    };

    Hintergrundsuche(Planaufgabe aufgabe, const Suchumfang& umfang, Empfaenger empfaenger);
    Hintergrundsuche(const Hintergrundsuche&) = delete;
    Hintergrundsuche& operator=(const Hintergrundsuche&) = delete;
    ~Hintergrundsuche() { Halte(); }

    /// Ends the search with the best so far.
    void Halte() { m_halt = true; }

  private:
    std::atomic<bool> m_halt{false};
    Planaufgabe m_aufgabe;
    Suchumfang m_umfang;
    Empfaenger m_empfaenger;
    /// The last member: it ends before the others go.
    std::jthread m_thread;
};

}  // namespace tarvelin
