// What is the same in all twenty items: start, finish, cost text and the stages of the wait.
#include "model/cItem.h"

#include <algorithm>

#include "model/Bauzeitfaktor.h"
#include "util/Zahlentext.h"

namespace tarvelin {

namespace {

/// What is short of one resource, and until when.
struct Mangel {
    double Fehlmenge = 0;
    Long Wartezeit = 0;
};

/// The wait for a resource whose stock is short, in seconds. One that never comes gives a wait so
/// long that the next re-timing replaces it.
Mangel MangelAn(double kosten, Festkomma vorrat, Festkomma proStunde) {
    constexpr Long kOhneEnde = 1'000'000'000;
    const double fehlt = kosten - vorrat.AlsDouble();
    if (proStunde <= Festkomma()) {
        return {fehlt + 1, kOhneEnde};
    }
    const double proSekunde = proStunde.AlsDouble() / kSekundenJeStunde;
    return {fehlt + 1, Saettige<Long>(Rundung::cut(1 + fehlt / proSekunde))};
}

Festkomma NachAbzug(Festkomma vorrat, double kosten) {
    return vorrat - Festkomma::AusDouble(kosten);
}

}  // namespace

void cItem::Init(Integer ExterneStufe) {
    m_verzoegerungsGrund = Verzoegerung();
    SetzeUpgrading(false);
    SetzeStufe(0);
    NachInit();
    while (Stufe() < ExterneStufe) {
        UpgradeStart(nullptr);
        UpgradeFinished();
    }
}

void cItem::UpgradeStart(Bauzeiten* bauzeiten) {
    SetzeUpgrading(true);
    if (bauzeiten != nullptr) {
        bauzeiten->emplace_back(m_globale.Uhrzeit(m_globale.secsgone), m_angaben.Zeile.Name,
                                m_angaben.Zeile.MitNummer ? LongSumme(Stufe(), 1) : 0,
                                m_angaben.Zeile.MitGrund
                                    ? m_verzoegerungsGrund
                                    : Verzoegerung{.Grund = Verzoegerung::Art::OhneAngabe});
    }
    m_globale.Metall = NachAbzug(m_globale.Metall, m_preis.Metall);
    m_globale.Kristall = NachAbzug(m_globale.Kristall, m_preis.Kristall);
    m_globale.Deuterium = NachAbzug(m_globale.Deuterium, m_preis.Deuterium);
    m_globale.VerbauteRessourcen = HalfEvenLong(m_globale.VerbauteRessourcen + m_preis.Metall +
                                                m_preis.Kristall + m_preis.Deuterium);
}

void cItem::UpgradeFinished() {
    SetzeUpgrading(false);
    SetzeStufe(LongSumme(Stufe(), 1));
    NachFinish();
}

Long cItem::GetTimeUntilUpgradeIsPossible() {
    if (m_globale.secsgone < FreiAb()) {
        return static_cast<Long>(Sperre::Vorerst);
    }
    return Wartezeit(0);
}

Long cItem::GetTimeUntilStart() {
    const Long bisFrei = FreiAb() - m_globale.secsgone;
    return std::max(Wartezeit(bisFrei), bisFrei);
}

std::string cItem::GetUpgradecostString(Long extStufe) const {
    const Kosten kosten = GetKosten(extStufe);
    return "Kosten:  Met: " + Ganztext(kosten.Metall) + "  Kris: " + Ganztext(kosten.Kristall) +
           "  Deut: " + Ganztext(kosten.Deuterium);
}

Sperre cItem::Gates() const {
    const Bedingungen& braucht = m_angaben.Braucht;
    if (*braucht.Ausbau || FehltStufe()) {
        return Sperre::Voraussetzung;
    }
    if (m_preis.Deuterium <= 0) {
        return Sperre::Offen;
    }
    if (braucht.OhneDeuteriumProduktion != Sperre::Offen) {
        return m_globale.DeuteriumProStunde == Festkomma() ? braucht.OhneDeuteriumProduktion
                                                           : Sperre::Offen;
    }
    return FehltDeuteriumQuelle() ? Sperre::OhneDeuteriumQuelle : Sperre::Offen;
}

bool cItem::FehltStufe() const {
    return std::ranges::any_of(m_angaben.Braucht.Stufen, [this](const Stufenbedarf& bedarf) {
        return m_globale.Stufe(bedarf.Item) < bedarf.Stufe;
    });
}

bool cItem::FehltDeuteriumQuelle() const {
    return m_globale.Stufe(ItemId::SKW) == 0 && m_globale.Stufe(ItemId::DeutMine) == 0;
}

void cItem::SetzeStufe(Long stufe) {
    m_globale.Stufen[m_angaben.Id] = stufe;
    m_preis = m_angaben.Preise.Preis(stufe);
    m_globale.BilanzVeraltet |= m_angaben.InBilanz;
}

void cItem::SetzeUpgrading(bool upgrading) {
    if (m_angaben.Bedient.Upgrading != nullptr) {
        *m_angaben.Bedient.Upgrading = upgrading;
    }
}

/// The gates, then the wait for resources, at least `mindestens`, then the sleep windows.
Long cItem::Wartezeit(Long mindestens) {
    const Sperre sperre = Gates();
    if (sperre != Sperre::Offen) {
        return static_cast<Long>(sperre);
    }
    return NachSchlafzeiten(std::max(RohstoffWartezeit(), mindestens));
}

/// The longest wait for a resource; on a tie the earlier resource keeps the reason: metal before
/// crystal before deuterium.
Long cItem::RohstoffWartezeit() {
    using Art = Verzoegerung::Art;
    m_verzoegerungsGrund = Verzoegerung();
    Long wartezeit = 0;
    const auto pruefe = [&](double kosten, Festkomma vorrat, Festkomma proStunde, Art art) {
        if (kosten > vorrat.AlsDouble()) {
            const Mangel mangel = MangelAn(kosten, vorrat, proStunde);
            if (mangel.Wartezeit > wartezeit) {
                wartezeit = mangel.Wartezeit;
                m_verzoegerungsGrund = {.Grund = art, .Fehlmenge = mangel.Fehlmenge};
            }
        }
    };
    pruefe(m_preis.Metall, m_globale.Metall, m_globale.MetallProStunde, Art::Metall);
    pruefe(m_preis.Kristall, m_globale.Kristall, m_globale.KristallProStunde, Art::Kristall);
    pruefe(m_preis.Deuterium, m_globale.Deuterium, m_globale.DeuteriumProStunde, Art::Deuterium);
    return wartezeit;
}

/// Moves a wait that ends inside a sleep window to that window's end. Each window is asked once,
/// with the wait as the windows before it left it.
Long cItem::NachSchlafzeiten(Long wartezeit) const {
    Zeitpunkt moment = m_globale.Uhrzeit(m_globale.secsgone + wartezeit);
    for (const cSchlafzeit& schlafzeit : m_globale.Schlafzeiten) {
        if (schlafzeit.CheckifInside(moment)) {
            wartezeit = schlafzeit.SecondsFrom_Insert_ToEnd(m_globale.Uhrzeit(m_globale.secsgone));
            moment = m_globale.Uhrzeit(m_globale.secsgone + wartezeit);
        }
    }
    return wartezeit;
}

}  // namespace tarvelin
