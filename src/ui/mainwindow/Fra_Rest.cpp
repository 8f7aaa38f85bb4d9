// The six groups at their places.
#include "ui/mainwindow/Fra_Rest.h"

#include <array>

namespace tarvelin {

namespace {

constexpr int kHoehe = 4300;

struct Gruppenplatz {
    const char* Name;
    const char* Titel;
    /// Twips.
    int Links;
    int Breite;
    PictureGroup Gruppe;
};

// clang-format off
constexpr std::array<Gruppenplatz, 4> kItemgruppen{{
    {"Frame3", "Gebäude:",      3480, 2175, PictureGroup::Buildings},
    {"Frame1", "Forschung:",    5760, 1155, PictureGroup::Research},
    {"Frame9", "Verteidigung:", 6960, 1155, PictureGroup::Defense},
    {"Frame4", "Raumschiffe:",  8160, 1155, PictureGroup::Ships},
}};
// clang-format on

void Stelle(QWidget& gruppe, int links, int breite) {
    gruppe.setGeometry(TwipsToPixels(links), 0, TwipsToPixels(breite), TwipsToPixels(kHoehe));
}

}  // namespace

Fra_Rest::Fra_Rest(const BuildList& liste, const LastRun& lauf, QWidget* parent)
    : QWidget(parent),
      m_liste(liste),
      m_Frame8(new Baulistengruppe(liste, this)),
      m_Frame6(new Bauzeitengruppe(lauf.LV_Bauzeiten, this)),
      m_plaetze(BaueItemgruppen()) {
    setObjectName(QStringLiteral("Fra_Rest"));
    resize(TwipsToPixels(12735), TwipsToPixels(4335));
    Stelle(*m_Frame8, 0, 3375);
    Stelle(*m_Frame6, 9360, 3375);
    ChainTabOrder({m_plaetze.back().Bild, m_Frame6->LV_Bauzeiten, m_Frame6->Chk_BauWeckfunktion,
                   m_Frame6->Comb_Before});
    connect(m_Frame8->LV_Bauliste, &Baulistenansicht::DragDrop, this, &Fra_Rest::DragDrop);
    connect(m_Frame8->Cmd_Undo, &QPushButton::clicked, this, &Fra_Rest::Cmd_Undo_Click);
    connect(m_Frame8->Cmd_Clear, &QPushButton::clicked, this, &Fra_Rest::Cmd_Clear_Click);
    connect(m_Frame8->Cmd_Simulate, &QPushButton::clicked, this, &Fra_Rest::Cmd_Simulate_Click);
    connect(m_Frame6->ImgDonate_1, &QAbstractButton::clicked, this, &Fra_Rest::ImgDonate_Click);
    for (const Itemplatz& platz : m_plaetze) {
        connect(platz.Bild, &ItemPicture::MouseMove, this,
                [this, platz] { emit Img_MouseMove(platz); });
        connect(platz.Bild, &ItemPicture::Chosen, this,
                [this, platz] { emit DragDrop(platz.Bild->objectName()); });
    }
}

PerItem<QPixmap> Fra_Rest::Itembilder() const {
    PerItem<QPixmap> bilder;
    for (const Itemplatz& platz : m_plaetze) {
        bilder[platz.Item] = platz.Bild->pixmap(Qt::ReturnByValue);
    }
    return bilder;
}

void Fra_Rest::SetzeZeiger(const DragCursors& zeiger) {
    for (const Itemplatz& platz : m_plaetze) {
        platz.Bild->SetCursors(zeiger);
    }
    m_Frame6->ImgDonate_1->setCursor(zeiger.openHand);
}

std::vector<Itemplatz> Fra_Rest::BaueItemgruppen() {
    std::vector<Itemplatz> plaetze;
    for (const Gruppenplatz& platz : kItemgruppen) {
        auto* const gruppe = new Itemgruppe(QString::fromUtf8(platz.Name),
                                            QString::fromUtf8(platz.Titel), platz.Gruppe, this);
        if (plaetze.empty()) {
            gruppe->SetCornerLabel(NewHoverInfo(QStringLiteral("Label8"),
                                                QStringLiteral(" Drag'n'Drop in die linke Liste "),
                                                gruppe));
        }
        Stelle(*gruppe, platz.Links, platz.Breite);
        plaetze.insert(plaetze.end(), gruppe->Plaetze().begin(), gruppe->Plaetze().end());
    }
    return plaetze;
}

void Fra_Rest::ZeigeListe() {
    m_Frame8->ZeigeListe();
    for (const Itemplatz& platz : m_plaetze) {
        platz.Stufe->setNum(m_liste.Orders().ListStufe(platz.Item));
    }
}

void Fra_Rest::Zeige(const ResultTexts& texte) {
    m_Frame8->Zeige(texte);
    m_Frame6->Zeige(texte);
}

void Fra_Rest::ZeigeNamen(bool zeigen) {
    for (const Itemplatz& platz : m_plaetze) {
        platz.Desc->setVisible(zeigen);
    }
}

}  // namespace tarvelin
