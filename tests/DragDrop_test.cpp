// Drags pictures through the toolkit's own event handling, which takes a platform that can drag.
#include <QTimer>

#include "MainWindowFixture.h"

namespace tarvelin {
namespace {

using DragDrop = MainWindow;

TEST_F(DragDrop, DragsAPictureIntoTheList) {
    // This platform's screen is smaller than the window.
    m_window.setFixedSize(frmMain::SizeOn({2000, 2000}));
    Find("Fra_Einstellungen").hide();
    const auto drag = [&](const char* picture, QPoint target) {
        QTimer::singleShot(0, &m_window, [this, target] {
            QTest::mouseMove(m_window.windowHandle(), target);
            QTest::mouseRelease(m_window.windowHandle(), Qt::LeftButton, {}, target);
        });
        QTest::mousePress(&Find(picture), Qt::LeftButton);
    };
    auto& list = Find("LV_Bauliste");
    const QPoint center = list.mapTo(&m_window, list.rect().center());
    const auto& robo = Find("ImgRobo");
    QTest::mouseMove(m_window.windowHandle(), robo.mapTo(&m_window, robo.rect().center()));
    drag("ImgRobo", center);
    EXPECT_EQ(RowCount("LV_Bauliste"), 0) << "its gate is closed";
    drag("ImgSKW", center);
    drag("ImgDeutMine", center);
    drag("ImgDeutMine", Find("LV_Bauzeiten").mapTo(&m_window, QPoint(20, 20)));
    drag("imgFolab", center);
    ASSERT_EQ(RowCount("LV_Bauliste"), 3);
    EXPECT_EQ(Cell("LV_Bauliste", 0, 1), "Solarkraftwerk Stufe: 1");
    EXPECT_EQ(Cell("LV_Bauliste", 1, 1), "DeuteriumMine Stufe: 1");
    EXPECT_EQ(Cell("LV_Bauliste", 2, 1), "Forschungslabor Stufe: 1");
}

}  // namespace
}  // namespace tarvelin
