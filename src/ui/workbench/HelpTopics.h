// Which chapter of the guide is about which part of the workbench.
#pragma once

#include <QWidget>
#include <span>

namespace tarvelin {

/// A widget, by its object name, and a heading of the guide.
struct HelpTopic {
    const char* widget;
    const char* heading;
};

[[nodiscard]] std::span<const HelpTopic> HelpTopics();

/// The heading for a widget or the nearest of its parents that has one; that of the workbench for
/// all others, and for none.
[[nodiscard]] QString HelpTopicFor(const QWidget* focused);

}  // namespace tarvelin
