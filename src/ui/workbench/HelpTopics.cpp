// The table of the topics.
#include "ui/workbench/HelpTopics.h"

#include <array>

namespace tarvelin {

namespace {

// clang-format off
constexpr std::array kTopics{
    HelpTopic{"Itempalette",    "Einfügen"},
    HelpTopic{"LV_Werkbank",    "Die Liste"},
    HelpTopic{"Zeitleiste",     "Die Zeitleiste"},
    HelpTopic{"Suchfeld",       "Suche"},
    HelpTopic{"Vergleichsfeld", "Vergleich"},
    HelpTopic{"Schlaffeld",     "Schlaf nach Regel"},
    HelpTopic{"Planetfeld",     "Planet"},
    HelpTopic{"frmWerkbank",    "Die Werkbank"},
};
// clang-format on

}  // namespace

std::span<const HelpTopic> HelpTopics() {
    return kTopics;
}

QString HelpTopicFor(const QWidget* focused) {
    for (const QWidget* widget = focused; widget != nullptr; widget = widget->parentWidget()) {
        for (const HelpTopic& topic : kTopics) {
            if (widget->objectName() == QLatin1String(topic.widget)) {
                return QString::fromUtf8(topic.heading);
            }
        }
    }
    return QString::fromUtf8(kTopics.back().heading);
}

}  // namespace tarvelin
