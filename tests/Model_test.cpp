// The twenty items: prices, times, yields, energy, waits.
#include <memory>

#include "Hilfen.h"

namespace tarvelin {
namespace {

/// A planet in the state of a fresh run at speed 1.
struct Planet : Startplanet {
    explicit Planet(Integer temperatur = 0) {
        Globale.Speedfaktor = 1;
        Globale.StartDate = *LiesDatumzeit("18.11.2006 12:30");
        ResetSimulation(temperatur);
    }
    void Setze(ItemId item, Integer stufe) {
        Item(item).Init(stufe);
        Globale.Metall = Globale.Kristall = Globale.Deuterium = Festkomma::AusGanzzahl(1'000'000);
    }
};

TEST(Items, BauzeitenFolgenFabrikLaborUndTempo) {
    Planet planet;
    EXPECT_EQ(planet.MetMine.GetUpgradeTime(), 108);
    EXPECT_EQ(planet.LaserTech.GetUpgradeTime(), 300 * 3600);  // a lab of level 0 divides by 1
    planet.Globale.Stufen[ItemId::Robo] = 1;
    planet.Globale.Speedfaktor = 2;
    EXPECT_EQ(planet.MetMine.GetUpgradeTime(), 27);
    // The deuterium mine alone gives whole seconds: 1708 + 569 at level 5 take 819.72 s.
    planet.Globale.Speedfaktor = 1;
    planet.Setze(ItemId::DeutMine, 5);
    planet.Globale.Stufen[ItemId::Robo] = 3;
    EXPECT_EQ(planet.DeutMine.GetUpgradeTime(), 820);
    planet.Globale.HalbierStufe = 1;
    EXPECT_EQ(planet.DeutMine.GetUpgradeTime(), 410);
}

TEST(Minen, EigeneStufeUndStufeVonAussenGebenDasselbe) {
    Planet planet;
    planet.Globale.ProdFaktor = Festkomma::AusGanzzahl(1);
    for (Integer stufe = 0; stufe < 250; ++stufe) {
        planet.MetMine.Init(stufe);
        ASSERT_EQ(planet.MetMine.GetProduktion(), planet.MetMine.GetProduktion(stufe)) << stufe;
        ASSERT_EQ(planet.MetMine.GetEnergieVerbrauch(), planet.MetMine.GetEnergieVerbrauch(stufe));
    }
    planet.MetMine.Init(5);
    planet.MetMine.SetProdfaktor(0.5F);
    EXPECT_EQ(planet.MetMine.GetProduktion().GanzerTeil(), 140);  // the base income stays whole
    EXPECT_EQ(planet.MetMine.GetEnergieVerbrauch(), 40);
    EXPECT_EQ(planet.MetMine.GetEnergieVerbrauch(5, 1.0F), 80);
    planet.Globale.Temperatur = 700;
    EXPECT_LT(planet.DeutMine.GetProduktion(5), Festkomma());
    planet.Globale.ProdFaktor = Festkomma();
    planet.Globale.Speedfaktor = 2;
    EXPECT_EQ(planet.MetMine.GetProduktion(200).GanzerTeil(), 40);
}

TEST(Energiebilanz, TeiltAngebotDurchBedarf) {
    Planet planet(-76);
    planet.EnergieBilanz();
    EXPECT_EQ(VierStellenText(planet.Globale.ProdFaktor), "1.0000");
    planet.Setze(ItemId::MetMine, 1);
    planet.Setze(ItemId::DeutMine, 1);
    planet.Setze(ItemId::SKW, 1);
    planet.EnergieBilanz();
    EXPECT_EQ(VierStellenText(planet.Globale.ProdFaktor), "0.6667");
    EXPECT_EQ(planet.Globale.MetallProStunde.GanzerTeil(), 42);
    planet.DeutMine.SetProdfaktor(0.0F);
    planet.EnergieBilanz();
    EXPECT_EQ(VierStellenText(planet.Globale.ProdFaktor), "1.0000");
    // A need of one unit is one.
    planet.MetMine.SetProdfaktor(0.1F);
    planet.Setze(ItemId::SKW, 0);
    planet.EnergieBilanz();
    EXPECT_EQ(VierStellenText(planet.Globale.ProdFaktor), "0.0000");
    planet.MetMine.SetProdfaktor(1.0F);
    planet.Setze(ItemId::Solsats, 1);
    planet.EnergieBilanz();
    EXPECT_EQ(VierStellenText(planet.Globale.ProdFaktor), "0.0909");
}

TEST(Wartezeit, NenntDenLetztenRohstoff) {
    Planet planet;
    EXPECT_EQ(planet.MetMine.GetTimeUntilUpgradeIsPossible(), 0);
    EXPECT_EQ(planet.MetMine.VerzoegerungsGrund().Text(),
              "Keine Verzögerung wegen der Ressourcen!");
    const auto warte = [&](double metall, double kristall, int jeStunde) {
        planet.Globale.Metall = Festkomma::AusDouble(metall);
        planet.Globale.Kristall = Festkomma::AusDouble(kristall);
        planet.Globale.MetallProStunde = Festkomma::AusGanzzahl(jeStunde);
        const Long wartezeit = planet.MetMine.GetTimeUntilUpgradeIsPossible();
        return std::pair(wartezeit, planet.MetMine.VerzoegerungsGrund().Text());
    };
    planet.Globale.KristallProStunde = Festkomma::AusGanzzahl(53);
    EXPECT_EQ(warte(10, 500, 53), std::pair(3397, std::string("Es fehlten: 51 Metall")));
    EXPECT_EQ(warte(59.5, 500, 53), std::pair(34, std::string("Es fehlten: 1 Metall")));
    EXPECT_EQ(warte(55, 10, 53), std::pair(340, std::string("Es fehlten: 6 Metall")));
    EXPECT_EQ(warte(59, 10, 53), std::pair(340, std::string("Es fehlten: 6 Kristall")));
    EXPECT_EQ(warte(10, 500, 0), std::pair(1'000'000'000, std::string("Es fehlten: 51 Metall")));
    EXPECT_EQ(warte(10, 500, -5).first, 1'000'000'000);
    EXPECT_EQ(warte(-9e14, 500, 1),
              std::pair(2147483647, std::string("Es fehlten: 900000000000061 Metall")));
    // A debt of deuterium holds back what costs none.
    planet.Globale.Deuterium = Festkomma::AusGanzzahl(-700);
    EXPECT_EQ(warte(60, 15, 53),
              std::pair(1'000'000'000, std::string("Es fehlten: 701 Deuterium")));
}

struct Sperrfall {
    const char* Was;
    ItemId Item;
    std::vector<std::pair<ItemId, int>> Stufen;
    Long Wert;
};

TEST(Gates, HaltenJedesItemAuf) {
    using enum ItemId;
    constexpr Long kVoraussetzung = 1'000'000'000;
    const std::vector<Sperrfall> faelle{
        {"Satellit ohne Werft", Solsats, {{SKW, 1}}, kVoraussetzung},
        {"Satellit ohne Quelle", Solsats, {{Werft, 1}}, -1},
        {"Werft ohne Quelle", Werft, {}, -1},
        {"Werft mit Kraftwerk", Werft, {{SKW, 1}}, 0},
        {"Energie ohne Labor", ENTech, {{SKW, 1}}, kVoraussetzung},
        {"Triebwerk ohne Energie", VerbTech, {{Folab, 1}, {SKW, 1}}, kVoraussetzung},
        {"Laser ohne Labor", LaserTech, {{ENTech, 2}}, 0},
        {"Spionage", SpioTech, {{SKW, 1}}, 0},
        {"Schild", SchTech, {{Folab, 6}, {ENTech, 2}}, kVoraussetzung},
        {"Schild offen", SchTech, {{Folab, 6}, {ENTech, 3}}, 0},
        {"Sonde offen", Spios, {{Werft, 3}, {SpioTech, 2}, {VerbTech, 3}}, 0},
        {"Jäger", LJs, {{Werft, 1}}, kVoraussetzung},
        {"Transporter", KTs, {{Werft, 2}, {VerbTech, 1}}, kVoraussetzung},
        {"leichter Laser", lLasers, {{Werft, 2}, {LaserTech, 2}}, kVoraussetzung},
        {"schwerer Laser offen", sLasers, {{Werft, 4}, {LaserTech, 6}, {ENTech, 3}}, 0},
        {"Kuppel", klSchK, {{Werft, 1}, {SchTech, 1}}, kVoraussetzung}};
    for (const Sperrfall& fall : faelle) {
        SCOPED_TRACE(fall.Was);
        Planet planet;
        planet.Setze(MetMine, 0);
        for (const auto& [item, stufe] : fall.Stufen) {
            planet.Globale.Stufen[item] = stufe;
        }
        EXPECT_EQ(planet.Item(fall.Item).GetTimeUntilUpgradeIsPossible(), fall.Wert);
    }
}

TEST(Gates, HaltenAnlagenUndIhreSchlangenAuseinander) {
    Planet planet;
    planet.Setze(ItemId::SKW, 1);
    EXPECT_EQ(planet.Robo.GetTimeUntilUpgradeIsPossible(), 1'000'000'000);
    EXPECT_EQ(planet.Folab.GetTimeUntilUpgradeIsPossible(), 100'000'000);
    // Hot planets lose deuterium; that is production too.
    for (const int jeStunde : {-5, 5}) {
        planet.Globale.DeuteriumProStunde = Festkomma::AusGanzzahl(jeStunde);
        EXPECT_EQ(planet.Robo.GetTimeUntilUpgradeIsPossible(), 0);
    }
    planet.Globale.WerftFertigZeit = planet.Globale.ForschungFertigZeit = Moment(100);
    planet.Globale.secsgone = Moment(99);
    EXPECT_EQ(planet.Werft.GetTimeUntilUpgradeIsPossible(), 100'000'000);
    EXPECT_EQ(planet.Folab.GetTimeUntilUpgradeIsPossible(), 100'000'000);
    EXPECT_EQ(planet.Werft.GetTimeUntilStart(), 1);
    // The wait for the queue ends inside a sleep window, the wait for stocks wouldn't.
    const Zeitpunkt start = planet.Globale.StartDate;
    planet.Globale.Schlafzeiten = {{start + 99, start + 130}};
    EXPECT_EQ(planet.Werft.GetTimeUntilStart(), 31);
    planet.Globale.Schlafzeiten.clear();
    planet.Globale.secsgone = Moment(100);
    EXPECT_EQ(planet.Werft.GetTimeUntilUpgradeIsPossible(), 0);
    // While the shipyard is raised, only the satellite can start.
    planet.Setze(ItemId::Werft, 9);
    planet.Globale.Stufen[ItemId::VerbTech] = 9;
    planet.Werft.UpgradeStart(nullptr);
    EXPECT_TRUE(planet.Werft.IsUpgrading());
    EXPECT_EQ(planet.LJs.GetTimeUntilUpgradeIsPossible(), 1'000'000'000);
    EXPECT_EQ(planet.Solsats.GetTimeUntilUpgradeIsPossible(), 0);
    planet.Werft.UpgradeFinished();
    EXPECT_EQ(planet.LJs.GetTimeUntilUpgradeIsPossible(), 0);
    planet.Folab.UpgradeStart(nullptr);
    EXPECT_EQ(planet.SpioTech.GetTimeUntilUpgradeIsPossible(), 1'000'000'000);
    planet.ResetSimulation(0);
    EXPECT_FALSE(planet.Folab.IsUpgrading());
}

TEST(Schlafzeiten, SchiebenEineWartezeitAnIhrEnde) {
    Planet planet;
    const Zeitpunkt start = planet.Globale.StartDate;
    const auto warte = [&](std::vector<cSchlafzeit> fenster) {
        planet.Globale.Schlafzeiten = std::move(fenster);
        return planet.MetMine.GetTimeUntilUpgradeIsPossible();
    };
    planet.Globale.secsgone = Moment(50);
    EXPECT_EQ(warte({{start + 40, start + 60}}), 10);
    EXPECT_EQ(warte({{start + 50, start + 60}}), 0);  // the begin lies outside
    EXPECT_EQ(warte({{start + 40, start + 50}}), 0);  // the end inside, but leads to itself
    EXPECT_EQ(warte({{start + 40, start + 60}, {start + 55, start + 70}}), 20);
    EXPECT_EQ(warte({{start + 55, start + 70}, {start + 40, start + 60}}), 10);
    EXPECT_EQ(warte({{start + 40, start + 40}}), 0);
}

}  // namespace
}  // namespace tarvelin
