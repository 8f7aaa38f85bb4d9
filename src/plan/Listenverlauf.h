// The way back over edits of the build list.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "plan/Schlaftabelle.h"

namespace tarvelin {

/// Keeps of each edit the rows that it took out and put in, so there can be as many as the user
/// likes. Lists are told by the `Tag`s of their rows.
class Listenverlauf {
  public:
    using Tags = std::vector<std::string>;

    /// A list as it is to be, and the sleep row that came or goes with it, if there is one.
    struct Stand {
        Tags Zeilen;
        std::optional<SchlafzeitZeile> Pause;
    };

    /// Takes note of an edit. What was taken back before it can't be done again then. An edit that
    /// changed nothing isn't one.
    void Merke(const Tags& vorher, const Tags& nachher,
               const std::optional<SchlafzeitZeile>& pause = {});

    [[nodiscard]] bool HatVorige() const { return m_gegangen > 0; }
    [[nodiscard]] bool HatNaechste() const { return m_gegangen < m_schritte.size(); }

    /// What was before the last edit that `jetzt` came from, and the pause that goes; there is one.
    [[nodiscard]] Stand Zurueck(Tags jetzt);
    /// What was behind the edit that was taken back last, and the pause that comes; there is one.
    [[nodiscard]] Stand Vor(Tags jetzt);

    void Leere() { *this = Listenverlauf(); }

  private:
    struct Schritt {
        std::size_t Ab = 0;
        Tags Weg;
        Tags Hinzu;
        std::optional<SchlafzeitZeile> Pause;
    };

    std::vector<Schritt> m_schritte;
    /// How many of them the list as it stands has behind it.
    std::size_t m_gegangen = 0;
};

}  // namespace tarvelin
