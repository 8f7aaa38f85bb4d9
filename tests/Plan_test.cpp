// The build list, its rules and hover texts, start parameters and sleep windows.
#include <set>

#include "PlanLaws.h"
#include "TestSupport.h"
#include "plan/EditHistory.h"
#include "plan/HoverInfo.h"
#include "plan/Rules.h"

namespace tarvelin {
namespace {

TEST(Bauliste, HaeltZeilenMitTextFaktorUndFarbe) {
    const Plan plan = PlanAus("GS GM GK GD GX:10:10:0 WKSK WS WS WKT");
    EXPECT_EQ(Zustand(plan.LV_Bauliste),
              "1|GS|Solarkraftwerk Stufe: 1|1,00|schwarz\n"
              "2|GM|MetallMine Stufe: 1|1,00|schwarz\n"
              "3|GK|KristallMine Stufe: 1|1,00|schwarz\n"
              "4|GD|DeuteriumMine Stufe: 1|0,50|rot\n"
              "5|GX:10:10:0|M:100% K:100% D:0%|1,00|schwarz\n"
              "6|WKSK|Kleine Schildkuppel|1,00|schwarz\n"
              "7|WS|Solarsatellit Nr.: 1|1,00|schwarz\n"
              "8|WS|Solarsatellit Nr.: 2|1,00|schwarz\n"
              "9|WKT|Kl. Transporter Nr: 1|1,00|schwarz\n"
              "1 1 1 1 0 0 0 2 0 1 0 0 0 0 1 0 0 0 0 0 10 10 0 ");
    EXPECT_EQ(PlanAus("GM").LV_Bauliste.Rows()[0].SubItems2, "0,00");
    EXPECT_EQ(PlanAus("GX:0:0:0 GM GK GD").LV_Bauliste.Rows()[3].SubItems2, "1,00");
}

TEST(Bauliste, FaktortextFolgtDerTemperaturDesLetztenLaufs) {
    EXPECT_EQ(PlanAus("GM WS").LV_Bauliste.Rows()[1].SubItems2, "1,00");
    EXPECT_EQ(PlanAus("GM WS", {.Temperatur = -100}).LV_Bauliste.Rows()[1].SubItems2, "-0,45");
}

TEST(Bauliste, WeistUnbekanntesUndDie255teZeileAb) {
    const RunConditions bedingungen;
    BuildList liste;
    EXPECT_FALSE(liste.Replay("Quatsch", bedingungen));
    while (!liste.Orders().IsFull()) {
        ASSERT_FALSE(liste.AddItem(ItemId::DeutMine, bedingungen));
    }
    const std::string voll = Zustand(liste);
    const Message absage{"Die Bauliste ist voll: mehr als 254 Einträge sind nicht möglich...",
                         "Schwerer Ausnahmefehler 1337 !"};
    EXPECT_EQ(liste.AddItem(ItemId::SKW, bedingungen), absage);
    EXPECT_EQ(liste.AddProduction(kFullFactors, bedingungen), absage);
    EXPECT_EQ(Zustand(liste), voll);
    EXPECT_EQ(liste.Rows().size(), 254U);
    EXPECT_EQ(liste.Rows().back().SubItems2, "0,00");  // a need beyond 32 bits
    liste.Clear();
    EXPECT_EQ(Zustand(liste), Zustand(BuildList()));
}

TEST(Auftrag, VerstehtNurGanzeFaktorenVonNullBisZehn) {
    for (const char* tag : {"GX:8:10:5", "GX: 8 :+010:-0", "GXfoo:8:10:5:99", "GX8:1:2:3"}) {
        EXPECT_EQ(Order::FromTag(tag).kind, Order::Kind::Production) << tag;
    }
    for (const char* tag : {"GX", "GX:8:10", "GX:8:10:11", "GX:8:10:-1", "GX:8:10:5,0",
                            "GX::8:10:5", "gx:8:10:5", "GX:8:10:", "gm", "GM ", "", "G"}) {
        EXPECT_EQ(Order::FromTag(tag).kind, Order::Kind::Unknown) << tag;
    }
}

/// An item, the rows that it needs, and what is told as missing: all of it or, where there are
/// words for that, each need alone. A text that begins with a blank is whole.
struct Regelfall {
    const char* Item;
    std::vector<std::pair<std::string, int>> Braucht;
    std::string Alles;
    std::array<std::string, 2> Einzeln = {};
};

// clang-format off
const std::vector<Regelfall> kRegelfaelle{
    {"GM", {}, ""}, {"GK", {}, ""}, {"GD", {}, ""}, {"GS", {}, ""},
    {"GR", {{"GD", 1}, {"GS", 1}}, "Noch keine Deuteriummine oder kein Solarkraftwerk"},
    {"GF", {{"GD", 1}, {"GS", 1}}, "Noch keine Deuteriummine oder kein Solarkraftwerk"},
    {"GW", {{"GD", 1}, {"GR", 2}}, "Weder eine Roboterfabrik (Stufe:2) noch eine Deuteriummine",
     {"Deuteriummine", "Roboterfabrik (Stufe:2)"}},
    {"FE", {{"GF", 1}}, "Noch keine Forschungslabor"},
    {"FV", {{"GF", 1}, {"FE", 1}}, "Weder ein Forschungslabor noch Energietechnik(Stufe:1)",
     {"Forschungslabor", "Energietechnik(Stufe:1)"}},
    {"FL", {{"GF", 1}, {"FE", 2}}, "Weder ein Forschungslabor(Stufe:1) noch Energietechnik(Stufe:2)",
     {"Forschungslabor(Stufe:1)", "Energietechnik(Stufe:2)"}},
    {"FS", {{"GF", 3}}, "Noch keine Forschungslabor(Stufe:3)"},
    {"FSCH", {{"GF", 6}, {"FE", 3}}, "Weder ein Forschungslabor(Stufe:6) noch Energietechnik(Stufe:3)",
     {"Forschungslabor(Stufe:6)", "Energietechnik(Stufe:3)"}},
    {"WS", {{"GW", 1}}, "Noch keine Raumschiffwerft"},
    {"WR", {{"GW", 1}}, "Noch keine Raumschiffwerft"},
    {"WLJ", {{"GW", 1}, {"FV", 1}}, "Weder eine Raumschiffwerft(Stufe:1) noch Verbrennungstriebwerk(Stufe: 1)",
     {"Raumschiffwerft(Stufe:1)", "Verbrennungstriebwerk(Stufe:1)"}},
    {"WKT", {{"GW", 2}, {"FV", 2}}, "Weder eine Raumschiffwerft(Stufe:2) noch Verbrennungstriebwerk(Stufe: 2)",
     {"Raumschiffwerft(Stufe:2)", "Verbrennungstriebwerk(Stufe:2)"}},
    {"WLL", {{"GW", 2}, {"FL", 3}}, "Weder eine Raumschiffwerft(Stufe:2) noch Lasertechnik(Stufe: 3)",
     {"Raumschiffwerft(Stufe:2)", "Lasertechnik(Stufe:3)"}},
    {"WSL", {{"GW", 4}, {"FL", 6}, {"FE", 3}},
     " Benötigt werden Raumschiffwerft(Stufe:4), Lasertechnik(Stufe: 6), Energietechnik(Stufe:3) "},
    {"WSS", {{"GW", 3}, {"FV", 3}, {"FS", 2}},
     " Es werden noch benötigt: Spionagetichnik(Stufe:2), Raumschiffwerft(Stufe:3), Verbrennungstriebwerk(Stufe:3) "},
    {"WKSK", {{"GW", 1}, {"FSCH", 2}}, "Weder eine Raumschiffwerft(Stufe:1) noch Schildtechnik(Stufe: 2)",
     {"Raumschiffwerft(Stufe:1)", "Schildtechnik(Stufe:2)"}},
};
// clang-format on

/// What an item says when one row of some of its needs isn't in the list.
std::string AbsageOhne(const Regelfall& fall, const std::set<std::size_t>& zuWenige) {
    std::string codes;
    for (std::size_t i = 0; i < fall.Braucht.size(); ++i) {
        const auto& [code, anzahl] = fall.Braucht[i];
        for (int n = zuWenige.contains(i) ? 1 : 0; n < anzahl; ++n) {
            codes += code + " ";
        }
    }
    return std::string(
        Refusal(*ItemFromCode(fall.Item), PlanAus(codes).LV_Bauliste.Orders()).value_or("offen"));
}

TEST(Regeln, OeffnenAufDieZeileGenau) {
    const auto satz = [](const std::string& fehlt, const char* tun) {
        return " " + fehlt + " in der Bauliste, " + tun + " wäre unmöglich! ";
    };
    for (const Regelfall& fall : kRegelfaelle) {
        SCOPED_TRACE(fall.Item);
        EXPECT_EQ(AbsageOhne(fall, {}), "offen");
        const std::string alles =
            fall.Alles.starts_with(' ') ? fall.Alles : satz(fall.Alles, "bauen");
        for (std::size_t i = 0; i < fall.Braucht.size(); ++i) {
            const std::string& code = fall.Braucht[i].first;
            const std::string einzeln =
                fall.Einzeln[0].empty()
                    ? alles
                    : satz("Noch keine " + fall.Einzeln.at(i), code == "FE" ? "forschen" : "bauen");
            EXPECT_EQ(AbsageOhne(fall, {i}), einzeln) << code;
            EXPECT_EQ(AbsageOhne(fall, {0, 1, 2}), alles);
        }
    }
}

TEST(Regeln, LassenGenauEineKuppelAllein) {
    const auto kuppel = [](const char* codes) {
        return Refusal(ItemId::klSchK, PlanAus(codes).LV_Bauliste.Orders()).value_or("offen");
    };
    for (const char* eine : {"WKSK", "GW FSCH FSCH WKSK"}) {
        EXPECT_EQ(kuppel(eine), " Bereits eine kleine Schildkuppel in der Bauliste vorhanden! ");
    }
    EXPECT_EQ(kuppel("WKSK FSCH WKSK GW FSCH"), "offen");
}

TEST(Hovertexte, NennenKostenUndEnergieDerNaechstenZeile) {
    using enum ItemId;
    RunConditions bedingungen;
    const auto text = [&](const char* codes, ItemId item) {
        return HoverInfoFor(item, PlanAus(codes).LV_Bauliste.Orders(), bedingungen).tooltip;
    };
    EXPECT_EQ(text("", DeutMine),
              " Deuteriummine  |  Kosten:  Met: 225  Kris: 75  Deut: 0  |  Energie: -22");
    EXPECT_EQ(text("GM GM GX:0:0:0 GM", MetMine),
              " Metallmine  |  Kosten:  Met: 202  Kris: 50  Deut: 0  |  Energie: -19");
    EXPECT_EQ(text("GS", SKW),
              " Solarkraftwerk  |  Kosten:  Met: 112  Kris: 45  Deut: 0  |  Energie: +26");
    EXPECT_EQ(text("GW WR WR", Rakws), " Rakentenwerfer  |  Kosten:  Met: 2000  Kris: 0  Deut: 0");
    EXPECT_EQ(text("GW WS", Solsats),
              " Solarsatellit  |  Kosten:  Met: 0  Kris: 2000  Deut: 500  |  Energie: +20");
    bedingungen.Temperatur = 30;
    EXPECT_TRUE(text("GW WS", Solsats).ends_with("  |  Energie: +27"));
    const HoverInfo zu = HoverInfoFor(Rakws, OrderList(), bedingungen);
    EXPECT_FALSE(zu.dragEnabled);
    EXPECT_EQ(zu.tooltip, " Noch keine Raumschiffwerft in der Bauliste, bauen wäre unmöglich! ");
}

TEST(Listenverlauf, TippenInEineEingabeIstEinSchritt) {
    EditHistory verlauf;
    const auto tippe = [&](const char* eingabe, const char* temperatur) {
        PlanSnapshot stand;
        stand.parameters.TempMax = temperatur;
        verlauf.Record(stand, eingabe);
    };
    for (const char* const text : {"", "2", "25"}) {
        tippe("TempMax", text);
    }
    tippe("TempMin", "26");
    tippe("TempMax", "27");
    EXPECT_EQ(verlauf.Undo().parameters.TempMax, "26");
    tippe("TempMax", "28");
    EXPECT_FALSE(verlauf.CanRedo());
    tippe("TempMax", "26");
    EXPECT_EQ(verlauf.Undo().parameters.TempMax, "25") << "typed back to what it was";
    EXPECT_EQ(verlauf.Undo().parameters.TempMax, "11");
    EXPECT_FALSE(verlauf.CanUndo());
}

TEST(Listenverlauf, EinAndersGeschriebenerTagIstKeinSchritt) {
    EditHistory verlauf;
    PlanSnapshot stand;
    const auto tag = [&](const char* text) -> PlanSnapshot& {
        stand.parameters.UniStartZeitTag = text;
        return stand;
    };
    verlauf.Begin(tag("05"));
    EXPECT_TRUE(verlauf.Record(tag("5"), "Tag"));
    stand.tags = {"GM"};
    EXPECT_TRUE(verlauf.Record(stand));
    const StartParameters vorher = stand.parameters;
    verlauf.RewriteDay(vorher, tag("05").parameters);
    EXPECT_FALSE(verlauf.Record(stand));
    EXPECT_EQ(verlauf.StepCount(), 1U);
    EXPECT_EQ(verlauf.Undo().parameters.UniStartZeitTag, "05");
    EXPECT_TRUE(verlauf.CanRedo() && !verlauf.CanUndo());
}

TEST(Startparameter, WochentagUndStartdatum) {
    StartParameters parameter = PlanAus("").parameters;
    EXPECT_EQ(RefreshWeekday(parameter).caption, "Sa.");
    EXPECT_EQ(RefreshWeekday(parameter).hint, "Samstag");
    parameter.UniStartZeitTag = "5";
    EXPECT_EQ(*ReadUniStartZeit(parameter), *ParseDateTime("05.11.2006 12:30:00"));
    parameter.UniStartZeitMonat = "2";
    parameter.UniStartZeitTag = "30";
    EXPECT_EQ(RefreshWeekday(parameter).caption, "Err.");
    EXPECT_FALSE(ReadUniStartZeit(parameter));
    PadStartDate(parameter);
    EXPECT_EQ(parameter.UniStartZeitMonat, "02");
    EXPECT_EQ(KlickPufferText(600), "10:00");
}

TEST(Startparameter, TemperaturenHaengenZusammen) {
    StartParameters parameter;
    const auto max = [&](const char* text) {
        ChangeTempMax(parameter, text);
        return parameter.tempMin + " " + parameter.TempMax;
    };
    EXPECT_EQ(max("011"), "-29 11");
    EXPECT_EQ(max("+5"), "-35 5");
    EXPECT_EQ(max("0,1"), "-39,9 0,1");
    EXPECT_EQ(max("abc"), "-39,9 abc");
    EXPECT_EQ(max(" 12,05 "), "-27,95 12,05");
    ChangeTempMin(parameter, "-10");
    EXPECT_EQ(parameter.TempMax, "30");
    ChangeTempMin(parameter, "");
    EXPECT_EQ(parameter.TempMax, "30");
    const auto grad = [&](const char* text) {
        parameter.TempMax = text;
        return ParseTemperature(parameter);
    };
    EXPECT_EQ(grad("25,5"), 26);
    EXPECT_EQ(grad("24,5"), 24);
    EXPECT_EQ(grad("-32768,5"), -32768);
    for (const char* text : {"-32769", "32767,5", "99999999999999999999", "12a", ""}) {
        EXPECT_FALSE(grad(text)) << text;
    }
}

TEST(Schlaftabelle, NimmtNurWasSichNichtUeberschneidet) {
    SleepTable tabelle{{"kein", "Datum"}};
    const auto fuege = [&](const char* stunde, const char* minute, const char* dauerStunden,
                           const char* dauerMinuten) {
        const auto meldung =
            AddSleepRow({"18.11.2006", stunde, minute, dauerStunden, dauerMinuten}, tabelle);
        return meldung ? meldung->text : std::to_string(tabelle.size());
    };
    const std::string trifft = "Kein überschneidenden Zeiträumen eingegeben...";
    EXPECT_EQ(fuege("10", "00", "2", "00"), "2");
    EXPECT_EQ(tabelle.back(), (SleepRow{"18.11.2006 10:00", "18.11.2006 12:00"}));
    EXPECT_EQ(fuege("10", "00", "2", "00"), trifft);
    EXPECT_EQ(fuege("11", "59", "0", "01"), trifft);
    EXPECT_EQ(fuege("09", "00", "1", "00"), trifft);  // ends where the row begins
    EXPECT_EQ(fuege("09", "00", "0", "59"), "3");
    EXPECT_EQ(fuege("12", "00", "0", "00"), "4");     // begins where the row ends
    EXPECT_EQ(fuege("08", "00", "9", "00"), trifft);  // around rows
    EXPECT_EQ(fuege("23", "30", "1,5", "30"), "5");
    EXPECT_EQ(tabelle.back(), (SleepRow{"18.11.2006 23:30", "19.11.2006 01:30"}));
    EXPECT_EQ(fuege("24", "00", "x", "00"), "Keine gültige Dauer eingegeben...");
    EXPECT_EQ(fuege("24", "00", "1", "00"), "Kein gültiges Datum eingegeben...");
    EXPECT_EQ(ParseSleepTable(tabelle).size(), 4U);
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "30", "01", "00"}), "Sa.  18.11.2006 23:30");
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "30", "", "00"}), "Error");
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "60", "1", "00"}), "Error");
}

}  // namespace
}  // namespace tarvelin
