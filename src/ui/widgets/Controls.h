// Basic controls and helpers that all windows are built from.
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

/// A twip is a fifteenth of a pixel. Rounds to the nearest pixel.
constexpr int TwipsToPixels(int twips) {
    constexpr int kTwipsPerPixel = 15;
    return (2 * twips + kTwipsPerPixel) / (2 * kTwipsPerPixel);
}

/// From UTF-8.
[[nodiscard]] QString ToQString(std::string_view text);

/// Paths are converted by way of UTF-8 on every platform.
[[nodiscard]] QString PathToQString(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path ToPath(const QString& path);

/// Sets a widget's tooltip. If it is on the screen it changes at once; the toolkit alone would wait
/// until the pointer rests again.
void SetHint(QWidget& widget, const QString& text);

/// A group box with its caption above the frame and room for a second label at the right of it.
class GroupBox : public QGroupBox {
    Q_OBJECT

  public:
    GroupBox(const QString& name, const QString& title, QWidget* parent);

    /// Places a child label at the right end of the caption's line.
    void SetCornerLabel(QLabel* label);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QLabel* m_corner = nullptr;
};

/// A line edit that limits the length of what is typed or pasted, but not of what the program sets.
/// `textChanged` is emitted for the user's changes only.
class TextInput : public QLineEdit {
    Q_OBJECT

  public:
    static constexpr int kUnlimited = 32767;

    TextInput(const QString& name, const QString& accessibleName, int limit, QWidget* parent);

    /// Sets a text of any length, without a signal. Returns whether the text has changed.
    bool Assign(const std::string& value);
    [[nodiscard]] std::string Utf8() const { return text().toStdString(); }

  private:
    void LimitTo(qsizetype length);

    int m_limit;
};

/// A label for a number. If it doesn't fit it ends in an ellipsis and its tooltip has the whole
/// text.
class NumberLabel : public QLabel {
    Q_OBJECT

  public:
    NumberLabel(const QString& name, QWidget* parent);

    void Assign(const QString& number);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QString Elided() const;
    void RefreshHint();
};

/// Makes Tab go through the controls in this order.
void ChainTabOrder(const std::vector<QWidget*>& controls);

[[nodiscard]] QLabel* NewLabel(const QString& name, const QString& text, QWidget* parent);
/// A label of fixed size that scales its picture.
[[nodiscard]] QLabel* NewPicture(const QString& name, const QSize& size, const QString& hint,
                                 QWidget* parent);
/// The small label "HoverInfo" whose tooltip explains its group.
[[nodiscard]] QLabel* NewHoverInfo(const QString& name, const QString& hint, QWidget* parent);
/// A button that Enter presses while it has the focus.
[[nodiscard]] QPushButton* NewButton(const QString& name, const QString& text, QWidget* parent);
/// A horizontal slider from 0 to `max`.
[[nodiscard]] QSlider* NewSlider(const QString& name, const QString& accessibleName, int max,
                                 QWidget* parent);

}  // namespace tarvelin
