// The status bar: the one place for messages, and the figures of the run.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <string>

#include "document/Document.h"

namespace tarvelin {

class WorkbenchStatusBar : public QStatusBar {
    Q_OBJECT

  public:
    explicit WorkbenchStatusBar(QWidget* parent);

    /// Why the last action isn't possible, or what it has done; empty for nothing. A text that is
    /// too long for its place stands whole in the hint.
    void ShowMessage(const std::string& text);
    /// Duration with its change by the last step, sittings, points and end.
    void ShowFigures(const Document& document);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Elide();

    QString m_text;
    QLabel* m_message;
    QLabel* m_duration;
    QLabel* m_change;
    QLabel* m_sittings;
    QLabel* m_points;
    QLabel* m_end;
};

}  // namespace tarvelin
