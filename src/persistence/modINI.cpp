// Profile access by single keys.
#include "persistence/modINI.h"

#include "persistence/Dateiersatz.h"
#include "persistence/Profil.h"

namespace tarvelin {

std::string ReadINI(std::string_view Section, std::string_view Key,
                    const std::filesystem::path& File, std::string_view Default,
                    const Dateisystem& system) {
    return Profil::Lade(File, system).value_or(Profil("")).Lies(Section, Key, Default);
}

void WriteINI(std::string_view Section, std::string_view Key, std::string_view Value,
              const std::filesystem::path& File, const Dateisystem& system) {
    if (auto profil = Profil::LadeOderLeer(File, system)) {
        profil->Schreibe(Section, Key, Value);
        ErsetzeDatei(File, profil->Bytes(), system);
    }
}

}  // namespace tarvelin
