// The walk from event to event: time jumps to the earliest row of the timetable, the order there
// starts or finishes, and the one waiting order is timed anew.
#include "simulation/RunSimulation.h"

#include <algorithm>
#include <array>

#include "simulation/EventTabelle.h"

namespace tarvelin {

namespace {

class Durchlauf {
  public:
    Durchlauf(const Plan& plan, Lauf& lauf, Meldungsausgabe& meldungen)
        : m_zeilen(plan.Liste.Zeilen()),
          m_klickPuffer(plan.Parameter.KlickPuffer),
          m_planet(lauf.Planet),
          m_globale(lauf.Planet.Globale),
          m_bauzeiten(lauf.LV_Bauzeiten),
          m_meldungen(meldungen) {}

    void Laufe() {
        m_bauzeiten.reserve(m_zeilen.size());
        // The first order is never timed: it starts at moment 0, whatever stocks and gates say.
        ReiheEin();
        // Each order goes through the table twice, as a start and as a finish.
        const std::size_t schritte = 2 * m_zeilen.size();
        for (std::size_t schritt = 0; schritt < schritte; ++schritt) {
            const std::size_t erste = m_tabelle.Erste();
            FuehreAus(erste);
            m_planet.EnergieBilanz();
            m_tabelle.ClearEvent(erste);
            if (m_tabelle.NoStartPending() && m_naechste < m_zeilen.size()) {
                ReiheEin();
            }
            if (!m_tabelle.NoStartPending()) {
                TerminiereWartende();
            }
        }
    }

  private:
    /// Only one order at a time waits, in the order of the list.
    void ReiheEin() { m_tabelle.SetEvent(Moment(), m_zeilen[m_naechste++], true); }

    void FuehreAus(std::size_t zeile) {
        if (m_tabelle.IstFrei(zeile)) {
            // Only orders with unknown codes leave a step without an event.
            m_meldungen.Piepton();
            return;
        }
        // Negative where an order's click buffer has carried the clock past this row.
        const Long differenz = m_tabelle.Zeit(zeile) - m_globale.secsgone;
        const BaulistenZeile& order = m_tabelle.Order(zeile);
        if (m_tabelle.IstStart(zeile)) {
            m_planet.VergeheZeit(LongSumme(differenz, m_klickPuffer));
            Starte(order);
            PruefeNegativeRessourcen();
        } else {
            m_planet.VergeheZeit(differenz);
            Beende(order.Order);
        }
    }

    void Starte(const BaulistenZeile& zeile) {
        switch (zeile.Order.Was) {
            case Auftrag::Art::Item:
                StarteItem(zeile);
                break;
            case Auftrag::Art::Produktion:
                StarteProduktion(zeile);
                break;
            case Auftrag::Art::Unbekannt:
                m_meldungen.Zeige({.Text = "STARTAUFTRAG NICHT ERKANNT", .Titel = ""});
                break;
        }
    }

    // The click buffer counts twice: before the start, and behind the finish until the queue
    // falls free.
    void StarteItem(const BaulistenZeile& zeile) {
        cItem& item = m_planet.Item(zeile.Order.Item);
        item.UpgradeStart(&m_bauzeiten);
        const double fertig = m_globale.secsgone.Sekunden() + item.GetUpgradeTime();
        m_tabelle.SetEvent(Moment(HalfEvenLong(fertig)), zeile, false);
        FertigZeit(zeile.Order.Queue) = Moment(HalfEvenLong(fertig + 1 + m_klickPuffer));
    }

    /// It occupies no queue: the next order of the building queue need not wait for it.
    void StarteProduktion(const BaulistenZeile& zeile) {
        const Minenfaktoren& faktoren = zeile.Order.Faktoren;
        constexpr float kZehntel = 10.0F;
        m_planet.MetMine.SetProdfaktor(static_cast<float>(faktoren[0]) / kZehntel);
        m_planet.KrisMine.SetProdfaktor(static_cast<float>(faktoren[1]) / kZehntel);
        m_planet.DeutMine.SetProdfaktor(static_cast<float>(faktoren[2]) / kZehntel);
        m_bauzeiten.emplace_back(m_globale.Uhrzeit(m_globale.secsgone), faktoren);
        m_tabelle.SetEvent(m_globale.secsgone, zeile, false);
    }

    void Beende(const Auftrag& order) {
        switch (order.Was) {
            case Auftrag::Art::Item:
                m_planet.Item(order.Item).UpgradeFinished();
                break;
            case Auftrag::Art::Produktion:
                break;
            case Auftrag::Art::Unbekannt:
                m_meldungen.Zeige({.Text = "BEENDIGUNGSAUFTRAG NICHT ERKANNT", .Titel = ""});
                break;
        }
    }

    /// Times the waiting order from the state as it stands. An estimate made earlier counts for
    /// nothing.
    void TerminiereWartende() {
        const Auftrag& order = m_tabelle.Wartende().Order;
        switch (order.Was) {
            case Auftrag::Art::Item:
                m_bereitAb = m_globale.secsgone + m_planet.Item(order.Item).GetTimeUntilStart();
                break;
            case Auftrag::Art::Produktion:
                m_bereitAb = m_globale.secsgone;
                break;
            case Auftrag::Art::Unbekannt:
                m_meldungen.Zeige({.Text = "UpgrdingensSAUFTRAG NICHT ERKANNT", .Titel = ""});
                break;
        }
        m_tabelle.SetStartzeit(std::max(m_bereitAb, FertigZeit(order.Queue)));
    }

    /// A first order that costs more than the start stocks, or one without any source of
    /// deuterium, starts all the same. The message comes again at each start until the stocks
    /// have recovered.
    void PruefeNegativeRessourcen() {
        const Festkomma null;
        if (m_globale.Metall < null || m_globale.Kristall < null || m_globale.Deuterium < null) {
            m_meldungen.Zeige(
                {.Text = "Negative Ressourcen: Metall: " + Dezimaltext(m_globale.Metall) +
                         "    Kristall:" + Dezimaltext(m_globale.Kristall) +
                         "    Deuterium: " + Dezimaltext(m_globale.Deuterium),
                 .Titel = "Simulations-Fehler, bitte melden"});
        }
    }

    /// From when on a queue is free. An order of none waits for nothing.
    Moment& FertigZeit(Schlange queue) { return *m_fertigZeiten[static_cast<std::size_t>(queue)]; }

    const std::vector<BaulistenZeile>& m_zeilen;
    Long m_klickPuffer;
    Startplanet& m_planet;
    GlobaleVariablen& m_globale;
    Bauzeiten& m_bauzeiten;
    Meldungsausgabe& m_meldungen;
    /// In the order of `Schlange`.
    std::array<Moment*, 4> m_fertigZeiten{&m_globale.GebaeudeFertigZeit, &m_globale.WerftFertigZeit,
                                          &m_globale.ForschungFertigZeit, &m_ohneSchlange};
    Moment m_ohneSchlange;
    EventTabelle m_tabelle;
    /// The next row of the list that has not yet entered the timetable.
    std::size_t m_naechste = 0;
    /// When the wait of the waiting order ends; an unknown order keeps that of the one before it.
    Moment m_bereitAb;
};

}  // namespace

void Lauf::ResetSimulation(const Startparameter& parameter) {
    LV_Bauzeiten.clear();
    Planet.ResetSimulation(LiesTemperatur(parameter).value_or(Planet.Globale.Temperatur));
}

Laufausgang BeginneLauf(Plan& plan, Lauf& lauf, Meldungsausgabe& meldungen, bool silent) {
    GlobaleVariablen& globale = lauf.Planet.Globale;
    globale.Speedfaktor = plan.Parameter.Speedfaktor();
    globale.Schlafzeiten = LiesSchlafzeiten(plan.Schlafzeiten);
    if (plan.Liste.Zeilen().empty()) {
        if (!silent) {
            meldungen.Zeige({.Text = "Die Bauliste ist leer...", .Titel = kAusnahmefehler});
        }
        return Laufausgang::AnEingabenGescheitert;
    }
    if (!LiesTemperatur(plan.Parameter)) {
        meldungen.Zeige(
            {.Text = "Keine gültige Temperatur eingegeben...", .Titel = kAusnahmefehler});
        return Laufausgang::AnEingabenGescheitert;
    }
    const auto start = ReadUniStartZeit(plan.Parameter, meldungen);
    if (!start) {
        return Laufausgang::AnEingabenGescheitert;
    }
    globale.StartDate = *start;
    lauf.ResetSimulation(plan.Parameter);
    return Laufausgang::Gelaufen;
}

void FuehreLaufDurch(const Plan& plan, Lauf& lauf, Meldungsausgabe& meldungen) {
    Durchlauf(plan, lauf, meldungen).Laufe();
}

Laufausgang RunSimulation(Plan& plan, Lauf& lauf, Meldungsausgabe& meldungen, bool silent) {
    const Laufausgang ausgang = BeginneLauf(plan, lauf, meldungen, silent);
    if (ausgang == Laufausgang::Gelaufen) {
        FuehreLaufDurch(plan, lauf, meldungen);
    }
    return ausgang;
}

}  // namespace tarvelin
