// What the panels and groups of the window are put together from.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QString>
#include <filesystem>
#include <string_view>
#include <vector>

namespace tarvelin {

/// Twips are fifteenths of a pixel; the nearest whole one.
constexpr int TwipsToPixels(int twips) {
    constexpr int kTwipsPerPixel = 15;
    return (2 * twips + kTwipsPerPixel) / (2 * kTwipsPerPixel);
}

/// The text of the core, UTF-8, as the toolkit has it.
[[nodiscard]] QString ToQString(std::string_view text);

/// Paths go to the toolkit and back by their UTF-8, on every platform.
[[nodiscard]] QString PathToQString(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path ToPath(const QString& path);

/// Gives a widget its hint. A hint that stands on the screen while the pointer is over the widget
/// changes at once, where the toolkit alone would wait until the pointer rests.
void SetHint(QWidget& widget, const QString& text);

/// A group with its caption above the frame and room for a second label at that line's end.
class GroupBox : public QGroupBox {
    Q_OBJECT

  public:
    GroupBox(const QString& name, const QString& title, QWidget* parent);

    /// Puts a label of this group to the right end of the caption's line.
    void SetCornerLabel(QLabel* label);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QLabel* m_corner = nullptr;
};

/// A text input that limits what is typed or pasted, and takes any text from the program. Its
/// signal `textChanged` tells the user's changes alone.
class TextInput : public QLineEdit {
    Q_OBJECT

  public:
    static constexpr int kUnlimited = 32767;

    TextInput(const QString& name, const QString& accessibleName, int limit, QWidget* parent);

    /// Sets a text of any length. Whether it differs from the one before.
    bool Assign(const std::string& value);
    [[nodiscard]] std::string Utf8() const { return text().toStdString(); }

  private:
    void LimitTo(qsizetype length);

    int m_limit;
};

/// A label for figures: what doesn't fit ends in an ellipsis, and the hint has the whole text.
class NumberLabel : public QLabel {
    Q_OBJECT

  public:
    NumberLabel(const QString& name, QWidget* parent);

    void Assign(const QString& number);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// The text as far as it fits.
    [[nodiscard]] QString Elided() const;
    void RefreshHint();
};

/// The order in which Tab goes through controls.
void ChainTabOrder(const std::vector<QWidget*>& controls);

[[nodiscard]] QLabel* NewLabel(const QString& name, const QString& text, QWidget* parent);
/// A picture of a fixed size, whatever the size of its file.
[[nodiscard]] QLabel* NewPicture(const QString& name, const QSize& size, const QString& hint,
                                 QWidget* parent);
/// The small label that explains its group by its hint alone.
[[nodiscard]] QLabel* NewHoverInfo(const QString& name, const QString& hint, QWidget* parent);
/// Enter presses the button that has the focus.
[[nodiscard]] QPushButton* NewButton(const QString& name, const QString& text, QWidget* parent);
/// A horizontal slider with small steps of 1.
[[nodiscard]] QSlider* NewSlider(const QString& name, const QString& accessibleName, int max,
                                 QWidget* parent);

}  // namespace tarvelin
