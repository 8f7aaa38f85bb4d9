// Shapes of the icons. Made by artwork/icons.py from artwork/icons.
#include "ui/look/IconPaths.h"

#include <array>

namespace tarvelin {

namespace {

// clang-format off
constexpr std::array kCalendarIcon{
    Shape{Ink::Accent, 0, "M 6 11 L 10 11 L 10 15 L 6 15 Z"},
    Shape{Ink::Text, 1.5, "M 3.75 4.25 L 16.25 4.25 C 16.802 4.25 17.25 4.698 17.25 5.25 L 17.25 16.25 C 17.25 16.802 16.802 17.25 16.25 17.25 L 3.75 17.25 C 3.198 17.25 2.75 16.802 2.75 16.25 L 2.75 5.25 C 2.75 4.698 3.198 4.25 3.75 4.25 Z"},
    Shape{Ink::Text, 1.5, "M 2.75 8.25 L 17.25 8.25 M 6.25 2.25 L 6.25 5.75 M 13.75 2.25 L 13.75 5.75"},
};
constexpr std::array kDeleteIcon{
    Shape{Ink::Text, 1.5, "M 3.25 5.25 L 16.25 5.25 M 7.25 5.25 L 7.25 3.75 C 7.25 3.083 7.583 2.75 8.25 2.75 L 11.25 2.75 C 11.917 2.75 12.25 3.083 12.25 3.75 L 12.25 5.25 M 4.75 5.25 L 5.4 16.25 C 5.467 16.917 5.833 17.25 6.5 17.25 L 13 17.25 C 13.667 17.25 14.033 16.917 14.1 16.25 L 14.75 5.25 M 8.25 8.75 L 8.25 13.75 M 11.25 8.75 L 11.25 13.75"},
};
constexpr std::array kDownIcon{
    Shape{Ink::Text, 1.5, "M 3.25 3.75 L 16.25 3.75"},
    Shape{Ink::Accent, 1.5, "M 9.75 7.75 L 9.75 16.5 M 5.75 12.75 L 9.75 16.75 L 13.75 12.75"},
};
constexpr std::array kDuplicateIcon{
    Shape{Ink::Text, 1.5, "M 4.25 13.25 L 3.75 13.25 C 3.083 13.25 2.75 12.917 2.75 12.25 L 2.75 3.75 C 2.75 3.083 3.083 2.75 3.75 2.75 L 12.25 2.75 C 12.917 2.75 13.25 3.083 13.25 3.75 L 13.25 4.25"},
    Shape{Ink::Accent, 1.5, "M 7.75 6.75 L 16.25 6.75 C 16.802 6.75 17.25 7.198 17.25 7.75 L 17.25 16.25 C 17.25 16.802 16.802 17.25 16.25 17.25 L 7.75 17.25 C 7.198 17.25 6.75 16.802 6.75 16.25 L 6.75 7.75 C 6.75 7.198 7.198 6.75 7.75 6.75 Z"},
};
constexpr std::array kHelpIcon{
    Shape{Ink::Text, 1.5, "M 2.75 10 C 2.75 5.996 5.996 2.75 10 2.75 C 14.004 2.75 17.25 5.996 17.25 10 C 17.25 14.004 14.004 17.25 10 17.25 C 5.996 17.25 2.75 14.004 2.75 10 Z"},
    Shape{Ink::Accent, 1.5, "M 7.6 8 C 7.61 6.838 8.452 5.851 9.597 5.656 C 10.743 5.461 11.863 6.114 12.258 7.207 C 12.652 8.301 12.206 9.519 11.2 10.1 C 10.4 10.567 10 11.2 10 12"},
    Shape{Ink::Accent, 0, "M 9 14.25 C 9 13.698 9.448 13.25 10 13.25 C 10.552 13.25 11 13.698 11 14.25 C 11 14.802 10.552 15.25 10 15.25 C 9.448 15.25 9 14.802 9 14.25 Z"},
};
constexpr std::array kMinusIcon{
    Shape{Ink::Accent, 1.5, "M 4.25 9.75 L 15.25 9.75"},
};
constexpr std::array kNewIcon{
    Shape{Ink::Text, 1.5, "M 14.25 8.75 L 14.25 6.75 L 10.25 2.75 L 4.75 2.75 C 4.083 2.75 3.75 3.083 3.75 3.75 L 3.75 16.25 C 3.75 16.917 4.083 17.25 4.75 17.25 L 8.75 17.25 M 10.25 2.75 L 10.25 6.75 L 14.25 6.75"},
    Shape{Ink::Accent, 1.5, "M 14.25 11.25 L 14.25 17.25 M 11.25 14.25 L 17.25 14.25"},
};
constexpr std::array kOpenIcon{
    Shape{Ink::Text, 1.5, "M 2.75 15.75 L 2.75 5.25 C 2.75 4.583 3.083 4.25 3.75 4.25 L 7.25 4.25 L 9.25 6.25 L 14.25 6.25 C 14.917 6.25 15.25 6.583 15.25 7.25 L 15.25 8.75"},
    Shape{Ink::Text, 1.5, "M 2.75 15.75 L 5.5 9.5 C 5.7 9 6.033 8.75 6.5 8.75 L 17.75 8.75 L 15 15.1 C 14.8 15.533 14.467 15.75 14 15.75 Z"},
};
constexpr std::array kPictureIcon{
    Shape{Ink::Accent, 1.5, "M 4.25 13.25 L 7.5 9.75 L 10 12.25 L 12.25 10.25 L 15.75 13.75"},
    Shape{Ink::Text, 1.5, "M 3.75 3.75 L 16.25 3.75 C 16.802 3.75 17.25 4.198 17.25 4.75 L 17.25 15.25 C 17.25 15.802 16.802 16.25 16.25 16.25 L 3.75 16.25 C 3.198 16.25 2.75 15.802 2.75 15.25 L 2.75 4.75 C 2.75 4.198 3.198 3.75 3.75 3.75 Z"},
    Shape{Ink::Text, 0, "M 12 7.25 C 12 6.56 12.56 6 13.25 6 C 13.94 6 14.5 6.56 14.5 7.25 C 14.5 7.94 13.94 8.5 13.25 8.5 C 12.56 8.5 12 7.94 12 7.25 Z"},
};
constexpr std::array kPlusIcon{
    Shape{Ink::Accent, 1.5, "M 4.25 9.75 L 15.25 9.75 M 9.75 4.25 L 9.75 15.25"},
};
constexpr std::array kRedoIcon{
    Shape{Ink::Text, 1.5, "M 13.25 3.25 L 17.25 7.25 L 13.25 11.25 M 17 7.25 L 7.75 7.25 C 5.265 7.25 3.25 9.265 3.25 11.75 C 3.25 14.235 5.265 16.25 7.75 16.25 L 12.75 16.25"},
};
constexpr std::array kSaveIcon{
    Shape{Ink::Accent, 1.5, "M 5.75 16.5 L 5.75 11.25 L 14.25 11.25 L 14.25 16.5"},
    Shape{Ink::Text, 1.5, "M 3.75 2.75 L 13.5 2.75 L 17.25 6.5 L 17.25 16.25 C 17.25 16.917 16.917 17.25 16.25 17.25 L 3.75 17.25 C 3.083 17.25 2.75 16.917 2.75 16.25 L 2.75 3.75 C 2.75 3.083 3.083 2.75 3.75 2.75 Z M 6.75 3.5 L 6.75 6.75 L 12.25 6.75 L 12.25 3.5"},
};
constexpr std::array kSearchIcon{
    Shape{Ink::Text, 1.5, "M 2.75 8.5 C 2.75 5.324 5.324 2.75 8.5 2.75 C 11.676 2.75 14.25 5.324 14.25 8.5 C 14.25 11.676 11.676 14.25 8.5 14.25 C 5.324 14.25 2.75 11.676 2.75 8.5 Z"},
    Shape{Ink::Text, 1.5, "M 12.75 12.75 L 17 17"},
};
constexpr std::array kUndoIcon{
    Shape{Ink::Text, 1.5, "M 6.75 3.25 L 2.75 7.25 L 6.75 11.25 M 3 7.25 L 12.25 7.25 C 14.735 7.25 16.75 9.265 16.75 11.75 C 16.75 14.235 14.735 16.25 12.25 16.25 L 7.25 16.25"},
};
constexpr std::array kUpIcon{
    Shape{Ink::Text, 1.5, "M 3.25 16.25 L 16.25 16.25"},
    Shape{Ink::Accent, 1.5, "M 9.75 12.25 L 9.75 3.5 M 5.75 7.25 L 9.75 3.25 L 13.75 7.25"},
};
constexpr std::array kWholePlanIcon{
    Shape{Ink::Text, 1.5, "M 2.75 6.75 L 2.75 3.75 C 2.75 3.083 3.083 2.75 3.75 2.75 L 6.75 2.75 M 13.25 2.75 L 16.25 2.75 C 16.917 2.75 17.25 3.083 17.25 3.75 L 17.25 6.75 M 17.25 13.25 L 17.25 16.25 C 17.25 16.917 16.917 17.25 16.25 17.25 L 13.25 17.25 M 6.75 17.25 L 3.75 17.25 C 3.083 17.25 2.75 16.917 2.75 16.25 L 2.75 13.25"},
    Shape{Ink::Accent, 1.5, "M 7.25 9.75 L 12.75 9.75"},
};
constexpr std::array kClickSymbol{
    Shape{Ink::Text, 0, "M 2 0.5 L 2 10 L 4.4 7.9 L 6 11.5 L 7.9 10.7 L 6.3 7.2 L 9.5 7 Z"},
};
constexpr std::array kCrossSymbol{
    Shape{Ink::Text, 2, "M 2.25 2.25 L 9.75 9.75 M 9.75 2.25 L 2.25 9.75"},
};
constexpr std::array kDeuteriumSymbol{
    Shape{Ink::Text, 0, "M 6 0.5 C 7.5 2.6 10 5.4 10 7.75 C 10 9.959 8.209 11.75 6 11.75 C 3.791 11.75 2 9.959 2 7.75 C 2 5.4 4.5 2.6 6 0.5 Z"},
};
constexpr std::array kEnergySymbol{
    Shape{Ink::Text, 0, "M 7.5 0.5 L 2 7 L 5.5 7 L 4.5 11.5 L 10 5 L 6.5 5 Z"},
};
constexpr std::array kFallsSymbol{
    Shape{Ink::Text, 0, "M 2.5 4 L 9.5 4 L 6 8.5 Z"},
};
constexpr std::array kInfoSymbol{
    Shape{Ink::Text, 0, "M 6 0.25 C 9.176 0.25 11.75 2.824 11.75 6 C 11.75 9.176 9.176 11.75 6 11.75 C 2.824 11.75 0.25 9.176 0.25 6 C 0.25 2.824 2.824 0.25 6 0.25 Z M 5.25 2.75 L 5.25 4.25 L 6.75 4.25 L 6.75 2.75 Z M 5.25 5.25 L 5.25 9.25 L 6.75 9.25 L 6.75 5.25 Z"},
};
constexpr std::array kKristallSymbol{
    Shape{Ink::Text, 0, "M 6 0.5 L 9.75 6 L 6 11.5 L 2.25 6 Z"},
};
constexpr std::array kLevelSymbol{
    Shape{Ink::Text, 1.5, "M 3.75 5.5 L 3.75 3.75 C 3.75 2.507 4.757 1.5 6 1.5 C 7.243 1.5 8.25 2.507 8.25 3.75 L 8.25 5.5"},
    Shape{Ink::Text, 0, "M 3 5 L 9 5 C 9.552 5 10 5.448 10 6 L 10 10 C 10 10.552 9.552 11 9 11 L 3 11 C 2.448 11 2 10.552 2 10 L 2 6 C 2 5.448 2.448 5 3 5 Z"},
};
constexpr std::array kMetallSymbol{
    Shape{Ink::Text, 0, "M 3.5 3 L 8.5 3 L 11 9 L 1 9 Z"},
};
constexpr std::array kNextSymbol{
    Shape{Ink::Text, 0, "M 3.5 1.5 L 9.5 6 L 3.5 10.5 Z"},
};
constexpr std::array kQueueSymbol{
    Shape{Ink::Text, 0, "M 1 2 L 11 2 L 11 5 L 1 5 Z M 1 7 L 7 7 L 7 10 L 1 10 Z"},
};
constexpr std::array kRisesSymbol{
    Shape{Ink::Text, 0, "M 2.5 8 L 9.5 8 L 6 3.5 Z"},
};
constexpr std::array kRowBeforeSymbol{
    Shape{Ink::Text, 0, "M 5.25 0.5 L 0.75 4.5 L 5.25 8.5 Z"},
    Shape{Ink::Text, 2, "M 5 4.5 L 9 4.5 C 9.667 4.5 10 4.833 10 5.5 L 10 10.75"},
};
constexpr std::array kSlackSymbol{
    Shape{Ink::Text, 0, "M 0 4 L 5 4 L 5 8 L 0 8 Z"},
    Shape{Ink::Text, 1.5, "M 5.5 6 L 10.25 6 M 10.75 3 L 10.75 9"},
};
constexpr std::array kSleepSymbol{
    Shape{Ink::Text, 0, "M 6.75 0.9 C 4.012 0.653 1.54 2.539 1.056 5.245 C 0.572 7.951 2.237 10.578 4.89 11.295 C 7.544 12.012 10.305 10.581 11.25 8 C 9.479 8.179 7.76 7.343 6.807 5.84 C 5.854 4.337 5.832 2.425 6.75 0.9 Z"},
};
constexpr std::array kTickSymbol{
    Shape{Ink::Text, 2, "M 1.75 6.25 L 4.75 9.25 L 10.25 3"},
};
constexpr std::array kWarningSymbol{
    Shape{Ink::Text, 0, "M 6 0.5 L 12 11 L 0 11 Z M 5.25 4.25 L 5.25 7.5 L 6.75 7.5 L 6.75 4.25 Z M 5.25 8.5 L 5.25 10 L 6.75 10 L 6.75 8.5 Z"},
};
// clang-format on

}  // namespace

std::span<const Shape> ShapesOf(Icon icon) {
    switch (icon) {
        case Icon::Calendar:
            return kCalendarIcon;
        case Icon::Delete:
            return kDeleteIcon;
        case Icon::Down:
            return kDownIcon;
        case Icon::Duplicate:
            return kDuplicateIcon;
        case Icon::Help:
            return kHelpIcon;
        case Icon::Minus:
            return kMinusIcon;
        case Icon::New:
            return kNewIcon;
        case Icon::Open:
            return kOpenIcon;
        case Icon::Picture:
            return kPictureIcon;
        case Icon::Plus:
            return kPlusIcon;
        case Icon::Redo:
            return kRedoIcon;
        case Icon::Save:
            return kSaveIcon;
        case Icon::Search:
            return kSearchIcon;
        case Icon::Undo:
            return kUndoIcon;
        case Icon::Up:
            return kUpIcon;
        case Icon::WholePlan:
            return kWholePlanIcon;
        case Icon::Size:
            break;
    }
    return {};
}

std::span<const Shape> ShapesOf(Symbol symbol) {
    switch (symbol) {
        case Symbol::Click:
            return kClickSymbol;
        case Symbol::Cross:
            return kCrossSymbol;
        case Symbol::Deuterium:
            return kDeuteriumSymbol;
        case Symbol::Energy:
            return kEnergySymbol;
        case Symbol::Falls:
            return kFallsSymbol;
        case Symbol::Info:
            return kInfoSymbol;
        case Symbol::Kristall:
            return kKristallSymbol;
        case Symbol::Level:
            return kLevelSymbol;
        case Symbol::Metall:
            return kMetallSymbol;
        case Symbol::Next:
            return kNextSymbol;
        case Symbol::Queue:
            return kQueueSymbol;
        case Symbol::Rises:
            return kRisesSymbol;
        case Symbol::RowBefore:
            return kRowBeforeSymbol;
        case Symbol::Slack:
            return kSlackSymbol;
        case Symbol::Sleep:
            return kSleepSymbol;
        case Symbol::Tick:
            return kTickSymbol;
        case Symbol::Warning:
            return kWarningSymbol;
        case Symbol::Size:
            break;
    }
    return {};
}

}  // namespace tarvelin
