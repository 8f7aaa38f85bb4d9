// The panel of the comparison: this plan against a file, or against how it was.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "simulation/ComparisonTexts.h"
#include "simulation/RunTrace.h"
#include "ui/services/Environment.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class Vergleichsfeld : public QWidget {
    Q_OBJECT

  public:
    /// `umgebung` must outlive it.
    Vergleichsfeld(const Environment& umgebung, QWidget* parent);
    Vergleichsfeld(const Vergleichsfeld&) = delete;
    Vergleichsfeld& operator=(const Vergleichsfeld&) = delete;
    ~Vergleichsfeld() override;

    /// The run of the plan as it is now; nothing if it can't be run.
    void Zeige(const std::optional<RunTrace>& dieser);
    /// What it is held against, if anything.
    [[nodiscard]] const std::optional<RunTrace>& Anderer() const { return m_anderer; }

    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void AndererGeaendert();
    void Meldung(const std::string& text);

  private:
    void LegeAus();
    ListView* NeueTabelle(const char* name, const char* bedeutung, const char* erste,
                          const std::vector<ComparisonText>& zeilen, TableModel** modell);
    void Merke();
    void LadeDatei();
    void Ohne();
    void Setze(std::optional<RunTrace> anderer, const QString& name);
    void Vergleiche();

    const Environment& m_umgebung;
    std::optional<RunTrace> m_dieser;
    std::optional<RunTrace> m_anderer;
    std::vector<ComparisonText> m_kennzahlen;
    std::vector<ComparisonText> m_auftraege;
    QPushButton* m_merken;
    QPushButton* m_datei;
    QPushButton* m_ohne;
    QLabel* m_name;
    TableModel* m_kennzahlmodell = nullptr;
    TableModel* m_auftragsmodell = nullptr;
    ListView* m_kennzahlliste;
    ListView* m_auftragsliste;
};

}  // namespace tarvelin
