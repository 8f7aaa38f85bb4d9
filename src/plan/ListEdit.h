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
class ListEdit {
  public:
    /// `list` must outlive it.
    explicit ListEdit(const BuildList& list);

    /// Moves each row up or down by one place; rows at the end of the list stay.
    void MoveUp(std::span<const std::size_t> rows);
    void MoveDown(std::span<const std::size_t> rows);
    /// Puts the rows beside each other in front of a row, or at the end.
    void MoveBefore(std::size_t target, std::span<const std::size_t> rows);
    void Remove(std::span<const std::size_t> rows);
    /// Adds a new row in front of a row, or at the end.
    void Insert(std::size_t before, std::string_view tag);
    /// Adds copies of the rows behind the last of them.
    void Duplicate(std::span<const std::size_t> rows);

    /// Why the edit can't be: the list would be too long, a new row isn't allowed at its place, or
    /// a row would break its rule that has kept it so far. A loaded list may hold rows that never
    /// kept theirs. Nothing if it can be.
    [[nodiscard]] std::optional<std::string> Objection() const;

    [[nodiscard]] std::vector<std::string> Tags() const;
    /// Where the rows that were moved stand now, or the copies, or the row behind those that went.
    [[nodiscard]] std::vector<std::size_t> Affected() const;

  private:
    struct DraftRow {
        /// The row of the list as it stood; nothing for a new one.
        std::optional<std::size_t> original;
        std::string Tag;
        bool affected = false;
    };

    void Mark(std::span<const std::size_t> rows);
    [[nodiscard]] std::vector<bool> RowsKeepingRules() const;

    const BuildList* m_list;
    std::vector<DraftRow> m_rows;
};

}  // namespace tarvelin
