// The real message boxes.
#pragma once

#include <QMessageBox>

#include "ui/Umgebung.h"

namespace tarvelin {

/// Boxes stand over the window that is active. Texts are shown as they are, never read as markup.
class Meldungsfenster final : public Dialoge {
  public:
    void Zeige(const Meldung& meldung) override;
    void Piepton() override;
    [[nodiscard]] bool Stelle(const Frage& frage) override;
    [[nodiscard]] std::filesystem::path FragNachDatei(Zweck zweck,
                                                      const std::filesystem::path& ordner) override;
};

}  // namespace tarvelin
