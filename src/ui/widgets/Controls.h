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
constexpr int Pixel(int twips) {
    constexpr int kTwipsJePixel = 15;
    return (2 * twips + kTwipsJePixel) / (2 * kTwipsJePixel);
}

/// The text of the core, UTF-8, as the toolkit has it.
[[nodiscard]] QString AlsQString(std::string_view text);

/// Paths go to the toolkit and back by their UTF-8, on every platform.
[[nodiscard]] QString Pfadtext(const std::filesystem::path& pfad);
[[nodiscard]] std::filesystem::path AlsPfad(const QString& pfad);

/// Gives a widget its hint. A hint that stands on the screen while the pointer is over the widget
/// changes at once, where the toolkit alone would wait until the pointer rests.
void SetzeHinweis(QWidget& widget, const QString& text);

/// A group with its caption above the frame and room for a second label at that line's end.
class Gruppe : public QGroupBox {
    Q_OBJECT

  public:
    Gruppe(const QString& name, const QString& titel, QWidget* parent);

    /// Puts a label of this group to the right end of the caption's line.
    void SetzeEcke(QLabel* label);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QLabel* m_ecke = nullptr;
};

/// A text input that limits what is typed or pasted, and takes any text from the program. Its
/// signal `textChanged` tells the user's changes alone.
class Eingabe : public QLineEdit {
    Q_OBJECT

  public:
    static constexpr int kUnbegrenzt = 32767;

    Eingabe(const QString& name, const QString& bedeutung, int grenze, QWidget* parent);

    /// Sets a text of any length. Whether it differs from the one before.
    bool Setze(const std::string& neu);
    [[nodiscard]] std::string Text() const { return text().toStdString(); }

  private:
    void BegrenzeAuf(qsizetype stehend);

    int m_grenze;
};

/// A label for figures: what doesn't fit ends in an ellipsis, and the hint has the whole text.
class Zahlenlabel : public QLabel {
    Q_OBJECT

  public:
    Zahlenlabel(const QString& name, QWidget* parent);

    void Setze(const QString& zahl);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// The text as far as it fits.
    [[nodiscard]] QString Gekuerzt() const;
    void FrischeHinweisAuf();
};

/// The order in which Tab goes through controls.
void ReiheAuf(const std::vector<QWidget*>& steuerelemente);

[[nodiscard]] QLabel* NeuesLabel(const QString& name, const QString& text, QWidget* parent);
/// A picture of a fixed size, whatever the size of its file.
[[nodiscard]] QLabel* NeuesBild(const QString& name, const QSize& groesse, const QString& hinweis,
                                QWidget* parent);
/// The small label that explains its group by its hint alone.
[[nodiscard]] QLabel* NeueHoverInfo(const QString& name, const QString& hinweis, QWidget* parent);
/// Enter presses the button that has the focus.
[[nodiscard]] QPushButton* NeuerKnopf(const QString& name, const QString& text, QWidget* parent);
/// A horizontal slider with small steps of 1.
[[nodiscard]] QSlider* NeuerRegler(const QString& name, const QString& bedeutung, int hoechstens,
                                   QWidget* parent);

}  // namespace tarvelin
