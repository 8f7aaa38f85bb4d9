// The strip that says which order comes next.
#pragma once

#include <QLabel>
#include <QWidget>

#include "model/ItemId.h"
#include "simulation/RunTrace.h"

namespace tarvelin {

/// Picture and name, the time until then and the moment; room at the right for what can be done
/// with the order. Its places stay where they are in every state.
class NextOrderStrip : public QWidget {
    Q_OBJECT

  public:
    explicit NextOrderStrip(QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures) { m_pictures = pictures; }
    /// The next order of `trace` at the moment `now`.
    void ShowNext(const std::optional<RunTrace>& trace, DateTime now);
    /// Call it when the palette or the font has changed.
    void FollowAppearance();

  private:
    PerItem<QPixmap> m_pictures;
    QLabel* m_picture;
    QLabel* m_caption;
    QLabel* m_name;
    QLabel* m_remaining;
    QLabel* m_moment;
};

}  // namespace tarvelin
