// Moves of rows, and whether the rules let them be.
#include "plan/ListEdit.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "plan/Rules.h"

namespace tarvelin {

namespace {

/// The words of the rule that an order would break behind these orders.
std::optional<std::string_view> Regelbruch(const Auftrag& order, const Auftragsliste& darueber) {
    return order.Was == Auftrag::Art::Item ? Absage(order.Item, darueber) : std::nullopt;
}

/// Each marked row changes places with an unmarked one before it.
template <class Anfang, class Ende>
void RueckeVor(Anfang anfang, Ende ende) {
    for (auto zeile = std::next(anfang); zeile != ende; ++zeile) {
        if (zeile->Betroffen && !std::prev(zeile)->Betroffen) {
            std::iter_swap(std::prev(zeile), zeile);
        }
    }
}

}  // namespace

Umstellung::Umstellung(const Bauliste& liste) : m_liste(&liste) {
    m_zeilen.reserve(liste.Zeilen().size() + 1);
    for (std::size_t i = 0; i < liste.Zeilen().size(); ++i) {
        m_zeilen.push_back({.Vorher = i, .Tag = liste.Zeilen()[i].Tag});
    }
}

void Umstellung::Markiere(std::span<const std::size_t> zeilen) {
    for (const std::size_t zeile : zeilen) {
        m_zeilen[zeile].Betroffen = true;
    }
}

void Umstellung::Hoch(std::span<const std::size_t> zeilen) {
    Markiere(zeilen);
    if (!m_zeilen.empty()) {
        RueckeVor(m_zeilen.begin(), m_zeilen.end());
    }
}

void Umstellung::Runter(std::span<const std::size_t> zeilen) {
    Markiere(zeilen);
    if (!m_zeilen.empty()) {
        RueckeVor(m_zeilen.rbegin(), m_zeilen.rend());
    }
}

void Umstellung::StelleVor(std::size_t ziel, std::span<const std::size_t> zeilen) {
    Markiere(zeilen);
    const auto mitte = m_zeilen.begin() + static_cast<std::ptrdiff_t>(ziel);
    std::stable_partition(m_zeilen.begin(), mitte, [](const Zeile& z) { return !z.Betroffen; });
    std::stable_partition(mitte, m_zeilen.end(), [](const Zeile& z) { return z.Betroffen; });
}

void Umstellung::Loesche(std::span<const std::size_t> zeilen) {
    if (zeilen.empty()) {
        return;
    }
    Markiere(zeilen);
    std::erase_if(m_zeilen, [](const Zeile& z) { return z.Betroffen; });
    const std::size_t naechste = zeilen.back() + 1 - zeilen.size();
    if (!m_zeilen.empty()) {
        m_zeilen[std::min(naechste, m_zeilen.size() - 1)].Betroffen = true;
    }
}

void Umstellung::FuegeEin(std::size_t vor, std::string_view tag) {
    m_zeilen.insert(m_zeilen.begin() + static_cast<std::ptrdiff_t>(vor),
                    {.Vorher = std::nullopt, .Tag = std::string(tag)});
}

void Umstellung::Verdopple(std::span<const std::size_t> zeilen) {
    std::vector<Zeile> kopien;
    for (const std::size_t zeile : zeilen) {
        kopien.push_back({.Vorher = std::nullopt, .Tag = m_zeilen[zeile].Tag, .Betroffen = true});
    }
    if (!zeilen.empty()) {
        m_zeilen.insert(m_zeilen.begin() + static_cast<std::ptrdiff_t>(zeilen.back()) + 1,
                        kopien.begin(), kopien.end());
    }
}

std::vector<bool> Umstellung::RegeltreueZeilen() const {
    std::vector<bool> treu;
    Auftragsliste darueber;
    for (const Auftrag& order : m_liste->Auftraege().Alle()) {
        treu.push_back(!Regelbruch(order, darueber));
        darueber.HaengeAn(order);
    }
    return treu;
}

std::optional<std::string> Umstellung::Einwand() const {
    const std::vector<bool> treu = RegeltreueZeilen();
    Auftragsliste darueber;
    for (const Zeile& zeile : m_zeilen) {
        if (darueber.IstVoll()) {
            return ListeVoll().text;
        }
        const Auftrag order = Auftrag::AusTag(zeile.Tag);
        const auto bruch = Regelbruch(order, darueber);
        if (bruch && !zeile.Vorher) {
            return std::string(*bruch);
        }
        if (bruch && treu[*zeile.Vorher]) {
            const BaulistenZeile& name = m_liste->Zeilen()[*zeile.Vorher];
            return "Zeile " + name.Text + " (" + name.SubItems1 + "):" + std::string(*bruch);
        }
        darueber.HaengeAn(order);
    }
    return std::nullopt;
}

std::vector<std::string> Umstellung::Tags() const {
    std::vector<std::string> tags;
    tags.reserve(m_zeilen.size());
    std::ranges::transform(m_zeilen, std::back_inserter(tags), &Zeile::Tag);
    return tags;
}

std::vector<std::size_t> Umstellung::Betroffene() const {
    std::vector<std::size_t> betroffene;
    for (std::size_t i = 0; i < m_zeilen.size(); ++i) {
        if (m_zeilen[i].Betroffen) {
            betroffene.push_back(i);
        }
    }
    return betroffene;
}

}  // namespace tarvelin
