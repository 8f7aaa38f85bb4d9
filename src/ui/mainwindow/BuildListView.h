// `LV_Bauliste` on the screen: rows come in by a drop.
#pragma once

#include "ui/widgets/ListView.h"

namespace tarvelin {

/// Takes drags of this window's item pictures and no others.
class BuildListView : public ListView {
    Q_OBJECT

  public:
    explicit BuildListView(QWidget* parent);

  signals:
    /// An item picture was dropped, told by its name.
    void DragDrop(const QString& Source);

  protected:
    bool event(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

}  // namespace tarvelin
