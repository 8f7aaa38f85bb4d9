// What lies in the workbench's window, and how it is arranged.
#pragma once

#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "ui/services/Environment.h"
#include "ui/timeline/TimelineView.h"
#include "ui/workbench/ComparisonPage.h"
#include "ui/workbench/ItemPalette.h"
#include "ui/workbench/NextOrderStrip.h"
#include "ui/workbench/OrderListView.h"
#include "ui/workbench/PlanetPage.h"
#include "ui/workbench/SearchPage.h"
#include "ui/workbench/SleepPage.h"
#include "ui/workbench/StartPage.h"

namespace tarvelin {

/// Shows the plan and its run. Editing is the window's business.
class WorkbenchSurface : public QWidget {
    Q_OBJECT

  public:
    /// Both must outlive the surface.
    WorkbenchSurface(Document& document, const Environment& environment, QWidget* parent);

    /// Shows the plan and its run anew, with these rows chosen and the next row going in front of
    /// `insertBefore`.
    void ShowPlan(const std::vector<std::size_t>& chosen, std::optional<std::size_t> insertBefore);
    /// Shows the start parameters.
    void ShowConditions() { m_planetPage->Refresh(); }
    /// Marks the chosen rows in the timeline, and brings the first into sight.
    void ShowChoice();
    /// Marks rows in list and timeline.
    void ShowMarks(const OrderMarks& marks);
    /// Marks this moment, and tells what comes next.
    void ShowNow(DateTime now);
    void SetPictures(const PerItem<QPixmap>& pictures);
    /// Takes over the window's colors and font.
    void FollowDesktop(const WorkbenchColors& colors);

    [[nodiscard]] OrderListView& List() const { return *m_list; }
    [[nodiscard]] ItemPalette& Palette() const { return *m_palette; }
    [[nodiscard]] SearchPage& Search() const { return *m_searchPage; }
    [[nodiscard]] SleepPage& Sleep() const { return *m_sleepPage; }
    [[nodiscard]] StartPage& Start() const { return *m_startPage; }
    [[nodiscard]] TimelineView& Timeline() const { return *m_timeline; }
    /// Brings a page to the front, with the focus in it.
    void ShowPage(int index);
    static constexpr int kSearchPage = 1;
    static constexpr int kComparisonPage = 2;
    [[nodiscard]] const QWidget* CurrentPage() const;
    /// The pages at the right.
    [[nodiscard]] QTabWidget& Pages() const { return *m_pages; }

  signals:
    /// Why the last action isn't possible, or what it has done; empty for nothing.
    void Notice(const std::string& text);

  private:
    void Arrange();
    QWidget* NewPages();
    void ConnectSignals();
    /// Tells screen readers what goes on at a moment.
    void DescribeMoment(std::optional<SimTime> moment);
    void ShowOtherRuns();
    void ShowProposedNights();

    Document& m_document;
    NextOrderStrip* m_strip;
    OrderListView* m_list;
    QTabWidget* m_pages;
    ItemPalette* m_palette;
    SearchPage* m_searchPage;
    ComparisonPage* m_comparisonPage;
    SleepPage* m_sleepPage;
    PlanetPage* m_planetPage;
    TimelineView* m_timeline;
    StartPage* m_startPage;
    /// The list and the timeline, or how to begin.
    QStackedWidget* m_stack;
    std::vector<QScrollArea*> m_scrollAreas;
};

}  // namespace tarvelin
