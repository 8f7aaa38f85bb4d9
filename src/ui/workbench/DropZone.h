// Where the first picture of a plan can be dropped.
#pragma once

#include <QLabel>
#include <QPixmap>

#include "model/ItemId.h"

namespace tarvelin {

class DropZone : public QWidget {
    Q_OBJECT

  public:
    explicit DropZone(QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);

  signals:
    /// The object name of a picture of the palette.
    void Dropped(const QString& picture);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void SetPointedAt(bool pointedAt);

    QLabel* m_mine;
    QLabel* m_plant;
    bool m_pointedAt = false;
};

}  // namespace tarvelin
