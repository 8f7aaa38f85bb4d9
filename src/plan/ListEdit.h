// Edits anywhere in the build list: rows moved, removed and added.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "plan/BuildList.h"

namespace tarvelin {

/// Why an edit is refused.
struct EditObjection {
    std::string text;
    /// The row of the list that would break its rule; nothing if it is a new one or the list is
    /// full.
    std::optional<std::size_t> row{};
};

/// A draft of an edit: the list that it was made from stays as it is, `Orders` are those of the
/// list after the edit. Row numbers count from 0 in the draft as it stands; a set of them is given
/// in ascending sequence, without duplicates.
class ListEdit {
  public:
    /// `list` must outlive it.
    explicit ListEdit(const BuildList& list);

    /// Moves each row up or down by one place; rows already at that end of the list stay.
    void MoveUp(std::span<const std::size_t> rows);
    void MoveDown(std::span<const std::size_t> rows);
    /// Gathers the rows in front of row `target`, or at the end of the list.
    void MoveBefore(std::size_t target, std::span<const std::size_t> rows);
    void Remove(std::span<const std::size_t> rows);
    /// Adds a new row in front of row `before`, or at the end of the list.
    void Insert(std::size_t before, const Order& order);
    /// Adds copies of the rows after the last of them.
    void Duplicate(std::span<const std::size_t> rows);

    /// Why the edit is refused: the list would be too long, a new row isn't allowed at its place,
    /// or a row that kept its rule would break it (rows of a loaded list may have broken theirs
    /// already). Nothing if the edit is allowed.
    [[nodiscard]] std::optional<EditObjection> Objection() const;

    [[nodiscard]] std::vector<Order> Orders() const;
    /// Where the moved rows or the copies are now, or the row after the removed ones.
    [[nodiscard]] std::vector<std::size_t> Affected() const;

  private:
    struct DraftRow {
        /// The row in the list before the edit; nothing for a new one.
        std::optional<std::size_t> original;
        Order order;
        bool affected = false;
    };

    void Mark(std::span<const std::size_t> rows);
    [[nodiscard]] std::vector<bool> RowsKeepingRules() const;

    const BuildList* m_list;
    std::vector<DraftRow> m_rows;
};

}  // namespace tarvelin
