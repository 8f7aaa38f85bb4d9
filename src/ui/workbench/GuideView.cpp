// Reads the guide, gives it its look, scales its pictures.
#include "ui/workbench/GuideView.h"

#include <QFile>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <array>

namespace tarvelin {

namespace {

/// In pixels.
constexpr int kMargin = 16;
constexpr int kCellPadding = 4;
constexpr int kSpacing = 8;

QString ReadGuide() {
    QFile file(QStringLiteral(":/anleitung/ANLEITUNG.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The name by which links of Markdown find a heading: small letters, with hyphens for blanks and
/// without other signs.
QString LinkName(const QString& heading) {
    QString name;
    for (const QChar sign : heading.toLower()) {
        if (sign.isLetterOrNumber() || sign == QLatin1Char('-')) {
            name += sign;
        } else if (sign.isSpace()) {
            name += QLatin1Char('-');
        }
    }
    return name;
}

/// Sets the size of a text to a multiple of that of a font, whose size may be in points or pixels.
void SetSize(QTextCharFormat& format, const QFont& font, qreal factor) {
    format.clearProperty(QTextFormat::FontSizeAdjustment);
    format.clearProperty(QTextFormat::FontPointSize);
    if (font.pixelSize() > 0) {
        format.setProperty(QTextFormat::FontPixelSize, qRound(font.pixelSize() * factor));
    } else {
        format.setFontPointSize(font.pointSizeF() * factor);
    }
}

/// Tables without a header have an empty one, as Markdown knows no others.
void RemoveEmptyHeader(QTextTable& table) {
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(0, column);
        if (cell.firstPosition() != cell.lastPosition()) {
            return;
        }
    }
    table.removeRows(0, 1);
}

std::vector<QTextTable*> TablesOf(const QTextDocument& document) {
    std::vector<QTextTable*> tables;
    for (QTextFrame* const frame : document.rootFrame()->childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(frame)) {
            tables.push_back(table);
        }
    }
    return tables;
}

/// Gives a block its line height, and room around it unless it stands in a table.
void SpaceOut(const QTextBlock& block) {
    constexpr int kLineHeight = 120;
    QTextCursor cursor(block);
    QTextBlockFormat format = block.blockFormat();
    const bool isHeading = format.headingLevel() > 0;
    const bool inTable = cursor.currentTable() != nullptr;
    const bool inList = block.textList() != nullptr;
    if (!block.text().contains(QChar::ObjectReplacementCharacter)) {
        format.setLineHeight(kLineHeight, QTextBlockFormat::ProportionalHeight);
    }
    format.setNonBreakableLines(false);
    format.setTopMargin(isHeading ? kMargin : 0);
    format.setBottomMargin(inTable ? 0 : isHeading || inList ? kSpacing / 2 : kSpacing);
    cursor.setBlockFormat(format);
}

QTextCursor Select(QTextDocument& document, int position, int length) {
    QTextCursor cursor(&document);
    cursor.setPosition(position);
    cursor.setPosition(position + length, QTextCursor::KeepAnchor);
    return cursor;
}

}  // namespace

GuideView::GuideView(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("Anleitung"));
    setAccessibleName(QStringLiteral("Anleitung"));
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    // Else the width would depend on the height, and that on the width.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    connect(this, &QTextBrowser::anchorClicked, this, &GuideView::FollowLink);
    Build();
}

void GuideView::SetAppearance(const QPalette& palette, const QFont& font) {
    m_colors = ColorsFor(palette);
    setPalette(m_colors.Palette());
    setFont(font);
    const int first = cursorForPosition(QPoint(0, 0)).position();
    Build();
    ScrollTo(first);
}

void GuideView::Build() {
    setMarkdown(ReadGuide());
    document()->setDocumentMargin(kMargin);
    StyleTables();
    StyleBlocks();
    FitPictures();
}

void GuideView::StyleTables() {
    for (QTextTable* const table : TablesOf(*document())) {
        RemoveEmptyHeader(*table);
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderBrush(m_colors[Color::LineStrong]);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderCollapse(true);
        format.setCellSpacing(0);
        format.setCellPadding(kCellPadding);
        format.setTopMargin(kSpacing);
        format.setBottomMargin(kSpacing);
        table->setFormat(format);
    }
}

// Formats are changed afterwards, as that would invalidate the pieces.
void GuideView::StyleBlocks() {
    m_headings.clear();
    m_pictures.clear();
    std::vector<Piece> pieces;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level > 0) {
            m_headings.push_back({block.text(), level, block.position()});
        }
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextFragment text = piece.fragment();
            const QTextImageFormat image = text.charFormat().toImageFormat();
            if (image.isValid()) {
                m_pictures.push_back({text.position(), image.name(),
                                      QImage(QStringLiteral(":/anleitung/") + image.name())});
            } else {
                pieces.push_back({text.position(), text.length(), text.charFormat()});
            }
        }
    }
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        SpaceOut(block);
    }
    for (const Piece& piece : pieces) {
        QTextCursor cursor = Select(*document(), piece.position, piece.length);
        cursor.setCharFormat(Styled(piece.format, cursor.blockFormat().headingLevel()));
    }
}

QTextCharFormat GuideView::Styled(QTextCharFormat format, int headingLevel) const {
    // Title, chapters, parts of them; and the running text, 9 points on most desktops.
    constexpr std::array kPoints{9, 14, 11, 9};
    constexpr qreal kUsual = 9;
    const auto level = std::min(static_cast<std::size_t>(headingLevel), kPoints.size() - 1);
    // Letters of one width look larger than others.
    constexpr qreal kFixedPitch = 0.92;
    SetSize(format, font(), kPoints[level] / kUsual * (format.fontFixedPitch() ? kFixedPitch : 1));
    if (format.fontFixedPitch()) {
        format.setBackground(m_colors[Color::Lane]);
    }
    if (format.isAnchor()) {
        const QString target = format.anchorHref();
        const bool inside = std::ranges::any_of(m_headings, [&](const Heading& heading) {
            return target == QLatin1Char('#') + LinkName(heading.text);
        });
        if (!inside) {
            format.setAnchor(false);
            format.clearProperty(QTextFormat::AnchorHref);
            format.clearProperty(QTextFormat::TextToolTip);
        }
        format.setFontUnderline(inside);
        format.setForeground(m_colors[inside ? Color::Accent : Color::Text]);
    }
    return format;
}

std::size_t GuideView::HeadingInSight() const {
    const auto below = std::ranges::find_if(m_headings, [this](const Heading& heading) {
        QTextCursor cursor(document());
        cursor.setPosition(heading.position);
        return cursorRect(cursor).top() > 2 * kMargin;
    });
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(below - m_headings.begin(), 1) - 1);
}

void GuideView::ShowHeading(std::size_t index) {
    if (index < m_headings.size()) {
        QTextCursor cursor(document());
        cursor.setPosition(m_headings[index].position);
        setTextCursor(cursor);
        ScrollTo(cursor.position());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - kMargin);
    }
}

void GuideView::ScrollTo(int position) {
    QTextCursor cursor(document());
    cursor.setPosition(std::min(position, document()->characterCount() - 1));
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(bar.value() + cursorRect(cursor).top());
}

bool GuideView::FindText(const QString& text, Search search) {
    QTextCursor start = textCursor();
    if (search == Search::FromHere) {
        start.setPosition(start.selectionStart());
    }
    const auto flags =
        search == Search::Previous ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    QTextCursor found = document()->find(text, start, flags);
    if (found.isNull()) {
        start.movePosition(search == Search::Previous ? QTextCursor::End : QTextCursor::Start);
        found = document()->find(text, start, flags);
    }
    const bool isThere = !text.isEmpty() && !found.isNull();
    if (!isThere) {
        found = textCursor();
        found.clearSelection();
    }
    setTextCursor(found);
    return isThere;
}

void GuideView::resizeEvent(QResizeEvent* event) {
    const int first = cursorForPosition(QPoint(0, 0)).position();
    QTextBrowser::resizeEvent(event);
    FitPictures();
    ScrollTo(first);
}

// Pictures are scaled here, as the toolkit would do it without smoothing.
void GuideView::FitPictures() {
    // Longer lines are hard to read.
    constexpr int kLongestLine = 50;
    const int width = std::min(viewport()->width(), kLongestLine * fontMetrics().height());
    setLineWrapColumnOrWidth(width);
    for (const Picture& picture : m_pictures) {
        if (picture.image.isNull()) {
            continue;
        }
        QTextCursor cursor = Select(*document(), picture.position, 1);
        const QTextList* const list = cursor.currentList();
        const int indent =
            cursor.blockFormat().indent() + (list == nullptr ? 0 : list->format().indent());
        const int room = width - 2 * kMargin - indent * qRound(document()->indentWidth());
        const QSize size = picture.image.size().scaled(std::clamp(room, 1, picture.image.width()),
                                                       picture.image.height(), Qt::KeepAspectRatio);
        QImage scaled = picture.image.scaled(size * devicePixelRatioF(), Qt::IgnoreAspectRatio,
                                             Qt::SmoothTransformation);
        scaled.setDevicePixelRatio(devicePixelRatioF());
        document()->addResource(QTextDocument::ImageResource, QUrl(picture.name), scaled);
        QTextImageFormat format;
        format.setName(picture.name);
        format.setWidth(size.width());
        format.setHeight(size.height());
        cursor.setCharFormat(format);
    }
}

void GuideView::FollowLink(const QUrl& link) {
    const auto heading = std::ranges::find_if(m_headings, [&](const Heading& candidate) {
        return link.fragment() == LinkName(candidate.text);
    });
    if (heading != m_headings.end()) {
        ShowHeading(static_cast<std::size_t>(heading - m_headings.begin()));
    }
}

}  // namespace tarvelin
