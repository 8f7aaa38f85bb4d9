// The real message boxes.
#pragma once

#include <QDialog>
#include <vector>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Boxes stand over the window that is active. Texts are shown as they are, never read as markup.
class QtDialogs final : public Dialogs {
  public:
    void Show(const Message& message) override;
    [[nodiscard]] bool ShowSuppressible(const Message& message) override;
    void Beep() override;
    [[nodiscard]] bool Ask(const Question& question) override;
    [[nodiscard]] std::filesystem::path AskForFile(Purpose purpose,
                                                   const std::filesystem::path& folder) override;
    void CloseAll() override;

  private:
    /// The answer of a modal dialog; that of its close button when nothing is opened any more.
    int Exec(QDialog& dialog);

    /// The innermost last.
    std::vector<QDialog*> m_open;
    bool m_closed = false;
};

}  // namespace tarvelin
