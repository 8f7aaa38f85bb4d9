// Message boxes and file dialogs of Qt.
#pragma once

#include <QDialog>
#include <vector>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Boxes belong to the active window. Texts are never read as markup.
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
    /// The result of a modal dialog; `Rejected` after `CloseAll`.
    int Exec(QDialog& dialog);

    /// The topmost last.
    std::vector<QDialog*> m_open;
    bool m_closed = false;
};

}  // namespace tarvelin
