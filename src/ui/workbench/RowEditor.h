// The edits of the workbench's list: rows moved, removed, doubled and inserted.
#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "plan/ListEdit.h"
#include "ui/workbench/ItemPalette.h"
#include "ui/workbench/OrderListView.h"

namespace tarvelin {

class RowEditor : public QObject {
    Q_OBJECT

  public:
    /// What to choose once an edit is shown.
    struct Choice {
        std::vector<std::size_t> rows;
        std::optional<std::size_t> insertBefore;
    };

    /// Both must outlive it. `list` has the chosen rows.
    RowEditor(Document& document, OrderListView& list);

    void MoveUp();
    void MoveDown();
    void MoveBefore(std::size_t target);
    void RemoveChosen();
    void DuplicateChosen();
    /// The new row becomes the chosen one, and the next goes behind it.
    void InsertRow(const Order& order, std::size_t before);

    /// Leaves nothing behind.
    [[nodiscard]] std::optional<Choice> TakeChoice();
    /// What each item would do where the next row goes.
    [[nodiscard]] PerItem<PaletteOffer> Offers() const;

  signals:
    /// `what` wasn't done.
    void Refused(const QString& what, const EditObjection& objection);

  private:
    /// Makes the edited rows those of the plan, or tells why they can't be.
    void Apply(const QString& refusal, const ListEdit& edit, Choice choice);
    template <class Step>
    void EditChosen(const QString& refusal, Step step);

    Document& m_document;
    OrderListView& m_list;
    std::optional<Choice> m_choice;
};

}  // namespace tarvelin
