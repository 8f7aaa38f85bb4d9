// The window with the guide: its headings at the left, a search above it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QWidget>
#include <vector>

#include "ui/workbench/GuideView.h"

namespace tarvelin {

class HelpWindow : public QWidget {
    Q_OBJECT

  public:
    /// A window of its own, which doesn't keep the program alive.
    explicit HelpWindow(QWidget* parent);

    /// Opens the window or brings it to the front, at this heading; at the top if the guide has
    /// none of this name.
    void OpenAt(const QString& heading);
    /// Takes over the colors that go with this palette, and the font of the running text.
    void SetAppearance(const QPalette& palette, const QFont& font);

  private:
    void Arrange();
    QWidget* NewSearchBar();
    void AddHeadings();
    void AddShortcuts();
    void ShowHeading(std::size_t index);
    void MarkHeadingInSight();
    void Find(GuideView::Search search);

    GuideView* m_guide;
    QTreeWidget* m_headings;
    QLineEdit* m_search;
    QLabel* m_notFound;
    /// One for each heading of the guide.
    std::vector<QTreeWidgetItem*> m_items;
    /// Whether the text moves because a heading was chosen.
    bool m_jumps = false;
};

}  // namespace tarvelin
