// From the inputs to a search, and from its news to the screen.
#include "ui/workbench/SearchPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <utility>

#include "persistence/PlanFile.h"
#include "search/SearchTexts.h"
#include "simulation/RunTexts.h"
#include "simulation/RunTrace.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

template <class T>
T* Neu(const char* name, const char* bedeutung, QWidget* parent) {
    auto* const eingabe = new T(parent);
    eingabe->setObjectName(QString::fromLatin1(name));
    eingabe->setAccessibleName(QString::fromUtf8(bedeutung));
    return eingabe;
}

QCheckBox* NeuerSchalter(const char* name, const char* text, QWidget* parent) {
    auto* const schalter = new QCheckBox(QString::fromUtf8(text), parent);
    schalter->setObjectName(QString::fromLatin1(name));
    return schalter;
}

QPushButton* NeuerSuchknopf(const char* name, const char* text, QWidget* parent) {
    auto* const knopf = new QPushButton(QString::fromUtf8(text), parent);
    knopf->setObjectName(QString::fromLatin1(name));
    return knopf;
}

std::string Bytes(const Plan& plan) {
    IniFile profil("");
    WritePlan(plan, profil);
    return profil.Bytes();
}

OrderList ListeAus(const std::vector<Order>& orders) {
    OrderList liste;
    for (const Order& order : orders) {
        liste.Append(order);
    }
    return liste;
}

/// How much of a search is done, from 0 to 1.
double Anteil(std::uint64_t versuche, std::uint64_t von) {
    return von == 0 ? 1 : static_cast<double>(versuche) / static_cast<double>(von);
}

int InProzent(double anteil) {
    constexpr double kGanz = 100;
    return static_cast<int>(kGanz * anteil);
}

std::string Fundtext(const Solution& fund) {
    return TimeSpanText(fund.score.duration) + ", " +
           CountText(static_cast<std::size_t>(fund.score.sittings), "Sitzung", "Sitzungen") + ", " +
           CountText(fund.orders.size(), "Zeile", "Zeilen");
}

}  // namespace

Suchfeld::Suchfeld(const Plan& plan, const Environment& umgebung,
                   std::function<std::vector<std::size_t>()> gewaehlte, QWidget* parent)
    : QWidget(parent),
      m_plan(plan),
      m_umgebung(umgebung),
      m_gewaehlte(std::move(gewaehlte)),
      m_aufgabe(Neu<QComboBox>("Comb_Suchaufgabe", "Aufgabe der Suche", this)),
      m_ziel(Neu<QLineEdit>("txt_Suchziel", "Ziel der Suche", this)),
      m_fest(NeuerSchalter("Chk_Fest", "Gewählte Zeilen bleiben &fest", this)),
      m_frei(NeuerSchalter("Chk_Frei", "Produktionszeilen wandern &mit", this)),
      m_ab(NeuerSchalter("Chk_AbJetzt", "Ab &jetzt: was begonnen hat, bleibt", this)),
      m_sitzungen(NeuerSchalter("Chk_Sitzungen", "Weniger Sit&zungen, länger um", this)),
      m_nachlass(Neu<QDoubleSpinBox>("Spin_Nachlass", "Prozent länger", this)),
      m_versuche(Neu<QSpinBox>("Spin_Versuche", "Zahl der Versuche", this)),
      m_suchen(NeuerSuchknopf("Cmd_Suchen", "&Suchen", this)),
      m_anhalten(NeuerSuchknopf("Cmd_Anhalten", "Anhal&ten", this)),
      m_uebernehmen(NeuerSuchknopf("Cmd_Uebernehmen", "Über&nehmen", this)),
      m_balken(Neu<QProgressBar>("Suchbalken", "Fortschritt der Suche", this)),
      m_kurve(new Bestenkurve(this)),
      m_stand(NewLabel(QStringLiteral("LBL_Suche"), {}, this)) {
    setObjectName(QStringLiteral("Suchfeld"));
    m_stand->setWordWrap(true);
    m_stand->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_stand->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const form = new QFormLayout;
    BaueEingaben(*form);
    auto* const knoepfe = new QHBoxLayout;
    for (QPushButton* const knopf : {m_suchen, m_anhalten, m_uebernehmen}) {
        knoepfe->addWidget(knopf);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(knoepfe);
    layout->addWidget(m_balken);
    layout->addWidget(m_kurve);
    layout->addWidget(m_stand, 1);
    Verbinde();
    Schalte();
}

void Suchfeld::BaueEingaben(QFormLayout& form) {
    m_aufgabe->addItems(
        {QStringLiteral("andere Reihenfolge"), QStringLiteral("schnellster Weg zum Ziel")});
    m_ziel->setText(QStringLiteral("plan"));
    m_ziel->setToolTip(QStringLiteral(
        "plan: Forschung, Schiffe und Verteidigung des Plans; sonst etwa GW2 FV2 WKT1"));
    constexpr double kHoechstens = 100;
    constexpr double kUeblich = 0.5;
    m_nachlass->setRange(0, kHoechstens);
    m_nachlass->setSingleStep(kUeblich);
    m_nachlass->setValue(kUeblich);
    m_nachlass->setSuffix(QStringLiteral(" %"));
    m_versuche->setRange(1, std::numeric_limits<int>::max());
    m_versuche->setSingleStep(static_cast<int>(SearchBudget::kDefaultTries));
    m_versuche->setValue(static_cast<int>(SearchBudget::kDefaultTries));
    m_versuche->setGroupSeparatorShown(true);
    auto* const sitzungen = new QHBoxLayout;
    sitzungen->addWidget(m_sitzungen);
    sitzungen->addWidget(m_nachlass);
    form.setVerticalSpacing(2);
    form.addRow(m_aufgabe);
    form.addRow(QStringLiteral("Ziel:"), m_ziel);
    form.addRow(m_fest);
    form.addRow(m_frei);
    form.addRow(m_ab);
    form.addRow(sitzungen);
    form.addRow(QStringLiteral("Versuche:"), m_versuche);
}

void Suchfeld::Verbinde() {
    connect(m_aufgabe, &QComboBox::currentIndexChanged, this, &Suchfeld::Schalte);
    connect(m_sitzungen, &QCheckBox::toggled, this, &Suchfeld::Schalte);
    connect(m_suchen, &QPushButton::clicked, this, &Suchfeld::Suche);
    connect(m_anhalten, &QPushButton::clicked, this, &Suchfeld::HalteAn);
    connect(m_uebernehmen, &QPushButton::clicked, this, &Suchfeld::Uebernimm);
    // They come from another thread. News of a search that was followed by another one come to
    // nothing.
    connect(
        this, &Suchfeld::StandKam, this,
        [this](int nummer, const SearchProgress& stand) {
            if (nummer == m_nummer) {
                ZeigeStand(stand);
            }
        },
        Qt::QueuedConnection);
    connect(
        this, &Suchfeld::ErgebnisKam, this,
        [this](int nummer, const SearchResult& ergebnis) {
            if (nummer == m_nummer) {
                ZeigeErgebnis(ergebnis);
            }
        },
        Qt::QueuedConnection);
}

void Suchfeld::Schalte() {
    m_ziel->setEnabled(m_aufgabe->currentIndex() == 1);
    m_nachlass->setEnabled(m_sitzungen->isChecked());
    m_suchen->setEnabled(!m_laeuft);
    m_anhalten->setEnabled(m_laeuft);
    m_uebernehmen->setEnabled(!m_laeuft && m_gesucht && m_gesucht->Bester);
}

SearchRequest Suchfeld::Wunsch() const {
    SearchRequest wunsch{.moveProduction = m_frei->isChecked()};
    if (m_aufgabe->currentIndex() == 1) {
        wunsch.goal = m_ziel->text().trimmed().toStdString();
    }
    if (m_fest->isChecked()) {
        for (const std::size_t zeile : m_gewaehlte()) {
            wunsch.pinnedRanges.emplace_back(zeile + 1, zeile + 1);
        }
    }
    if (m_ab->isChecked()) {
        wunsch.notBefore = m_umgebung.now();
    }
    return wunsch;
}

SearchBudget Suchfeld::Umfang() const {
    // One core is left for the windows.
    const unsigned kerne = std::thread::hardware_concurrency();
    return {.tries = static_cast<std::uint64_t>(m_versuche->value()),
            .threads = std::max(2U, kerne) - 1,
            .slackPercent = m_sitzungen->isChecked() ? m_nachlass->value() : 0};
}

void Suchfeld::Suche() {
    const auto aufgabe = MakePlanTask(m_plan, Wunsch());
    if (const auto* const absage = std::get_if<SearchRefusal>(&aufgabe)) {
        emit Meldung(absage->text);
        return;
    }
    emit Meldung("");
    m_gesucht = {.Vorher = m_plan, .Aufgabe = std::get<PlanTask>(aufgabe), .Bester = {}};
    m_kurve->Leere();
    m_balken->setValue(0);
    m_stand->clear();
    m_laeuft = true;
    Schalte();
    const int nummer = ++m_nummer;
    m_suche = std::make_unique<BackgroundSearch>(
        m_gesucht->Aufgabe, Umfang(),
        BackgroundSearch::Listener{
            .onProgress = [this,
                           nummer](const SearchProgress& stand) { emit StandKam(nummer, stand); },
            .onDone = [this, nummer](
                          const SearchResult& ergebnis) { emit ErgebnisKam(nummer, ergebnis); }});
}

void Suchfeld::HalteAn() {
    if (m_suche) {
        m_suche->Stop();
    }
}

void Suchfeld::ZeigeStand(const SearchProgress& stand) {
    const double anteil = Anteil(stand.tries, stand.totalTries);
    m_balken->setValue(InProzent(anteil));
    m_kurve->Merke(anteil, stand.bestDuration);
    m_stand->setText(ToQString(
        "Bisher: " + TimeSpanText(stand.bestDuration) + " (" + SignedTimeSpanText(-stand.gain) +
        ")\n" + std::to_string(stand.tries) + " von " + std::to_string(stand.totalTries) +
        " Versuchen, " + std::to_string(std::int64_t(stand.triesPerSecond)) + " in der Sekunde"));
}

void Suchfeld::ZeigeErgebnis(const SearchResult& ergebnis) {
    m_suche.reset();
    m_laeuft = false;
    m_gesucht->Bester = ergebnis.best;
    m_balken->setValue(InProzent(Anteil(ergebnis.tries, ergebnis.totalTries)));
    m_stand->setText(ergebnis.best
                         ? ToQString(Bericht() + "\nVersuche: " + std::to_string(ergebnis.tries))
                         : QStringLiteral("Es wurde keine Liste gefunden, die endet."));
    Schalte();
}

std::string Suchfeld::Bericht() const {
    const Solution& nachher = *m_gesucht->Bester;
    const auto& vorher = m_gesucht->Aufgabe.before;
    std::string text =
        "Vorher: " + (vorher ? Fundtext(*vorher) : "der Plan endet nie oder verfehlt das Ziel") +
        "\nNachher: " + Fundtext(nachher);
    if (vorher) {
        text +=
            "\nUnterschied: " + SignedTimeSpanText(nachher.score.duration - vorher->score.duration);
    }
    const OrderList& alte = m_gesucht->Vorher.LV_Bauliste.Orders();
    const OrderList neue = ListeAus(nachher.orders);
    for (const auto& [name, dabei] : {std::pair("\nKommt dazu: ", SurplusInWords(neue, alte)),
                                      std::pair("\nEntfällt: ", SurplusInWords(alte, neue))}) {
        text += dabei.empty() ? "" : name + dabei;
    }
    const RunConditions& bedingungen = m_gesucht->Aufgabe.task.conditions;
    if (!alte.IsEmpty()) {
        text += "\nJe Stunde vorher: " + RatesText(TraceRun(alte.All(), bedingungen).end);
    }
    return text + "\nJe Stunde nachher: " + RatesText(TraceRun(neue.All(), bedingungen).end);
}

void Suchfeld::Uebernimm() {
    if (Bytes(m_plan) != Bytes(m_gesucht->Vorher) &&
        !m_umgebung.dialogs.Ask({.text = "Der Plan wurde seit dem Beginn der Suche geändert. Soll "
                                         "der gefundene trotzdem an seine Stelle treten?",
                                 .title = "Übernehmen...",
                                 .icon = MessageIcon::Question})) {
        return;
    }
    std::vector<std::string> tags;
    for (const Order& order : m_gesucht->Bester->orders) {
        tags.push_back(order.Tag());
    }
    const auto pause = m_gesucht->Aufgabe.pause;
    m_gesucht.reset();
    Schalte();
    emit Uebernommen(tags, pause);
}

}  // namespace tarvelin
