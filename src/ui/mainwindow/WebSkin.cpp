// Files, order and questions of a fetch.
#include "ui/mainwindow/WebSkin.h"

#include <algorithm>
#include <array>

#include "persistence/AtomicWrite.h"
#include "ui/widgets/ItemDisplay.h"

namespace tarvelin {

namespace {

struct ItemSkinFile {
    ItemId item;
    /// Of the file in the folder "gebaeude".
    std::string_view name;
};

// clang-format off
constexpr std::array<ItemSkinFile, kNumItems> kItemSkinFiles{{
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

constexpr bool HasSkin(ItemId item) {
    return std::ranges::count(kItemSkinFiles, item, &ItemSkinFile::item) == 1;
}

static_assert(
    [] {
        for (std::size_t i = 0; i < kNumItems; ++i) {
            if (!HasSkin(static_cast<ItemId>(i))) {
                return false;
            }
        }
        return true;
    }(),
    "every item has its file in a skin");

constexpr std::array<SkinPicture, 4> kIcons{{
    {"images", "kristall", "Images(1)"},
    {"images", "metall", "Images(0)"},
    {"images", "deuterium", "Images(2)"},
    {"images", "energie", "Images(3)"},
}};

}  // namespace

const std::vector<SkinPicture>& SkinPictures() {
    static const std::vector<SkinPicture> kPictures = [] {
        std::vector<SkinPicture> pictures;
        pictures.reserve(kItemSkinFiles.size() + kIcons.size());
        for (const ItemSkinFile& skin : kItemSkinFiles) {
            pictures.push_back({"gebaeude", skin.name, ItemDisplays()[skin.item].pictureName});
        }
        pictures.insert(pictures.end(), kIcons.begin(), kIcons.end());
        return pictures;
    }();
    return kPictures;
}

namespace {

/// Whether the file exists afterwards.
bool FetchFile(const std::string& address, const std::filesystem::path& file,
               const Environment& environment) {
    if (FileExists(file, environment.files)) {
        DeleteFile(file, environment.files);
    }
    if (const auto bytes = environment.fetcher.Fetch(address)) {
        static_cast<void>(WriteFileAtomically(file, *bytes, environment.files));
    }
    return FileExists(file, environment.files);
}

Question AbortQuestion(const std::string& path) {
    return {.text = "\"" + path +
                    "\" konnte nicht von der angegebenen URL geladen werden...\r\n\r\n"
                    "Vorgang abbrechen ?",
            .title = "Download-Fehler...",
            .icon = MessageIcon::Warning};
}

}  // namespace

WebSkinOutcome FetchWebSkin(const std::string& address, const std::filesystem::path& destination,
                            const Environment& environment, const std::function<bool()>& open) {
    environment.dialogs.Show({.text = "Der folgende Vorgang kann einige Sekunden dauern, je nach "
                                      "Internet-Anbindung...",
                              .title = "Fortsetzen...",
                              .icon = MessageIcon::Information});
    for (const SkinPicture& picture : SkinPictures()) {
        const std::string path =
            "/" + std::string(picture.folder) + "/" + std::string(picture.name) + ".gif";
        environment.fetcher.ProcessEvents();
        const bool fetched =
            open() && FetchFile(address + path, destination / path.substr(1), environment);
        if (!open()) {
            return WebSkinOutcome::Aborted;
        }
        if (!fetched && environment.dialogs.Ask(AbortQuestion(path))) {
            return WebSkinOutcome::Aborted;
        }
    }
    return WebSkinOutcome::Completed;
}

}  // namespace tarvelin
