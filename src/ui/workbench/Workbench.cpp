// Layout of the workbench and its handlers.
#include "ui/workbench/Workbench.h"

#include <QAccessible>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <utility>

#include "model/ItemTable.h"
#include "persistence/AtomicWrite.h"
#include "persistence/Calendar.h"
#include "simulation/DueAlarms.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunTexts.h"
#include "ui/services/SvgImage.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/Pictures.h"
#include "ui/workbench/StatusTexts.h"
#include "ui/workbench/TimelinePicture.h"
#include "ui/workbench/Timetable.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

/// Of the list, from the left.
enum Spalte { kNummer, kAuftrag, kStart, kFertig, kGrund, kFaktor };

/// Of the window at first, in heights of a line.
constexpr QSize kZeilen(96, 54);

/// A palette whose every colour counts, whatever the program's own says.
QPalette AlsEigene(const QPalette& farben) {
    QPalette eigene;
    for (const auto gruppe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int rolle = 0; rolle < QPalette::NColorRoles; ++rolle) {
            if (rolle != QPalette::NoRole) {
                const auto name = static_cast<QPalette::ColorRole>(rolle);
                eigene.setBrush(gruppe, name, farben.brush(gruppe, name));
            }
        }
    }
    return eigene;
}

QLabel* NeueZeile(const char* name, const char* bedeutung, QWidget* parent) {
    QLabel* const label = NewLabel(QString::fromLatin1(name), {}, parent);
    label->setAccessibleDescription(QString::fromUtf8(bedeutung));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

frmWerkbank::frmWerkbank(const Plan& plan, const EditHistory& verlauf,
                         std::function<std::string()> vorher, const Environment& umgebung)
    : m_plan(plan),
      m_verlauf(verlauf),
      m_vorher(std::move(vorher)),
      m_umgebung(umgebung),
      m_LBL_Meldung(NeueZeile("LBL_Meldung", "Meldung", this)),
      m_liste(new Auftragsansicht(Listenquelle(), this)),
      m_felder(new QTabWidget(this)),
      m_palette(new Itempalette(this)),
      m_suchfeld(new Suchfeld(
          plan, umgebung, [this] { return m_liste->Gewaehlte(); }, this)),
      m_vergleichsfeld(new Vergleichsfeld(umgebung, this)),
      m_zeitleiste(new Zeitleiste(this)),
      m_LBL_Stand(NeueZeile("LBL_Stand", "Stand am Zeiger", this)),
      m_LBL_Dauer(NeueZeile("LBL_Dauer", "Dauer des Plans", this)),
      m_LBL_Aenderung(NeueZeile("LBL_Aenderung", "Änderung der Dauer", this)),
      m_LBL_Naechster(NeueZeile("LBL_Naechster", "Nächster Auftrag", this)) {
    setObjectName(QStringLiteral("frmWerkbank"));
    setWindowTitle(QStringLiteral("Tarvelin  |  Werkbank"));
    setWindowIcon(LoadIconFile(umgebung.programFolder / "img" / "icon.ico"));
    setAttribute(Qt::WA_QuitOnClose, false);
    LegeAus();
    Verbinde();
    FolgeDesktop();
}

// The list asks this window for its rows to its end.
frmWerkbank::~frmWerkbank() {
    delete m_liste;
}

QPushButton* frmWerkbank::NeuerBefehl(const char* name, const char* text, const QKeySequence& taste,
                                      void (frmWerkbank::*handler)()) {
    auto* const knopf = new QPushButton(QString::fromUtf8(text), this);
    knopf->setObjectName(QString::fromLatin1(name));
    connect(knopf, &QPushButton::clicked, this, handler);
    if (!taste.isEmpty()) {
        knopf->setToolTip(taste.toString(QKeySequence::NativeText));
        connect(new QShortcut(taste, this), &QShortcut::activated, this, handler);
    }
    m_befehle.push_back(knopf);
    return knopf;
}

/// What is done with the plan, in panels behind each other.
void frmWerkbank::FuelleFelder() {
    for (QWidget* const feld :
         {static_cast<QWidget*>(m_palette), static_cast<QWidget*>(m_suchfeld)}) {
        // A small screen has no room for all of it.
        auto* const rolle = new QScrollArea(this);
        rolle->setWidget(feld);
        rolle->setWidgetResizable(true);
        rolle->setFrameShape(QFrame::NoFrame);
        rolle->setFocusPolicy(Qt::NoFocus);
        m_felder->addTab(
            rolle, feld == m_palette ? QStringLiteral("&Einfügen") : QStringLiteral("Su&che"));
    }
    m_felder->addTab(m_vergleichsfeld, QStringLiteral("Ver&gleich"));
}

void frmWerkbank::LegeAus() {
    auto* const befehle = new QHBoxLayout;
    m_zurueck = NeuerBefehl("Cmd_Zurueck", "&Rückgängig", QKeySequence(Qt::CTRL | Qt::Key_Z),
                            &frmWerkbank::ZurueckGewuenscht);
    m_vor = NeuerBefehl("Cmd_Vor", "&Wiederholen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                        &frmWerkbank::VorGewuenscht);
    NeuerBefehl("Cmd_Hoch", "&Hoch", QKeySequence(Qt::ALT | Qt::Key_Up), &frmWerkbank::Hoch);
    NeuerBefehl("Cmd_Runter", "R&unter", QKeySequence(Qt::ALT | Qt::Key_Down),
                &frmWerkbank::Runter);
    NeuerBefehl("Cmd_Verdopple", "&Verdoppeln", QKeySequence(Qt::CTRL | Qt::Key_D),
                &frmWerkbank::Verdopple);
    NeuerBefehl("Cmd_Loesche", "&Löschen", QKeySequence(Qt::Key_Delete), &frmWerkbank::Loesche);
    NeuerBefehl("Cmd_Kopieren", "&Kopieren", {}, &frmWerkbank::Kopieren);
    NeuerBefehl("Cmd_KalenderSpeichern", "K&alender speichern...", {},
                &frmWerkbank::KalenderSpeichern);
    NeuerBefehl("Cmd_BildSpeichern", "&Bild speichern...", {}, &frmWerkbank::BildSpeichern);
    for (QPushButton* const knopf : m_befehle) {
        befehle->addWidget(knopf);
    }
    befehle->addStretch(1);

    m_LBL_Meldung->setWordWrap(true);
    m_LBL_Meldung->setFrameStyle(QFrame::StyledPanel);
    m_LBL_Meldung->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_LBL_Stand->setWordWrap(true);
    m_felder->setObjectName(QStringLiteral("Felder"));

    auto* const oben = new QSplitter(Qt::Horizontal, this);
    oben->setChildrenCollapsible(false);
    oben->addWidget(m_liste);
    FuelleFelder();
    oben->addWidget(m_felder);
    oben->setStretchFactor(0, 1);
    auto* const teiler = new QSplitter(Qt::Vertical, this);
    teiler->addWidget(oben);
    teiler->addWidget(m_zeitleiste);
    teiler->setChildrenCollapsible(false);
    teiler->setStretchFactor(0, 3);
    teiler->setStretchFactor(1, 2);

    auto* const fuss = new QHBoxLayout;
    fuss->addWidget(m_LBL_Dauer);
    fuss->addWidget(m_LBL_Aenderung);
    fuss->addStretch(1);
    fuss->addWidget(m_LBL_Naechster);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(befehle);
    layout->addWidget(m_LBL_Meldung);
    layout->addWidget(teiler, 1);
    layout->addWidget(m_LBL_Stand);
    layout->addLayout(fuss);
}

template <class Schritt>
void frmWerkbank::Bearbeite(Schritt schritt) {
    ListEdit umstellung(m_plan.LV_Bauliste);
    schritt(umstellung, m_liste->Gewaehlte());
    Stelle(umstellung, umstellung.Affected());
}

void frmWerkbank::Verbinde() {
    connect(m_liste, &Auftragsansicht::AuswahlGeaendert, this, &frmWerkbank::ZeigeAuswahl);
    connect(m_liste, &Auftragsansicht::Verschoben, this, [this](std::size_t vor) {
        Bearbeite([vor](ListEdit& u, const auto& zeilen) { u.MoveBefore(vor, zeilen); });
    });
    connect(m_liste, &Auftragsansicht::BildAbgelegt, this,
            [this](const QString& bild, std::size_t vor) {
                if (const auto item = ItemFromPicture(bild.toStdString())) {
                    FuegeEin(RowOf(*item).ItemCode, vor);
                }
            });
    connect(m_palette, &Itempalette::ItemGewaehlt, this,
            [this](ItemId item) { FuegeEin(RowOf(item).ItemCode, Einfuegestelle()); });
    connect(m_palette, &Itempalette::ProduktionGewaehlt, this, [this](const MineFactors& faktoren) {
        FuegeEin(Order::Of(faktoren).Tag(), Einfuegestelle());
    });
    connect(m_zeitleiste, &Zeitleiste::Zeiger, this, &frmWerkbank::ZeigeZeiger);
    connect(m_zeitleiste, &Zeitleiste::Gewaehlt, this,
            [this](std::size_t zeile) { m_liste->Waehle({zeile}); });
    connect(m_suchfeld, &Suchfeld::Meldung, this, &frmWerkbank::Melde);
    connect(m_suchfeld, &Suchfeld::Uebernommen, this, &frmWerkbank::Umgestellt);
    connect(m_vergleichsfeld, &Vergleichsfeld::Meldung, this, &frmWerkbank::Melde);
    connect(m_vergleichsfeld, &Vergleichsfeld::AndererGeaendert, this,
            [this] { m_zeitleiste->SetzeAnderen(m_vergleichsfeld->Anderer()); });
    connect(&m_takt, &QTimer::timeout, this, &frmWerkbank::Ticke);
}

// Nothing moves when a message comes or goes.
void frmWerkbank::SetzeMeldungshoehe() {
    constexpr int kZeilenzahl = 2;
    m_LBL_Meldung->setFixedHeight(kZeilenzahl * m_LBL_Meldung->fontMetrics().lineSpacing() +
                                  2 * m_LBL_Meldung->frameWidth() + 2);
}

void frmWerkbank::FolgeDesktop() {
    const QPalette farben = m_umgebung.desktopPalette();
    setPalette(AlsEigene(farben));
    setFont(DesktopFont());
    SetzeMeldungshoehe();
    m_zeitleiste->SetzeAussehen(farben, font());
    // Scrolled up and down only.
    for (auto* const rolle : m_felder->findChildren<QScrollArea*>()) {
        rolle->setMinimumWidth(rolle->widget()->minimumSizeHint().width() +
                               style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    }
}

bool frmWerkbank::event(QEvent* event) {
    if (event->type() == QEvent::ThemeChange) {
        FolgeDesktop();
    }
    return QWidget::event(event);
}

void frmWerkbank::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    ZeigePlan();
    m_takt.SetRunning(true);
    Ticke();
}

void frmWerkbank::hideEvent(QHideEvent* event) {
    // A window that is only made small goes on.
    if (!event->spontaneous()) {
        m_takt.SetRunning(false);
        m_suchfeld->HalteAn();
    }
    QWidget::hideEvent(event);
}

void frmWerkbank::Oeffne(const Configuration& konfiguration) {
    if (!m_warOffen) {
        m_warOffen = true;
        const auto lies = [&](const ConfigKey& key) {
            constexpr int kWeitest = 100'000;
            const auto zahl = ParseWholeNumber(konfiguration.Read(key), -kWeitest, kWeitest);
            return zahl ? std::optional(static_cast<int>(*zahl)) : std::nullopt;
        };
        constexpr QSize kRahmen(8, 36);
        const QSize raum = QGuiApplication::primaryScreen()->availableSize() - kRahmen;
        const QSize ersteGroesse = kZeilen * fontMetrics().height();
        resize(QSize(lies(Configuration::kWorkbenchWidth).value_or(ersteGroesse.width()),
                     lies(Configuration::kWorkbenchHeight).value_or(ersteGroesse.height()))
                   .boundedTo(raum)
                   .expandedTo(QSize(1, 1)));
        const auto links = lies(Configuration::kWorkbenchLeft);
        const auto oben = lies(Configuration::kWorkbenchTop);
        // A screen that is gone would keep the window out of sight.
        if (links && oben && QGuiApplication::screenAt({*links, *oben}) != nullptr) {
            move(*links, *oben);
        }
        if (konfiguration.IsOn(Configuration::kWorkbenchMaximized)) {
            setWindowState(Qt::WindowMaximized);
        }
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

Configuration::Values frmWerkbank::Lage() const {
    if (!m_warOffen) {
        return {};
    }
    const QSize groesse = isMaximized() ? normalGeometry().size() : size();
    return {{Configuration::kWorkbenchLeft, std::to_string(pos().x())},
            {Configuration::kWorkbenchTop, std::to_string(pos().y())},
            {Configuration::kWorkbenchWidth, std::to_string(groesse.width())},
            {Configuration::kWorkbenchHeight, std::to_string(groesse.height())},
            {Configuration::kWorkbenchMaximized, isMaximized() ? "1" : "0"}};
}

void frmWerkbank::SetzeBilder(const PerItem<QPixmap>& bilder) {
    m_palette->SetzeBilder(bilder);
    m_zeitleiste->SetzeBilder(bilder);
}

void frmWerkbank::ZeigePlan() {
    if (!isVisible()) {
        return;
    }
    Spiele();
    m_liste->Aktualisiere(m_naechsteAuswahl.value_or(m_liste->Gewaehlte()));
    m_naechsteAuswahl.reset();
    m_zeitleiste->Setze(m_ablauf);
    m_vergleichsfeld->Zeige(m_ablauf);
    ZeigeAuswahl();
    ZeigeFuss();
    ZeigeZeiger(std::nullopt);
    Ticke();
}

void frmWerkbank::Spiele() {
    if (m_schritte != m_verlauf.StepCount()) {
        m_schritte = m_verlauf.StepCount();
        m_dauerDavor = m_ablauf ? std::optional(m_ablauf->Duration().Seconds()) : std::nullopt;
    }
    const auto bedingungen = ParseRunConditions(m_plan);
    if (const auto* const absage = std::get_if<Message>(&bedingungen)) {
        m_ablauf.reset();
        Melde(m_plan.LV_Bauliste.Orders().IsEmpty() ? "" : absage->text);
    } else {
        m_ablauf =
            TraceRun(m_plan.LV_Bauliste.Orders().All(), std::get<RunConditions>(bedingungen));
        Melde(Meldungszeile(*m_ablauf));
    }
    const bool bearbeitet = m_verlauf.CanUndo() || m_verlauf.CanRedo();
    m_aenderung = bearbeitet && m_dauerDavor && m_ablauf
                      ? std::optional(m_ablauf->Duration().Seconds() - *m_dauerDavor)
                      : std::nullopt;
}

void frmWerkbank::ZeigeFuss() {
    m_LBL_Dauer->setText(m_ablauf
                             ? QStringLiteral("Dauer: ") + ToQString(DurationText(m_ablauf->end))
                             : QStringLiteral("Dauer: -"));
    m_LBL_Aenderung->setText(m_aenderung ? ToQString(SignedTimeSpanText(*m_aenderung)) : QString());
    m_zurueck->setEnabled(m_verlauf.CanUndo());
    m_vor->setEnabled(m_verlauf.CanRedo());
}

void frmWerkbank::ZeigeAuswahl() {
    const auto gewaehlt = m_liste->Gewaehlte();
    m_zeitleiste->SetzeAuswahl({gewaehlt.begin(), gewaehlt.end()});
    if (!gewaehlt.empty()) {
        m_zeitleiste->Zeige(gewaehlt.front());
    }
    for (const char* const name : {"Cmd_Hoch", "Cmd_Runter", "Cmd_Verdopple", "Cmd_Loesche"}) {
        findChild<QPushButton*>(QString::fromLatin1(name))->setEnabled(!gewaehlt.empty());
    }
    for (const char* const name : {"Cmd_Kopieren", "Cmd_KalenderSpeichern", "Cmd_BildSpeichern"}) {
        findChild<QPushButton*>(QString::fromLatin1(name))->setEnabled(m_ablauf.has_value());
    }
    ZeigeEinwaende();
}

void frmWerkbank::ZeigeEinwaende() {
    m_palette->SetzeEinwaende([&](ItemId item) {
        ListEdit umstellung(m_plan.LV_Bauliste);
        umstellung.Insert(Einfuegestelle(), RowOf(item).ItemCode);
        return umstellung.Objection();
    });
}

void frmWerkbank::ZeigeZeiger(std::optional<SimTime> moment) {
    m_LBL_Stand->setText(m_ablauf && moment ? ToQString(Standtext(*m_ablauf, *moment))
                                            : QStringLiteral("\n"));
    m_zeitleiste->setAccessibleDescription(m_LBL_Stand->text());
}

void frmWerkbank::Ticke() {
    const DateTime jetzt = m_umgebung.now();
    m_zeitleiste->SetzeJetzt(jetzt);
    const auto naechster = m_ablauf ? NaechsterAuftrag(*m_ablauf, jetzt) : std::nullopt;
    m_LBL_Naechster->setText(naechster ? QStringLiteral("Als Nächstes: ") + ToQString(*naechster)
                                       : QString());
}

void frmWerkbank::Melde(const std::string& text) {
    m_LBL_Meldung->setText(ToQString(text).trimmed());
    // Its place has no room for more than two lines.
    m_LBL_Meldung->setToolTip(m_LBL_Meldung->text());
    if (!text.empty()) {
        // Read out at once, wherever the keyboard is.
        QAccessibleEvent ruf(m_LBL_Meldung, QAccessible::Alert);
        QAccessible::updateAccessibility(&ruf);
    }
}

void frmWerkbank::Stelle(const ListEdit& umstellung, std::vector<std::size_t> auswahl) {
    const auto tags = umstellung.Tags();
    if (tags == m_plan.LV_Bauliste.Tags()) {
        return;
    }
    if (const auto einwand = umstellung.Objection()) {
        Melde(*einwand);
        return;
    }
    m_naechsteAuswahl = std::move(auswahl);
    emit Umgestellt(tags, {});
}

void frmWerkbank::Hoch() {
    Bearbeite([](ListEdit& u, const auto& zeilen) { u.MoveUp(zeilen); });
}

void frmWerkbank::Runter() {
    Bearbeite([](ListEdit& u, const auto& zeilen) { u.MoveDown(zeilen); });
}

void frmWerkbank::Loesche() {
    Bearbeite([](ListEdit& u, const auto& zeilen) { u.Remove(zeilen); });
}

void frmWerkbank::Verdopple() {
    Bearbeite([](ListEdit& u, const auto& zeilen) { u.Duplicate(zeilen); });
}

// What was chosen stays so: the next row goes in behind this one.
void frmWerkbank::FuegeEin(std::string_view tag, std::size_t vor) {
    ListEdit umstellung(m_plan.LV_Bauliste);
    umstellung.Insert(vor, tag);
    auto auswahl = m_liste->Gewaehlte();
    for (std::size_t& zeile : auswahl) {
        zeile += zeile >= vor ? 1 : 0;
    }
    Stelle(umstellung, std::move(auswahl));
}

std::size_t frmWerkbank::Einfuegestelle() const {
    const auto gewaehlt = m_liste->Gewaehlte();
    return gewaehlt.empty() ? m_plan.LV_Bauliste.Rows().size() : gewaehlt.front();
}

void frmWerkbank::BildSpeichern() {
    const auto datei = m_umgebung.AskForFile(Dialogs::Purpose::Picture);
    if (datei.empty()) {
        return;
    }
    const auto bild = BildVon(*m_zeitleiste, QFileInfo(PathToQString(datei)).suffix());
    if (!bild) {
        Melde(std::string("Der Name des Bildes endet auf .png, ") + (HasSvg() ? ".svg " : "") +
              "oder .pdf: es wurde nichts gespeichert.");
        return;
    }
    SchreibeDatei(datei, bild->toStdString());
}

void frmWerkbank::Kopieren() {
    auto* const inhalt = new QMimeData;
    inhalt->setText(ToQString(ZeitplanMitTabs(*m_ablauf)));
    inhalt->setHtml(ToQString(ZeitplanAlsTabelle(*m_ablauf)));
    // The clipboard owns it.
    QGuiApplication::clipboard()->setMimeData(inhalt);
    Melde("Der Zeitplan liegt in der Zwischenablage.");
}

void frmWerkbank::KalenderSpeichern() {
    const auto datei = m_umgebung.AskForFile(Dialogs::Purpose::Calendar);
    if (!datei.empty()) {
        const auto stand =
            std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
        SchreibeDatei(datei, CalendarText(*m_ablauf, ParseLeadTime(m_vorher()), stand));
    }
}

void frmWerkbank::SchreibeDatei(const std::filesystem::path& datei, const std::string& bytes) {
    if (WriteFileAtomically(datei, bytes, m_umgebung.files)) {
        Melde("Gespeichert: " + PathToQString(datei).toStdString());
    } else {
        Melde(
            "Die Datei konnte nicht gespeichert werden: wähle einen Ordner, in dem du schreiben "
            "kannst.");
    }
}

TableModel::Provider frmWerkbank::Listenquelle() const {
    return {.rows = [this] { return m_plan.LV_Bauliste.Rows().size(); },
            .text = [this](std::size_t zeile,
                           int spalte) { return ToQString(Zellentext(zeile, spalte)); },
            .color =
                [this](std::size_t zeile, int spalte) {
                    const bool rot =
                        spalte == kFaktor &&
                        m_plan.LV_Bauliste.Rows()[zeile].SubItems2Color == TextColor::Red;
                    return rot ? m_zeitleiste->Mangelfarbe() : palette().color(QPalette::Text);
                },
            .description =
                [this](std::size_t zeile) {
                    // Narrow columns cut their texts.
                    std::string text = Zellentext(zeile, kAuftrag);
                    for (const int spalte : {kStart, kFertig, kGrund}) {
                        text += "\n" + Zellentext(zeile, spalte);
                    }
                    return ToQString(text).trimmed();
                }};
}

std::string frmWerkbank::Zellentext(std::size_t zeile, int spalte) const {
    const BuildListRow& texte = m_plan.LV_Bauliste.Rows()[zeile];
    const StartEvent* const start = m_ablauf ? m_ablauf->StartOf(zeile) : nullptr;
    switch (spalte) {
        case kNummer:
            return texte.text;
        case kAuftrag:
            return texte.SubItems1;
        case kStart:
            return start != nullptr ? Zeittext(m_ablauf->conditions.WallClock(start->start)) : "";
        case kFertig:
            return start != nullptr ? Zeittext(m_ablauf->conditions.WallClock(start->finish)) : "";
        case kGrund:
            return m_ablauf ? DelayText(*m_ablauf, zeile) : "";
        default:
            return texte.SubItems2;
    }
}

}  // namespace tarvelin
