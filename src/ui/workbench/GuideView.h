// The guide as a text to read: built into the program, in the workbench's colors.
#pragma once

#include <QImage>
#include <QTextBrowser>
#include <QTextCharFormat>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

/// Links to its own headings lead there; all other links are plain text, as their targets are not
/// built in.
class GuideView : public QTextBrowser {
    Q_OBJECT

  public:
    struct Heading {
        QString text;
        /// From 1, the title.
        int level = 1;
        /// Of its first character in the text.
        int position = 0;
    };
    enum class Search : std::uint8_t { FromHere, Next, Previous };

    explicit GuideView(QWidget* parent);

    /// Takes over the colors that go with this palette, and the font of the running text.
    void SetAppearance(const QPalette& palette, const QFont& font);

    /// In the sequence of the text.
    [[nodiscard]] const std::vector<Heading>& Headings() const { return m_headings; }
    /// The last heading at or above the upper edge; 0 if none is.
    [[nodiscard]] std::size_t HeadingInSight() const;
    /// Brings a heading to the upper edge. `index` counts in `Headings`.
    void ShowHeading(std::size_t index);

    /// Chooses the next place with this text and brings it into sight, beyond the end from the
    /// other end. Case doesn't matter. `FromHere` keeps the chosen place if it has the text. False,
    /// with nothing chosen, if there is none.
    bool FindText(const QString& text, Search search);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Picture {
        int position = 0;
        QString name;
        QImage image;
    };
    /// A stretch of the text that looks alike.
    struct Piece {
        int position = 0;
        int length = 0;
        QTextCharFormat format;
    };

    void Build();
    void StyleTables();
    void StyleBlocks();
    [[nodiscard]] QTextCharFormat Styled(QTextCharFormat format, int headingLevel) const;
    void FitPictures();
    void ScrollTo(int position);
    void FollowLink(const QUrl& link);

    WorkbenchColors m_colors;
    std::vector<Heading> m_headings;
    std::vector<Picture> m_pictures;
};

}  // namespace tarvelin
