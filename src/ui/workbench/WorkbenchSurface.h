// What lies in the workbench's window, and how it is arranged.
#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "ui/services/Environment.h"
#include "ui/workbench/ComparisonPage.h"
#include "ui/workbench/ItemPalette.h"
#include "ui/workbench/OrderListView.h"
#include "ui/workbench/SearchPage.h"
#include "ui/workbench/TimelineView.h"

namespace tarvelin {

/// Shows the plan and its run. Editing is the window's business.
class WorkbenchSurface : public QWidget {
    Q_OBJECT

  public:
    /// Both must outlive the surface.
    WorkbenchSurface(Document& document, const Environment& environment, QWidget* parent);

    /// At the right end of the row of buttons.
    QPushButton* AddButton(const QString& name, const QString& caption);

    /// Shows the plan and its run anew, with these rows chosen.
    void ShowPlan(const std::vector<std::size_t>& chosen);
    /// Marks the chosen rows in the timeline, and brings the first into sight.
    void ShowChoice();
    /// Why the last action isn't possible, or what it has done; empty for nothing.
    void ShowNotice(const std::string& text);
    /// Marks this moment, and tells what comes next.
    void ShowNow(DateTime now);
    void SetPictures(const PerItem<QPixmap>& pictures);
    /// Takes over the window's colours and font.
    void FollowDesktop(const QPalette& colors);

    [[nodiscard]] OrderListView& List() const { return *m_list; }
    [[nodiscard]] ItemPalette& Palette() const { return *m_palette; }
    [[nodiscard]] SearchPage& Search() const { return *m_searchPage; }
    [[nodiscard]] TimelineView& Timeline() const { return *m_timeline; }

  private:
    void Arrange();
    QWidget* NewPages();
    void ConnectSignals();
    void SetMessageHeight();
    void ShowFooter();
    void ShowStatusAt(std::optional<SimTime> moment);

    Document& m_document;
    QHBoxLayout* m_buttons;
    QLabel* m_messageLabel;
    OrderListView* m_list;
    QTabWidget* m_pages;
    ItemPalette* m_palette;
    SearchPage* m_searchPage;
    ComparisonPage* m_comparisonPage;
    TimelineView* m_timeline;
    QLabel* m_statusLabel;
    QLabel* m_durationLabel;
    QLabel* m_changeLabel;
    QLabel* m_nextOrderLabel;
    std::vector<QScrollArea*> m_scrollAreas;
};

}  // namespace tarvelin
