// Order, addresses and questions of a fetch.
#include "ui/mainwindow/WebSkin.h"

#include <algorithm>
#include <array>

#include "persistence/AtomicWrite.h"
#include "ui/widgets/ItemDisplay.h"

namespace tarvelin {

namespace {

struct Itemskin {
    ItemId Item;
    /// The file in the folder of the buildings.
    std::string_view Name;
};

// clang-format off
constexpr std::array<Itemskin, kNumItems> kItemskins{{
    {ItemId::MetMine, "1"},
    {ItemId::KrisMine, "2"},
    {ItemId::DeutMine, "3"},
    {ItemId::SKW, "4"},
    {ItemId::Robo, "14"},
    {ItemId::Werft, "21"},
    {ItemId::Folab, "31"},
    {ItemId::Rakws, "401"},
    {ItemId::lLasers, "402"},
    {ItemId::sLasers, "403"},
    {ItemId::Solsats, "212"},
    {ItemId::Spios, "210"},
    {ItemId::LJs, "204"},
    {ItemId::ENTech, "113"},
    {ItemId::SchTech, "110"},
    {ItemId::VerbTech, "115"},
    {ItemId::LaserTech, "120"},
    {ItemId::SpioTech, "106"},
    {ItemId::KTs, "202"},
    {ItemId::klSchK, "407"},
}};
// clang-format on

constexpr bool HatSkin(ItemId item) {
    return std::ranges::count(kItemskins, item, &Itemskin::Item) == 1;
}

static_assert(
    [] {
        for (std::size_t i = 0; i < kNumItems; ++i) {
            if (!HatSkin(static_cast<ItemId>(i))) {
                return false;
            }
        }
        return true;
    }(),
    "every item has its file in a skin");

constexpr std::array<Skinbild, 4> kSymbole{{
    {"images", "kristall", "Images(1)"},
    {"images", "metall", "Images(0)"},
    {"images", "deuterium", "Images(2)"},
    {"images", "energie", "Images(3)"},
}};

}  // namespace

const std::vector<Skinbild>& Skinbilder() {
    static const std::vector<Skinbild> kBilder = [] {
        std::vector<Skinbild> bilder;
        bilder.reserve(kItemskins.size() + kSymbole.size());
        for (const Itemskin& skin : kItemskins) {
            bilder.push_back({"gebaeude", skin.Name, ItemDisplays()[skin.Item].pictureName});
        }
        bilder.insert(bilder.end(), kSymbole.begin(), kSymbole.end());
        return bilder;
    }();
    return kBilder;
}

namespace {

/// Whether the file lies there afterwards.
bool HoleDatei(const std::string& adresse, const std::filesystem::path& datei,
               const Environment& umgebung) {
    if (FileExists(datei, umgebung.files)) {
        static_cast<void>(umgebung.files.Remove(datei));
    }
    if (const auto bytes = umgebung.fetcher.Fetch(adresse)) {
        static_cast<void>(WriteFileAtomically(datei, *bytes, umgebung.files));
    }
    return FileExists(datei, umgebung.files);
}

Question NachFehler(const std::string& ort) {
    return {.text = "\"" + ort +
                    "\" konnte nicht von der angegebenen URL geladen werden...\r\n\r\n"
                    "Vorgang abbrechen ?",
            .title = "Download-Fehler...",
            .icon = MessageIcon::Warning};
}

}  // namespace

Webskinausgang HoleWebskin(const std::string& adresse, const std::filesystem::path& ziel,
                           const Environment& umgebung, const std::function<bool()>& offen) {
    umgebung.dialogs.Show({.text = "Der folgende Vorgang kann einige Sekunden dauern, je nach "
                                   "Internet-Anbindung...",
                           .title = "Fortsetzen...",
                           .icon = MessageIcon::Information});
    for (const Skinbild& bild : Skinbilder()) {
        const std::string ort =
            "/" + std::string(bild.Ordner) + "/" + std::string(bild.Name) + ".gif";
        umgebung.fetcher.ProcessEvents();
        const bool geholt = offen() && HoleDatei(adresse + ort, ziel / ort.substr(1), umgebung);
        if (!offen()) {
            return Webskinausgang::Abgebrochen;
        }
        if (!geholt && umgebung.dialogs.Ask(NachFehler(ort))) {
            return Webskinausgang::Abgebrochen;
        }
    }
    return Webskinausgang::AmEnde;
}

}  // namespace tarvelin
