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

struct Itemfall {
    ItemId Item;
    std::array<Kosten, 2> Preise;  // of the steps from level 0 and from level 5
    double Zeit;                   // of the first step with shipyard and lab at level 1
    const char* Zeile;
};

// clang-format off
const std::array kItems{std::to_array<Itemfall>({
    {ItemId::MetMine,   {{{60, 15, 0}, {455, 113, 0}}},           108,   "Metallmine: 1"},
    {ItemId::KrisMine,  {{{48, 24, 0}, {503, 251, 0}}},           103.68, "Kristallmine: 1"},
    {ItemId::DeutMine,  {{{225, 75, 0}, {1708, 569, 0}}},         432,   "Deuteriummine: 1"},
    {ItemId::SKW,       {{{75, 30, 0}, {569, 227, 0}}},           151.2, "Solarkraftwerk: 1"},
    {ItemId::Robo,      {{{400, 120, 200}, {12800, 3840, 6400}}}, 748.8, "Roboterfabrik: 1"},
    {ItemId::Werft,     {{{400, 200, 100}, {12800, 6400, 3200}}}, 864,   "Raumschiffwerft: 1"},
    {ItemId::Folab,     {{{200, 400, 200}, {6400, 12800, 6400}}}, 864,   "Forschungslabor: 1"},
    {ItemId::ENTech,    {{{0, 800, 400}, {0, 25600, 12800}}},     800.0 / 1001 * 3600, "Energietechnik: 1"},
    {ItemId::VerbTech,  {{{400, 0, 600}, {12800, 0, 19200}}},     400.0 / 1001 * 3600, "Verb.Triebwerk: 1"},
    {ItemId::LaserTech, {{{200, 100, 0}, {6400, 3200, 0}}},       300.0 / 1001 * 3600, "Lasertechnik: 1"},
    {ItemId::SpioTech,  {{{200, 1000, 200}, {6400, 32000, 6400}}}, 1200.0 / 1001 * 3600, "Spionagetechnik: 1"},
    {ItemId::SchTech,   {{{200, 600, 0}, {6400, 19200, 0}}},      800.0 / 1001 * 3600, "SchildTechnik: 1"},
    {ItemId::Solsats,   {{{0, 2000, 500}, {0, 2000, 500}}},       1440,  "Solarsatellit Nr: 1"},
    {ItemId::Spios,     {{{0, 1000, 0}, {0, 1000, 0}}},           720,   "Spionagesonde Nr: 1"},
    {ItemId::LJs,       {{{3000, 1000, 0}, {3000, 1000, 0}}},     2880,  "Leichter Jäger Nr: 1"},
    {ItemId::KTs,       {{{2000, 2000, 0}, {2000, 2000, 0}}},     2880,  "Kl. Transporter Nr: 1"},
    {ItemId::Rakws,     {{{2000, 0, 0}, {2000, 0, 0}}},           1440,  "Raketenwerfer Nr: 1"},
    {ItemId::lLasers,   {{{1500, 500, 0}, {1500, 500, 0}}},       1440,  "Leichter Laser Nr: 1"},
    {ItemId::sLasers,   {{{6000, 2000, 0}, {6000, 2000, 0}}},     5760,  "Schwerer Laser Nr: 1"},
    {ItemId::klSchK,    {{{10000, 10000, 0}, {10000, 10000, 0}}}, 14400, "Kleine Schildkuppel"},
})};
// clang-format on

TEST(Items, HabenPreisZeitUndZeile) {
    ASSERT_EQ(kItems.size(), kItemAnzahl);
    for (const Itemfall& fall : kItems) {
        SCOPED_TRACE(fall.Zeile);
        Planet planet;
        planet.Setze(ItemId::Werft, fall.Item == ItemId::Werft ? 0 : 1);
        planet.Setze(ItemId::Folab, fall.Item == ItemId::Folab ? 0 : 1);
        planet.Globale.VerbauteRessourcen = 0;
        cItem& item = planet.Item(fall.Item);
        EXPECT_EQ(item.GetKosten(0), fall.Preise[0]);
        EXPECT_EQ(item.GetKosten(5), fall.Preise[1]);
        EXPECT_DOUBLE_EQ(item.GetUpgradeTime(), fall.Item == ItemId::KrisMine ? 103.68 : fall.Zeit);
        Bauzeiten bauzeiten;
        item.UpgradeStart(&bauzeiten);
        EXPECT_EQ(bauzeiten.at(0).theText(), fall.Zeile);
        const auto& preis = fall.Preise[0];
        EXPECT_EQ(planet.Globale.VerbauteRessourcen,
                  preis.Metall + preis.Kristall + preis.Deuterium);
        EXPECT_EQ(planet.Globale.Metall.GanzerTeil(), 1'000'000 - preis.Metall);
        EXPECT_EQ(planet.Globale.Kristall.GanzerTeil(), 1'000'000 - preis.Kristall);
        EXPECT_EQ(planet.Globale.Deuterium.GanzerTeil(), 1'000'000 - preis.Deuterium);
        EXPECT_EQ(item.GetStufe(), 0);
        item.UpgradeFinished();
        EXPECT_EQ(item.GetStufe(), 1);
        EXPECT_EQ(item.GetKosten(cItem::kEigeneStufe), item.GetKosten(1));
    }
}

TEST(Items, BauzeitenFolgenFabrikWerftLaborUndTempo) {
    Planet planet;
    planet.Globale.Stufen[ItemId::Robo] = 1;
    planet.Globale.Stufen[ItemId::Werft] = 4;
    planet.Globale.Stufen[ItemId::Folab] = 6;
    EXPECT_EQ(planet.MetMine.GetUpgradeTime(), 54);
    EXPECT_DOUBLE_EQ(planet.Solsats.GetUpgradeTime(), 576);
    EXPECT_DOUBLE_EQ(planet.SchTech.GetUpgradeTime(), 800.0 / 6001 * 3600);
    planet.Globale.Speedfaktor = 2;
    EXPECT_EQ(planet.MetMine.GetUpgradeTime(), 27);
    EXPECT_DOUBLE_EQ(planet.klSchK.GetUpgradeTime(), 2880);
    planet.Globale.Stufen[ItemId::Folab] = 0;
    EXPECT_EQ(planet.LaserTech.GetUpgradeTime(), 300 * 3600 / 2);
    // The deuterium mine alone gives whole seconds: 1708 + 569 at level 5 take 819.72 s.
    planet.Setze(ItemId::DeutMine, 5);
    planet.Globale.Stufen[ItemId::Robo] = 3;
    EXPECT_EQ(planet.DeutMine.GetUpgradeTime(), 410);
    planet.Globale.HalbierStufe = 1;
    EXPECT_EQ(planet.DeutMine.GetUpgradeTime(), 205);
}

TEST(Minen, ErtragUndBedarfJeStufe) {
    Planet planet;
    planet.Globale.ProdFaktor = Festkomma::AusGanzzahl(1);
    constexpr std::array kMetall{20, 53, 92, 139, 195, 261};
    constexpr std::array kKristall{10, 32, 58, 89, 127, 171};
    constexpr std::array kDeut0{0, 14, 30, 51, 74, 103};
    constexpr std::array kDeut50{0, 12, 28, 47, 69, 95};
    constexpr std::array kBedarf{0, 11, 24, 39, 58, 80};
    constexpr std::array kDeutBedarf{0, 22, 48, 79, 117, 161};
    for (int stufe = 0; stufe < 6; ++stufe) {
        SCOPED_TRACE(stufe);
        const auto i = static_cast<std::size_t>(stufe);
        planet.Globale.Temperatur = 0;
        EXPECT_EQ(planet.MetMine.GetProduktion(stufe).GanzerTeil(), kMetall[i]);
        EXPECT_EQ(planet.KrisMine.GetProduktion(stufe).GanzerTeil(), kKristall[i]);
        EXPECT_EQ(planet.DeutMine.GetProduktion(stufe).GanzerTeil(), kDeut0[i]);
        EXPECT_EQ(planet.MetMine.GetEnergieVerbrauch(stufe), kBedarf[i]);
        EXPECT_EQ(planet.DeutMine.GetEnergieVerbrauch(stufe), kDeutBedarf[i]);
        EXPECT_EQ(planet.SKW.GetProduktion(stufe).GanzerTeil(), kDeutBedarf[i]);
        planet.Globale.Temperatur = 50;
        EXPECT_EQ(planet.DeutMine.GetProduktion(stufe).GanzerTeil(), kDeut50[i]);
        // The level as it stands gives what the same level from outside gives.
        planet.MetMine.Init(static_cast<Integer>(stufe));
        EXPECT_EQ(planet.MetMine.GetProduktion(), planet.MetMine.GetProduktion(stufe));
        EXPECT_EQ(planet.MetMine.GetEnergieVerbrauch(), kBedarf[i]);
    }
    planet.MetMine.SetProdfaktor(0.5F);
    EXPECT_EQ(planet.MetMine.GetProduktion().GanzerTeil(), 140);
    EXPECT_EQ(planet.MetMine.GetEnergieVerbrauch(), 40);
    EXPECT_EQ(planet.MetMine.GetEnergieVerbrauch(5, 1.0F), 80);
    planet.Globale.Temperatur = 700;
    EXPECT_LT(planet.DeutMine.GetProduktion(5), Festkomma());
    planet.Globale.ProdFaktor = Festkomma();
    planet.Globale.Speedfaktor = 2;
    EXPECT_EQ(planet.MetMine.GetProduktion(200).GanzerTeil(), 40);
}

TEST(Minen, PasstimeRundetJedenAufruf) {
    Planet planet;
    planet.Setze(ItemId::MetMine, 1);
    planet.Globale.ProdFaktor = Festkomma::AusGanzzahl(1);
    planet.MetMine.RefreshProduktion();
    const auto gewinn = [&](int aufrufe, Long sekunden) {
        planet.Globale.Metall = Festkomma();
        for (int i = 0; i < aufrufe; ++i) {
            planet.MetMine.Passtime(sekunden);
        }
        return planet.Globale.Metall.Rohwert();
    };
    EXPECT_EQ(gewinn(1, 60), 8833);
    EXPECT_EQ(gewinn(60, 1), 8820);
    EXPECT_EQ(gewinn(1, -60), -8833);
    EXPECT_EQ(gewinn(2, 3600), 1'060'000);  // a jump equals a walk where nothing is rounded
}

TEST(Solarsatellit, FolgtDerTemperatur) {
    struct Fall {
        Integer grad;
        Long anzahl;
        int energie;
    };
    for (const Fall& f : {Fall{0, 1, 20}, Fall{30, 1, 27}, Fall{30, 2, 55}, Fall{-30, 1, 12},
                          Fall{-80, 9, 0}, Fall{-102, 1, -6}, Fall{-102, 2, -11}}) {
        EXPECT_EQ(Planet(f.grad).Solsats.GetProduktion(f.anzahl).GanzerTeil(), f.energie) << f.grad;
    }
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
    planet.Setze(ItemId::SKW, 0);
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
        {"Satellit mit Mine", Solsats, {{Werft, 1}, {DeutMine, 1}}, 0},
        {"Werft ohne Quelle", Werft, {}, -1},
        {"Werft mit Kraftwerk", Werft, {{SKW, 1}}, 0},
        {"Energie ohne Labor", ENTech, {{SKW, 1}}, kVoraussetzung},
        {"Energie ohne Quelle", ENTech, {{Folab, 1}}, -1},
        {"Triebwerk ohne Energie", VerbTech, {{Folab, 1}, {SKW, 1}}, kVoraussetzung},
        {"Laser ohne Labor", LaserTech, {{ENTech, 2}}, 0},
        {"Laser", LaserTech, {{ENTech, 1}, {Folab, 9}}, kVoraussetzung},
        {"Spionage", SpioTech, {{SKW, 1}}, 0},
        {"Schild", SchTech, {{Folab, 6}, {ENTech, 2}}, kVoraussetzung},
        {"Schild offen", SchTech, {{Folab, 6}, {ENTech, 3}}, 0},
        {"Sonde", Spios, {{Werft, 3}, {SpioTech, 2}, {VerbTech, 2}}, kVoraussetzung},
        {"Sonde offen", Spios, {{Werft, 3}, {SpioTech, 2}, {VerbTech, 3}}, 0},
        {"Jäger", LJs, {{Werft, 1}}, kVoraussetzung},
        {"Transporter", KTs, {{Werft, 2}, {VerbTech, 1}}, kVoraussetzung},
        {"Werfer", Rakws, {}, kVoraussetzung},
        {"leichter Laser", lLasers, {{Werft, 2}, {LaserTech, 2}}, kVoraussetzung},
        {"schwerer Laser", sLasers, {{Werft, 4}, {LaserTech, 6}, {ENTech, 2}}, kVoraussetzung},
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
    planet.Globale.DeuteriumProStunde = Festkomma::AusGanzzahl(5);
    EXPECT_EQ(planet.Robo.GetTimeUntilUpgradeIsPossible(), 0);
    planet.Globale.WerftFertigZeit = planet.Globale.ForschungFertigZeit = Moment(100);
    planet.Globale.secsgone = Moment(99);
    EXPECT_EQ(planet.Werft.GetTimeUntilUpgradeIsPossible(), 100'000'000);
    EXPECT_EQ(planet.Folab.GetTimeUntilUpgradeIsPossible(), 100'000'000);
    EXPECT_EQ(planet.Werft.GetTimeUntilStart(), 1);
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
