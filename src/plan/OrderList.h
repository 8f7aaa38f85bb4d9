// The orders of a plan with the counters beside them, without a text.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "plan/Order.h"

namespace tarvelin {

/// Orders are only ever added at the end and only ever taken from the end, or all at once. So each
/// order's number is the count of its item down to it, and what an order needed stands above it.
class Auftragsliste {
  public:
    static constexpr std::size_t kHoechstzahl = 254;

    [[nodiscard]] std::span<const Auftrag> Alle() const { return {m_auftraege.data(), m_zahl}; }
    [[nodiscard]] std::size_t Zahl() const { return m_zahl; }
    [[nodiscard]] bool IstLeer() const { return m_zahl == 0; }
    [[nodiscard]] bool IstVoll() const { return m_zahl == kHoechstzahl; }

    /// Orders of an item: the level, or the number, that its last one reaches.
    [[nodiscard]] Byte ListStufe(ItemId item) const { return m_listStufe[item]; }
    /// The same of all items.
    [[nodiscard]] const PerItem<Byte>& ListStufen() const { return m_listStufe; }
    /// The factors that hold at the end of the list.
    [[nodiscard]] const MineFactors& ListFaktor() const { return m_listFaktor; }

    /// The list isn't full.
    void HaengeAn(const Auftrag& auftrag);

    /// Takes the last order out and puts back what it had changed. The list isn't empty.
    void NimmLetzten();

  private:
    std::array<Auftrag, kHoechstzahl> m_auftraege{};
    std::size_t m_zahl = 0;
    PerItem<Byte> m_listStufe{};
    MineFactors m_listFaktor = kFullFactors;
};

}  // namespace tarvelin
