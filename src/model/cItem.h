// The contract that all twenty items follow, with what is the same in all of them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/Bauzeit.h"
#include "model/GlobaleVariablen.h"
#include "model/Kosten.h"

namespace tarvelin {

/// Why an item can't be started at all at present. The values are what
/// `GetTimeUntilUpgradeIsPossible` then answers; the run adds them to the clock like any wait.
enum class Sperre : Long {
    Offen = 0,
    /// Costs deuterium, and neither a power plant nor a deuterium mine stands.
    OhneDeuteriumQuelle = -1,
    /// The queue that a facility serves is at work, or the lab lacks deuterium production.
    Vorerst = 100'000'000,
    /// A level is missing, or the facility that serves the item is being raised.
    Voraussetzung = 1'000'000'000,
};

/// What the build-time rows of an item say. The name stands in front of the level or number.
struct Zeilenangabe {
    std::string_view Name;
    bool MitNummer = true;
    bool MitGrund = true;
};

/// The order queue that a facility serves: from when on it is free, and the mark by which its items
/// know that the facility is being raised. Items that serve none have neither.
struct BedienteSchlange {
    static constexpr Moment kImmerFrei{};

    const Moment* FreiAb = &kImmerFrei;
    bool* Upgrading = nullptr;
};

/// A level of another item that an item needs; level 0 asks for nothing.
struct Stufenbedarf {
    ItemId Item{};
    Byte Stufe = 0;
};

/// All levels that an item needs.
using Stufenbedarfe = std::array<Stufenbedarf, 3>;

/// What keeps an item from being started at all, in the order in which it is asked.
struct Bedingungen {
    static constexpr bool kNie = false;

    /// Set while the facility that serves the item is being raised, if that is a hindrance.
    const bool* Ausbau = &kNie;
    Stufenbedarfe Stufen{};
    /// Where not open, the item asks for deuterium production instead of a source of deuterium, and
    /// this is what a lack of it means.
    Sperre OhneDeuteriumProduktion = Sperre::Offen;
};

/// The facts of an item: all that is special about it, its formulas aside.
struct Itemangaben {
    ItemId Id;
    Zeilenangabe Zeile;
    Preisgesetz Preise;
    /// Whether the energy balance depends on the level.
    bool InBilanz = false;
    Bedingungen Braucht{};
    BedienteSchlange Bedient{};
};

/// One of the twenty things that a player can build. An object knows what its next step costs, how
/// long it takes, whether and when it can start, and what its start and finish do to the shared
/// state. Level arguments: -1 is the object as it stands, any other value the level meant.
class cItem {
  public:
    static constexpr Long kEigeneStufe = -1;

    cItem(const cItem&) = delete;
    cItem& operator=(const cItem&) = delete;
    virtual ~cItem() = default;

    /// Back to level 0; then raised to `ExterneStufe` at its costs, without build-time rows.
    void Init(Integer ExterneStufe = 0);

    /// Takes the costs of the next step off the stocks, unchecked, and adds them to
    /// `VerbauteRessourcen`. Adds a row to `bauzeiten`, unless that is null.
    void UpgradeStart(Bauzeiten* bauzeiten);

    /// Raises the level.
    void UpgradeFinished();

    /// Seconds that the next step takes.
    [[nodiscard]] virtual double GetUpgradeTime() const = 0;

    /// Seconds from the clock until the next step can start, or the value of a `Sperre`. Leaves the
    /// reason in `VerzoegerungsGrund`; a `Sperre` leaves the former reason.
    Long GetTimeUntilUpgradeIsPossible();

    /// The same for the run, which lets a facility whose queue is at work start when that falls
    /// free: the wait is never shorter than that, whatever the other gates say.
    Long GetTimeUntilStart();

    /// From when on the queue that this item serves lets it start; 0 for items that serve none.
    [[nodiscard]] Moment FreiAb() const { return *m_angaben.Bedient.FreiAb; }

    [[nodiscard]] ItemId Id() const { return m_angaben.Id; }
    [[nodiscard]] Byte GetStufe() const { return m_globale.Stufe(m_angaben.Id); }

    /// "Kosten:  Met: 60  Kris: 15  Deut: 0", of the step from level `extStufe` to the next.
    [[nodiscard]] std::string GetUpgradecostString(Long extStufe) const;

    /// The price of the step from a level to the next.
    [[nodiscard]] Kosten GetKosten(Long extStufe) const {
        return extStufe == kEigeneStufe ? m_preis : m_angaben.Preise.Preis(extStufe);
    }

    [[nodiscard]] const Verzoegerung& VerzoegerungsGrund() const { return m_verzoegerungsGrund; }

  protected:
    cItem(GlobaleVariablen& globale, const Itemangaben& angaben)
        : m_globale(globale), m_angaben(angaben) {}

    [[nodiscard]] GlobaleVariablen& Globale() { return m_globale; }
    [[nodiscard]] const GlobaleVariablen& Globale() const { return m_globale; }
    [[nodiscard]] Long Stufe() const { return m_globale.Stufen[m_angaben.Id]; }

    /// The price of the next step. It changes with the level only, and the gates, the wait, the
    /// start and the build time all ask for it, so it is kept.
    [[nodiscard]] const Kosten& NaechsterPreis() const { return m_preis; }

  private:
    /// What an item does beyond the common steps when its level went back to 0 or was raised.
    virtual void NachInit() {}
    virtual void NachFinish() {}

    [[nodiscard]] Sperre Gates() const;
    [[nodiscard]] bool FehltStufe() const;
    [[nodiscard]] bool FehltDeuteriumQuelle() const;
    void SetzeStufe(Long stufe);
    void SetzeUpgrading(bool upgrading);
    Long Wartezeit(Long mindestens);
    Long RohstoffWartezeit();
    [[nodiscard]] Long NachSchlafzeiten(Long wartezeit) const;

    GlobaleVariablen& m_globale;
    Itemangaben m_angaben;
    Kosten m_preis;
    Verzoegerung m_verzoegerungsGrund;
};

}  // namespace tarvelin
