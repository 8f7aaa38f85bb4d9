// Layout of the pictures, and the way from the text to them and back.
#include "ui/workbench/GoalPicker.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <algorithm>

#include "model/ItemTable.h"
#include "ui/look/TypeSizes.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"
#include "ui/workbench/PaletteGroups.h"

namespace tarvelin {

namespace {

constexpr int kCell = 31;
constexpr int kPicture = 26;
constexpr int kRows = 2;

/// Short captions, as the groups stand beside each other.
constexpr std::array<const char*, 4> kCaptions{"Gebäude", "Forschung", "Schiffe", "Verteid."};

/// Offers the names of items while a goal is typed.
void CompleteWhileTyped(QLineEdit* goal) {
    constexpr int kWholeText = Qt::UserRole;
    auto* const names = new QStandardItemModel(goal);
    auto* const completer = new QCompleter(names, goal);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setCompletionRole(kWholeText);
    goal->setCompleter(completer);
    QObject::connect(goal, &QLineEdit::textEdited, names, [names](const QString& text) {
        const std::string typed = text.toStdString();
        const GoalCompletions completions = CompleteGoal(typed);
        names->clear();
        for (const std::string& name : completions.names) {
            auto* const row = new QStandardItem(ToQString(name));
            row->setData(ToQString(typed.substr(0, completions.begin) + name), kWholeText);
            names->appendRow(row);
        }
    });
}

}  // namespace

GoalPicture::GoalPicture(ItemId item, QWidget* parent) : QAbstractButton(parent), m_item(item) {
    setFocusPolicy(Qt::TabFocus);
    setObjectName(QStringLiteral("Ziel_") + ToQString(RowOf(item).ItemCode));
    setToolTip(ToQString(RowOf(item).name));
    ShowNumber(0);
    connect(this, &QAbstractButton::clicked, this, [this] { emit NumberWanted(1); });
}

QSize GoalPicture::sizeHint() const {
    return {kCell, kCell};
}

void GoalPicture::SetPicture(const QPixmap& picture) {
    m_picture = picture;
    update();
}

void GoalPicture::ShowNumber(int number) {
    m_number = number;
    const QString name = ToQString(RowOf(m_item).name);
    setAccessibleName(number == 0 ? name : QStringLiteral("%1, Ziel: %2").arg(name).arg(number));
    update();
}

void GoalPicture::SetPale(bool pale) {
    m_pale = pale;
    update();
}

void GoalPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        emit NumberWanted(-1);
    } else {
        QAbstractButton::mousePressEvent(event);
    }
}

void GoalPicture::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus) {
        emit NumberWanted(event->key() == Qt::Key_Plus ? 1 : -1);
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void GoalPicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const WorkbenchColors colors = ColorsFor(palette());
    const QRect place((width() - kPicture) / 2, (height() - kPicture) / 2, kPicture, kPicture);
    constexpr qreal kPale = 0.4;
    painter.setOpacity(m_pale ? kPale : 1);
    painter.drawPixmap(place, m_picture);
    if (m_number > 0 || hasFocus() || underMouse()) {
        const qreal pen = m_number > 0 || hasFocus() ? 2 : 1;
        painter.setPen(
            QPen(colors[Color::Accent], pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(QRectF(rect()).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2));
    }
    if (m_number == 0) {
        return;
    }
    painter.setFont(TypeFont(font(), TypeSize::Caption, true));
    const QString number = QString::number(m_number);
    constexpr int kFrame = 3;
    const QSize size(painter.fontMetrics().horizontalAdvance(number) + 2 * kFrame,
                     painter.fontMetrics().ascent() + 2);
    const QRect badge(QPoint(width() - size.width(), height() - size.height()), size);
    painter.fillRect(badge, colors[Color::Accent]);
    painter.setPen(colors[Color::AccentText]);
    painter.drawText(badge, static_cast<int>(Qt::AlignCenter), number);
}

GoalPicker::GoalPicker(QWidget* parent)
    : QWidget(parent),
      m_ofPlan(new QCheckBox(QStringLiteral("der &ganze Plan"), this)),
      m_text(NewInput<QLineEdit>("txt_Suchziel", "Ziel der Suche", this)),
      m_hint(NewHint({}, this)) {
    setObjectName(QStringLiteral("Zielwahl"));
    m_ofPlan->setObjectName(QStringLiteral("Chk_GanzerPlan"));
    m_ofPlan->setToolTip(QStringLiteral(
        "Forschung, Schiffe und Verteidigung, wie sie im Plan stehen; die Minen sind frei"));
    m_hint->setObjectName(QStringLiteral("LBL_Ziel"));
    auto* const grid = new QGridLayout;
    grid->setSpacing(0);
    AddPictures(*grid);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(4);
    layout->addLayout(grid);
    layout->addWidget(m_ofPlan);
    layout->addWidget(m_text);
    layout->addWidget(m_hint);
    CompleteWhileTyped(m_text);
    connect(m_text, &QLineEdit::textChanged, this, &GoalPicker::FollowText);
    connect(m_ofPlan, &QCheckBox::clicked, this,
            [this](bool checked) { m_text->setText(ToQString(GoalText({.ofPlan = checked}))); });
    FollowAppearance();
    m_text->setText(ToQString(GoalText({.ofPlan = true})));
}

void GoalPicker::AddPictures(QGridLayout& grid) {
    int column = 0;
    for (std::size_t group = 0; group < PaletteGroups().size(); ++group) {
        auto* const caption =
            new TypeLabel(QString::fromUtf8(kCaptions.at(group)), TypeSize::Caption, false, this);
        caption->setForegroundRole(QPalette::PlaceholderText);
        const auto& items = PaletteGroups()[group].items;
        const int perRow = (static_cast<int>(items.size()) + kRows - 1) / kRows;
        grid.addWidget(caption, 0, column, 1, perRow);
        int index = 0;
        for (const ItemId item : items) {
            auto* const picture = new GoalPicture(item, this);
            grid.addWidget(picture, 1 + index / perRow, column + index % perRow);
            connect(picture, &GoalPicture::NumberWanted, this,
                    [this, item](int change) { Change(item, change); });
            m_pictures[item] = picture;
            ++index;
        }
        column += perRow;
        grid.setColumnStretch(column, 1);
        ++column;
    }
}

void GoalPicker::SetPictures(const PerItem<QPixmap>& pictures) {
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        m_pictures[i]->SetPicture(pictures[i]);
    }
}

std::string GoalPicker::Text() const {
    return m_text->text().trimmed().toStdString();
}

void GoalPicker::FollowAppearance() {
    // Two lines for every message, whatever was typed, so nothing moves.
    constexpr int kLines = 2;
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_hint->setAlignment(Qt::AlignTop);
    m_hint->setFixedHeight(kLines * m_hint->fontMetrics().lineSpacing());
    QPalette own = palette();
    own.setColor(QPalette::PlaceholderText,
                 ColorsFor(palette())[m_isWrong ? Color::Deficit : Color::Weak]);
    m_hint->setPalette(own);
}

void GoalPicker::Change(ItemId item, int change) {
    Goal goal{.levels = m_goal.levels};
    goal.levels[item] =
        static_cast<Byte>(std::clamp(goal.levels[item] + change, 0, int{HighestInGoal(item)}));
    if (goal.levels != m_goal.levels) {
        m_text->setText(ToQString(GoalText(goal)));
    }
}

void GoalPicker::FollowText() {
    const auto parsed = ParseGoal(Text());
    const auto* const goal = std::get_if<Goal>(&parsed);
    m_isWrong = goal == nullptr && !Text().empty();
    if (!m_isWrong) {
        m_goal = goal != nullptr ? *goal : Goal();
    }
    // The plan's own goal takes the place of all levels.
    m_goal.levels = m_goal.ofPlan ? PerItem<Byte>() : m_goal.levels;
    for (std::size_t i = 0; i < m_pictures.size(); ++i) {
        m_pictures[i]->ShowNumber(m_goal.levels[i]);
        m_pictures[i]->SetPale(m_isWrong);
    }
    const QSignalBlocker quiet(m_ofPlan);
    m_ofPlan->setChecked(m_goal.ofPlan);
    const QString message = m_isWrong ? ToQString(std::get<std::string>(parsed)) : QString();
    m_hint->setText(m_isWrong ? message
                              : QStringLiteral("Klick +1, Rechtsklick −1. Oder schreib, etwa: "
                                               "werft 2, wkt2"));
    m_hint->setToolTip(message);
    FollowAppearance();
    emit Changed();
}

}  // namespace tarvelin
