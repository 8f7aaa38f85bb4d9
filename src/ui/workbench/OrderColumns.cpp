// The table of the columns, and their texts.
#include "ui/workbench/OrderColumns.h"

#include "model/Cost.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/widgets/Controls.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

const StartEvent* StartOf(const Document& document, std::size_t row) {
    const auto& trace = document.Trace();
    return trace ? trace->StartOf(row) : nullptr;
}

/// The weekday stands there only if it isn't that of the start.
std::string FinishText(const RunTrace& trace, const StartEvent& start) {
    const DateTime begin = trace.conditions.WallClock(start.start);
    const DateTime end = trace.conditions.WallClock(start.finish);
    return (StartOfDay(begin) == StartOfDay(end) ? "" : std::string(WeekdayShort(end)) + " ") +
           TimeOfDayText(end);
}

std::string PriceText(const StartEvent& start, Resource resource) {
    if (start.order.kind != Order::Kind::Item) {
        return "";
    }
    const double price = CostOf(start.order.item, static_cast<Byte>(start.number - 1))[resource];
    return price == 0 ? "–" : GroupedText(price);
}

std::string StartCellText(const RunTrace& trace, const StartEvent& start, OrderColumn column) {
    switch (column) {
        case OrderColumn::Start:
            return ShortDateTimeText(trace.conditions.WallClock(start.start));
        case OrderColumn::Finish:
            return FinishText(trace, start);
        case OrderColumn::BuildTime:
            return start.order.kind == Order::Kind::Item ? TimeSpanText(start.finish - start.start)
                                                         : "";
        case OrderColumn::Wait:
            return WaitText(trace, start);
        default:
            return PriceText(start, *OrderColumns()[column].resource);
    }
}

}  // namespace

const EnumArray<OrderColumn, OrderColumnRow>& OrderColumns() {
    // clang-format off
    static constexpr EnumArray<OrderColumn, OrderColumnRow> kColumns{{{
        {OrderColumn::Number,    "Nr.",         "Nummer",       "254",                      {},                  true,  false},
        {OrderColumn::Order,     "Auftrag",     "Auftrag",      "Verbrennungstriebwerk 10", {},                  false, false},
        {OrderColumn::Start,     "Start",       "Start",        "Mo 20.12. 00:00:00",       {},                  false, false},
        {OrderColumn::Finish,    "Fertig",      "Fertig",       "00:00:00",                 {},                  false, true},
        {OrderColumn::BuildTime, "Bauzeit",     "Bauzeit",      "00:00:00",                 {},                  false, true},
        {OrderColumn::Metall,    "Met.",        "Metall",       "20.000",                   Resource::Metall,    true,  true},
        {OrderColumn::Kristall,  "Kris.",       "Kristall",     "20.000",                   Resource::Kristall,  true,  true},
        {OrderColumn::Deuterium, "Deut.",       "Deuterium",    "20.000",                   Resource::Deuterium, true,  true},
        {OrderColumn::Wait,      "Wartete auf", "Wartete auf",  "Bauschleife bis 00:00:00", {},                  false, true},
        {OrderColumn::Factor,    "Prod %",      "Produktion",   "0,00",                     {},                  true,  true}}}};
    // clang-format on
    return kColumns;
}

std::set<OrderColumn> ParseHiddenColumns(std::string_view text) {
    std::set<OrderColumn> hidden;
    for (const QString& name : ToQString(text).split(QLatin1Char(','))) {
        for (const OrderColumnRow& column : OrderColumns()) {
            if (column.canHide && name == QString::fromUtf8(column.name)) {
                hidden.insert(column.column);
            }
        }
    }
    return hidden;
}

std::string HiddenColumnsText(const std::set<OrderColumn>& hidden) {
    std::string text;
    for (const OrderColumn column : hidden) {
        text += (text.empty() ? "" : ",") + std::string(OrderColumns()[column].name);
    }
    return text;
}

QString OrderCellText(const Document& document, std::size_t row, OrderColumn column) {
    const BuildListRow& texts = document.CurrentPlan().LV_Bauliste.Rows()[row];
    const StartEvent* const start = StartOf(document, row);
    switch (column) {
        case OrderColumn::Number:
            return ToQString(texts.text);
        case OrderColumn::Order:
            return ToQString(start == nullptr ? texts.SubItems1 : OrderText(*start));
        case OrderColumn::Factor:
            return ToQString(texts.SubItems2);
        default:
            return start == nullptr ? QString()
                                    : ToQString(StartCellText(*document.Trace(), *start, column));
    }
}

QString OrderDescription(const Document& document, std::size_t row) {
    QString text = OrderCellText(document, row, OrderColumn::Order);
    const StartEvent* const start = StartOf(document, row);
    if (start == nullptr) {
        return text;
    }
    const RunTrace& trace = *document.Trace();
    for (const SimTime moment : {start->start, start->finish}) {
        text +=
            QStringLiteral("\n") + ToQString(ShortDateTimeText(trace.conditions.WallClock(moment)));
    }
    for (const OrderColumnRow& column : OrderColumns()) {
        const QString price =
            column.resource ? OrderCellText(document, row, column.column) : QString();
        if (!price.isEmpty() && price != QStringLiteral("–")) {
            text += QStringLiteral("\n%1: %2").arg(QString::fromUtf8(column.name), price);
        }
    }
    const std::string reason = DelayText(trace, row);
    return reason.empty() ? text : text + QStringLiteral("\n") + ToQString(reason);
}

}  // namespace tarvelin
