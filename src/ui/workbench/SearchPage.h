// The panel of the search.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plan/Plan.h"
#include "search/BackgroundSearch.h"
#include "ui/services/Environment.h"
#include "ui/workbench/ConvergencePlot.h"

namespace tarvelin {

/// Searches for a faster plan while the window lives on.
class Suchfeld : public QWidget {
    Q_OBJECT

  public:
    /// `plan` and `umgebung` must outlive it; `gewaehlte` gives the rows that are chosen, from 0.
    Suchfeld(const Plan& plan, const Environment& umgebung,
             std::function<std::vector<std::size_t>()> gewaehlte, QWidget* parent);

    /// Ends a search under way; what it has found stays.
    void HalteAn();

  signals:
    /// The player wants what was found: its rows, and the pause in front of the sleep rows.
    void Uebernommen(const std::vector<std::string>& tags, const std::optional<SleepRow>& pause);
    void Meldung(const std::string& text);
    /// Of the search's own, by its number.
    void StandKam(int nummer, const SearchProgress& stand);
    void ErgebnisKam(int nummer, const SearchResult& ergebnis);

  private:
    void BaueEingaben(QFormLayout& form);
    void Verbinde();
    [[nodiscard]] SearchRequest Wunsch() const;
    [[nodiscard]] SearchBudget Umfang() const;
    void Suche();
    void Uebernimm();
    void ZeigeStand(const SearchProgress& stand);
    void ZeigeErgebnis(const SearchResult& ergebnis);
    [[nodiscard]] std::string Bericht() const;
    void Schalte();

    /// What was searched, and what came of it.
    struct Gesucht {
        Plan Vorher;
        PlanTask Aufgabe;
        std::optional<Solution> Bester;
    };

    const Plan& m_plan;
    const Environment& m_umgebung;
    std::function<std::vector<std::size_t>()> m_gewaehlte;

    QComboBox* m_aufgabe;
    QLineEdit* m_ziel;
    QCheckBox* m_fest;
    QCheckBox* m_frei;
    QCheckBox* m_ab;
    QCheckBox* m_sitzungen;
    QDoubleSpinBox* m_nachlass;
    QSpinBox* m_versuche;
    QPushButton* m_suchen;
    QPushButton* m_anhalten;
    QPushButton* m_uebernehmen;
    QProgressBar* m_balken;
    Bestenkurve* m_kurve;
    QLabel* m_stand;
    std::optional<Gesucht> m_gesucht;
    /// Which search the news are of.
    int m_nummer = 0;
    bool m_laeuft = false;
    /// Ends before what it tells.
    std::unique_ptr<BackgroundSearch> m_suche;
};

}  // namespace tarvelin
