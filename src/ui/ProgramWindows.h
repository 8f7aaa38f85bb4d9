// The document and the windows over it.
#pragma once

#include <QObject>
#include <memory>

#include "document/Document.h"
#include "ui/mainwindow/frmMain.h"
#include "ui/services/Environment.h"
#include "ui/workbench/Workbench.h"

namespace tarvelin {

/// The windows know the document, and nothing of each other: what one wishes of the other goes
/// through here.
class ProgramWindows : public QObject {
    Q_OBJECT

  public:
    /// `environment` must outlive it, as must what it refers to.
    explicit ProgramWindows(const Environment& environment);

    [[nodiscard]] Document& PlanDocument() { return m_document; }
    [[nodiscard]] frmMain& MainWindow() { return m_mainWindow; }

    void Start() { m_mainWindow.Form_Load(); }
    /// Keeps what outlasts the session, which goes on.
    void SaveNow();
    /// Closes the main window, which ends the session.
    void Close() { m_mainWindow.close(); }

  signals:
    /// The main window has closed; nothing more is written.
    void Closed();

  private:
    void OpenWorkbench();
    void ShowSkin();
    void EndSession();
    /// All that the configuration keeps.
    [[nodiscard]] Configuration::Values Settings() const;

    const Environment& m_environment;
    Document m_document;
    frmMain m_mainWindow;
    /// Created at first use.
    std::unique_ptr<Workbench> m_workbench;
};

}  // namespace tarvelin
