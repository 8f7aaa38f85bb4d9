// The way back over edits of the plan.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "plan/Plan.h"

namespace tarvelin {

/// Keeps the plan as it was behind each edit, so that there can be as many as the user likes.
class Listenverlauf {
  public:
    /// Begins anew with a plan that has no edits behind it.
    void Beginne(Planstand stand);

    /// Takes note of the plan behind an edit. What was taken back before it can't be done again
    /// then. An edit that changed nothing isn't one. `eingabe` names the input that was typed into:
    /// as long as it stays the same, its edits are one. Whether there was an edit.
    bool Merke(Planstand stand, std::string_view eingabe = {});

    /// Writes the day of a date in another way, wherever it stands. Edits that differed in that
    /// alone are none.
    void SchreibeTagUm(const Startparameter& vorher, const Startparameter& nachher);

    /// How many edits the plan as it stands has behind it.
    [[nodiscard]] std::size_t Schritte() const { return m_jetzt; }

    [[nodiscard]] bool HatVorige() const { return m_jetzt > 0; }
    [[nodiscard]] bool HatNaechste() const { return m_jetzt + 1 < m_staende.size(); }

    /// The plan before the last edit; there is one.
    [[nodiscard]] const Planstand& Zurueck();
    /// The plan behind the edit that was taken back last; there is one.
    [[nodiscard]] const Planstand& Vor();

  private:
    std::vector<Planstand> m_staende{Planstand()};
    /// Which of them is the plan as it stands.
    std::size_t m_jetzt = 0;
    /// The input of the last edit; empty if none was typed into, or a step was taken since.
    std::string m_eingabe;
};

}  // namespace tarvelin
