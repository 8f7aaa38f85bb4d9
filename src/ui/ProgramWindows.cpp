// Carries out what the windows wish of each other.
#include "ui/ProgramWindows.h"

namespace tarvelin {

ProgramWindows::ProgramWindows(const Environment& environment)
    : m_environment(environment),
      m_document(environment.dialogs, environment.now, environment.programFolder,
                 environment.files),
      m_mainWindow(m_document, environment) {
    connect(&m_mainWindow, &frmMain::mnuWorkbench_Click, this, &ProgramWindows::OpenWorkbench);
    connect(&m_mainWindow, &frmMain::SkinChanged, this, &ProgramWindows::ShowSkin);
    connect(&m_mainWindow, &frmMain::Closing, this, &ProgramWindows::EndSession);
    connect(&m_mainWindow, &frmMain::Closed, this, &ProgramWindows::Closed);
}

void ProgramWindows::OpenWorkbench() {
    if (!m_workbench) {
        m_workbench = std::make_unique<Workbench>(
            m_document, [this] { return m_mainWindow.SecondsBefore(); }, m_environment);
        ShowSkin();
    }
    m_workbench->OpenWindow(Configuration(m_environment.programFolder, m_environment.files));
}

void ProgramWindows::ShowSkin() {
    if (m_workbench) {
        m_workbench->SetPictures(m_mainWindow.ItemPictures());
    }
}

Configuration::Values ProgramWindows::Settings() const {
    Configuration::Values settings = m_mainWindow.Settings();
    const auto append = [&](const Configuration::Values& more) {
        settings.insert(settings.end(), more.begin(), more.end());
    };
    append(m_document.ConfigurationValues());
    if (m_workbench) {
        append(m_workbench->Settings());
    }
    return settings;
}

void ProgramWindows::SaveNow() {
    m_document.Keep(Settings());
}

void ProgramWindows::EndSession() {
    m_document.Close(Settings());
    if (m_workbench) {
        m_workbench->hide();
    }
}

}  // namespace tarvelin
