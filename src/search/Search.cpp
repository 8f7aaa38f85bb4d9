// Chains of simulated annealing, and the threads that take them.
#include "search/Search.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <limits>
#include <mutex>
#include <span>
#include <thread>
#include <utility>

#include "search/IncrementalEvaluator.h"
#include "search/InitialSolution.h"
#include "search/Neighborhood.h"

namespace tarvelin {

namespace {

constexpr Long kOhneGrenze = std::numeric_limits<Long>::max();

/// What a chain counts beside the duration.
enum class Neigung : std::uint8_t {
    Dauer,
    /// A little for each second that the last order held back by a night could have started
    /// earlier.
    Nachtnaehe,
    /// Sittings, within a limit of the duration.
    Sitzungen,
};

/// Share of the duration that a list may be worse at the first try of a chain. The chains take them
/// in turn, two by two.
std::span<const double> Anfangshitzen(const Suchaufgabe& aufgabe, std::size_t freie) {
    constexpr std::size_t kKlein = 12;
    static constexpr std::array kMitWirtschaft{0.02};
    static constexpr std::array kWenige{0.1};
    static constexpr std::array kViele{0.002, 0.01, 0.002, 0.03};
    if (aufgabe.Was == Suchaufgabe::Art::Ziel) {
        return kMitWirtschaft;
    }
    if (freie <= kKlein) {
        return kWenige;
    }
    return kViele;
}

/// The same at the last try.
constexpr double kEndhitze = 0.00001;

/// So much of it is left for the chains that set out from the best list of the others.
constexpr double kNachhitze = 0.1;

double Energie(const Wertung& wertung, Neigung neigung) {
    constexpr double kJeSekundeNacht = 0.02;
    constexpr double kJeSitzung = 1000;
    switch (neigung) {
        case Neigung::Dauer:
            break;
        case Neigung::Nachtnaehe:
            return wertung.Dauer + kJeSekundeNacht * wertung.Wach.Seconds();
        case Neigung::Sitzungen:
            return wertung.Dauer + kJeSitzung * wertung.Sitzungen;
    }
    return wertung.Dauer;
}

/// Whether a list is better: the duration counts first, or the sittings.
bool IstBesser(const Wertung& a, const Wertung& b, Neigung neigung) {
    if (neigung == Neigung::Sitzungen && a.Sitzungen != b.Sitzungen) {
        return a.Sitzungen < b.Sitzungen;
    }
    return a.Dauer != b.Dauer ? a.Dauer < b.Dauer : a.Sitzungen < b.Sitzungen;
}

/// What all chains share: the best so far for the progress alone, as which it is depends on chance.
class Anzeigestand {
  public:
    explicit Anzeigestand(const std::atomic<bool>& halt) : m_halt(&halt) {}

    [[nodiscard]] bool Haelt() const { return m_halt->load(std::memory_order_relaxed); }
    void Zaehle() { m_versuche.fetch_add(1, std::memory_order_relaxed); }
    [[nodiscard]] std::uint64_t Versuche() const { return m_versuche.load(); }

    void Melde(Long dauer) {
        const std::scoped_lock sperre(m_mutex);
        if (dauer < m_beste) {
            m_beste = dauer;
            m_bestesUm = std::chrono::steady_clock::now();
        }
    }
    [[nodiscard]] std::pair<Long, std::chrono::steady_clock::time_point> Beste() {
        const std::scoped_lock sperre(m_mutex);
        return {m_beste, m_bestesUm};
    }

  private:
    const std::atomic<bool>* m_halt;
    std::atomic<std::uint64_t> m_versuche{0};
    std::mutex m_mutex;
    Long m_beste = kOhneGrenze;
    std::chrono::steady_clock::time_point m_bestesUm = std::chrono::steady_clock::now();
};

struct Kettenauftrag {
    const Suchaufgabe* Aufgabe;
    const Fund* Anfang;
    Neigung Ziel;
    double Hitze;
    std::uint64_t Saat;
    /// No list may take longer.
    Long Grenze = kOhneGrenze;
};

/// One chain. It depends on its task and seed alone.
Fund Kette(const Kettenauftrag& auftrag, Anzeigestand& anzeige) {
    Zufall zufall(auftrag.Saat);
    Zuege zuege(*auftrag.Aufgabe, auftrag.Anfang->Orders, auftrag.Anfang->Fest);
    Probelauf probe(*auftrag.Aufgabe);
    Fund bester = *auftrag.Anfang;
    static_cast<void>(probe.Spiele(zuege.Liste(), 0, kOhneGrenze));
    probe.Uebernimm();
    double energie = Energie(bester.Wertung, auftrag.Ziel);
    const double schritt =
        std::pow(kEndhitze / auftrag.Hitze, 1.0 / static_cast<double>(Suchumfang::kKette));
    double anteil = auftrag.Hitze;
    for (std::uint64_t i = 0; i < Suchumfang::kKette && !anzeige.Haelt(); ++i) {
        anteil *= schritt;
        anzeige.Zaehle();
        const auto von = zuege.Ziehe(zufall);
        if (!von) {
            continue;
        }
        // A list may be so much worse, whatever it turns out to be.
        const double hoechste = energie - anteil * energie * std::log(zufall.Anteil());
        const Long grenze =
            hoechste < auftrag.Grenze ? static_cast<Long>(hoechste) : auftrag.Grenze;
        const auto wertung = probe.Spiele(zuege.Nachbar(), *von, grenze);
        if (!wertung || Energie(*wertung, auftrag.Ziel) > hoechste) {
            continue;
        }
        zuege.Uebernimm();
        probe.Uebernimm();
        energie = Energie(*wertung, auftrag.Ziel);
        if (IstBesser(*wertung, bester.Wertung, auftrag.Ziel)) {
            bester = {.Orders = zuege.Liste(), .Fest = zuege.Fest(), .Wertung = *wertung};
            anzeige.Melde(wertung->Dauer);
        }
    }
    return bester;
}

/// Chains that differ in their numbers alone.
struct Kettenreihe {
    const Suchaufgabe* Aufgabe;
    Fund Anfang;
    Neigung Ziel;
    std::span<const double> Hitzen;
    /// So much of them is left.
    double Nachhitze;
    Long Grenze;
    /// The number of the first, and how many there are.
    std::uint64_t Erste;
    std::uint64_t Zahl;
    std::uint64_t Saat;

    /// With nights every other chain minds them.
    [[nodiscard]] Kettenauftrag Nummer(std::uint64_t i) const {
        constexpr std::uint64_t kSaatabstand = 1'000'003;
        const std::uint64_t nummer = Erste + i;
        const bool nacht =
            Ziel == Neigung::Dauer && nummer % 2 == 1 && !Aufgabe->Bedingungen.Schlafzeiten.empty();
        return {.Aufgabe = Aufgabe,
                .Anfang = &Anfang,
                .Ziel = nacht ? Neigung::Nachtnaehe : Ziel,
                .Hitze = Nachhitze * Hitzen[nummer / 2 % Hitzen.size()],
                .Saat = Saat * kSaatabstand + nummer,
                .Grenze = Grenze};
    }
};

/// Lets threads take one chain after the other. The best of them doesn't depend on who was first.
class Kettenwerk {
  public:
    Kettenwerk(Kettenreihe reihe, unsigned threads, Anzeigestand& anzeige)
        : m_reihe(std::move(reihe)), m_anzeige(&anzeige), m_bester(m_reihe.Anfang) {
        m_laufend = std::clamp<std::uint64_t>(threads, 1, m_reihe.Zahl);
        for (std::uint64_t i = m_laufend; i > 0; --i) {
            m_threads.emplace_back([this] { Arbeite(); });
        }
    }

    /// The chain that was taken last, from 1.
    [[nodiscard]] std::uint64_t Letzte() const {
        return m_reihe.Erste + std::min(m_naechste.load(), m_reihe.Zahl);
    }

    /// Waits for the end; asks in between. The best list, of equals that of the first chain.
    template <class Frage>
    Fund Warte(Frage frage) {
        constexpr std::chrono::milliseconds kTakt(100);
        std::unique_lock sperre(m_mutex);
        while (!m_fertig.wait_for(sperre, kTakt, [this] { return m_laufend == 0; })) {
            sperre.unlock();
            frage();
            sperre.lock();
        }
        sperre.unlock();
        m_threads.clear();
        return std::move(m_bester);
    }

  private:
    void Arbeite() {
        for (std::uint64_t i = m_naechste++; i < m_reihe.Zahl && !m_anzeige->Haelt();
             i = m_naechste++) {
            Nimm(Kette(m_reihe.Nummer(i), *m_anzeige), i);
        }
        const std::scoped_lock sperre(m_mutex);
        --m_laufend;
        m_fertig.notify_all();
    }

    void Nimm(Fund fund, std::uint64_t kette) {
        const std::scoped_lock sperre(m_mutex);
        const bool schlechter = IstBesser(m_bester.Wertung, fund.Wertung, m_reihe.Ziel);
        const bool besser = IstBesser(fund.Wertung, m_bester.Wertung, m_reihe.Ziel);
        if (besser || (!schlechter && m_von && kette < *m_von)) {
            m_bester = std::move(fund);
            m_von = kette;
        }
    }

    Kettenreihe m_reihe;
    Anzeigestand* m_anzeige;
    std::atomic<std::uint64_t> m_naechste{0};
    std::mutex m_mutex;
    std::condition_variable m_fertig;
    std::uint64_t m_laufend = 0;
    Fund m_bester;
    /// The chain that found it; nothing while it is the list to begin with.
    std::optional<std::uint64_t> m_von;
    std::vector<std::jthread> m_threads;
};

/// The list of the task, or one of the same orders that ends sooner, or at all.
std::optional<Fund> Anfang(const Suchaufgabe& aufgabe, const std::atomic<bool>& halt) {
    std::optional<Fund> eigener = Bewerte(aufgabe, aufgabe.Orders);
    // Another list could have other orders above the pinned rows.
    const bool hatFeste = std::ranges::find(aufgabe.Fest, true) != aufgabe.Fest.end();
    if (eigener && (aufgabe.Was == Suchaufgabe::Art::Reihenfolge || hatFeste)) {
        return eigener;
    }
    const auto liste = EndendeListe(aufgabe, halt);
    const std::optional<Fund> gierig = liste ? Bewerte(aufgabe, *liste) : std::nullopt;
    if (!eigener || !gierig) {
        return eigener ? eigener : gierig;
    }
    return IstBesser(gierig->Wertung, eigener->Wertung, Neigung::Dauer) ? gierig : eigener;
}

/// A whole search: chains from the list to begin with, chains from the best of them, and chains for
/// fewer sittings.
class Suchlauf {
  public:
    Suchlauf(const Suchaufgabe& aufgabe, const Suchumfang& umfang, const std::atomic<bool>& halt,
             Fund anfang)
        : m_aufgabe(aufgabe),
          m_umfang(umfang),
          m_anzeige(halt),
          m_ketten(std::max<std::uint64_t>(1, umfang.Versuche / Suchumfang::kKette)),
          m_anfangsdauer(anfang.Wertung.Dauer),
          m_bester(std::move(anfang)) {
        m_anzeige.Melde(m_anfangsdauer);
    }

    Suchergebnis Fuehre(const std::function<void(const Fortschritt&)>& melde) {
        constexpr std::uint64_t kVonVieren = 4;
        constexpr double kHundert = 100;
        const std::uint64_t fuerSitzungen = m_ketten <= kVonVieren   ? 0
                                            : m_umfang.Nachlass == 0 ? 2
                                                                     : m_ketten / kVonVieren;
        const std::uint64_t fuerDauer = m_ketten - fuerSitzungen;
        const std::uint64_t spaetere = fuerDauer / kVonVieren;
        Lass(fuerDauer - spaetere, Neigung::Dauer, 1, kOhneGrenze, melde);
        Lass(spaetere, Neigung::Dauer, kNachhitze, kOhneGrenze, melde);
        const double grenze = m_bester.Wertung.Dauer * (1 + m_umfang.Nachlass / kHundert);
        Lass(fuerSitzungen, Neigung::Sitzungen, 1, static_cast<Long>(grenze), melde);
        return {.Bester = m_bester,
                .Versuche = m_anzeige.Versuche(),
                .VonVersuchen = m_ketten * Suchumfang::kKette};
    }

  private:
    /// So many chains from the best list so far.
    void Lass(std::uint64_t zahl, Neigung neigung, double nachhitze, Long grenze,
              const std::function<void(const Fortschritt&)>& melde) {
        if (zahl == 0 || m_anzeige.Haelt()) {
            return;
        }
        const auto freie = static_cast<std::size_t>(
            std::count(m_aufgabe.Fest.begin() + static_cast<std::ptrdiff_t>(m_aufgabe.Kopf),
                       m_aufgabe.Fest.end(), false));
        Kettenwerk werk({.Aufgabe = &m_aufgabe,
                         .Anfang = m_bester,
                         .Ziel = neigung,
                         .Hitzen = Anfangshitzen(m_aufgabe, freie),
                         .Nachhitze = nachhitze,
                         .Grenze = grenze,
                         .Erste = m_begonnen,
                         .Zahl = zahl,
                         .Saat = m_umfang.Saat},
                        m_umfang.Threads, m_anzeige);
        m_bester = werk.Warte([&] { melde(Stand(werk.Letzte())); });
        m_begonnen += zahl;
    }

    Fortschritt Stand(std::uint64_t kette) {
        using Sekunden = std::chrono::duration<double>;
        const auto [beste, um] = m_anzeige.Beste();
        const auto jetzt = std::chrono::steady_clock::now();
        const std::uint64_t versuche = m_anzeige.Versuche();
        return {
            .BesteDauer = beste,
            .Gewinn = m_anfangsdauer - beste,
            .Versuche = versuche,
            .VonVersuchen = m_ketten * Suchumfang::kKette,
            .Kette = kette,
            .VersucheJeSekunde = static_cast<double>(versuche) / Sekunden(jetzt - m_beginn).count(),
            .SeitBestem = Sekunden(jetzt - um).count()};
    }

    const Suchaufgabe& m_aufgabe;
    const Suchumfang& m_umfang;
    Anzeigestand m_anzeige;
    std::chrono::steady_clock::time_point m_beginn = std::chrono::steady_clock::now();
    std::uint64_t m_ketten;
    Long m_anfangsdauer;
    Fund m_bester;
    std::uint64_t m_begonnen = 0;
};

}  // namespace

std::optional<Fund> Bewerte(const Suchaufgabe& aufgabe, const std::vector<Order>& orders) {
    const auto wertung = Probelauf(aufgabe).Spiele(orders, 0, kOhneGrenze);
    return wertung
               ? std::optional(Fund{.Orders = orders, .Fest = aufgabe.Fest, .Wertung = *wertung})
               : std::nullopt;
}

Suchergebnis Suche(const Suchaufgabe& aufgabe, const Suchumfang& umfang,
                   const std::atomic<bool>& halt,
                   const std::function<void(const Fortschritt&)>& melde) {
    const std::optional<Fund> anfang = Anfang(aufgabe, halt);
    if (!anfang) {
        // There is nothing to try, unless the search was stopped before it had begun.
        return {.Bester = {}, .VonVersuchen = halt ? umfang.Versuche : 0};
    }
    return Suchlauf(aufgabe, umfang, halt, *anfang).Fuehre(melde);
}

}  // namespace tarvelin
