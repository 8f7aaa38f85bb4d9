// Save files: format, laws of saving and loading, hostile bytes.
#include "PlanLaws.h"
#include "TestSupport.h"

namespace tarvelin {
namespace {

struct Ladung {
    Plan Geladen;
    Merker Meldungen;
    bool Gelesen;

    explicit Ladung(std::string_view bytes)
        : Gelesen(ReadPlan(IniFile(bytes), Geladen, RunConditions(), Meldungen)) {}
};

std::string Bytes(const Plan& plan, std::string_view vorher = "") {
    IniFile profil(vorher);
    WritePlan(plan, profil);
    return profil.Bytes();
}

Plan Beispiel() {
    Plan plan = PlanAus("GM GS GX:8:10:5");
    plan.parameters.KlickPuffer = 5;
    plan.LV_Schlafzeiten = {{"18.11.2006 22:00", "19.11.2006 06:00"}};
    return plan;
}

const std::string kBeispiel =
    "[Einstellungen]\r\nKlickPuffer=5\r\nUniStartZeitTag=18\r\nUniStartZeitMonat=11\r\n"
    "UniStartZeitJahr=2006\r\nUniStartZeitStunden=12\r\nUniStartZeitMinuten=30\r\nTempMax=11\r\n"
    "ShowDesc=1\r\nSpeedfaktor_X2=0\r\n[Bauliste]\r\nItemCount=3\r\nItem_001=GM\r\nItem_002=GS\r\n"
    "Item_003=GX:8:10:5\r\n[Schlafzeiten]\r\nItemCount=1\r\nItem_001=18.11.2006 22:00\r\n"
    "SubItem_001=19.11.2006 06:00\r\n";

/// The example with one line changed, or taken out where `neu` is empty.
std::string Mit(const std::string& alt, const std::string& neu) {
    std::string bytes = kBeispiel;
    const auto ort = bytes.find(alt);
    EXPECT_NE(ort, std::string::npos) << alt;
    return bytes.replace(ort, alt.size() + 2, neu.empty() ? "" : neu + "\r\n");
}

TEST(Planablage, HatDasFormat) {
    EXPECT_EQ(Bytes(Beispiel()), kBeispiel);
    Plan kurz = Beispiel();
    kurz.LV_Bauliste.RemoveLast();
    const std::string ueber = Bytes(kurz, kBeispiel);
    EXPECT_NE(ueber.find("ItemCount=2\r\nItem_001=GM\r\nItem_002=GS\r\nItem_003=GX:8:10:5"),
              std::string::npos);
    EXPECT_EQ(Ladung(ueber).Geladen.LV_Bauliste.Rows().size(), 2U);
    EXPECT_EQ(WindowTitleFor("/ein/Ordner/x.y.tvf"),
              "Tarvelin  |  Kelva Aufbau-Simulator      ( x.y.tvf )");
}

TEST(Planablage, HoertAmErstenUnbrauchbarenWertAuf) {
    struct Fall {
        const char* Alt;
        const char* Neu;
        std::size_t Zeilen;
        std::size_t Schlafzeiten;
        const char* Hindernis;
    };
    const std::vector<Fall> faelle{
        {"KlickPuffer=5", "KlickPuffer=601", 0, 0,
         "Zeile 2, KlickPuffer: 601 ist keine Zahl von 0 bis 600"},
        {"KlickPuffer=5", "", 0, 0, "[Einstellungen], KlickPuffer fehlt"},
        {"ShowDesc=1", "ShowDesc=ja", 0, 0, "Zeile 9, ShowDesc: ja ist keine Zahl"},
        {"ItemCount=1", "ItemCount=10000", 0, 0,
         "Zeile 17, ItemCount: 10000 ist keine Zahl von 0 bis 9999"},
        {"ItemCount=1", "ItemCount=1,0", 0, 0,
         "Zeile 17, ItemCount: 1,0 ist keine Zahl von 0 bis 9999"},
        {"ItemCount=3", "ItemCount=-1", 0, 1,
         "Zeile 12, ItemCount: -1 ist keine Zahl von 0 bis 254"},
        {"ItemCount=3", "ItemCount=4", 3, 1, "[Bauliste], Item_004 fehlt"},
        {"Item_001=GM", "Item_001=gm", 0, 1, "Zeile 13, Item_001: gm ist kein Code der Bauliste"},
        {"Item_001=GM", "Item_001=", 0, 1, "Zeile 13, Item_001: der Wert fehlt"},
        {"Item_002=GS", "", 1, 1, "[Bauliste], Item_002 fehlt"},
        {"Item_003=GX:8:10:5", "Item_003=GX:8:10:11", 2, 1,
         "Zeile 15, Item_003: GX:8:10:11 ist kein Code der Bauliste"}};
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(std::string(fall.Alt) + " " + fall.Neu);
        const Ladung ladung(Mit(fall.Alt, fall.Neu));
        EXPECT_FALSE(ladung.Gelesen);
        EXPECT_EQ(ladung.Meldungen.Texte,
                  std::vector<std::string>{"Die Bauliste konnte nicht geladen werden..."});
        EXPECT_EQ(ladung.Geladen.LV_Bauliste.Rows().size(), fall.Zeilen);
        EXPECT_EQ(ladung.Geladen.LV_Schlafzeiten.size(), fall.Schlafzeiten);
        EXPECT_EQ(LoadObstacle(IniFile(Mit(fall.Alt, fall.Neu))), fall.Hindernis);
    }
    EXPECT_EQ(LoadObstacle(IniFile(kBeispiel)), "");
    const Ladung zuviel(Mit("ItemCount=3", "ItemCount=99999999999999999999"));
    EXPECT_EQ(zuviel.Meldungen.Texte.size(), 1U);
}

TEST(Planablage, LiestWasBrauchbarIst) {
    EXPECT_FALSE(Ladung(Mit("ShowDesc=1", "ShowDesc=0,0")).Geladen.ShowDesc);
    EXPECT_TRUE(Ladung(Mit("ShowDesc=1", "ShowDesc=-7")).Geladen.ShowDesc);
    EXPECT_TRUE(
        Ladung(Mit("Speedfaktor_X2=0", "Speedfaktor_X2=1")).Geladen.parameters.Speedfaktor_X2);
    EXPECT_FALSE(
        Ladung(Mit("Speedfaktor_X2=0", "Speedfaktor_X2=01")).Geladen.parameters.Speedfaktor_X2);
    EXPECT_FALSE(Ladung(Mit("Speedfaktor_X2=0", "")).Geladen.parameters.Speedfaktor_X2);
    const Ladung kalt(Mit("TempMax=11", "TempMax=-20,5"));
    EXPECT_EQ(kalt.Geladen.parameters.tempMin, "-60,5");
    const Ladung ohneDatum(Mit("UniStartZeitTag=18", "UniStartZeitTag=31"));
    EXPECT_TRUE(ohneDatum.Gelesen);
    EXPECT_FALSE(Probe(ohneDatum.Geladen).Gelungen);
    const Ladung vorzeichen(Mit("Item_003=GX:8:10:5", "Item_003=GX:+8:010: 5 :x"));
    EXPECT_EQ(vorzeichen.Geladen.LV_Bauliste.Rows()[2].Tag, "GX:+8:010: 5 :x");
    EXPECT_EQ(vorzeichen.Geladen.LV_Bauliste.Rows()[2].SubItems1, "M:80% K:100% D:50%");
    EXPECT_EQ(Probe(vorzeichen.Geladen).Gelaufen.LV_Bauzeiten[2].theText(), "80% 100% 50%");
}

TEST(Planablage, SchreibtInDieDateiOderGarNicht) {
    const Ordner ordner;
    const Plan plan = Beispiel();
    ASSERT_TRUE(SaveBauliste(ordner / "plan.tvf", plan));
    EXPECT_EQ(LiesDatei(ordner / "plan.tvf"), kBeispiel);
    EXPECT_FALSE(SaveBauliste(ordner / "", plan));
    EXPECT_FALSE(SaveBauliste(ordner / "fehlt" / "plan.tvf", plan));
    EXPECT_EQ(ordner.Eintraege(), 1U);
}

TEST(Planablage, BleibtUtf16) {
    const Ordner ordner;
    const auto datei = ordner / "plan.tvf";
    const std::string golden = LiesDatei(TARVELIN_GOLDEN "/regelwidrig-13.tvf");
    const Ladung original(golden);
    IniFile ueber(golden);
    WritePlan(Beispiel(), ueber);
    const std::string neu = ueber.Bytes();
    for (const bool hochVorn : {false, true}) {
        SchreibeDatei(datei, InUtf16({golden.begin(), golden.end()}, hochVorn));
        const Ladung ladung(LiesDatei(datei));
        EXPECT_TRUE(ladung.Gelesen);
        EXPECT_EQ(Ergebnis(ladung.Geladen), Ergebnis(original.Geladen));
        ASSERT_TRUE(SaveBauliste(datei, Beispiel()));
        EXPECT_EQ(LiesDatei(datei), InUtf16({neu.begin(), neu.end()}, hochVorn));
    }
}

}  // namespace
}  // namespace tarvelin
