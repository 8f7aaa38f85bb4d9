// Layout of the group, and what its labels show.
#include "ui/mainwindow/BuildListGroup.h"

#include <QColor>
#include <QGridLayout>

namespace tarvelin {

namespace {

TableModel::Provider ProviderOf(const BuildList& list) {
    return {.rows = [&list] { return list.Rows().size(); },
            .text =
                [&list](std::size_t row, int column) {
                    const BuildListRow& tableRow = list.Rows()[row];
                    return ToQString(column == 0   ? tableRow.text
                                     : column == 1 ? tableRow.SubItems1
                                                   : tableRow.SubItems2);
                },
            .color =
                [&list](std::size_t row, int column) {
                    const TextColor color = list.Rows()[row].SubItems2Color;
                    return QColor(column == 2 ? static_cast<int>(color) : 0, 0, 0);
                }};
}

}  // namespace

BuildListGroup::BuildListGroup(const BuildList& list, QWidget* parent)
    : GroupBox(QStringLiteral("Frame8"), QStringLiteral("Bauliste:"), parent),
      m_LV_Bauliste(new BuildListView(this)),
      m_Cmd_Undo(NewButton(QStringLiteral("Cmd_Undo"), QStringLiteral("Undo"), this)),
      m_Cmd_Clear(NewButton(QStringLiteral("Cmd_Clear"), QStringLiteral("Clear"), this)),
      m_Cmd_Simulate(
          NewButton(QStringLiteral("Cmd_Simulate"), QStringLiteral("Simulation starten"), this)),
      m_model(new TableModel({{}, {}, {}}, ProviderOf(list), this)),
      m_stocks(new QGridLayout),
      m_LBL_Met(NewStock(0, 5, QStringLiteral(" Metall "), QStringLiteral("LBL_Met"))),
      m_LBL_Kris(NewStock(1, 5, QStringLiteral(" Kristall "), QStringLiteral("LBL_Kris"))),
      m_LBL_Deut(NewStock(2, 5, QStringLiteral(" Deuterium "), QStringLiteral("LBL_Deut"))),
      m_LBL_ENergie(NewStock(3, 7, QStringLiteral(" Energie "), QStringLiteral("LBL_ENergie"))),
      m_LBL_Timegone(NewLabel(QStringLiteral("LBL_Timegone"), {}, this)) {
    m_LV_Bauliste->setModel(m_model);
    connect(m_LV_Bauliste, &BuildListView::DragDrop, this, &BuildListGroup::DragDrop);
    connect(m_Cmd_Undo, &QPushButton::clicked, this, &BuildListGroup::Cmd_Undo_Click);
    connect(m_Cmd_Clear, &QPushButton::clicked, this, &BuildListGroup::Cmd_Clear_Click);
    connect(m_Cmd_Simulate, &QPushButton::clicked, this, &BuildListGroup::Cmd_Simulate_Click);
    QLabel* const prod =
        NewLabel(QStringLiteral("LBL_ProdProzent"), QStringLiteral("Prod %"), this);
    prod->setToolTip(QStringLiteral(
        " Produktionsfaktor nach der Fertigstellung des jeweiligen Listeneintrags "));
    SetCornerLabel(prod);
    m_LBL_Timegone->setAlignment(Qt::AlignCenter);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(3, 2, 3, 3);
    layout->setSpacing(3);
    layout->addWidget(m_LV_Bauliste, 0, 0, 1, 3);
    layout->addLayout(m_stocks, 1, 0, 1, 3);
    layout->addWidget(m_LBL_Timegone, 2, 0, 1, 3);
    layout->addWidget(m_Cmd_Undo, 3, 0);
    layout->addWidget(m_Cmd_Clear, 3, 1);
    layout->addWidget(m_Cmd_Simulate, 3, 2);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 2);
    layout->setColumnStretch(2, 5);
}

NumberLabel* BuildListGroup::NewStock(int number, int width, const QString& hint,
                                      const QString& name) {
    QLabel* const picture =
        NewPicture(QStringLiteral("Images(%1)").arg(number), {26, 26}, hint, this);
    auto* const label = new NumberLabel(name, this);
    label->setAccessibleDescription(hint.trimmed());
    m_stockPictures.push_back(picture);
    m_stocks->setHorizontalSpacing(2);
    m_stocks->setVerticalSpacing(1);
    m_stocks->addWidget(picture, 0, number, Qt::AlignCenter);
    m_stocks->addWidget(label, 1, number);
    m_stocks->setColumnStretch(number, width);
    return label;
}

void BuildListGroup::ShowRows(DocumentChange::Rows change) {
    m_model->Refresh();
    if (change == DocumentChange::Rows::Replaced) {
        m_LV_Bauliste->setCurrentIndex({});
    }
    if (change >= DocumentChange::Rows::Appended) {
        m_LV_Bauliste->scrollToBottom();
    }
}

void BuildListGroup::ShowResult(const ResultTexts& texts) {
    m_LBL_Met->Assign(ToQString(texts.LBL_Met));
    m_LBL_Kris->Assign(ToQString(texts.LBL_Kris));
    m_LBL_Deut->Assign(ToQString(texts.LBL_Deut));
    m_LBL_ENergie->Assign(ToQString(texts.LBL_ENergie));
    m_LBL_Timegone->setText(ToQString(texts.LBL_Timegone));
}

}  // namespace tarvelin
