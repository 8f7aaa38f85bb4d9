// The fixture of the window tests: a main window in a scripted environment.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>
#include <QTreeView>
#include <map>

#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "ui/ProgramWindows.h"
#include "ui/mainwindow/BuildListView.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"

namespace tarvelin {

class FakeDialogs final : public Scripted<Dialogs> {
  public:
    std::filesystem::path AskForFile(Purpose /*purpose*/,
                                     const std::filesystem::path& folder) override {
        return file.empty() || closedAll ? std::filesystem::path() : folder / file;
    }
    void CloseAll() override { closedAll = true; }

    /// The answer of file dialogs, relative to their folder; empty to cancel.
    std::filesystem::path file;
};

/// Serves the files of a table, and records the addresses asked for.
class FakeFetcher final : public Fetcher {
  public:
    std::optional<std::string> Fetch(const std::string& address) override {
        addresses.push_back(address);
        if (onFetch) {
            onFetch();
        }
        const auto file = files.find(address);
        return file == files.end() ? std::nullopt : std::optional(file->second);
    }
    void ProcessEvents() override {}
    void Abort() override { ++aborted; }

    std::function<void()> onFetch;
    int aborted = 0;

    std::map<std::string, std::string> files;
    std::vector<std::string> addresses;
};

class FakeSound final : public Sound {
  public:
    void Play(const std::filesystem::path& file) override { played.push_back(file); }

    std::vector<std::filesystem::path> played;
};

/// Moves the pointer over a control, wherever the screen's own pointer is.
inline void MoveMouse(QWidget& widget, const QPoint& position) {
    QMouseEvent movement(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton,
                         {}, {});
    QCoreApplication::sendEvent(&widget, &movement);
}

inline void CreateData(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    // Without the dot, one standard library copies nothing to a path that ends with a slash.
    fs::copy(fs::path(TARVELIN_SOURCE_DIR) / "data", folder / ".",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    fs::remove(folder / "saves" / "basic.tvf");
}

/// The control of this name in a window.
template <class T = QWidget>
T& FindIn(const QWidget& window, const char* name) {
    T* const found = window.findChild<T*>(QString::fromUtf8(name));
    if (found == nullptr) {
        throw std::out_of_range(name);
    }
    return *found;
}

/// The one window of this name.
inline QWidget& OnlyWindow(const char* name) {
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([&](const QWidget* w) { return w->objectName() != ToQString(name); });
    EXPECT_EQ(windows.size(), 1) << name;
    return *windows.front();
}

inline std::string CellText(const QTreeView& list, int row, int column) {
    return list.model()->index(row, column).data().toString().toStdString();
}

inline QRect RowRect(const QTreeView& list, int row) {
    return list.visualRect(list.model()->index(row, 0));
}

inline bool ShowsRow(const QTreeView& list, int row) {
    return list.viewport()->rect().contains(RowRect(list, row));
}

/// The main window on Saturday, 18 November 2006, in a folder of its own with the data of the
/// repository except the starter plan.
class MainWindow : public testing::Test {
  protected:
    MainWindow() {
        CreateData(m_folder / "");
        m_window.Form_Load();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    template <class T = QWidget>
    T& Find(const char* name) {
        return FindIn<T>(m_window, name);
    }
    std::string TextOf(const char* name) {
        return Find(name).property("text").toString().toStdString();
    }
    void Press(const char* name) { Find<QAbstractButton>(name).click(); }
    void Choose(const char* entry) { Find<QAction>(entry).trigger(); }
    void Type(const char* name, const char* text) {
        auto& input = Find<QLineEdit>(name);
        input.selectAll();
        QTest::keyClick(&input, Qt::Key_Delete);
        QTest::keyClicks(&input, QString::fromUtf8(text));
    }
    /// Moves the pointer over a picture.
    void Show(const char* picture) { MoveMouse(Find(picture), {1, 1}); }
    std::string Cell(const char* list, int row, int column) {
        return CellText(Find<QTreeView>(list), row, column);
    }
    int RowCount(const char* list) { return Find<QTreeView>(list).model()->rowCount(); }
    void ShowPanels() {
        for (const char* const panel : kPanels) {
            Find(panel).show();
        }
    }
    void Drop(std::string_view picture) {
        emit Find<BuildListView>("LV_Bauliste").DragDrop(ToQString(picture));
    }
    /// Clears the list and drops the items with these codes, separated by blanks.
    void Load(std::string_view codes) {
        Press("Cmd_Clear");
        const Plan plan = PlanOf(codes);
        for (const Order& order : plan.LV_Bauliste.Orders().All()) {
            Drop(ItemDisplays()[order.item].pictureName);
        }
    }
    /// Loads a plan from a file, which also runs it.
    void Load(const Plan& plan) {
        ASSERT_TRUE(SaveBauliste(m_folder / "plan.tvf", plan));
        m_document.LoadBauliste(m_folder / "plan.tvf", true);
    }

    static constexpr const char* kPanels[] = {"Fra_Einstellungen", "Fra_Special", "Fra_Skin",
                                              "Fra_Sleep"};

    TempFolder m_folder;
    FakeDialogs m_dialogs;
    FakeFetcher m_fetcher;
    FakeSound m_sound;
    DateTime m_now = *ParseDateTime("18.11.2006 09:15:00");
    std::vector<std::string> m_pages;
    Environment m_environment{.dialogs = m_dialogs,
                              .fetcher = m_fetcher,
                              .sound = m_sound,
                              .now = [this] { return m_now; },
                              .openPage = [this](const std::string& s) { m_pages.push_back(s); },
                              .programFolder = m_folder / ""};
    ProgramWindows m_program{m_environment};
    Document& m_document = m_program.PlanDocument();
    frmMain& m_window = m_program.MainWindow();
};

}  // namespace tarvelin
