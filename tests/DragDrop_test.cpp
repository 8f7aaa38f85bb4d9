// One whole drag through the toolkit's own machinery; it needs a platform that can drag.
#include <QTimer>

#include "MainWindowFixture.h"

namespace tarvelin {
namespace {

using Ziehen = Fenster;

TEST_F(Ziehen, VomBildInDieListe) {
    // The screen of this platform is tiny.
    m_fenster.setFixedSize(frmMain::SizeOn({2000, 2000}));
    Finde("Fra_Einstellungen").hide();
    const auto ziehe = [&](const char* bild, QPoint ziel) {
        QTimer::singleShot(0, &m_fenster, [this, ziel] {
            QTest::mouseMove(m_fenster.windowHandle(), ziel);
            QTest::mouseRelease(m_fenster.windowHandle(), Qt::LeftButton, {}, ziel);
        });
        QTest::mousePress(&Finde(bild), Qt::LeftButton);
    };
    auto& liste = Finde("LV_Bauliste");
    const QPoint mitten = liste.mapTo(&m_fenster, liste.rect().center());
    const auto& robo = Finde("ImgRobo");
    QTest::mouseMove(m_fenster.windowHandle(), robo.mapTo(&m_fenster, robo.rect().center()));
    ziehe("ImgRobo", mitten);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0) << "its gate is closed";
    ziehe("ImgSKW", mitten);
    ziehe("ImgDeutMine", mitten);
    ziehe("ImgDeutMine", Finde("LV_Bauzeiten").mapTo(&m_fenster, QPoint(20, 20)));
    ziehe("imgFolab", mitten);
    ASSERT_EQ(Zeilen("LV_Bauliste"), 3);
    EXPECT_EQ(Zelle("LV_Bauliste", 0, 1), "Solarkraftwerk Stufe: 1");
    EXPECT_EQ(Zelle("LV_Bauliste", 1, 1), "DeuteriumMine Stufe: 1");
    EXPECT_EQ(Zelle("LV_Bauliste", 2, 1), "Forschungslabor Stufe: 1");
}

}  // namespace
}  // namespace tarvelin
