// The run: its clock, its timetable, its messages and what it leaves behind.
#include "Hilfen.h"
#include "simulation/EventTabelle.h"

namespace tarvelin {
namespace {

struct Probe {
    Lauf Gelaufen;
    Merker Meldungen;
    Laufausgang Ausgang;

    explicit Probe(Plan plan, bool silent = false)
        : Ausgang(RunSimulation(plan, Gelaufen, Meldungen, silent)) {}

    [[nodiscard]] const GlobaleVariablen& Globale() const { return Gelaufen.Planet.Globale; }
    [[nodiscard]] Long Uhr() const { return Globale().secsgone.Sekunden(); }
    [[nodiscard]] Long Start(std::size_t zeile) const {
        return Gelaufen.LV_Bauzeiten.at(zeile).Zeit() - Globale().StartDate;
    }
};

Plan MitPuffer(std::string_view codes, int puffer) {
    Plan plan = PlanAus(codes);
    plan.Parameter.KlickPuffer = puffer;
    return plan;
}

TEST(Lauf, DerErsteAuftragUndSeineErgebnistexte) {
    const Probe probe(MitPuffer("GM", 5));
    EXPECT_EQ(probe.Uhr(), 113);
    EXPECT_EQ(probe.Start(0), 5);
    EXPECT_EQ(VierStellenText(probe.Globale().Metall), "440.6278");
    Ergebnistexte texte;
    texte.NachLauf(probe.Globale());
    EXPECT_EQ(texte.LBL_Timegone, "Dauer: 00 Tage 00:01:53");
    EXPECT_EQ(texte.LBL_Timegone2, texte.LBL_Timegone);
    EXPECT_EQ(texte.LBL_Met + " " + texte.LBL_Kris + " " + texte.LBL_Deut, "440 485 0");
    EXPECT_EQ(texte.LBL_ENergie, "-11 / 0");
    EXPECT_EQ(texte.LBL_Punkte, "0,075 P");
    EXPECT_EQ(texte.LBL_Punkte_Hinweis, "Inkl. Res.: 1,001 Punkte");
    texte.NachClear();
    EXPECT_EQ(texte.LBL_Timegone + texte.LBL_Met, "Dauer: dd:hh:mm:ss500");
    EXPECT_EQ(texte.LBL_Punkte, "0,075 P");
    texte.NachReset();
    EXPECT_EQ(texte.LBL_Timegone2 + texte.LBL_Punkte, "Dauer: dd:hh:mm:ss0");
    EXPECT_EQ(probe.Gelaufen.LV_Bauzeiten[0].Tag(),
              "Samstag 18.11.2006 12:30:05 | Keine Verzögerung wegen der Ressourcen!");
}

TEST(Lauf, EingabenWerdenDerReiheNachGeprueft) {
    struct Fall {
        const char* codes;
        const char* temperatur;
        const char* tag;
        std::vector<std::string> texte;
    };
    const std::vector<Fall> faelle{
        {"", "x", "x", {"Die Bauliste ist leer..."}},
        {"GM", "x", "x", {"Keine gültige Temperatur eingegeben..."}},
        {"GM", "40000", "18", {"Keine gültige Temperatur eingegeben..."}},
        {"GM", "11", "x", {"Kein gültiges Datum eingegeben..."}},
        {"GM", "11", "18", {}}};
    for (const Fall& fall : faelle) {
        Plan plan = PlanAus(fall.codes);
        plan.Parameter.TempMax = fall.temperatur;
        plan.Parameter.UniStartZeitTag = fall.tag;
        const Probe probe(plan);
        EXPECT_EQ(probe.Meldungen.Texte, fall.texte);
        EXPECT_EQ(probe.Ausgang == Laufausgang::Gelaufen, fall.texte.empty());
        EXPECT_EQ(Probe(plan, true).Meldungen.Texte.empty(),
                  fall.texte.empty() || *fall.codes == 0);
    }
    // A refused run leaves the last one's state, but for speed factor and sleep windows.
    Lauf lauf;
    Merker merker;
    Plan plan = PlanAus("GM");
    RunSimulation(plan, lauf, merker, false);
    plan.Liste.Clear();
    plan.Parameter.SpeedfaktorX2 = true;
    RunSimulation(plan, lauf, merker, false);
    EXPECT_EQ(lauf.LV_Bauzeiten.size(), 1U);
    EXPECT_EQ(lauf.Planet.Globale.Speedfaktor, 2);
}

TEST(Lauf, SchuldenJedesRohstoffsWerdenGemeldet) {
    const std::string vorn = "Negative Ressourcen: Metall: ";
    for (const auto& [code, schulden] :
         {std::pair("WR", "-1500    Kristall:500    Deuterium: 0"),
          std::pair("WSS", "500    Kristall:-500    Deuterium: 0"),
          std::pair("GW", "100    Kristall:300    Deuterium: -100")}) {
        EXPECT_EQ(Probe(MitPuffer(code, 0)).Meldungen.Texte,
                  std::vector<std::string>{vorn + schulden});
    }
}

TEST(Lauf, UnbekannteAuftraegeFallenWeg) {
    const Probe probe(MitPuffer("GM Quatsch WZZ GK", 0));
    EXPECT_EQ(probe.Gelaufen.LV_Bauzeiten.size(), 2U);
    EXPECT_EQ(probe.Globale().Stufe(ItemId::KrisMine), 1);
    EXPECT_EQ(probe.Meldungen.Pieptoene, 2);  // their finishes
    const auto anzahl = [&](const char* text) {
        return std::ranges::count(probe.Meldungen.Texte, text);
    };
    EXPECT_EQ(anzahl("STARTAUFTRAG NICHT ERKANNT"), 2);
    EXPECT_EQ(anzahl("UpgrdingensSAUFTRAG NICHT ERKANNT"), 2);
    // Timed at the moment of the order before: not before it, and not held back by any queue.
    EXPECT_EQ(Probe(MitPuffer("Quatsch GM", 7)).Start(0), 14);
}

TEST(Lauf, HaeltDieUhrAmEndeIhresBereichs) {
    const Probe probe(MitPuffer("GW WR GX:10:10:10 FS GX:5:5:5 FE GM GM", 600));
    EXPECT_EQ(probe.Uhr(), 2147483647);
    EXPECT_EQ(probe.Gelaufen.LV_Bauzeiten.size(), 8U);
}

TEST(EventTabelle, OrdnetNachZeitArtUndEintritt) {
    const Plan plan = PlanAus("GM FSCH GX:8:10:5 WR");
    const auto& zeilen = plan.Liste.Zeilen();
    EventTabelle tabelle;
    EXPECT_TRUE(tabelle.IstFrei(tabelle.Erste()));
    EXPECT_EQ(tabelle.Zelle(0, 0), "NONE");
    tabelle.SetEvent(Moment(100), zeilen[2], true);
    tabelle.SetEvent(Moment(100), zeilen[1], false);
    tabelle.SetEvent(Moment(100), zeilen[0], false);
    tabelle.SetEvent(Moment(99), zeilen[2], false);
    const auto text = [&] {
        std::string alles;
        for (std::size_t rang = 0; rang < EventTabelle::kZeilen; ++rang) {
            for (std::size_t spalte = 0; spalte < EventTabelle::kSpalten; ++spalte) {
                alles += tabelle.Zelle(rang, spalte) + (spalte == 4 ? "\n" : " ");
            }
        }
        return alles;
    };
    EXPECT_EQ(text(),
              "000000000099 G X 0 X\n"
              "000000000100 F SCH 0 \n"
              "000000000100 G M 0 \n"
              "000000000100 G X 1 X:8:10:5\n"
              "NONE    \n");
    tabelle.SetStartzeit(Moment(0));
    EXPECT_TRUE(tabelle.IstStart(tabelle.Erste()));
    tabelle.ClearEvent(tabelle.Erste());
    EXPECT_TRUE(tabelle.NoStartPending());
    tabelle.SetEvent(Moment(2147483647), zeilen[3], true);
    EXPECT_EQ(tabelle.Zelle(3, 0), "002147483647");
    EXPECT_EQ(&tabelle.Wartende(), &zeilen[3]);
}

}  // namespace
}  // namespace tarvelin
