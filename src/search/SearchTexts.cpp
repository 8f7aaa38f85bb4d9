// Counts what two lists differ by.
#include "search/SearchTexts.h"

#include "model/ItemTable.h"

namespace tarvelin {

namespace {

/// Joins `text` of each item that `more` has more of.
template <class Text>
std::string Joined(const OrderList& more, const OrderList& fewer, const char* between, Text text) {
    std::string all;
    for (const ItemRow& row : ItemTable()) {
        const int difference = more.ListStufe(row.item) - fewer.ListStufe(row.item);
        if (difference > 0) {
            all += (all.empty() ? "" : between) + text(row, std::to_string(difference));
        }
    }
    return all;
}

}  // namespace

std::string SurplusText(const OrderList& more, const OrderList& fewer) {
    return Joined(more, fewer, " ", [](const ItemRow& row, const std::string& number) {
        return std::string(row.ItemCode) + number;
    });
}

std::string SurplusInWords(const OrderList& more, const OrderList& fewer) {
    return Joined(more, fewer, ", ", [](const ItemRow& row, const std::string& number) {
        return number + " x " + std::string(row.name);
    });
}

std::string CountText(std::size_t number, const char* singular, const char* plural) {
    return std::to_string(number) + " " + (number == 1 ? singular : plural);
}

std::string RatesText(const GameState& state) {
    std::string text;
    for (const Resource resource : kResources) {
        text += (text.empty() ? "" : ", ") + std::string(kResourceNames[resource]) + " " +
                std::to_string(state.ProStunde[resource].WholePart());
    }
    return text;
}

}  // namespace tarvelin
