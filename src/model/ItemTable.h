// The table of the twenty items: all that is special about each.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/CostGrowth.h"
#include "model/ItemId.h"
#include "model/UpgradeTime.h"

namespace tarvelin {

/// A level of another item that an item needs; level 0 asks for nothing.
struct Stufenbedarf {
    ItemId Item{};
    Byte Stufe = 0;

    friend bool operator==(const Stufenbedarf&, const Stufenbedarf&) = default;
};

/// All levels that an item needs.
using Stufenbedarfe = std::array<Stufenbedarf, 3>;

/// What an item that costs deuterium needs of it beside its price.
enum class Deuteriumbedarf : std::uint8_t {
    /// A power plant or a deuterium mine.
    Quelle,
    /// A rate that isn't 0, whatever the stock; a lack of it counts as a missing level.
    Produktion,
    /// The same; a lack of it counts as a queue at work.
    ProduktionVorerst,
};

/// How an item stands in the energy balance.
enum class Energierolle : std::uint8_t { Keine, Mine, Kraftwerk, Satellit };

/// What few items have.
struct Besonderheiten {
    Energierolle Energie = Energierolle::Keine;
    /// The queue that a facility serves. The facility can't be raised while that queue is at work,
    /// nor can what waits in it start while the facility is raised.
    Schlange Bedient = Schlange::Keine;
    /// It can start while the facility of its queue is raised.
    bool TrotzAusbau = false;
    Deuteriumbedarf Deuterium = Deuteriumbedarf::Quelle;
    /// Its rows end with the level or number, and name the reason of a wait.
    bool MitNummer = true;
    bool MitGrund = true;
    /// Its name in the hint over its picture, where that isn't its `Name`.
    std::string_view Hovername{};
};

/// The row of an item. Three vocabularies of names stand beside each other on purpose: in the build
/// list, in the build times and everywhere else.
struct Itemzeile {
    ItemId Item;
    /// `ItemCode`: the first letter is the order queue, G building, W shipyard, F research; the
    /// rest tells the item in it.
    std::string_view Code;
    std::string_view Listentext;
    std::string_view Zeitentext;
    std::string_view Name;
    Schlange Queue;
    /// Of a unit, of the first level, or what the first level grows from.
    Kosten Basis;
    Wachstum Nach;
    Dauerformel* Dauer;
    Stufenbedarfe Braucht;
    Besonderheiten Besonders;

    [[nodiscard]] constexpr std::string_view Hovername() const {
        return Besonders.Hovername.empty() ? Name : Besonders.Hovername;
    }
};

[[nodiscard]] const JeItem<Itemzeile>& Itemtabelle();

[[nodiscard]] inline const Itemzeile& ZeileVon(ItemId item) {
    return Itemtabelle()[item];
}

/// `Tag` of a production row: this, and the factors of metal, crystal and deuterium in tenths,
/// each behind a colon.
inline constexpr std::string_view kProduktionscode = "GX";

}  // namespace tarvelin
