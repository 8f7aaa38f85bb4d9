// Undo and redo of edits of the plan.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "plan/Plan.h"

namespace tarvelin {

/// Keeps a snapshot after each edit, without a limit.
class EditHistory {
  public:
    /// Starts over from a plan, with nothing to undo.
    void Begin(PlanSnapshot snapshot);

    /// Records the plan after an edit, and drops what could be redone. `input` names the field that
    /// was typed into, if any: edits in a row to the same field are one. False, and no change, if
    /// the plan is the same as before.
    bool Record(PlanSnapshot snapshot, std::string_view input = {});

    /// Spells a start day differently in all snapshots that have it, as a run pads it. Edits that
    /// changed nothing else are dropped.
    void RewriteDay(const StartParameters& before, const StartParameters& after);

    /// How many edits can be undone.
    [[nodiscard]] std::size_t StepCount() const { return m_current; }

    [[nodiscard]] bool CanUndo() const { return m_current > 0; }
    [[nodiscard]] bool CanRedo() const { return m_current + 1 < m_snapshots.size(); }

    /// The plan before the last edit; only if `CanUndo`.
    [[nodiscard]] const PlanSnapshot& Undo();
    /// The plan after the edit that was undone last; only if `CanRedo`.
    [[nodiscard]] const PlanSnapshot& Redo();

  private:
    std::vector<PlanSnapshot> m_snapshots{PlanSnapshot()};
    /// The snapshot of the plan as it stands.
    std::size_t m_current = 0;
    /// The field of the last edit; empty if none was typed into, or after an undo or redo.
    std::string m_input;
};

}  // namespace tarvelin
