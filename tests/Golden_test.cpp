// Plan files with their whole expected result, compared field by field.
#include <nlohmann/json.hpp>
#include <sstream>

#include "Hilfen.h"
#include "console/Ausgabe.h"
#include "plan/Regeln.h"

namespace tarvelin {
namespace {

std::vector<std::string> Plaene() {
    std::vector<std::string> namen;
    for (const auto& eintrag : std::filesystem::directory_iterator(TARVELIN_GOLDEN)) {
        if (eintrag.path().extension() == ".tvf") {
            namen.push_back(eintrag.path().stem().string());
        }
    }
    std::ranges::sort(namen);
    return namen;
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, ErgibtFeldFuerFeldDasErwartete) {
    const auto datei = std::filesystem::path(TARVELIN_GOLDEN) / (GetParam() + ".tvf");
    std::ostringstream fehlerstrom;
    const auto ist = nlohmann::json::parse(JsonText(Planlauf(datei, fehlerstrom)));
    auto json = datei;
    const auto soll = nlohmann::json::parse(LiesDatei(json.replace_extension(".json")));
    for (const auto& unterschied : nlohmann::json::diff(soll, ist)) {
        const nlohmann::json::json_pointer ort(unterschied["path"].get<std::string>());
        ADD_FAILURE() << unterschied["op"] << " " << unterschied["path"] << "\n  soll "
                      << (soll.contains(ort) ? soll[ort].dump() : "(nichts)") << "\n  ist  "
                      << (ist.contains(ort) ? ist[ort].dump() : "(nichts)");
    }
}

INSTANTIATE_TEST_SUITE_P(Plaene, Golden, testing::ValuesIn(Plaene()), [](const auto& fall) {
    std::string name = fall.param;
    std::ranges::replace(name, '-', '_');
    return name;
});

TEST(Starterplan, HaeltDieRegelnUndLaeuftOhneMeldung) {
    std::ostringstream fehlerstrom;
    const Planlauf lauf(std::filesystem::path(TARVELIN_QUELLEN) / "data/saves/basic.tvf",
                        fehlerstrom);
    EXPECT_TRUE(lauf.Gelaufen);
    EXPECT_EQ(fehlerstrom.str(), "");
    const auto& zeilen = lauf.Plan.Liste.Zeilen();
    EXPECT_GE(zeilen.size(), 30U);
    EXPECT_LE(zeilen.size(), 60U);
    Bauliste liste;
    for (const BaulistenZeile& zeile : zeilen) {
        ASSERT_EQ(zeile.Order.Was, Auftrag::Art::Item);
        EXPECT_FALSE(Absage(zeile.Order.Item, liste)) << zeile.Text;
        ASSERT_FALSE(liste.DragDrop(ZeileVon(zeile.Order.Item).Bild, lauf.Lauf.Planet));
    }
}

}  // namespace
}  // namespace tarvelin
