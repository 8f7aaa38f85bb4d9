// The moves of a search: lists that differ a little from the present one.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "search/Random.h"
#include "search/SearchTask.h"

namespace tarvelin {

/// The present list, and one move at a time away from it.
class Zuege {
  public:
    /// The task must outlive it. The list is by the rules.
    Zuege(const Suchaufgabe& aufgabe, std::vector<Order> orders, std::vector<bool> fest);

    /// Makes a move. The first row that differs from the present list; nothing if the move came to
    /// nothing or breaks a rule.
    [[nodiscard]] std::optional<std::size_t> Ziehe(Zufall& zufall);

    /// The list after the last move.
    [[nodiscard]] std::span<const Order> Nachbar() const { return m_nachbar; }
    [[nodiscard]] const std::vector<Order>& Liste() const { return m_orders; }
    [[nodiscard]] const std::vector<bool>& Fest() const { return m_fest; }

    /// The list after the last move is the present one from now on.
    void Uebernimm();

  private:
    [[nodiscard]] bool Ordne(Zufall& zufall);
    [[nodiscard]] bool Fuege(Zufall& zufall);
    [[nodiscard]] bool Streiche(Zufall& zufall);
    [[nodiscard]] bool Tausche(Zufall& zufall);
    void Rotiere(std::size_t von, std::size_t mitte, std::size_t bis);
    void Vertausche(std::size_t a, std::size_t b);
    [[nodiscard]] bool HaeltRegeln() const;
    void MerkeAb(std::size_t zeile);

    const Suchaufgabe* m_aufgabe;
    std::vector<Order> m_orders;
    std::vector<bool> m_fest;
    std::vector<Order> m_nachbar;
    std::vector<bool> m_nachbarFest;
    /// The rows that may move.
    std::vector<std::size_t> m_frei;
    /// The counters above each row, and behind the last.
    std::vector<PerItem<Byte>> m_vorher;
    /// What stood above each pinned row at the beginning.
    std::vector<PerItem<Byte>> m_vorFesten;
    /// From the first row that the last move changed to behind the last.
    std::size_t m_von = 0;
    std::size_t m_bis = 0;
};

}  // namespace tarvelin
