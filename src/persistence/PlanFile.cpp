// The save-file format.
#include "persistence/PlanFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "persistence/AtomicWrite.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr std::string_view kEinstellungen = "Einstellungen";
constexpr std::string_view kBauliste = "Bauliste";
constexpr std::string_view kSchlafzeiten = "Schlafzeiten";
constexpr std::string_view kItemCount = "ItemCount";

constexpr std::int64_t kMeisteSchlafzeiten = 9999;

/// "Item_007".
std::string Zeilenkey(std::string_view name, std::size_t n) {
    constexpr int kStellen = 3;
    return std::string(name) + PadIntegerDigits(std::to_string(n), kStellen);
}

/// The keys of the section of settings that hold an input's text as typed, in the order in which
/// they are written and read. The highest temperature is no row, as the lowest follows from it.
struct Textkey {
    std::string_view Key;
    std::string StartParameters::*Text;
};

constexpr std::array<Textkey, 5> kDatumskeys{{
    {"UniStartZeitTag", &StartParameters::UniStartZeitTag},
    {"UniStartZeitMonat", &StartParameters::UniStartZeitMonat},
    {"UniStartZeitJahr", &StartParameters::UniStartZeitJahr},
    {"UniStartZeitStunden", &StartParameters::UniStartZeitStunden},
    {"UniStartZeitMinuten", &StartParameters::UniStartZeitMinuten},
}};

/// A value of any file as a person reads it: in one line, and not too long.
std::string Lesbar(std::string_view wert) {
    constexpr std::size_t kHoechstens = 60;
    std::string text(wert.substr(0, wert.find_first_of('\0')));
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto zeichen = static_cast<unsigned char>(text[i]);
        // Also those of the second set, which UTF-8 has behind this byte.
        const bool folge = i > 0 && text[i - 1] == '\xC2' && zeichen >= 0x80 && zeichen < 0xA0;
        if (zeichen < ' ' || zeichen == 0x7F || folge) {
            text[i] = '?';
            text[i - (folge ? 1 : 0)] = '?';
        }
    }
    if (text.size() > kHoechstens) {
        // No letter is parted.
        std::size_t ende = kHoechstens;
        while ((static_cast<unsigned char>(text[ende]) & 0xC0U) == 0x80U) {
            --ende;
        }
        text.resize(ende);
        text += "...";
    }
    return text;
}

/// The steps of a load; each answers whether it found usable values.
class Leser {
  public:
    Leser(const Profil& profil, Plan& plan, const RunConditions& bedingungen)
        : m_profil(profil), m_plan(plan), m_bedingungen(bedingungen) {}

    bool Lies() { return LiesEinstellungen() && LiesSchlafzeiten() && LiesBauliste(); }

    /// What the reading stopped at, for people.
    [[nodiscard]] const std::string& Hindernis() const { return m_hindernis; }

  private:
    bool LiesEinstellungen() {
        StartParameters& parameter = m_plan.parameters;
        parameter.Speedfaktor_X2 = m_profil.Lies(kEinstellungen, "Speedfaktor_X2", "0") == "1";
        const auto klickPuffer = LiesZahlVon0(kEinstellungen, "KlickPuffer", kMaxKlickPuffer);
        if (!klickPuffer) {
            return false;
        }
        parameter.KlickPuffer = static_cast<int>(*klickPuffer);
        for (const Textkey& textkey : kDatumskeys) {
            parameter.*textkey.Text = m_profil.Lies(kEinstellungen, textkey.Key, "");
        }
        ChangeTempMax(parameter, m_profil.Lies(kEinstellungen, "TempMax", ""));
        const auto showDesc = ParseNumber(m_profil.Lies(kEinstellungen, "ShowDesc", ""));
        m_plan.ShowDesc = showDesc ? *showDesc != 0 : m_plan.ShowDesc;
        return showDesc || Scheitere(kEinstellungen, "ShowDesc", "ist keine Zahl");
    }

    bool LiesSchlafzeiten() {
        m_plan.LV_Schlafzeiten.clear();
        const auto anzahl = LiesZahlVon0(kSchlafzeiten, kItemCount, kMeisteSchlafzeiten);
        for (std::size_t n = 1; anzahl && n <= static_cast<std::size_t>(*anzahl); ++n) {
            m_plan.LV_Schlafzeiten.push_back(
                {m_profil.Lies(kSchlafzeiten, Zeilenkey("Item_", n), ""),
                 m_profil.Lies(kSchlafzeiten, Zeilenkey("SubItem_", n), "")});
        }
        return anzahl.has_value();
    }

    bool LiesBauliste() {
        const auto anzahl = ParseWholeNumber(m_profil.Lies(kBauliste, kItemCount, ""), 0,
                                             std::numeric_limits<std::int64_t>::max());
        const std::string erwartet =
            "ist keine Zahl von 0 bis " + std::to_string(OrderList::kMaxSize);
        if (!anzahl) {
            return Scheitere(kBauliste, kItemCount, erwartet);
        }
        const auto zeilen = std::min(*anzahl, std::int64_t{OrderList::kMaxSize});
        for (std::int64_t n = 1; n <= zeilen; ++n) {
            const auto key = Zeilenkey("Item_", static_cast<std::size_t>(n));
            if (!m_plan.LV_Bauliste.Replay(m_profil.Lies(kBauliste, key, ""), m_bedingungen)) {
                return Scheitere(kBauliste, key, "ist kein Code der Bauliste");
            }
        }
        return *anzahl == zeilen || Scheitere(kBauliste, kItemCount, erwartet);
    }

    std::optional<std::int64_t> LiesZahlVon0(std::string_view section, std::string_view key,
                                             std::int64_t bis) {
        const auto zahl = ParseWholeNumber(m_profil.Lies(section, key, ""), 0, bis);
        if (!zahl) {
            static_cast<void>(
                Scheitere(section, key, "ist keine Zahl von 0 bis " + std::to_string(bis)));
        }
        return zahl;
    }

    /// Always false.
    bool Scheitere(std::string_view section, std::string_view key, const std::string& erwartet) {
        const auto zeile = m_profil.Zeilennummer(section, key);
        const std::string name(key);
        if (!zeile) {
            m_hindernis = "[" + std::string(section) + "], " + name + " fehlt";
            return false;
        }
        const std::string wert = Lesbar(m_profil.Lies(section, key, ""));
        m_hindernis = "Zeile " + std::to_string(*zeile) + ", " + name + ": " +
                      (wert.empty() ? "der Wert fehlt" : wert + " " + erwartet);
        return false;
    }

    const Profil& m_profil;
    Plan& m_plan;
    const RunConditions& m_bedingungen;
    std::string m_hindernis;
};

}  // namespace

Message Ladefehler() {
    return {.text = "Die Bauliste konnte nicht geladen werden...", .title = kBadInputTitle};
}

Message Speicherfehler() {
    return {.text = "Die Bauliste konnte nicht gespeichert werden...", .title = kBadInputTitle};
}

bool HatZeilen(const Profil& profil) {
    return ParseWholeNumber(profil.Lies(kBauliste, kItemCount, ""), 1,
                            std::numeric_limits<std::int64_t>::max())
        .has_value();
}

void SchreibePlan(const Plan& plan, Profil& profil) {
    const StartParameters& parameter = plan.parameters;
    profil.Schreibe(kEinstellungen, "KlickPuffer", std::to_string(parameter.KlickPuffer));
    for (const Textkey& textkey : kDatumskeys) {
        profil.Schreibe(kEinstellungen, textkey.Key, parameter.*textkey.Text);
    }
    profil.Schreibe(kEinstellungen, "TempMax", parameter.TempMax);
    profil.Schreibe(kEinstellungen, "ShowDesc", plan.ShowDesc ? "1" : "0");
    profil.Schreibe(kEinstellungen, "Speedfaktor_X2", parameter.Speedfaktor_X2 ? "1" : "0");

    const auto& zeilen = plan.LV_Bauliste.Rows();
    profil.Schreibe(kBauliste, kItemCount, std::to_string(zeilen.size()));
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        profil.Schreibe(kBauliste, Zeilenkey("Item_", i + 1), zeilen[i].Tag);
    }

    profil.Schreibe(kSchlafzeiten, kItemCount, std::to_string(plan.LV_Schlafzeiten.size()));
    for (std::size_t i = 0; i < plan.LV_Schlafzeiten.size(); ++i) {
        profil.Schreibe(kSchlafzeiten, Zeilenkey("Item_", i + 1),
                        plan.LV_Schlafzeiten[i].Startzeit);
        profil.Schreibe(kSchlafzeiten, Zeilenkey("SubItem_", i + 1),
                        plan.LV_Schlafzeiten[i].Endzeit);
    }
}

bool SaveBauliste(const std::filesystem::path& File, const Plan& plan, const Dateisystem& system) {
    auto profil = Profil::LadeOderLeer(File, system);
    if (!profil) {
        return false;
    }
    SchreibePlan(plan, *profil);
    return ErsetzeDatei(File, profil->Bytes(), system);
}

bool LadePlan(const Profil& profil, Plan& plan, const RunConditions& bedingungen,
              MessageSink& meldungen) {
    plan.LV_Bauliste.Clear();
    const bool brauchbar = Leser(profil, plan, bedingungen).Lies();
    if (!brauchbar) {
        meldungen.Show(Ladefehler());
    }
    return brauchbar;
}

std::string Ladehindernis(const Profil& profil) {
    Plan plan;
    const RunConditions bedingungen;
    Leser leser(profil, plan, bedingungen);
    return leser.Lies() ? "" : leser.Hindernis();
}

std::string Ladehindernis(const std::filesystem::path& File, const Dateisystem& system) {
    if (const auto profil = Profil::Lade(File, system)) {
        return Ladehindernis(*profil);
    }
    switch (system.Sieh(File).value_or(Dateisystem::Art::Datei)) {
        case Dateisystem::Art::Nichts:
            return "diese Datei gibt es nicht";
        case Dateisystem::Art::Ordner:
            return "das ist ein Ordner, keine Datei";
        case Dateisystem::Art::Anderes:
            return "das ist keine Datei";
        case Dateisystem::Art::Datei:
            break;
    }
    return "diese Datei ist größer als 16 MiB, oder du darfst sie nicht lesen";
}

std::string FenstertitelMit(const std::filesystem::path& File) {
    const auto name = File.filename().u8string();
    return "Tarvelin  |  Kelva Aufbau-Simulator      ( " + std::string(name.begin(), name.end()) +
           " )";
}

}  // namespace tarvelin
