// The goal of a search, clicked together from pictures or typed; both stay in step.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QWidget>
#include <optional>

#include "model/ItemId.h"
#include "search/GoalText.h"

namespace tarvelin {

/// A picture with the number that is wanted of its item. A click wants one more, a right click or
/// the minus key one less.
class GoalPicture : public QAbstractButton {
    Q_OBJECT

  public:
    GoalPicture(ItemId item, QWidget* parent);

    void SetPicture(const QPixmap& picture);
    void ShowNumber(int number);
    /// The number is that of the last goal, as the text names none.
    void SetPale(bool pale);

    [[nodiscard]] QSize sizeHint() const override;

  signals:
    /// By 1 or -1.
    void NumberWanted(int change);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    ItemId m_item;
    QPixmap m_picture;
    int m_number = 0;
    bool m_pale = false;
};

class GoalPicker : public QWidget {
    Q_OBJECT

  public:
    explicit GoalPicker(QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    /// Call it when the palette or the font has changed.
    void FollowAppearance();
    /// The text as it was typed, for a search to parse.
    [[nodiscard]] std::string Text() const;

  signals:
    void Changed();

  private:
    void AddPictures(QGridLayout& grid);
    void Change(ItemId item, int change);
    /// Shows in the pictures what the text says, or why it says nothing.
    void FollowText();

    PerItem<GoalPicture*> m_pictures{};
    QCheckBox* m_ofPlan;
    QLineEdit* m_text;
    QLabel* m_hint;
    /// The last goal that the text has named; nothing of every item for an empty text.
    Goal m_goal;
    bool m_isWrong = false;
};

}  // namespace tarvelin
