// The run: its clock, its timetable, its messages and what it leaves behind.
#include "TestSupport.h"
#include "simulation/EventTable.h"
#include "simulation/RunTexts.h"
#include "simulation/RunTrace.h"
#include "simulation/Simulation.h"

namespace tarvelin {
namespace {

Plan MitPuffer(std::string_view tags, int puffer) {
    Plan plan = PlanAus(tags);
    plan.parameters.KlickPuffer = puffer;
    return plan;
}

TEST(Ergebnistexte, FolgenLaufClearUndReset) {
    const Probe probe(MitPuffer("GM", 5));
    ResultTexts texte;
    texte.AfterRun(probe.Gelaufen.state);
    EXPECT_EQ(texte.LBL_Timegone2, "Dauer: 00 Tage 00:01:53");
    EXPECT_EQ(texte.LBL_Punkte, "0,075 P");
    texte.AfterClear();
    EXPECT_EQ(texte.LBL_Timegone + texte.LBL_Met, "Dauer: dd:hh:mm:ss500");
    EXPECT_EQ(texte.LBL_Punkte, "0,075 P");
    texte.AfterReset();
    EXPECT_EQ(texte.LBL_Timegone2 + texte.LBL_Punkte, "Dauer: dd:hh:mm:ss0");
}

TEST(Startbedingungen, WerdenDerReiheNachGelesen) {
    struct Fall {
        const char* Tags;
        const char* Temperatur;
        const char* Tag;
        std::vector<std::string> Texte;
    };
    for (const auto& [tags, temperatur, tag, texte] :
         {Fall{"", "x", "x", {"Die Bauliste ist leer..."}},
          Fall{"GM", "x", "x", {"Keine gültige Temperatur eingegeben..."}},
          Fall{"GM", "40000", "18", {"Keine gültige Temperatur eingegeben..."}},
          Fall{"GM", "11", "x", {"Kein gültiges Datum eingegeben..."}},
          Fall{"GM", "11", "18", {}}}) {
        Plan plan = PlanAus(tags);
        plan.parameters.TempMax = temperatur;
        plan.parameters.UniStartZeitTag = tag;
        const Probe probe(plan);
        EXPECT_EQ(probe.Meldungen.Texte, texte);
        EXPECT_EQ(probe.Gelungen, texte.empty());
    }
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

/// Counts what orders bring that no rule knows.
class Fremdenzaehler final : public RunObserver {
  public:
    void OnStart(const StartEvent& ereignis) override { Letzter = ereignis; }
    void OnUnknownOrder(UnknownOrderAt was) override {
        ++(was == UnknownOrderAt::Start ? Starts : Zeiten);
    }
    void OnEmptyStep() override { ++Pieptoene; }

    StartEvent Letzter;
    int Starts = 0;
    int Zeiten = 0;
    int Pieptoene = 0;
};

TEST(Lauf, UnbekannteAuftraegeFallenWeg) {
    const auto laufe = [](const std::vector<Order>& orders, Long puffer) {
        const RunConditions bedingungen{.Speedfaktor = 1, .KlickPuffer = puffer};
        Fremdenzaehler zaehler;
        Simulation(orders, bedingungen).RunToEnd(zaehler);
        EXPECT_EQ(zaehler.Letzter.row, orders.size() - 1);
        return std::array{zaehler.Starts, zaehler.Zeiten, zaehler.Pieptoene,
                          static_cast<int>(zaehler.Letzter.start.Seconds())};
    };
    const Order mine = Order::Of(ItemId::MetMine);
    const Order quatsch = Order::FromTag("Quatsch");
    EXPECT_EQ(quatsch.queue, Queue::None);
    EXPECT_EQ(Order::FromTag("WZZ").queue, Queue::Shipyard);
    // The finishes of both are beeps. The mines follow each other in their queue.
    EXPECT_EQ(laufe({mine, quatsch, Order::FromTag("WZZ"), mine}, 0), (std::array{2, 2, 2, 109}));
    // Timed at the moment of the order before: not before it, and not held back by any queue.
    EXPECT_EQ(laufe({quatsch, mine}, 7), (std::array{1, 0, 1, 14}));
}

TEST(Lauf, HaeltDieUhrAmEndeIhresBereichs) {
    const Probe probe(MitPuffer("GW WR GX:10:10:10 FS GX:5:5:5 FE GM GM", 600));
    EXPECT_EQ(probe.Gelaufen.state.secsgone.Seconds(), 2147483647);
    EXPECT_EQ(probe.Gelaufen.LV_Bauzeiten.size(), 8U);
}

TEST(Lauf, NenntWasEinenAuftragAufhielt) {
    const auto gruende = [](const Plan& plan) {
        std::string text;
        for (const ScheduleEntry& zeile : Probe(plan).Gelaufen.LV_Bauzeiten) {
            constexpr std::array kBuchstaben{'-', 'l', 'a', 'd', 'r', 's', 'z'};
            text += kBuchstaben.at(static_cast<std::size_t>(zeile.delay.cause));
        }
        return text;
    };
    Plan plan = PlanAus("GM GM GM GM GS GM");
    EXPECT_EQ(gruende(plan), "-sssrr");
    plan.LV_Schlafzeiten = {{"18.11.2006 12:31", "18.11.2006 20:00"}};
    EXPECT_EQ(gruende(plan), "-zsssr");
    const Probe gesperrt(PlanAus("GS GD GR FE"));
    EXPECT_EQ(gesperrt.Gelaufen.LV_Bauzeiten.back().delay,
              (Delay{.cause = DelayCause::Level, .missing = {ItemId::Folab, 1}}));
}

TEST(Lauf, SagtWasEinenAuftragAufhielt) {
    const auto texte = [](const Plan& plan) {
        const auto bedingungen = ParseRunConditions(plan);
        const RunTrace ablauf =
            TraceRun(plan.LV_Bauliste.Orders().All(), std::get<RunConditions>(bedingungen));
        std::vector<std::string> gruende;
        for (std::size_t i = 0; i < ablauf.starts.size(); ++i) {
            gruende.push_back(DelayText(ablauf, i));
        }
        return gruende;
    };
    using Texte = std::vector<std::string>;
    EXPECT_EQ(texte(PlanAus("GX:9:9:9 GM GM GX:8:8:8 GM GM GM GS")),
              (Texte{"", "wartete auf Zeile 1", "Bauschleife bis 12:31:49",
                     "Bauschleife bis 12:34:31", "wartete auf Zeile 4", "Bauschleife bis 12:38:34",
                     "Es fehlten: 286 Metall", "Es fehlten: 72 Metall"}));
    Plan plan = MitPuffer("GX:9:9:9 GM GM GX:1:1:1 GM", 5);
    plan.LV_Schlafzeiten = {{"18.11.2006 12:31", "18.11.2006 20:00"}};
    EXPECT_EQ(texte(plan),
              (Texte{"Klickpuffer: 5 s", "Klickpuffer: 5 s", "Schlafzeit 12:31:00 bis 20:00:00",
                     "Bauschleife bis 20:02:52", "wartete auf Zeile 4"}));
    EXPECT_EQ(texte(PlanAus("GS GD GR FE")).back(), "Es fehlte: Forschungslabor 1 (bis zuletzt)");
    EXPECT_EQ(texte(PlanAus("GR")).back(), "");
    EXPECT_EQ(texte(PlanAus("GS GR GF")).back(),
              "Es fehlte: Produktion von Deuterium (bis zuletzt)");
}

TEST(EventTabelle, OrdnetNachZeitArtUndEintritt) {
    EventTable tabelle;
    EXPECT_TRUE(tabelle.IsEmpty());
    tabelle.SetEvent(4);
    tabelle.RetimeStart(SimTime(100));
    tabelle.SetEvent(SimTime(100), 2);
    tabelle.SetEvent(SimTime(100), 1);
    tabelle.SetEvent(SimTime(99), 3);
    EXPECT_EQ(tabelle.PendingOrder(), 4U);
    for (const std::size_t order : {3U, 2U, 1U, 4U}) {
        EXPECT_EQ(tabelle.ClearEvent().order, order);
    }
    EXPECT_TRUE(tabelle.NoStartPending() && tabelle.IsEmpty());
}

}  // namespace
}  // namespace tarvelin
