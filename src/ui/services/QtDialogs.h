// The real message boxes.
#pragma once

#include <QDialog>
#include <vector>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Boxes stand over the window that is active. Texts are shown as they are, never read as markup.
class Meldungsfenster final : public Dialoge {
  public:
    void Show(const Message& meldung) override;
    [[nodiscard]] bool ZeigeAbstellbar(const Message& meldung) override;
    void Beep() override;
    [[nodiscard]] bool Stelle(const Frage& frage) override;
    [[nodiscard]] std::filesystem::path FragNachDatei(Zweck zweck,
                                                      const std::filesystem::path& ordner) override;
    void Beende() override;

  private:
    /// The answer of a modal dialog; that of its close button when nothing is opened any more.
    int Oeffne(QDialog& dialog);

    /// The innermost last.
    std::vector<QDialog*> m_offene;
    bool m_beendet = false;
};

}  // namespace tarvelin
