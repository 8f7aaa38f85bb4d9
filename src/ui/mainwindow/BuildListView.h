// `LV_Bauliste` on the screen, which takes drops.
#pragma once

#include "ui/widgets/ListView.h"

namespace tarvelin {

/// Accepts drags of this window's item pictures only.
class BuildListView : public ListView {
    Q_OBJECT

  public:
    explicit BuildListView(QWidget* parent);

  signals:
    /// `Source` is the object name of the dropped item picture.
    void DragDrop(const QString& Source);

  protected:
    bool event(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

}  // namespace tarvelin
