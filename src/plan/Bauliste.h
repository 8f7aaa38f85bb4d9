// The plan that the user edits: the rows of `LV_Bauliste` with the counters beside them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/ItemId.h"
#include "model/Startplanet.h"
#include "plan/Auftrag.h"
#include "util/Meldung.h"

namespace tarvelin {

/// Colour of a row's factor text, as the red share of a colour.
enum class Farbe : Byte { Schwarz = 0, Rot = 255 };

struct BaulistenZeile {
    /// First column: the row's position, from 1.
    std::string Text;
    /// Not shown: the item code or the production row's "GX:" + m + ":" + k + ":" + d.
    std::string Tag;
    /// Second column: the list text.
    std::string SubItems1;
    /// Third column: the production factor with this row done, as it was when the row was added.
    std::string SubItems2;
    Farbe SubItems2Farbe = Farbe::Schwarz;
    /// `Tag`, understood.
    Auftrag Order;
};

/// Rows are only ever added at the end and only ever taken from the end, or all at once. So each
/// row's number in its list text is the count of its item down to it, and what a row needed
/// stands above it.
///
/// The operations that work out a factor text take the planet of the last run or reset: the
/// satellites' share follows its temperature, which is 0 before the first.
class Bauliste {
  public:
    static constexpr std::size_t kHoechstzahl = 254;

    [[nodiscard]] const std::vector<BaulistenZeile>& Zeilen() const { return m_zeilen; }
    [[nodiscard]] bool IstVoll() const { return m_zeilen.size() >= kHoechstzahl; }

    /// Rows of an item in the list: the level, or the number, that its last row reaches.
    [[nodiscard]] int ListStufe(ItemId item) const { return m_listStufe[item]; }
    /// The factors that hold at the end of the list.
    [[nodiscard]] const Minenfaktoren& ListFaktor() const { return m_listFaktor; }

    /// The drop of an item picture, told by its name. Nothing is checked against the game's rules.
    /// A message if no picture has that name or the list is full; nothing changes then.
    [[nodiscard]] std::optional<Meldung> DragDrop(std::string_view Source,
                                                  const Startplanet& planet);

    /// Adds a production row. A message if the list is full; nothing changes then.
    [[nodiscard]] std::optional<Meldung> AddProdaenderungsevent(const Minenfaktoren& faktoren,
                                                                const Startplanet& planet);

    /// The production row of a stored `Tag`, which is kept as it is. The caller has seen to it that
    /// the list isn't full.
    void ReplayProduktion(std::string_view tag, const Minenfaktoren& faktoren,
                          const Startplanet& planet);

    /// Adds a bare row with any `Tag`, as the table itself does: no texts, and the counters don't
    /// follow. The caller has seen to it that the list isn't full. For orders that no rule knows.
    BaulistenZeile& HaengeZeileAn(std::string_view tag);

    /// Takes the last row out and puts back what it had changed.
    void Undo();

    void Clear();

    /// The production factor of the list as it stands, with two decimals: supply divided by need,
    /// at most "1,00".
    [[nodiscard]] std::string GetProdfaktorText(const Startplanet& planet) const;

  private:
    void SchliesseZeileAb(BaulistenZeile& zeile, const Startplanet& planet);

    std::vector<BaulistenZeile> m_zeilen;
    JeItem<int> m_listStufe{};
    Minenfaktoren m_listFaktor{kVollerFaktor, kVollerFaktor, kVollerFaktor};
};

}  // namespace tarvelin
