// The state that a run shares between itself and the twenty items.
#pragma once

#include <vector>

#include "model/ItemId.h"
#include "model/Moment.h"
#include "model/cSchlafzeit.h"
#include "util/Datumzeit.h"
#include "util/Festkomma.h"

namespace tarvelin {

/// One object for each run side by side; it keeps the last run's values until the next reset.
/// Before the first one all figures are 0. Stocks are units, rates units per hour with the speed
/// factor included, times seconds, energy a whole number without a unit of time.
struct GlobaleVariablen {
    /// The sleep windows of this run, in the order of the table.
    std::vector<cSchlafzeit> Schlafzeiten;

    /// From when on each order queue is free again.
    Moment GebaeudeFertigZeit;
    Moment ForschungFertigZeit;
    Moment WerftFertigZeit;

    /// Speed of the universe: 1 or 2.
    Long Speedfaktor = 0;

    Festkomma Metall;
    Festkomma Kristall;
    Festkomma Deuterium;

    /// Share of the mines' energy need that is met, at most 1. Cold satellites can make it
    /// negative.
    Festkomma ProdFaktor;
    Long EnergieProduktion = 0;
    Long EnergieVerbrauch = 0;
    /// Whether a level of the mines, power plant or satellites or a factor of the mines has changed
    /// since the balance was struck. Temperature and speed factor change with a reset only, which
    /// sets all levels.
    bool BilanzVeraltet = true;

    /// Degrees, of the start planet.
    Integer Temperatur = 0;

    /// Exponent n of a factor 0.5^n in build times; no item raises it, so the factor is 1.
    Byte HalbierStufe = 0;

    Festkomma MetallProStunde;
    Festkomma KristallProStunde;
    Festkomma DeuteriumProStunde;

    /// The clock of the run.
    Moment secsgone;
    /// When the universe started: the moment 0 of the clock.
    Zeitpunkt StartDate;

    /// Sum of the resources spent on all started orders, from which the points come.
    Long VerbauteRessourcen = 0;

    /// Level reached by each building and research, number finished of each unit. Items read each
    /// other's levels here.
    JeItem<Long> Stufen{};

    /// From the start of an order to its finish; items of the queue that it serves wait for it.
    bool WerftUpgrading = false;
    bool FolabUpgrading = false;

    /// A level as the items report it.
    [[nodiscard]] Byte Stufe(ItemId item) const { return Saettige<Byte>(Stufen[item]); }
    [[nodiscard]] Byte RoboterStufe() const { return Stufe(ItemId::Robo); }
    [[nodiscard]] Byte WerftStufe() const { return Stufe(ItemId::Werft); }
    [[nodiscard]] Byte ForschungslaborStufe() const { return Stufe(ItemId::Folab); }

    [[nodiscard]] Zeitpunkt Uhrzeit(Moment moment) const { return StartDate + moment.Sekunden(); }
};

}  // namespace tarvelin
