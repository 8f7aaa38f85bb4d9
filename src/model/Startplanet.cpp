// Reset, energy balance and the passing of time.
#include "model/Startplanet.h"

#include <algorithm>
#include <array>

namespace tarvelin {

Startplanet::Startplanet() {
    const auto alle = std::to_array<cItem*>({&DeutMine, &KrisMine, &MetMine,  &SKW,       &Robo,
                                             &Werft,    &Folab,    &Solsats,  &Rakws,     &lLasers,
                                             &sLasers,  &ENTech,   &VerbTech, &LaserTech, &Spios,
                                             &LJs,      &SpioTech, &KTs,      &SchTech,   &klSchK});
    static_assert(alle.size() == kItemAnzahl);
    for (cItem* const item : alle) {
        m_items[item->Id()] = item;
    }
    InitAlle();
}

void Startplanet::ResetSimulation(Integer temperatur) {
    const Festkomma startvorrat = Festkomma::AusGanzzahl(500);
    Globale.Temperatur = temperatur;
    Globale.Metall = startvorrat;
    Globale.Kristall = startvorrat;
    Globale.Deuterium = Festkomma();
    Globale.ProdFaktor = Festkomma();
    Globale.EnergieProduktion = 0;
    Globale.EnergieVerbrauch = 0;
    Globale.secsgone = Moment();
    Globale.VerbauteRessourcen = 0;
    Globale.GebaeudeFertigZeit = Moment();
    Globale.ForschungFertigZeit = Moment();
    Globale.WerftFertigZeit = Moment();
    InitAlle();
}

void Startplanet::EnergieBilanz() {
    if (!Globale.BilanzVeraltet) {
        return;
    }
    Globale.BilanzVeraltet = false;
    Globale.EnergieVerbrauch =
        HalfEvenLong(DeutMine.GetEnergieVerbrauch() + KrisMine.GetEnergieVerbrauch() +
                     MetMine.GetEnergieVerbrauch());
    Globale.EnergieProduktion =
        HalfEvenLong((Solsats.GetProduktion() + SKW.GetProduktion()).AlsDouble());
    const Festkomma voll = Festkomma::AusGanzzahl(1);
    Globale.ProdFaktor =
        Globale.EnergieVerbrauch == 0
            ? voll
            : std::min(voll, Festkomma::AusDouble(static_cast<double>(Globale.EnergieProduktion) /
                                                  Globale.EnergieVerbrauch));
    MetMine.RefreshProduktion();
    KrisMine.RefreshProduktion();
    DeutMine.RefreshProduktion();
}

void Startplanet::VergeheZeit(Long SecondsToPass) {
    if (SecondsToPass == 0) {
        return;
    }
    DeutMine.Passtime(SecondsToPass);
    KrisMine.Passtime(SecondsToPass);
    MetMine.Passtime(SecondsToPass);
    Globale.secsgone = Globale.secsgone + SecondsToPass;
}

void Startplanet::InitAlle() {
    for (cItem* item : m_items) {
        item->Init();
    }
}

}  // namespace tarvelin
