// Choice and drags of rows.
#include "ui/workbench/OrderListView.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QFontMetrics>
#include <QItemSelection>
#include <QMimeData>
#include <QPainter>
#include <algorithm>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

namespace {

const QString kZeilen = QStringLiteral("application/x-tarvelin-zeilen");

/// As wide as what usually stands in the columns.
std::vector<int> Spaltenbreiten() {
    std::vector<int> breiten;
    const QFontMetrics mass{QFont()};
    for (const char* const text :
         {"254 ", "Raumschiffwerft Stufe: 10 ", "Mo 20.11. 00:00:00 ", "Mo 20.11. 00:00:00 ",
          "Schlafzeit 20:00:00 bis 08:00:00 ", "Prod % "}) {
        breiten.push_back(mass.horizontalAdvance(QString::fromLatin1(text)));
    }
    return breiten;
}

/// Rows that can be dragged.
class Zeilenmodell : public TableModel {
  public:
    using TableModel::TableModel;

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override {
        const auto flags = TableModel::flags(index);
        return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
    }
};

}  // namespace

Auftragsansicht::Auftragsansicht(const TableModel::Provider& quelle, QWidget* parent)
    : ListView(QStringLiteral("LV_Werkbank"), QStringLiteral("Aufträge"), Spaltenbreiten(), parent),
      m_modell(new Zeilenmodell(
          {QStringLiteral("Nr."), QStringLiteral("Auftrag"), QStringLiteral("Start"),
           QStringLiteral("Fertig"), QStringLiteral("Grund"), QStringLiteral("Prod %")},
          quelle, this)) {
    setModel(m_modell);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideRight);
    setDragEnabled(true);
    setAcceptDrops(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Auftragsansicht::AuswahlGeaendert);
}

void Auftragsansicht::Aktualisiere(const std::vector<std::size_t>& gewaehlt) {
    m_modell->Refresh();
    Waehle(gewaehlt);
}

void Auftragsansicht::Waehle(const std::vector<std::size_t>& zeilen) {
    QItemSelection auswahl;
    QModelIndex erste;
    for (const std::size_t zeile : zeilen) {
        const QModelIndex index = m_modell->index(static_cast<int>(zeile), 0);
        if (index.isValid()) {
            erste = erste.isValid() ? erste : index;
            auswahl.select(index, index);
        }
    }
    selectionModel()->setCurrentIndex(erste, QItemSelectionModel::NoUpdate);
    selectionModel()->select(auswahl,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (erste.isValid()) {
        scrollTo(erste);
    }
}

std::vector<std::size_t> Auftragsansicht::Gewaehlte() const {
    std::vector<std::size_t> zeilen;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        zeilen.push_back(static_cast<std::size_t>(index.row()));
    }
    std::ranges::sort(zeilen);
    return zeilen;
}

void Auftragsansicht::startDrag(Qt::DropActions /*actions*/) {
    auto* const daten = new QMimeData;
    daten->setData(kZeilen, {});
    // The toolkit deletes the drag when it is over.
    auto* const drag = new QDrag(this);
    drag->setMimeData(daten);
    drag->exec(Qt::MoveAction);
    m_ziel = -1;
    viewport()->update();
}

int Auftragsansicht::ZielBei(const QPoint& ort) const {
    const QModelIndex index = indexAt(ort);
    if (!index.isValid()) {
        return m_modell->rowCount();
    }
    return index.row() + (ort.y() > visualRect(index).center().y() ? 1 : 0);
}

void Auftragsansicht::NimmAn(QDropEvent& event) {
    const bool zeilen = event.source() == this && event.mimeData()->hasFormat(kZeilen);
    const bool bild = event.mimeData()->hasFormat(kItemMimeType) && event.source() != nullptr;
    event.setDropAction(zeilen ? Qt::MoveAction : Qt::CopyAction);
    event.setAccepted(zeilen || bild);
    m_ziel = event.isAccepted() ? ZielBei(event.position().toPoint()) : -1;
    viewport()->update();
}

void Auftragsansicht::dragEnterEvent(QDragEnterEvent* event) {
    NimmAn(*event);
}

void Auftragsansicht::dragMoveEvent(QDragMoveEvent* event) {
    // A list that is longer than its sight moves on at its edges.
    if (const QModelIndex index = indexAt(event->position().toPoint()); index.isValid()) {
        scrollTo(index.siblingAtRow(std::max(0, index.row() - 1)));
        scrollTo(index.siblingAtRow(std::min(m_modell->rowCount() - 1, index.row() + 1)));
    }
    NimmAn(*event);
}

void Auftragsansicht::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    m_ziel = -1;
    viewport()->update();
}

void Auftragsansicht::dropEvent(QDropEvent* event) {
    NimmAn(*event);
    const auto ziel = static_cast<std::size_t>(ZielBei(event->position().toPoint()));
    m_ziel = -1;
    viewport()->update();
    if (event->source() == this) {
        emit Verschoben(ziel);
    } else if (event->isAccepted()) {
        emit BildAbgelegt(QString::fromUtf8(event->mimeData()->data(kItemMimeType)), ziel);
    }
}

void Auftragsansicht::paintEvent(QPaintEvent* event) {
    ListView::paintEvent(event);
    if (m_ziel < 0) {
        return;
    }
    const int zeilen = m_modell->rowCount();
    const QRect platz = visualRect(m_modell->index(std::min(m_ziel, zeilen - 1), 0));
    const int y = zeilen == 0 ? 0 : m_ziel < zeilen ? platz.top() : platz.bottom();
    QPainter painter(viewport());
    painter.setPen(QPen(palette().highlight(), 2));
    painter.drawLine(0, y, viewport()->width(), y);
}

}  // namespace tarvelin
