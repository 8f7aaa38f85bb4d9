// The classic window: shows the document, and passes the user's actions to it.
#pragma once

#include <QAction>
#include <QFrame>
#include <QMainWindow>
#include <QScrollArea>
#include <QTimer>
#include <memory>

#include "document/Document.h"
#include "ui/mainwindow/Alarms.h"
#include "ui/mainwindow/Fra_Einstellungen.h"
#include "ui/mainwindow/Fra_Rest.h"
#include "ui/mainwindow/Fra_Skin.h"
#include "ui/mainwindow/Fra_Sleep.h"
#include "ui/mainwindow/Fra_Special.h"
#include "ui/mainwindow/MenuBar.h"
#include "ui/mainwindow/frmAbout.h"
#include "ui/mainwindow/frmDonate.h"
#include "ui/services/Environment.h"

namespace tarvelin {

class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    /// Both must outlive the window, as must what they refer to.
    frmMain(Document& document, const Environment& environment);

    /// The window's size in pixels, limited to the available size of the screen.
    [[nodiscard]] static QSize SizeOn(const QSize& screen);

    /// Reads the configuration, shows the window and starts the document's session.
    void Form_Load();

    /// Skin and alarms, as the configuration keeps them.
    [[nodiscard]] Configuration::Values Settings() const;
    [[nodiscard]] PerItem<QPixmap> ItemPictures() const { return m_Fra_Rest->ItemPictures(); }
    /// How many seconds before a start the alarm sounds, as typed.
    [[nodiscard]] std::string SecondsBefore() const;

  signals:
    /// The user wants the workbench.
    void mnuWorkbench_Click();
    /// Another skin is shown.
    void SkinChanged();
    /// The window is about to close: the session is to be kept and ended.
    void Closing();
    /// The window has closed; nothing more is written.
    void Closed();

  protected:
    /// Enter presses the default button, unless the focused control handles it.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* target, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void Arrange();
    void FollowScreen();
    void FitToScreen();
    void LoadPictures();
    void ConnectSignals();
    void AddMenus();
    void AddFileMenu();
    void AddInfoMenu();
    QAction* NewMenuEntry(QWidget* menu, const char* name, const char* text);

    void ShowChange(const DocumentChange& change);
    void Form_Unload();
    void WaitUntilExposed();
    void ReadSkin();
    void ShowSkin(Byte mode, const std::string& path);
    void ShowToday();

    void mnu_DateiNeu_Click();
    void mnu_DateiLaden_Click();
    void mnu_Datei_Speichern_Click();
    void mnu_UpdateCheck_Click();
    void mnuAbout_TV_Click();
    void mnu_DOnate_Click();
    void Cmd_ApplySkin_Click();

    void BringToFront(QWidget& panel);
    void Toggle(Panel& panel);
    void mnuEinstellungen_Click();
    void mnu_SpecialEvents_Click();
    void mnuSkin_Click();
    void mnuSleep_Click();

    void Img_MouseMove(const ItemTile& tile);
    void LV_Bauliste_DragDrop(const QString& Source);
    void Cmd_Undo_Click();
    void Cmd_Clear_Click();
    void Cmd_Simulate_Click();

    Document& m_document;
    const Environment& m_environment;
    Configuration m_configuration;
    QTimer m_Tmr_Autosave{this};

    /// Scrolls the surface on a screen that is too small.
    QScrollArea* m_scrollArea;
    QMetaObject::Connection m_screen;
    QWidget* m_surface;
    // In tab order: the panels before the surface that they cover.
    Fra_Einstellungen* m_Fra_Einstellungen;
    Fra_Special* m_Fra_Special;
    Fra_Skin* m_Fra_Skin;
    Fra_Sleep* m_Fra_Sleep;
    Fra_Rest* m_Fra_Rest;
    QFrame* m_TopLine;
    MenuBar* m_menu;
    Alarms* m_alarms;
    /// Windows of their own, created at first use.
    std::unique_ptr<frmAbout> m_frmAbout;
    std::unique_ptr<frmDonate> m_frmDonate;
};

}  // namespace tarvelin
