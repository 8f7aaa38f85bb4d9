// The columns of the workbench's list: captions, texts and widths.
#pragma once

#include <QFontMetrics>
#include <QString>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "document/Document.h"
#include "model/Resource.h"
#include "util/EnumArray.h"

namespace tarvelin {

/// From left to right.
enum class OrderColumn : std::uint8_t {
    Number,
    Order,
    Start,
    Finish,
    BuildTime,
    Metall,
    Kristall,
    Deuterium,
    Wait,
    Factor,
    Size
};

struct OrderColumnRow {
    OrderColumn column;
    const char* caption;
    /// For the menu that hides columns.
    const char* name;
    /// The widest usual text.
    const char* widest;
    /// The resource that it is about, if any.
    std::optional<Resource> resource;
    bool right;
    /// Whether the user may hide it.
    bool canHide;
};

[[nodiscard]] const EnumArray<OrderColumn, OrderColumnRow>& OrderColumns();

/// As the configuration keeps them: "Metall,Kristall". Names that no column has are passed over.
[[nodiscard]] std::set<OrderColumn> ParseHiddenColumns(std::string_view text);
[[nodiscard]] std::string HiddenColumnsText(const std::set<OrderColumn>& hidden);

/// What a cell shows: of the plan's row, and of its start if there is a run.
[[nodiscard]] QString OrderCellText(const Document& document, std::size_t row, OrderColumn column);

/// All that the columns say about a row, and why it had to wait in full; they may be elided or
/// hidden.
[[nodiscard]] QString OrderDescription(const Document& document, std::size_t row);

}  // namespace tarvelin
