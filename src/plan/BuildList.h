// The build list: the orders and their rows in `LV_Bauliste`.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/RunConditions.h"
#include "plan/OrderList.h"
#include "util/Message.h"

namespace tarvelin {

/// Colour of a row's factor text, as its red component.
enum class TextColor : Byte { Black = 0, Red = 255 };

struct BuildListRow {
    /// First column: the row's position, from 1.
    std::string text;
    /// Not shown: the item code, or "GX:8:10:5" for a production row.
    std::string Tag;
    /// Second column: the list text.
    std::string SubItems1;
    /// Third column: the production factor after this row, worked out when the row was added.
    std::string SubItems2;
    TextColor SubItems2Color = TextColor::Black;
};

/// A row's texts are made when it is added and never change. Operations that make a factor text
/// take the conditions of the last run or reset, as satellites depend on the temperature.
class BuildList {
  public:
    [[nodiscard]] const OrderList& Orders() const { return m_orders; }
    /// One for each order.
    [[nodiscard]] const std::vector<BuildListRow>& Rows() const { return m_rows; }

    /// Adds a row for an item, without a check against the game's rules. A message, and no change,
    /// if the list is full.
    [[nodiscard]] std::optional<Message> AddItem(ItemId item, const RunConditions& conditions);

    /// Adds a production row. A message, and no change, if the list is full.
    [[nodiscard]] std::optional<Message> AddProduction(const MineFactors& factors,
                                                       const RunConditions& conditions);

    /// Adds the row of a stored `Tag`, which is kept as it is. False, and no change, if the `Tag`
    /// is unknown or the list full.
    [[nodiscard]] bool Replay(std::string_view tag, const RunConditions& conditions);

    /// Takes the last row out, if there is one.
    void RemoveLast();

    void Clear();

    /// Replaces all rows, as if these orders were added one by one: at most 254, each an item or a
    /// production row.
    void SetOrders(std::span<const Order> orders, const RunConditions& conditions);

  private:
    std::optional<Message> Append(const Order& order, std::string_view tag,
                                  const RunConditions& conditions);

    /// Numbers and colours the row that was just added.
    void RenumberBauliste();

    OrderList m_orders;
    std::vector<BuildListRow> m_rows;
};

/// Shown when a row is added to a full list.
[[nodiscard]] Message ListFullMessage();

/// The production factor at the end of a list, with two decimals: supply divided by need, at most
/// "1,00".
[[nodiscard]] std::string GetProdfaktorText(const OrderList& list, const RunConditions& conditions);

}  // namespace tarvelin
