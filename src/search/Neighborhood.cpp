// Moves and the rules that they keep.
#include "search/Neighborhood.h"

#include <algorithm>
#include <array>
#include <utility>

#include "plan/OrderList.h"
#include "plan/Rules.h"

namespace tarvelin {

namespace {

constexpr std::array kWirtschaft{ItemId::MetMine, ItemId::KrisMine, ItemId::DeutMine,
                                 ItemId::SKW,     ItemId::Solsats,  ItemId::Robo,
                                 ItemId::Werft,   ItemId::Folab};

/// How far a move goes: half of them at most eight rows, the others anywhere.
std::size_t Weite(Zufall& zufall, std::size_t hoechste) {
    constexpr std::size_t kNah = 8;
    return 1 + zufall.Bis(zufall.Eins(2) ? std::min(kNah, hoechste) : hoechste);
}

bool GleichOhneWirtschaft(const PerItem<Byte>& a, const PerItem<Byte>& b) {
    return std::ranges::all_of(ItemTable(), [&](const ItemRow& zeile) {
        return IstWirtschaft(zeile.item) || a[zeile.item] == b[zeile.item];
    });
}

}  // namespace

Zuege::Zuege(const Suchaufgabe& aufgabe, std::vector<Order> orders, std::vector<bool> fest)
    : m_aufgabe(&aufgabe), m_orders(std::move(orders)), m_fest(std::move(fest)) {
    m_nachbar = m_orders;
    m_nachbarFest = m_fest;
    MerkeAb(0);
    for (std::size_t i = 0; i < m_fest.size(); ++i) {
        if (m_fest[i]) {
            m_vorFesten.push_back(m_vorher[i]);
        }
    }
}

/// Counters and free rows from a row on.
void Zuege::MerkeAb(std::size_t zeile) {
    m_vorher.resize(m_orders.size() + 1);
    for (std::size_t i = zeile; i < m_orders.size(); ++i) {
        m_vorher[i + 1] = m_vorher[i];
        if (m_orders[i].kind == Order::Kind::Item) {
            ++m_vorher[i + 1][m_orders[i].item];
        }
    }
    m_frei.clear();
    for (std::size_t i = m_aufgabe->Kopf; i < m_orders.size(); ++i) {
        if (!m_fest[i]) {
            m_frei.push_back(i);
        }
    }
}

std::optional<std::size_t> Zuege::Ziehe(Zufall& zufall) {
    // Takes the last move back, if it wasn't taken over.
    if (m_nachbar.size() == m_orders.size()) {
        std::copy(m_orders.begin() + static_cast<std::ptrdiff_t>(m_von),
                  m_orders.begin() + static_cast<std::ptrdiff_t>(m_bis),
                  m_nachbar.begin() + static_cast<std::ptrdiff_t>(m_von));
    } else {
        m_nachbar = m_orders;
    }
    m_nachbarFest = m_fest;
    m_von = m_bis = 0;
    constexpr std::size_t kHundert = 100;
    constexpr std::size_t kOrdnen = 60;
    constexpr std::size_t kFuegen = 75;
    constexpr std::size_t kStreichen = 90;
    const std::size_t was =
        m_aufgabe->Was == Suchaufgabe::Art::Reihenfolge ? 0 : zufall.Bis(kHundert);
    const bool gezogen = was < kOrdnen      ? Ordne(zufall)
                         : was < kFuegen    ? Fuege(zufall)
                         : was < kStreichen ? Streiche(zufall)
                                            : Tausche(zufall);
    return gezogen && HaeltRegeln() ? std::optional(m_von) : std::nullopt;
}

/// Moves one order, or a block of two to five, or lets two change places.
bool Zuege::Ordne(Zufall& zufall) {
    constexpr std::size_t kBlock = 5;
    const std::size_t n = m_frei.size();
    if (n < 2) {
        return false;
    }
    const std::size_t art = zufall.Bis(4);
    const std::size_t block =
        art == 3 ? 2 + zufall.Bis(std::min(kBlock, n - 1) > 2 ? std::min(kBlock, n - 1) - 1 : 1)
                 : 1;
    if (block >= n) {
        return false;
    }
    const std::size_t weite = Weite(zufall, n - block);
    const std::size_t von = zufall.Bis(n - block - weite + 1);
    if (art == 2) {
        Vertausche(von, von + weite);
    } else if (zufall.Eins(2)) {
        Rotiere(von, von + block, von + block + weite);
    } else {
        Rotiere(von, von + weite, von + block + weite);
    }
    // Equal orders that change places change nothing.
    while (m_von < m_bis && m_nachbar[m_von] == m_orders[m_von]) {
        ++m_von;
    }
    while (m_von < m_bis && m_nachbar[m_bis - 1] == m_orders[m_bis - 1]) {
        --m_bis;
    }
    return m_von < m_bis;
}

/// Of the free rows from `von` to before `bis`: those from `mitte` on come first.
void Zuege::Rotiere(std::size_t von, std::size_t mitte, std::size_t bis) {
    m_von = m_frei[von];
    m_bis = m_frei[bis - 1] + 1;
    for (std::size_t i = von; i < bis; ++i) {
        const std::size_t quelle = i + (mitte - von) < bis ? i + (mitte - von) : i - (bis - mitte);
        m_nachbar[m_frei[i]] = m_orders[m_frei[quelle]];
    }
}

void Zuege::Vertausche(std::size_t a, std::size_t b) {
    m_von = m_frei[a];
    m_bis = m_frei[b] + 1;
    std::swap(m_nachbar[m_frei[a]], m_nachbar[m_frei[b]]);
}

/// Another mine, plant, satellite, factory, shipyard or lab.
bool Zuege::Fuege(Zufall& zufall) {
    if (m_orders.size() >= OrderList::kMaxSize) {
        return false;
    }
    const std::size_t platz = m_aufgabe->Kopf + zufall.Bis(m_orders.size() - m_aufgabe->Kopf + 1);
    const auto stelle = static_cast<std::ptrdiff_t>(platz);
    m_nachbar.insert(m_nachbar.begin() + stelle,
                     Order::Of(kWirtschaft[zufall.Bis(kWirtschaft.size())]));
    m_nachbarFest.insert(m_nachbarFest.begin() + stelle, false);
    m_von = platz;
    m_bis = m_nachbar.size();
    return true;
}

/// One of them less, where the goal doesn't ask for it.
bool Zuege::Streiche(Zufall& zufall) {
    if (m_frei.empty()) {
        return false;
    }
    const std::size_t platz = m_frei[zufall.Bis(m_frei.size())];
    const Order& order = m_orders[platz];
    if (order.kind != Order::Kind::Item || !IstWirtschaft(order.item) ||
        m_vorher.back()[order.item] <= m_aufgabe->Mindestens[order.item]) {
        return false;
    }
    const auto stelle = static_cast<std::ptrdiff_t>(platz);
    m_nachbar.erase(m_nachbar.begin() + stelle);
    m_nachbarFest.erase(m_nachbarFest.begin() + stelle);
    m_von = platz;
    m_bis = m_nachbar.size();
    return true;
}

/// One less here, another one there.
bool Zuege::Tausche(Zufall& zufall) {
    if (!Streiche(zufall)) {
        return false;
    }
    const std::size_t platz = m_aufgabe->Kopf + zufall.Bis(m_nachbar.size() - m_aufgabe->Kopf + 1);
    const auto stelle = static_cast<std::ptrdiff_t>(platz);
    m_nachbar.insert(m_nachbar.begin() + stelle,
                     Order::Of(kWirtschaft[zufall.Bis(kWirtschaft.size())]));
    m_nachbarFest.insert(m_nachbarFest.begin() + stelle, false);
    m_von = std::min(m_von, platz);
    m_bis = m_nachbar.size();
    return true;
}

/// Rows that the move left alone need no look, unless something was struck above them.
bool Zuege::HaeltRegeln() const {
    PerItem<Byte> stufen = m_vorher[m_von];
    auto fester = static_cast<std::size_t>(std::count(
        m_nachbarFest.begin(), m_nachbarFest.begin() + static_cast<std::ptrdiff_t>(m_von), true));
    const bool ziel = m_aufgabe->Was == Suchaufgabe::Art::Ziel;
    for (std::size_t i = m_von; i < m_bis; ++i) {
        const Order& order = m_nachbar[i];
        if (ziel && m_nachbarFest[i] && !GleichOhneWirtschaft(stufen, m_vorFesten[fester++])) {
            return false;
        }
        if (order.kind == Order::Kind::Item) {
            if (!IsAllowed(order.item, stufen)) {
                return false;
            }
            ++stufen[order.item];
        }
    }
    return true;
}

void Zuege::Uebernimm() {
    m_orders = m_nachbar;
    m_fest = m_nachbarFest;
    MerkeAb(m_von);
    m_von = m_bis = 0;
}

}  // namespace tarvelin
