// The plan that the user edits: the rows of `LV_Bauliste` over its orders.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/RunConditions.h"
#include "plan/OrderList.h"
#include "util/Message.h"

namespace tarvelin {

/// Colour of a row's factor text, as the amount of red in it.
enum class TextColor : Byte { Black = 0, Red = 255 };

struct BuildListRow {
    /// First column: the row's position, from 1.
    std::string text;
    /// Not shown: the item code or the production row's "GX:" + m + ":" + k + ":" + d.
    std::string Tag;
    /// Second column: the list text.
    std::string SubItems1;
    /// Third column: the production factor with this row done, as it was when the row was added.
    std::string SubItems2;
    TextColor SubItems2Color = TextColor::Black;
};

/// The orders and the texts that the screen shows of them. A row's texts are made when it is added
/// and never change. Operations that make a factor text take the conditions of the last run or
/// reset, as satellites depend on the temperature.
class BuildList {
  public:
    [[nodiscard]] const OrderList& Orders() const { return m_orders; }
    /// As many as there are orders.
    [[nodiscard]] const std::vector<BuildListRow>& Rows() const { return m_rows; }

    /// Adds a row of an item. Nothing is checked against the game's rules. A message if the list is
    /// full; nothing changes then.
    [[nodiscard]] std::optional<Message> AddItem(ItemId item, const RunConditions& conditions);

    /// Adds a production row. A message if the list is full; nothing changes then.
    [[nodiscard]] std::optional<Message> AddProduction(const MineFactors& factors,
                                                       const RunConditions& conditions);

    /// Adds the row of a stored `Tag`, which is kept as it is. False if the `Tag` is unknown or the
    /// list full; nothing changes then.
    [[nodiscard]] bool Replay(std::string_view tag, const RunConditions& conditions);

    /// Takes the last row out, if there is one, and puts back what it had changed.
    void RemoveLast();

    void Clear();

    /// The rows' `Tag`s.
    [[nodiscard]] std::vector<std::string> Tags() const;
    /// All rows anew, with the texts that adding them one by one gives. Each `Tag` is one that
    /// `Replay` takes; at most 254.
    void SetTags(const std::vector<std::string>& tags, const RunConditions& conditions);

  private:
    std::optional<Message> Append(const Order& order, std::string_view tag,
                                  const RunConditions& conditions);

    /// Numbers and colours the row that was just added.
    void RenumberBauliste();

    OrderList m_orders;
    std::vector<BuildListRow> m_rows;
};

/// Told when a row is added to a full list.
[[nodiscard]] Message ListFullMessage();

/// The production factor of a list as it stands, with two decimals: supply divided by need, at most
/// "1,00".
[[nodiscard]] std::string GetProdfaktorText(const OrderList& list, const RunConditions& conditions);

}  // namespace tarvelin
