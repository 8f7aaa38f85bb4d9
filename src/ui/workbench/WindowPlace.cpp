// Reads and writes the place, in pixels.
#include "ui/workbench/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <optional>

#include "util/NumberText.h"

namespace tarvelin {

void RestorePlace(QWidget& window, const Configuration& configuration, const QSize& firstSize) {
    const auto read = [&](const ConfigKey& key) {
        constexpr int kFarthest = 100'000;
        const auto number = ParseWholeNumber(configuration.Read(key), -kFarthest, kFarthest);
        return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
    };
    constexpr QSize kFrame(8, 36);
    const QSize room = QGuiApplication::primaryScreen()->availableSize() - kFrame;
    window.resize(QSize(read(Configuration::kWorkbenchWidth).value_or(firstSize.width()),
                        read(Configuration::kWorkbenchHeight).value_or(firstSize.height()))
                      .boundedTo(room)
                      .expandedTo(QSize(1, 1)));
    const auto left = read(Configuration::kWorkbenchLeft);
    const auto top = read(Configuration::kWorkbenchTop);
    // The screen may be gone.
    if (left && top && QGuiApplication::screenAt({*left, *top}) != nullptr) {
        window.move(*left, *top);
    }
    if (configuration.IsOn(Configuration::kWorkbenchMaximized)) {
        window.setWindowState(Qt::WindowMaximized);
    }
}

Configuration::Values PlaceOf(const QWidget& window) {
    const QSize size = window.isMaximized() ? window.normalGeometry().size() : window.size();
    return {{Configuration::kWorkbenchLeft, std::to_string(window.pos().x())},
            {Configuration::kWorkbenchTop, std::to_string(window.pos().y())},
            {Configuration::kWorkbenchWidth, std::to_string(size.width())},
            {Configuration::kWorkbenchHeight, std::to_string(size.height())},
            {Configuration::kWorkbenchMaximized, window.isMaximized() ? "1" : "0"}};
}

}  // namespace tarvelin
