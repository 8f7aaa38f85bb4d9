// The six groups at their places.
#include "ui/Fra_Rest.h"

namespace tarvelin {

namespace {

constexpr int kHoehe = 4300;

struct Gruppenplatz {
    const char* Name;
    const char* Titel;
    /// Twips.
    int Links;
    int Breite;
    std::vector<ItemId> Items;
};

// clang-format off
const std::vector<Gruppenplatz>& Itemgruppen() {
    using enum ItemId;
    static const std::vector<Gruppenplatz> gruppen{
        {"Frame3", "Gebäude:",      3480, 2175, {MetMine, KrisMine, DeutMine, SKW, Robo, Werft, Folab, SchTech}},
        {"Frame1", "Forschung:",    5760, 1155, {ENTech, VerbTech, LaserTech, SpioTech}},
        {"Frame9", "Verteidigung:", 6960, 1155, {Rakws, lLasers, sLasers, klSchK}},
        {"Frame4", "Raumschiffe:",  8160, 1155, {Solsats, LJs, KTs, Spios}},
    };
    return gruppen;
}
// clang-format on

void Stelle(QWidget& gruppe, int links, int breite) {
    gruppe.setGeometry(Pixel(links), 0, Pixel(breite), Pixel(kHoehe));
}

}  // namespace

Fra_Rest::Fra_Rest(const Bauliste& liste, const Lauf& lauf, QWidget* parent)
    : QWidget(parent),
      Frame8(new Baulistengruppe(liste, this)),
      Frame6(new Bauzeitengruppe(lauf.LV_Bauzeiten, this)),
      m_liste(liste),
      m_plaetze(BaueItemgruppen()) {
    setObjectName(QStringLiteral("Fra_Rest"));
    resize(Pixel(12735), Pixel(4335));
    Stelle(*Frame8, 0, 3375);
    Stelle(*Frame6, 9360, 3375);
    ReiheAuf({m_plaetze.back().Bild, Frame6->LV_Bauzeiten, Frame6->Chk_BauWeckfunktion,
              Frame6->Comb_Before});
}

std::vector<Itemplatz> Fra_Rest::BaueItemgruppen() {
    std::vector<Itemplatz> plaetze;
    for (const Gruppenplatz& platz : Itemgruppen()) {
        auto* const gruppe = new Itemgruppe(QString::fromUtf8(platz.Name),
                                            QString::fromUtf8(platz.Titel), platz.Items, this);
        if (plaetze.empty()) {
            gruppe->SetzeEcke(NeueHoverInfo(QStringLiteral("Label8"),
                                            QStringLiteral(" Drag'n'Drop in die linke Liste "),
                                            gruppe));
        }
        Stelle(*gruppe, platz.Links, platz.Breite);
        plaetze.insert(plaetze.end(), gruppe->Plaetze().begin(), gruppe->Plaetze().end());
    }
    return plaetze;
}

void Fra_Rest::ZeigeListe() {
    Frame8->ZeigeListe();
    for (const Itemplatz& platz : m_plaetze) {
        platz.Stufe->setNum(m_liste.ListStufe(platz.Item));
    }
}

void Fra_Rest::Zeige(const Ergebnistexte& texte) {
    Frame8->Zeige(texte);
    Frame6->Zeige(texte);
}

void Fra_Rest::ZeigeNamen(bool zeigen) {
    for (const Itemplatz& platz : m_plaetze) {
        platz.Desc->setVisible(zeigen);
    }
}

}  // namespace tarvelin
