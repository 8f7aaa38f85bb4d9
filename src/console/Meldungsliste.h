// Messages on the error stream of the console, kept for its JSON.
#pragma once

#include <ostream>
#include <vector>

#include "util/Meldung.h"

namespace tarvelin {

/// Writes each message as "Titel: Text", or the text alone without a title, and keeps it.
class Meldungsliste final : public Meldungsausgabe {
  public:
    explicit Meldungsliste(std::ostream& strom) : m_strom(strom) {}

    void Zeige(const Meldung& meldung) override;
    void Piepton() override {}

    [[nodiscard]] const std::vector<Meldung>& Meldungen() const { return m_meldungen; }

  private:
    std::ostream& m_strom;
    std::vector<Meldung> m_meldungen;
};

}  // namespace tarvelin
