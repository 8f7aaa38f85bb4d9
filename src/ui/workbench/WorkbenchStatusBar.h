// The status bar: the one place for messages, and the figures of the run.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <initializer_list>
#include <string>

#include "document/Document.h"
#include "ui/look/IconPaths.h"
#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

/// A message covers the request until it is gone; the figures stay where they are.
class WorkbenchStatusBar : public QStatusBar {
    Q_OBJECT

  public:
    /// What the window asks the user to do, with a button that does it.
    struct Request {
        /// Bold, in front of the text.
        QString title;
        QString text;
        QString button;

        friend bool operator==(const Request&, const Request&) = default;
    };

    explicit WorkbenchStatusBar(QWidget* parent);

    /// What the last action has done; empty for nothing. A text that is too long for its place
    /// stands whole in the hint.
    void ShowMessage(const std::string& text);
    /// Why it couldn't be done.
    void ShowRefusal(const QString& what, const std::string& why);
    /// Nothing takes it away.
    void ShowRequest(const std::optional<Request>& request);
    /// Duration with its change by the last step, sittings, points and end.
    void ShowFigures(const Document& document);
    /// Call it when the palette or the font has changed.
    void FollowAppearance();

  signals:
    void RequestAccepted();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    enum class Tone { Info, Refusal, Request };

    void AddFigure(std::initializer_list<QLabel*> parts);
    void Show(Tone tone, const QString& title, const QString& text);
    void ShowOrRequest();
    void Elide();

    Tone m_tone = Tone::Info;
    QString m_title;
    QString m_text;
    std::optional<Request> m_request;
    QFrame* m_place;
    QLabel* m_symbol;
    QLabel* m_titleLabel;
    QLabel* m_message;
    QPushButton* m_button;
    QLabel* m_durationCaption;
    QLabel* m_duration;
    QLabel* m_changeSymbol;
    QLabel* m_change;
    QLabel* m_sittings;
    QLabel* m_points;
    QLabel* m_end;
};

}  // namespace tarvelin
