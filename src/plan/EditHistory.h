// The way back over edits of the plan.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "plan/Plan.h"

namespace tarvelin {

/// Keeps the plan as it was behind each edit, so that there can be as many as the user likes.
class EditHistory {
  public:
    /// Begins anew with a plan that has no edits behind it.
    void Begin(PlanSnapshot snapshot);

    /// Takes note of the plan behind an edit. What was taken back before it can't be done again
    /// then. An edit that changed nothing isn't one. `input` names the input that was typed into:
    /// as long as it stays the same, its edits are one. Whether there was an edit.
    bool Record(PlanSnapshot snapshot, std::string_view input = {});

    /// Writes the day of a date in another way, wherever it stands. Edits that differed in that
    /// alone are none.
    void RewriteDay(const StartParameters& before, const StartParameters& after);

    /// How many edits the plan as it stands has behind it.
    [[nodiscard]] std::size_t StepCount() const { return m_current; }

    [[nodiscard]] bool CanUndo() const { return m_current > 0; }
    [[nodiscard]] bool CanRedo() const { return m_current + 1 < m_snapshots.size(); }

    /// The plan before the last edit; there is one.
    [[nodiscard]] const PlanSnapshot& Undo();
    /// The plan behind the edit that was taken back last; there is one.
    [[nodiscard]] const PlanSnapshot& Redo();

  private:
    std::vector<PlanSnapshot> m_snapshots{PlanSnapshot()};
    /// Which of them is the plan as it stands.
    std::size_t m_current = 0;
    /// The input of the last edit; empty if none was typed into, or a step was taken since.
    std::string m_input;
};

}  // namespace tarvelin
