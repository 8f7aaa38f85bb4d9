// What the workbench shows for an empty plan: how to begin, openings, recent plans.
#pragma once

#include <QGridLayout>
#include <QPixmap>
#include <QPushButton>
#include <QScrollArea>
#include <filesystem>
#include <vector>

#include "document/Document.h"

namespace tarvelin {

class DropZone;
class OpeningCard;

class StartPage : public QScrollArea {
    Q_OBJECT

  public:
    /// `document` must outlive the page. `openings` is the folder of their plans; one that can't be
    /// run has no card.
    StartPage(const Document& document, const std::filesystem::path& openings, QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    /// Shows the recent files anew.
    void Refresh();

  signals:
    /// The plan of an opening, to be loaded as a new one.
    void OpeningChosen(const std::filesystem::path& file);
    void FileChosen(const std::filesystem::path& file);
    /// The user wants to choose another file.
    void OpenWanted();
    /// The object name of a picture of the palette.
    void PictureDropped(const QString& picture);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Arrange();
    void AddCards(const std::filesystem::path& openings);
    void PlaceCards(int columns);
    void FollowFont();

    const Document& m_document;
    DropZone* m_dropZone;
    QGridLayout* m_cardLayout;
    QBoxLayout* m_linkLayout;
    std::vector<QPushButton*> m_links;
    std::vector<OpeningCard*> m_cards;
    int m_columns = 0;
};

}  // namespace tarvelin
