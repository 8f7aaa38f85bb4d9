// Two tables.
#include "ui/workbench/ComparisonPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "persistence/PlanRun.h"
#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

Vergleichsfeld::Vergleichsfeld(const Environment& umgebung, QWidget* parent)
    : QWidget(parent),
      m_umgebung(umgebung),
      m_merken(new QPushButton(QStringLiteral("&Merken"), this)),
      m_datei(new QPushButton(QStringLiteral("Mit &Datei..."), this)),
      m_ohne(new QPushButton(QStringLiteral("&Ohne"), this)),
      m_name(NewLabel(QStringLiteral("LBL_Vergleich"), {}, this)),
      m_kennzahlliste(NeueTabelle("LV_Kennzahlen", "Kennzahlen im Vergleich", "", m_kennzahlen,
                                  &m_kennzahlmodell)),
      m_auftragsliste(NeueTabelle("LV_Unterschiede", "Aufträge zu anderer Zeit", "Auftrag",
                                  m_auftraege, &m_auftragsmodell)) {
    setObjectName(QStringLiteral("Vergleichsfeld"));
    m_merken->setObjectName(QStringLiteral("Cmd_Merken"));
    m_datei->setObjectName(QStringLiteral("Cmd_MitDatei"));
    m_ohne->setObjectName(QStringLiteral("Cmd_OhneVergleich"));
    m_merken->setToolTip(QStringLiteral("Der Plan, wie er jetzt ist, wird zum Vergleich behalten"));
    connect(m_merken, &QPushButton::clicked, this, &Vergleichsfeld::Merke);
    connect(m_datei, &QPushButton::clicked, this, &Vergleichsfeld::LadeDatei);
    connect(m_ohne, &QPushButton::clicked, this, &Vergleichsfeld::Ohne);
    LegeAus();
    Vergleiche();
}

// The tables ask this panel for their rows to its end.
Vergleichsfeld::~Vergleichsfeld() {
    delete m_kennzahlliste;
    delete m_auftragsliste;
}

ListView* Vergleichsfeld::NeueTabelle(const char* name, const char* bedeutung, const char* erste,
                                      const std::vector<ComparisonText>& zeilen,
                                      TableModel** modell) {
    *modell = new TableModel(
        {QString::fromUtf8(erste), QStringLiteral("dort"), QStringLiteral("hier"),
         QStringLiteral("Unterschied")},
        {.rows = [&zeilen] { return zeilen.size(); },
         .text =
             [&zeilen](std::size_t zeile, int spalte) {
                 return ToQString(zeilen[zeile].at(static_cast<std::size_t>(spalte)));
             }},
        this);
    auto* const tabelle =
        new ListView(QString::fromLatin1(name), QString::fromUtf8(bedeutung), {12, 9, 9, 8}, this);
    tabelle->setModel(*modell);
    tabelle->setTextElideMode(Qt::ElideRight);
    return tabelle;
}

void Vergleichsfeld::LegeAus() {
    auto* const knoepfe = new QHBoxLayout;
    for (QPushButton* const knopf : {m_merken, m_datei, m_ohne}) {
        knoepfe->addWidget(knopf);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(knoepfe);
    layout->addWidget(m_name);
    layout->addWidget(m_kennzahlliste, 2);
    layout->addWidget(m_auftragsliste, 3);
}

QSize Vergleichsfeld::minimumSizeHint() const {
    // An order and three spans, with the days of a long plan.
    constexpr int kZeichen = 86;
    return QWidget::minimumSizeHint().expandedTo(
        QSize(kZeichen * fontMetrics().averageCharWidth(), 0));
}

void Vergleichsfeld::Zeige(const std::optional<RunTrace>& dieser) {
    m_dieser = dieser;
    Vergleiche();
}

void Vergleichsfeld::Merke() {
    Setze(m_dieser, QStringLiteral("Verglichen mit dem gemerkten Plan"));
}

void Vergleichsfeld::LadeDatei() {
    const auto datei = m_umgebung.AskForFile(Dialogs::Purpose::Load);
    if (datei.empty()) {
        return;
    }
    const PlanRun lauf(PathToQString(datei.filename()).toStdString(),
                       IniFile::Load(datei, m_umgebung.files));
    if (!lauf.hasRun) {
        emit Meldung(lauf.messages.empty() ? "" : lauf.messages.back().text);
        return;
    }
    emit Meldung(lauf.run.state.IsAtEndOfClock() ? BeyondClockText() : "");
    Setze(lauf.Trace(), QStringLiteral("Verglichen mit ") + ToQString(lauf.name));
}

void Vergleichsfeld::Ohne() {
    Setze(std::nullopt, {});
}

void Vergleichsfeld::Setze(std::optional<RunTrace> anderer, const QString& name) {
    m_anderer = std::move(anderer);
    m_name->setText(name);
    Vergleiche();
    emit AndererGeaendert();
}

void Vergleichsfeld::Vergleiche() {
    m_kennzahlen.clear();
    m_auftraege.clear();
    if (m_dieser && m_anderer) {
        const Comparison vergleich = tarvelin::Compare(*m_anderer, *m_dieser);
        m_kennzahlen = SummaryTexts(vergleich);
        m_auftraege = OrderDifferences(vergleich);
    }
    m_kennzahlmodell->Refresh();
    m_auftragsmodell->Refresh();
    m_merken->setEnabled(m_dieser.has_value());
    m_ohne->setEnabled(m_anderer.has_value());
}

}  // namespace tarvelin
