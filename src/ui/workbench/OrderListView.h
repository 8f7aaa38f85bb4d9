// The workbench's list of orders: several can be chosen, and moved by the mouse.
#pragma once

#include <vector>

#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

/// Rows can be dragged within the list; pictures of the palette can be dropped between them.
class Auftragsansicht : public ListView {
    Q_OBJECT

  public:
    explicit Auftragsansicht(const TableModel::Provider& quelle, QWidget* parent);

    /// Tells that the rows have changed; these are chosen then, the first of them in sight.
    void Aktualisiere(const std::vector<std::size_t>& gewaehlt);
    void Waehle(const std::vector<std::size_t>& zeilen);
    /// In the order of the list.
    [[nodiscard]] std::vector<std::size_t> Gewaehlte() const;

  signals:
    void AuswahlGeaendert();
    /// The chosen rows were dropped in front of a row, or behind the last.
    void Verschoben(std::size_t vor);
    /// A picture of this name was dropped there.
    void BildAbgelegt(const QString& bild, std::size_t vor);

  protected:
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void NimmAn(QDropEvent& event);
    [[nodiscard]] int ZielBei(const QPoint& ort) const;

    TableModel* m_modell;
    /// Where a drag would drop, while it lasts.
    int m_ziel = -1;
};

}  // namespace tarvelin
