// The contract that all twenty items follow, with what is the same in all of them.
#pragma once

#include <array>
#include <cstdint>
#include <span>
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

/// A level of another item that an item needs.
struct Stufenbedarf {
    ItemId Item;
    Byte Stufe;
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
    /// free: the wait is then at least as long as that.
    Long GetTimeUntilStart();

    /// From when on the queue that this item serves lets it start; 0 for items that serve none.
    [[nodiscard]] virtual Moment FreiAb() const { return Moment(); }

    [[nodiscard]] Byte GetStufe() const { return m_globale.Stufe(m_id); }

    /// "Kosten:  Met: 60  Kris: 15  Deut: 0", of the step from level `extStufe` to the next.
    [[nodiscard]] std::string GetUpgradecostString(Long extStufe) const;

    /// The price of the step from a level to the next.
    [[nodiscard]] Kosten GetKosten(Long extStufe) const {
        return extStufe == kEigeneStufe ? m_preis : Preis(extStufe);
    }

    [[nodiscard]] const Verzoegerung& VerzoegerungsGrund() const { return m_verzoegerungsGrund; }

  protected:
    /// `bauzeitName` stands in front of the level in the item's build-time rows.
    cItem(GlobaleVariablen& globale, ItemId id, std::string_view bauzeitName)
        : m_globale(globale), m_id(id), m_bauzeitName(bauzeitName) {}

    [[nodiscard]] GlobaleVariablen& Globale() { return m_globale; }
    [[nodiscard]] const GlobaleVariablen& Globale() const { return m_globale; }
    [[nodiscard]] Long Stufe() const { return m_globale.Stufen[m_id]; }

    /// The price of the next step. It changes with the level only, and the gates, the wait, the
    /// start and the build time all ask for it, so it is kept.
    [[nodiscard]] const Kosten& NaechsterPreis() const { return m_preis; }

    [[nodiscard]] bool FehltDeuteriumQuelle() const {
        return m_preis.Deuterium > 0 && m_globale.Stufe(ItemId::SKW) == 0 &&
               m_globale.Stufe(ItemId::DeutMine) == 0;
    }
    [[nodiscard]] Sperre DeuteriumSperre() const {
        return FehltDeuteriumQuelle() ? Sperre::OhneDeuteriumQuelle : Sperre::Offen;
    }
    [[nodiscard]] bool FehltStufe(std::span<const Stufenbedarf> bedarf) const;

  private:
    [[nodiscard]] virtual Kosten Preis(Long stufe) const = 0;
    /// The gates of the item other than that of the queue that it serves.
    [[nodiscard]] virtual Sperre Gates() const { return DeuteriumSperre(); }
    /// What an item does beyond the common steps when its level changed or went back to 0.
    virtual void NachInit() {}
    virtual void NachStart() {}
    virtual void NachFinish() {}
    /// The build-time row of the next step.
    [[nodiscard]] virtual Bauzeittext ZeilenText() const;
    [[nodiscard]] virtual Verzoegerung ZeilenGrund() const { return m_verzoegerungsGrund; }

    void SetzeStufe(Long stufe);
    Long Wartezeit(Long mindestens);
    Long RohstoffWartezeit();
    [[nodiscard]] Long NachSchlafzeiten(Long wartezeit) const;

    GlobaleVariablen& m_globale;
    ItemId m_id;
    std::string_view m_bauzeitName;
    Kosten m_preis;
    Verzoegerung m_verzoegerungsGrund;
};

}  // namespace tarvelin
