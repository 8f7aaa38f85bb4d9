// Choice of the folder and the copies for a user of an installed program.
#include "persistence/Programmordner.h"

#include "persistence/Dateiersatz.h"

namespace tarvelin {

namespace fs = std::filesystem;

namespace {

void KopiereFehlende(const fs::path& von, const fs::path& nach) {
    std::error_code fehler;
    if (fs::exists(nach, fehler)) {
        return;
    }
    constexpr std::size_t kHoechstgroesse = std::size_t{16} << 20U;
    if (const auto bytes = LiesDatei(von, kHoechstgroesse, Platte())) {
        ErsetzeDatei(nach, *bytes);
    }
}

void ErgaenzeOrdner(const fs::path& von, const fs::path& nach) {
    std::error_code fehler;
    fs::create_directories(nach, fehler);
    for (fs::recursive_directory_iterator eintrag(von, fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        const fs::path ziel = nach / eintrag->path().lexically_relative(von);
        if (eintrag->is_directory(fehler)) {
            fs::create_directories(ziel, fehler);
        } else {
            KopiereFehlende(eintrag->path(), ziel);
        }
        fehler.clear();
    }
}

}  // namespace

fs::path BestimmeProgrammordner(const fs::path& ordner_des_programms,
                                const fs::path& nutzerordner) {
    std::error_code fehler;
    const bool mit_daten = fs::is_directory(ordner_des_programms / "img", fehler);
    if (mit_daten && Platte().IstBeschreibbar(ordner_des_programms)) {
        return ordner_des_programms;
    }
    const fs::path quelle = mit_daten ? ordner_des_programms
                                      : ordner_des_programms.parent_path() / "share" / "tarvelin";
    ErgaenzeOrdner(quelle / "img", nutzerordner / "img");
    ErgaenzeOrdner(quelle / "mfx", nutzerordner / "mfx");
    fs::create_directories(nutzerordner / "saves", fehler);
    if (!fs::exists(nutzerordner / "config.cfg", fehler)) {
        KopiereFehlende(quelle / "saves" / "basic.tvf", nutzerordner / "saves" / "basic.tvf");
    }
    return nutzerordner;
}

}  // namespace tarvelin
