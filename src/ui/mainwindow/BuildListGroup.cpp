// Layout of the build list's group.
#include "ui/mainwindow/BuildListGroup.h"

#include <QColor>
#include <QGridLayout>

namespace tarvelin {

namespace {

TableModel::Provider QuelleVon(const BuildList& liste) {
    return {
        .rows = [&liste] { return liste.Rows().size(); },
        .text =
            [&liste](std::size_t zeile, int spalte) {
                const BuildListRow& z = liste.Rows()[zeile];
                return ToQString(spalte == 0 ? z.text : spalte == 1 ? z.SubItems1 : z.SubItems2);
            },
        .color =
            [&liste](std::size_t zeile, int spalte) {
                const TextColor farbe = liste.Rows()[zeile].SubItems2Color;
                return QColor(spalte == 2 ? static_cast<int>(farbe) : 0, 0, 0);
            }};
}

}  // namespace

Baulistengruppe::Baulistengruppe(const BuildList& liste, QWidget* parent)
    : GroupBox(QStringLiteral("Frame8"), QStringLiteral("Bauliste:"), parent),
      LV_Bauliste(new Baulistenansicht(this)),
      Cmd_Undo(NewButton(QStringLiteral("Cmd_Undo"), QStringLiteral("Undo"), this)),
      Cmd_Clear(NewButton(QStringLiteral("Cmd_Clear"), QStringLiteral("Clear"), this)),
      Cmd_Simulate(
          NewButton(QStringLiteral("Cmd_Simulate"), QStringLiteral("Simulation starten"), this)),
      m_modell(new TableModel({{}, {}, {}}, QuelleVon(liste), this)),
      m_vorraete(new QGridLayout),
      m_LBL_Met(NeuerVorrat(0, 5, QStringLiteral(" Metall "), QStringLiteral("LBL_Met"))),
      m_LBL_Kris(NeuerVorrat(1, 5, QStringLiteral(" Kristall "), QStringLiteral("LBL_Kris"))),
      m_LBL_Deut(NeuerVorrat(2, 5, QStringLiteral(" Deuterium "), QStringLiteral("LBL_Deut"))),
      m_LBL_ENergie(NeuerVorrat(3, 7, QStringLiteral(" Energie "), QStringLiteral("LBL_ENergie"))),
      m_LBL_Timegone(NewLabel(QStringLiteral("LBL_Timegone"), {}, this)) {
    LV_Bauliste->setModel(m_modell);
    QLabel* const prod =
        NewLabel(QStringLiteral("LBL_ProdProzent"), QStringLiteral("Prod %"), this);
    prod->setToolTip(QStringLiteral(
        " Produktionsfaktor nach der Fertigstellung des jeweiligen Listeneintrags "));
    SetCornerLabel(prod);
    m_LBL_Timegone->setAlignment(Qt::AlignCenter);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(3, 2, 3, 3);
    layout->setSpacing(3);
    layout->addWidget(LV_Bauliste, 0, 0, 1, 3);
    layout->addLayout(m_vorraete, 1, 0, 1, 3);
    layout->addWidget(m_LBL_Timegone, 2, 0, 1, 3);
    layout->addWidget(Cmd_Undo, 3, 0);
    layout->addWidget(Cmd_Clear, 3, 1);
    layout->addWidget(Cmd_Simulate, 3, 2);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 2);
    layout->setColumnStretch(2, 5);
}

NumberLabel* Baulistengruppe::NeuerVorrat(int nummer, int breite, const QString& hinweis,
                                          const QString& name) {
    QLabel* const bild =
        NewPicture(QStringLiteral("Images(%1)").arg(nummer), {26, 26}, hinweis, this);
    auto* const label = new NumberLabel(name, this);
    label->setAccessibleDescription(hinweis.trimmed());
    m_vorraete->setHorizontalSpacing(2);
    m_vorraete->setVerticalSpacing(1);
    m_vorraete->addWidget(bild, 0, nummer, Qt::AlignCenter);
    m_vorraete->addWidget(label, 1, nummer);
    m_vorraete->setColumnStretch(nummer, breite);
    return label;
}

void Baulistengruppe::Zeige(const ResultTexts& texte) {
    m_LBL_Met->Assign(ToQString(texte.LBL_Met));
    m_LBL_Kris->Assign(ToQString(texte.LBL_Kris));
    m_LBL_Deut->Assign(ToQString(texte.LBL_Deut));
    m_LBL_ENergie->Assign(ToQString(texte.LBL_ENergie));
    m_LBL_Timegone->setText(ToQString(texte.LBL_Timegone));
}

}  // namespace tarvelin
