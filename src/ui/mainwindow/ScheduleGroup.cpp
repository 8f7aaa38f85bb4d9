// Layout of the group, and the tooltip of its rows.
#include "ui/mainwindow/ScheduleGroup.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpressionValidator>

namespace tarvelin {

namespace {

TableModel::Provider ProviderOf(const Schedule& schedule) {
    return {.rows = [&schedule] { return schedule.size(); },
            .text =
                [&schedule](std::size_t row, int column) {
                    const ScheduleEntry& tableRow = schedule[row];
                    return ToQString(column == 0   ? tableRow.Weekday()
                                     : column == 1 ? tableRow.TimeOfDay()
                                                   : tableRow.theText());
                },
            .description = [&schedule](std::size_t row) { return ToQString(schedule[row].Tag()); }};
}

/// Takes typed text but nothing pasted.
class SecondsInput : public QLineEdit {
  public:
    explicit SecondsInput(QWidget* parent) : QLineEdit(parent) {
        setContextMenuPolicy(Qt::NoContextMenu);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!event->matches(QKeySequence::Paste)) {
            QLineEdit::keyPressEvent(event);
        }
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::MiddleButton) {
            QLineEdit::mouseReleaseEvent(event);
        }
    }
};

}  // namespace

ScheduleGroup::ScheduleGroup(const Schedule& schedule, QWidget* parent)
    : GroupBox(QStringLiteral("Frame6"), QStringLiteral("Optimale Bauzeiten:"), parent),
      m_schedule(schedule),
      m_LV_Bauzeiten(new ListView(QStringLiteral("LV_Bauzeiten"),
                                  QStringLiteral("Optimale Bauzeiten"), {720, 1450, 2857}, this)),
      m_Chk_BauWeckfunktion(new QCheckBox(QStringLiteral("Baustart-Alarm | X-sec vorher:"), this)),
      m_Comb_Before(new QComboBox(this)),
      m_ImgDonate_1(new PictureButton(
          QStringLiteral("ImgDonate_1"), {88, 24},
          QStringLiteral(" Zeigt die Spendenmöglichkeiten an, durch welche du das Tarvelin-Projekt "
                         "unterstützen kannst "),
          this)),
      m_model(new TableModel(
          {QStringLiteral("Wochentag"), QStringLiteral("Uhrzeit"), QStringLiteral("theText")},
          ProviderOf(schedule), this)),
      m_pointsPicture(
          NewPicture(QStringLiteral("Images(4)"), {26, 26}, QStringLiteral(" Punkte "), this)),
      m_LBL_Punkte(NewLabel(QStringLiteral("LBL_Punkte"), {}, this)),
      m_LBL_Timegone2(NewLabel(QStringLiteral("LBL_Timegone2"), {}, this)) {
    m_LV_Bauzeiten->setModel(m_model);
    connect(m_LV_Bauzeiten, &ListView::MouseMove, this, &ScheduleGroup::LV_Bauzeiten_MouseMove);
    m_Chk_BauWeckfunktion->setObjectName(QStringLiteral("Chk_BauWeckfunktion"));
    FillSeconds();
    m_LBL_Punkte->setAccessibleDescription(QStringLiteral("Punkte"));
    m_LBL_Timegone2->setAlignment(Qt::AlignCenter);
    Arrange();
}

void ScheduleGroup::FillSeconds() {
    m_Comb_Before->setObjectName(QStringLiteral("Comb_Before"));
    m_Comb_Before->setLineEdit(new SecondsInput(m_Comb_Before));
    m_Comb_Before->setInsertPolicy(QComboBox::NoInsert);
    // Typed text isn't completed.
    m_Comb_Before->setCompleter(nullptr);
    constexpr int kWidth = 46;
    m_Comb_Before->setFixedWidth(kWidth);
    for (const char* const seconds : {"1", "2", "5", "10", "15", "20", "30", "45", "60", "120"}) {
        m_Comb_Before->addItem(QString::fromLatin1(seconds));
    }
    m_Comb_Before->setCurrentText(QStringLiteral("10"));
    m_Comb_Before->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9]*")), m_Comb_Before));
    // Screen readers take the name of a combo box from its buddy. On the screen the check box's
    // text is enough.
    QLabel* const name = NewLabel({}, QStringLiteral("Sekunden vorher"), this);
    name->setBuddy(m_Comb_Before);
    name->hide();
}

void ScheduleGroup::Arrange() {
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(3, 2, 3, 3);
    layout->setSpacing(3);
    layout->addWidget(m_LV_Bauzeiten, 0, 0, 1, 4);
    layout->addWidget(m_Chk_BauWeckfunktion, 1, 0, 1, 3);
    layout->addWidget(m_Comb_Before, 1, 3);
    layout->addWidget(m_pointsPicture, 2, 0);
    layout->addWidget(m_LBL_Punkte, 2, 1);
    layout->addWidget(m_ImgDonate_1, 2, 2, 1, 2, Qt::AlignRight);
    layout->addWidget(m_LBL_Timegone2, 3, 0, 1, 4);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(1, 1);
}

void ScheduleGroup::ShowSchedule(DocumentChange::Results change) {
    m_model->Refresh();
    if (change == DocumentChange::Results::NewRun) {
        m_LV_Bauzeiten->setCurrentIndex({});
        m_LV_Bauzeiten->scrollToTop();
    }
}

void ScheduleGroup::ShowResult(const ResultTexts& texts) {
    m_LBL_Punkte->setText(ToQString(texts.LBL_Punkte));
    m_LBL_Punkte->setToolTip(ToQString(texts.LBL_Punkte_Hint));
    m_LBL_Timegone2->setText(ToQString(texts.LBL_Timegone2));
}

void ScheduleGroup::LV_Bauzeiten_MouseMove(const QModelIndex& row) {
    const auto number = static_cast<std::size_t>(row.row());
    const bool exists = row.isValid() && number < m_schedule.size();
    SetHint(*m_LV_Bauzeiten, exists ? ToQString(m_schedule[number].Tag()) : QString());
}

}  // namespace tarvelin
