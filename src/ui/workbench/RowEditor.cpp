// Each edit is a draft that the document takes over if the rules allow it.
#include "ui/workbench/RowEditor.h"

#include <algorithm>
#include <utility>

namespace tarvelin {

RowEditor::RowEditor(Document& document, OrderListView& list) : m_document(document), m_list(list) {
    connect(&m_list, &OrderListView::RowsDropped, this, &RowEditor::MoveBefore);
}

std::optional<RowEditor::Choice> RowEditor::TakeChoice() {
    return std::exchange(m_choice, std::nullopt);
}

void RowEditor::Apply(const QString& refusal, const ListEdit& edit, Choice choice) {
    const auto orders = edit.Orders();
    if (std::ranges::equal(orders, m_document.CurrentPlan().LV_Bauliste.Orders().All())) {
        return;
    }
    if (const auto objection = edit.Objection()) {
        emit Refused(refusal, *objection);
        return;
    }
    m_choice = std::move(choice);
    m_document.Edit(orders);
}

template <class Step>
void RowEditor::EditChosen(const QString& refusal, Step step) {
    ListEdit edit(m_document.CurrentPlan().LV_Bauliste);
    step(edit, m_list.ChosenRows());
    Apply(refusal, edit, {.rows = edit.Affected(), .insertBefore = {}});
}

void RowEditor::MoveUp() {
    EditChosen(QStringLiteral("Nicht verschoben."),
               [](ListEdit& edit, const auto& rows) { edit.MoveUp(rows); });
}

void RowEditor::MoveDown() {
    EditChosen(QStringLiteral("Nicht verschoben."),
               [](ListEdit& edit, const auto& rows) { edit.MoveDown(rows); });
}

void RowEditor::MoveBefore(std::size_t target) {
    EditChosen(QStringLiteral("Nicht verschoben."),
               [target](ListEdit& edit, const auto& rows) { edit.MoveBefore(target, rows); });
}

void RowEditor::RemoveChosen() {
    EditChosen(QStringLiteral("Nicht gelöscht."),
               [](ListEdit& edit, const auto& rows) { edit.Remove(rows); });
}

void RowEditor::DuplicateChosen() {
    EditChosen(QStringLiteral("Nicht verdoppelt."),
               [](ListEdit& edit, const auto& rows) { edit.Duplicate(rows); });
}

void RowEditor::InsertRow(const Order& order, std::size_t before) {
    ListEdit edit(m_document.CurrentPlan().LV_Bauliste);
    edit.Insert(before, order);
    Apply(QStringLiteral("Nicht eingefügt."), edit, {.rows = {before}, .insertBefore = before + 1});
}

PerItem<PaletteOffer> RowEditor::Offers() const {
    const Plan& plan = m_document.CurrentPlan();
    const std::size_t before = m_list.InsertPosition();
    const auto& trace = m_document.Trace();
    RunConditions conditions = trace ? trace->conditions : m_document.CurrentRun().conditions;
    conditions.Speedfaktor = plan.parameters.Speedfaktor();
    PerItem<PaletteOffer> offers;
    for (std::size_t i = 0; i < offers.size(); ++i) {
        const auto item = static_cast<ItemId>(i);
        ListEdit edit(plan.LV_Bauliste);
        edit.Insert(before, Order::Of(item));
        offers[item].preview =
            PreviewOf(item, plan.LV_Bauliste.Orders().All().first(before), conditions);
        if (auto objection = edit.Objection()) {
            offers[item].objection = std::move(objection->text);
        }
    }
    return offers;
}

}  // namespace tarvelin
