// Tests the guide inside the program: its topics, links, pictures and search.
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include "TestSupport.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/HelpTopics.h"
#include "ui/workbench/HelpWindow.h"

namespace tarvelin {
namespace {

class Help : public testing::Test {
  protected:
    Help() {
        m_window.OpenAt({});
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    std::string Chapter() { return m_chapters.currentItem()->text(0).toStdString(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&m_window, key, modifiers);
    }

    HelpWindow m_window{nullptr};
    GuideView& m_guide = *m_window.findChild<GuideView*>();
    QTreeWidget& m_chapters = *m_window.findChild<QTreeWidget*>();
    QLineEdit& m_search = *m_window.findChild<QLineEdit*>();
    QLabel& m_notFound = *m_window.findChild<QLabel*>(QStringLiteral("LBL_NichtGefunden"));
};

TEST_F(Help, OpensAtEachTopic) {
    for (const HelpTopic& topic : HelpTopics()) {
        QWidget parent;
        parent.setObjectName(QString::fromUtf8(topic.widget));
        QWidget focused(&parent);
        EXPECT_EQ(HelpTopicFor(&focused).toStdString(), topic.heading);
        m_window.OpenAt(HelpTopicFor(&focused));
        EXPECT_EQ(Chapter(), topic.heading);
        EXPECT_EQ(m_guide.Headings()[m_guide.HeadingInSight()].text.toStdString(), topic.heading);
    }
    EXPECT_EQ(HelpTopicFor(nullptr), QStringLiteral("Die Werkbank"));
    m_window.OpenAt(QStringLiteral("Nirgendwo"));
    EXPECT_EQ(m_guide.verticalScrollBar()->value(), 0);
}

TEST_F(Help, HasItsPicturesAndNoLinkThatLeadsNowhere) {
    m_window.resize(m_window.minimumSize());
    int pictures = 0;
    for (QTextBlock block = m_guide.document()->begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextCharFormat format = piece.fragment().charFormat();
            const QTextImageFormat image = format.toImageFormat();
            if (image.isValid()) {
                ++pictures;
                EXPECT_GT(image.width(), 0) << image.name().toStdString();
                EXPECT_LE(image.width(), m_guide.viewport()->width());
            }
            EXPECT_TRUE(!format.isAnchor() || format.anchorHref().startsWith(QLatin1Char('#')));
        }
    }
    EXPECT_GT(pictures, 0);
    EXPECT_EQ(m_guide.horizontalScrollBar()->maximum(), 0);
}

TEST_F(Help, FindsInTurnAndSaysIfThereIsNothing) {
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(m_window.focusWidget(), QStringLiteral("klickpuffer"));
    EXPECT_EQ(m_search.text(), QStringLiteral("klickpuffer"));
    std::vector<int> places{m_guide.textCursor().position()};
    do {
        Key(Qt::Key_F3);
        places.push_back(m_guide.textCursor().position());
    } while (places.back() != places.front() && places.size() < 100);
    EXPECT_EQ(places.back(), places.front()) << "it begins anew";
    EXPECT_GT(places.size(), 2U);
    Key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(m_guide.textCursor().position(), places[places.size() - 2]);
    EXPECT_EQ(m_notFound.text(), QString());
    m_search.setText(QStringLiteral("Klickpuffer, den es nicht gibt"));
    EXPECT_EQ(m_notFound.text(), QStringLiteral("nicht gefunden"));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(m_window.isVisible());
}

}  // namespace
}  // namespace tarvelin
