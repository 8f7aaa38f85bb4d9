// Edits anywhere in the build list: its rows in another order, some gone, some new.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "plan/BuildList.h"

namespace tarvelin {

/// A list that is being edited. Nothing is changed in the list it was made from; `Tags` are what
/// that would have to hold. Rows count from 0; those that an edit is given are rows of the list as
/// it stands, in their order, none twice.
class Umstellung {
  public:
    /// `liste` must outlive it.
    explicit Umstellung(const Bauliste& liste);

    /// Moves each row up or down by one place; rows at the end of the list stay.
    void Hoch(std::span<const std::size_t> zeilen);
    void Runter(std::span<const std::size_t> zeilen);
    /// Puts the rows beside each other in front of a row, or at the end.
    void StelleVor(std::size_t ziel, std::span<const std::size_t> zeilen);
    void Loesche(std::span<const std::size_t> zeilen);
    /// Adds a new row in front of a row, or at the end.
    void FuegeEin(std::size_t vor, std::string_view tag);
    /// Adds copies of the rows behind the last of them.
    void Verdopple(std::span<const std::size_t> zeilen);

    /// Why the edit can't be: the list would be too long, a new row isn't allowed at its place, or
    /// a row would break its rule that has kept it so far. A loaded list may hold rows that never
    /// kept theirs. Nothing if it can be.
    [[nodiscard]] std::optional<std::string> Einwand() const;

    [[nodiscard]] std::vector<std::string> Tags() const;
    /// Where the rows that were moved stand now, or the copies, or the row behind those that went.
    [[nodiscard]] std::vector<std::size_t> Betroffene() const;

  private:
    struct Zeile {
        /// The row of the list as it stood; nothing for a new one.
        std::optional<std::size_t> Vorher;
        std::string Tag;
        bool Betroffen = false;
    };

    void Markiere(std::span<const std::size_t> zeilen);
    [[nodiscard]] std::vector<bool> RegeltreueZeilen() const;

    const Bauliste* m_liste;
    std::vector<Zeile> m_zeilen;
};

}  // namespace tarvelin
