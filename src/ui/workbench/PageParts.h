// Small parts that the workbench's pages share.
#pragma once

#include <QDateTime>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "ui/look/TypeSizes.h"
#include "util/DateTime.h"

namespace tarvelin {

/// Margins of a page and spaces between its parts, in pixels.
inline constexpr int kPageMargin = 12;
inline constexpr int kControlGap = 8;
inline constexpr int kSectionGap = 16;
/// Height of the rows of a table.
inline constexpr int kTableRow = 20;

/// A caption with a line to the right edge.
[[nodiscard]] QWidget* NewSection(const QString& caption, QWidget* parent);

/// A text of another size or weight than the window's.
class TypeLabel : public QLabel {
    Q_OBJECT

  public:
    TypeLabel(const QString& text, TypeSize size, bool bold, QWidget* parent)
        : QLabel(text, parent), m_size(size), m_bold(bold) {}

    /// Call it when the window's font has changed.
    void FollowFont(const QFont& usual) { setFont(TypeFont(usual, m_size, m_bold)); }

  private:
    TypeSize m_size;
    bool m_bold;
};

/// One that wraps.
[[nodiscard]] TypeLabel* NewTypeLabel(const QString& text, TypeSize size, bool bold,
                                      QWidget* parent);

/// A weak text of several lines.
[[nodiscard]] QLabel* NewHint(const QString& text, QWidget* parent);

/// The button for what a page is there for, in the accent's color.
class MainButton : public QPushButton {
    Q_OBJECT

  public:
    using QPushButton::QPushButton;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void FollowAppearance();
};

[[nodiscard]] QDateTime ToQDateTime(DateTime time);

/// An input with a name for screen readers.
template <class T>
T* NewInput(const char* name, const char* accessibleName, QWidget* parent) {
    auto* const input = new T(parent);
    input->setObjectName(QString::fromLatin1(name));
    input->setAccessibleName(QString::fromUtf8(accessibleName));
    return input;
}

}  // namespace tarvelin
