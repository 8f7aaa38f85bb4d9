// The way back over edits of the build list.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarvelin {

/// Keeps of each edit the rows that it took out and put in, so there can be as many as the user
/// likes. Lists are told by the `Tag`s of their rows.
class Listenverlauf {
  public:
    using Tags = std::vector<std::string>;

    /// Takes note of an edit. What was taken back before it can't be done again then. An edit that
    /// changed nothing isn't one.
    void Merke(const Tags& vorher, const Tags& nachher);

    [[nodiscard]] bool HatVorige() const { return m_gegangen > 0; }
    [[nodiscard]] bool HatNaechste() const { return m_gegangen < m_schritte.size(); }

    /// The list before the last edit that `jetzt` came from; there is one.
    [[nodiscard]] Tags Zurueck(Tags jetzt);
    /// The list behind the edit that was taken back last; there is one.
    [[nodiscard]] Tags Vor(Tags jetzt);

    void Leere() { *this = Listenverlauf(); }

  private:
    struct Schritt {
        std::size_t Ab = 0;
        Tags Weg;
        Tags Hinzu;
    };

    std::vector<Schritt> m_schritte;
    /// How many of them the list as it stands has behind it.
    std::size_t m_gegangen = 0;
};

}  // namespace tarvelin
