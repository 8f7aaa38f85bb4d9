// The workbench: the plan as a picture and as a list that can be edited in the middle.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "persistence/Configuration.h"
#include "plan/EditHistory.h"
#include "plan/ListEdit.h"
#include "plan/Plan.h"
#include "simulation/RunTrace.h"
#include "ui/services/Environment.h"
#include "ui/services/SecondTimer.h"
#include "ui/workbench/ComparisonPage.h"
#include "ui/workbench/ItemPalette.h"
#include "ui/workbench/OrderListView.h"
#include "ui/workbench/SearchPage.h"
#include "ui/workbench/TimelineView.h"

namespace tarvelin {

/// Shows a plan that another window owns, and a run of it that it plays for itself. It changes
/// nothing of the plan: it tells what it is to be.
class frmWerkbank : public QWidget {
    Q_OBJECT

  public:
    /// All of them must outlive it.
    /// `vorher` tells how many seconds before a start the alarm rings, as its input has it.
    frmWerkbank(const Plan& plan, const EditHistory& verlauf, std::function<std::string()> vorher,
                const Environment& umgebung);
    frmWerkbank(const frmWerkbank&) = delete;
    frmWerkbank& operator=(const frmWerkbank&) = delete;
    ~frmWerkbank() override;

    /// The plan has changed; plays it anew, if the window is open.
    void ZeigePlan();
    void SetzeBilder(const PerItem<QPixmap>& bilder);

    /// Opens the window where `konfiguration` says, the first time, or brings it to the front.
    void Oeffne(const Configuration& konfiguration);
    /// Size and place for the next start.
    [[nodiscard]] Configuration::Values Lage() const;

  signals:
    /// The rows that the plan is to have, and what is to stand in front of its sleep rows.
    void Umgestellt(const std::vector<std::string>& tags, const std::optional<SleepRow>& pause);
    void ZurueckGewuenscht();
    void VorGewuenscht();

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void LegeAus();
    void FuelleFelder();
    QPushButton* NeuerBefehl(const char* name, const char* text, const QKeySequence& taste,
                             void (frmWerkbank::*handler)());
    void Verbinde();
    void FolgeDesktop();
    void SetzeMeldungshoehe();
    void Spiele();
    void ZeigeFuss();
    void ZeigeAuswahl();
    void ZeigeEinwaende();
    void ZeigeZeiger(std::optional<SimTime> moment);
    void Ticke();
    void Melde(const std::string& text);

    /// Carries an edit out, after which these rows are chosen, or tells why it can't be.
    void Stelle(const ListEdit& umstellung, std::vector<std::size_t> auswahl);
    /// Makes one of an edit of the chosen rows, which stay so.
    template <class Schritt>
    void Bearbeite(Schritt schritt);
    void Hoch();
    void Runter();
    void Loesche();
    void Verdopple();
    void FuegeEin(std::string_view tag, std::size_t vor);
    void BildSpeichern();
    void Kopieren();
    void KalenderSpeichern();
    void SchreibeDatei(const std::filesystem::path& datei, const std::string& bytes);
    /// In front of which row a new one goes: the first that is chosen, or behind the last.
    [[nodiscard]] std::size_t Einfuegestelle() const;
    [[nodiscard]] TableModel::Provider Listenquelle() const;
    [[nodiscard]] std::string Zellentext(std::size_t zeile, int spalte) const;

    const Plan& m_plan;
    const EditHistory& m_verlauf;
    std::function<std::string()> m_vorher;
    const Environment& m_umgebung;
    /// Nothing, with the reason in the strip, if the plan can't be run.
    std::optional<RunTrace> m_ablauf;
    /// The duration before the last step that was done or taken back, and how many lay behind the
    /// plan then.
    std::optional<Long> m_dauerDavor;
    std::size_t m_schritte = 0;
    std::optional<Long> m_aenderung;
    /// Which rows are to be chosen when the plan comes back from an edit.
    std::optional<std::vector<std::size_t>> m_naechsteAuswahl;

    QLabel* m_LBL_Meldung;
    Auftragsansicht* m_liste;
    QTabWidget* m_felder;
    Itempalette* m_palette;
    Suchfeld* m_suchfeld;
    Vergleichsfeld* m_vergleichsfeld;
    Zeitleiste* m_zeitleiste;
    QLabel* m_LBL_Stand;
    QLabel* m_LBL_Dauer;
    QLabel* m_LBL_Aenderung;
    QLabel* m_LBL_Naechster;
    QPushButton* m_zurueck = nullptr;
    QPushButton* m_vor = nullptr;
    std::vector<QPushButton*> m_befehle;
    SecondTimer m_takt{QStringLiteral("Tmr_Werkbank"), this};
    bool m_warOffen = false;
};

}  // namespace tarvelin
