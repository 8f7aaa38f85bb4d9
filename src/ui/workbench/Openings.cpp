// The table of the openings.
#include "ui/workbench/Openings.h"

namespace tarvelin {

namespace {

constexpr std::array kOpenings{
    Opening{.file = "klassisch.tvf",
            .title = "Die klassische Eröffnung",
            .description =
                "Erst Minen, dann Labor, Werft und zwei Transporter. Zum Ansehen und Ändern.",
            .highlights = {ItemId::KTs, ItemId::Solsats, ItemId::ENTech}},
    Opening{.file = "transporter.tvf",
            .title = "Schnelle Transporter",
            .description = "Fünf kleine Transporter nach drei Tagen: früh Rohstoffe holen.",
            .highlights = {ItemId::KTs, ItemId::Werft, ItemId::VerbTech}},
    Opening{.file = "forschung.tvf",
            .title = "Schnelle Forschung",
            .description =
                "Energie, Triebwerk und Laser auf Stufe 3, mit den Minen, die es dafür braucht.",
            .highlights = {ItemId::ENTech, ItemId::VerbTech, ItemId::LaserTech}},
    Opening{.file = "verteidigung.tvf",
            .title = "Schnelle Verteidigung",
            .description =
                "Acht Raketenwerfer und vier leichte Laser stehen, bevor der dritte Tag um ist.",
            .highlights = {ItemId::Rakws, ItemId::lLasers, ItemId::LaserTech}},
};

}  // namespace

std::span<const Opening> Openings() {
    return kOpenings;
}

}  // namespace tarvelin
