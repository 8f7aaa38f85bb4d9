// Tests the timeline's layout by laws on random plans, its words, and the poster.
#include <QFontMetricsF>
#include <QImage>
#include <QXmlStreamReader>
#include <cmath>
#include <map>
#include <random>

#include "PlanGenerator.h"
#include "TestSupport.h"
#include "document/PlanRun.h"
#include "simulation/MomentState.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/services/SvgImage.h"
#include "ui/timeline/CursorCard.h"
#include "ui/timeline/HatchLines.h"
#include "ui/timeline/PlanPoster.h"
#include "ui/timeline/TimelineLegend.h"
#include "ui/timeline/TimelinePainter.h"
#include "ui/widgets/Controls.h"
#include "util/NumberText.h"

namespace tarvelin {
namespace {

/// How a law is broken; empty if it holds.
using Finding = std::string;

RunTrace StarterRun() {
    return PlanRun(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf").Trace();
}

TimelineContent ContentOf(const Plan& plan) {
    TimelineContent content;
    content.run = TraceRun(plan);
    return content;
}

/// A timeline of a random size, zoom and place.
struct View {
    View(const TimelineContent& theContent, std::mt19937& random) : content(theContent) {
        const auto upTo = [&](unsigned most) { return static_cast<double>(random() % (most + 1)); };
        rows = TimelineRows::In(
            TimelinePainter::SpaceIn(QRectF(0, 0, 300 + upTo(1300), 200 + upTo(600)), look.font));
        const double page = rows.plot.width();
        const double most = std::log2(20 * content.EndSecond() / page);
        scale = {.left = rows.plot.left(), .right = rows.plot.right()};
        scale.perSecond = page / content.EndSecond() * std::exp2(most * upTo(100) / 100);
        scale.first = std::max(0.0, content.EndSecond() * upTo(100) / 100 - page / scale.perSecond);
    }

    [[nodiscard]] TimelineLayout Layout() const { return {content, rows, scale, widths}; }

    const TimelineContent& content;
    TimelineLook look{
        .colors = WorkbenchColors(), .font = TimelineLook::CaptionFont(QFont()), .pictures = {}};
    TimelineRows rows;
    TimeScale scale;
    TextWidths widths = WidthsOf(look.font);
    TextWidth widthOf = widths.usual;
};

/// The first of several things that share a row and aren't apart, or not inside the plot.
template <class Things, class Left, class Right>
Finding Apart(const char* what, const Things& things, const View& view, Left left, Right right) {
    constexpr double kRounded = 1e-6;
    double end = view.scale.left;
    for (const auto& thing : things) {
        if (left(thing) < end - kRounded) {
            return std::string(what) + " overlap";
        }
        end = right(thing);
    }
    return end > view.scale.right + kRounded ? std::string(what) + " leave the plot" : "";
}

Finding TextsApart(const char* what, std::vector<PlacedText> texts, const View& view) {
    std::ranges::sort(texts, {}, &PlacedText::left);
    return Apart(
        what, texts, view, [](const PlacedText& text) { return text.left; },
        [](const PlacedText& text) { return text.Right(); });
}

Finding CheckMarks(const LaneLayout& lane, double picture) {
    std::size_t next = 0;
    double end = -1e18;
    for (const LaneMark& mark : lane.marks) {
        if (mark.first != next || mark.count == 0) {
            return "an order is in no mark or in two";
        }
        next += mark.count;
        if (mark.left < lane.orders[mark.first].start || mark.left < end + 2) {
            return "marks touch";
        }
        if (mark.right != mark.left + picture + (mark.count > 1 ? kBadgeBeyond : 0)) {
            return "a mark's edge";
        }
        if (mark.count > 1 && mark.apart) {
            return "an order that has to stay apart was joined";
        }
        end = mark.right;
    }
    return picture > 0 && next != lane.orders.size() ? "an order is in no mark" : "";
}

Finding CheckWords(const LaneLayout& lane, const TimelineLayout& layout, const View& view) {
    std::map<LaneText::Place, std::vector<PlacedText>> places;
    for (const LaneText& text : lane.texts) {
        places[text.place].push_back(text.text);
        if (text.place == LaneText::Place::Middle) {
            places[LaneText::Place::UpperLine].push_back(text.text);
            places[LaneText::Place::LowerLine].push_back(text.text);
        }
        for (const OverLine& line : layout.Lines()) {
            if (line.x > text.text.left && line.x < text.text.Right()) {
                return "a word crosses a line";
            }
        }
        for (const LaneMark& mark : lane.marks) {
            if (text.place != LaneText::Place::Bar && text.text.left < mark.right &&
                mark.left < text.text.Right()) {
                return "a word lies on a picture";
            }
        }
    }
    for (const auto& [place, texts] : places) {
        if (Finding finding = TextsApart("words", texts, view); !finding.empty()) {
            return finding;
        }
    }
    return "";
}

Finding CheckLanes(const TimelineLayout& layout, const View& view) {
    std::vector<std::size_t> rows;
    for (const LaneLayout& lane : layout.Lanes()) {
        for (const Finding& finding :
             {CheckMarks(lane, view.rows.picture), CheckWords(lane, layout, view)}) {
            if (!finding.empty()) {
                return finding;
            }
        }
        std::ranges::transform(lane.orders, std::back_inserter(rows), &LaneOrder::row);
    }
    for (const StartEvent* const start : layout.Productions()) {
        rows.push_back(start->row);
    }
    std::ranges::sort(rows);
    std::vector<std::size_t> all;
    std::ranges::transform(view.content.run->starts, std::back_inserter(all), &StartEvent::row);
    return rows == all ? "" : "an order is in no lane, or in two";
}

Finding CheckAxis(const TimelineLayout& layout, const View& view) {
    const DateTime begin = view.content.run->conditions.StartDate;
    std::vector<PlacedText> chips;
    for (const OverLine& line : layout.Lines()) {
        if (line.chip) {
            chips.push_back(*line.chip);
            if (line.x < line.chip->left - 1 || line.x > line.chip->Right() + 1) {
                return "a chip is away from its line";
            }
        }
    }
    std::vector<PlacedText> hours = HourLabels(begin, view.scale, chips, view.widthOf);
    hours.insert(hours.end(), chips.begin(), chips.end());
    for (const PlacedText& day : layout.Days()) {
        if (day.width != view.widths.bold(day.text)) {
            return "a day isn't as wide as its text";
        }
    }
    std::vector<PlacedText> nights;
    std::vector<NightBand> bands = layout.Nights();
    std::ranges::copy_if(layout.ProposedNights(), std::back_inserter(bands),
                         [](const NightBand& night) { return !night.label.isEmpty(); });
    for (const NightBand& night : bands) {
        nights.push_back({.left = night.from, .width = night.until - night.from, .text = {}});
        if (view.widthOf(night.label) > night.until - night.from) {
            return "a night is narrower than its label";
        }
    }
    for (Finding finding :
         {TextsApart("hours", hours, view), TextsApart("days", layout.Days(), view),
          TextsApart("nights", nights, view)}) {
        if (!finding.empty()) {
            return finding;
        }
    }
    return "";
}

Finding CheckWaits(const TimelineLayout& layout, const View& view) {
    for (const WaitPiece& piece : layout.Waits()) {
        if (!piece.text.isEmpty() &&
            (!piece.symbol || view.widthOf(piece.text) + 24 > piece.until - piece.from)) {
            return "a wait has no room for its words";
        }
    }
    return Apart(
        "waits", layout.Waits(), view, [](const WaitPiece& piece) { return piece.from; },
        [](const WaitPiece& piece) { return piece.until; });
}

/// From the top of the timeline to its foot, so from the greatest figure of a field to its least.
Finding CheckFigures(const TimelineLayout& layout, const View& view) {
    double last = 0;
    const auto check = [&](const auto& field) {
        double below = field.rect.bottom();
        double highest = below;
        for (const double figure : field.figures) {
            if (field.Y(figure) > below - view.rows.line + 4 ||
                field.Y(figure) < field.rect.top()) {
                return false;
            }
            below = field.Y(figure) - 4;
            highest = std::min(highest, field.Y(figure));
        }
        const bool isApart = field.figures.empty() || highest - last >= view.rows.line;
        last = field.figures.empty() ? last : field.Y(field.figures.front());
        return isApart && field.figures.size() <= 2;
    };
    return std::ranges::all_of(layout.Stocks(), check) && check(layout.Energy())
               ? ""
               : "figures don't grow, touch or leave their field";
}

Finding CheckFields(const TimelineLayout& layout, const View& view) {
    const auto texts = [](const std::vector<FieldText>& all) {
        std::vector<PlacedText> placed;
        std::ranges::transform(all, std::back_inserter(placed), &FieldText::text);
        return placed;
    };
    std::vector<Finding> findings{CheckFigures(layout, view),
                                  TextsApart("factors", texts(layout.Energy().factors), view)};
    for (const StockField& field : layout.Stocks()) {
        findings.push_back(TextsApart("rates", texts(field.rates), view));
        QPolygonF points = field.curve;
        for (const QPolygonF& other : field.others) {
            points += other;
        }
        for (const QPointF& point : points) {
            if (!field.rect.adjusted(-1, -1, 1, 1).contains(point)) {
                findings.push_back("a curve leaves its field at " + std::to_string(point.x()) +
                                   ", " + std::to_string(point.y() - field.rect.top()));
            }
        }
    }
    const auto found = std::ranges::find_if(findings, [](const Finding& f) { return !f.empty(); });
    return found == findings.end() ? "" : *found;
}

Finding CheckRows(const TimelineRows& rows) {
    double end = rows.plot.top();
    for (const QRectF& row :
         {rows.legend, rows.days, rows.hours, rows.nights, rows.lanes[0], rows.lanes[1],
          rows.lanes[2], rows.waits, rows.stocks[Resource::Metall], rows.stocks[Resource::Kristall],
          rows.stocks[Resource::Deuterium], rows.energy, rows.scrollBar}) {
        if (!row.isEmpty() && row.top() < end - 1e-6) {
            return "rows overlap";
        }
        end = row.isEmpty() ? end : row.bottom();
    }
    return end > rows.plot.bottom() + 1e-6 ? "rows leave the timeline" : "";
}

TEST(Timeline, LawsOfTheLayoutHoldForRandomPlans) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        const Plan plan = PlanGenerator(seed).Next();
        const Plan otherPlan = PlanGenerator(seed + 1).Next();
        if (plan.LV_Bauliste.Rows().empty() || otherPlan.LV_Bauliste.Rows().empty()) {
            continue;
        }
        TimelineContent content = ContentOf(plan);
        std::mt19937 random(seed);
        const auto anyRow = [&] { return random() % content.run->starts.size(); };
        content.chosenRows = {anyRow(), anyRow()};
        content.nextRow = anyRow();
        content.now = content.run->conditions.StartDate +
                      static_cast<std::int64_t>(content.run->Duration().Seconds() / 3);
        const DateTime start = content.run->conditions.StartDate;
        content.proposedNights = {{start + 40000, start + 70000}};
        for (const cSchlafzeit& night : content.run->conditions.Schlafzeiten) {
            content.proposedNights.emplace_back(night.Startzeit() + -7200, night.Endzeit());
        }
        content.others = {{.run = TraceRun(otherPlan), .name = QStringLiteral("Fund")}};
        for (int i = 0; i < 10; ++i) {
            const View view(content, random);
            const TimelineLayout layout = view.Layout();
            for (const Finding& finding :
                 {CheckRows(view.rows), CheckLanes(layout, view), CheckAxis(layout, view),
                  CheckWaits(layout, view), CheckFields(layout, view)}) {
                EXPECT_EQ(finding, "") << "seed " << seed << ", view " << i;
            }
        }
    }
}

/// The two columns of a picture, without the plot between them.
std::vector<QImage> ColumnsOf(const View& view, bool withPlot) {
    QImage image(static_cast<int>(view.rows.legend.width()),
                 static_cast<int>(view.rows.plot.height()), QImage::Format_RGB32);
    image.fill(view.look.colors[Color::Window]);
    QPainter painter(&image);
    const TimelineCanvas canvas(painter, view.look);
    const TimelineLayout layout = view.Layout();
    const TimelinePainter timeline(canvas, view.content, layout);
    if (withPlot) {
        timeline.PaintPlot();
    }
    timeline.PaintColumns(SimTime());
    painter.end();
    const int left = static_cast<int>(std::floor(view.rows.plot.left()));
    const int right = static_cast<int>(std::ceil(view.rows.plot.right()));
    return {image.copy(0, 0, left, image.height()),
            image.copy(right, 0, image.width() - right, image.height())};
}

TEST(Timeline, NothingReachesIntoTheColumns) {
    for (unsigned seed = 0; seed < 8; ++seed) {
        const TimelineContent content = ContentOf(PlanGenerator(seed).Next());
        std::mt19937 random(seed);
        for (int i = 0; i < 4; ++i) {
            const View view(content, random);
            EXPECT_EQ(ColumnsOf(view, true), ColumnsOf(view, false)) << "seed " << seed;
        }
    }
}

TEST(Timeline, NeighboursShareAPictureUntilThereIsRoom) {
    const auto marks = [](std::vector<LaneOrder> orders) {
        std::string text;
        for (const LaneMark& mark : MarksOf(orders, 24)) {
            text += std::to_string(mark.count) + "@" + std::to_string(std::lround(mark.left)) + " ";
        }
        return text;
    };
    EXPECT_EQ(marks({{.start = 0}, {.start = 25}, {.start = 35}, {.start = 36}}), "3@0 1@36 ");
    EXPECT_EQ(marks({{.start = 0}, {.start = 26}}), "1@0 1@26 ");
    EXPECT_EQ(marks({{.start = 0}, {.start = 3, .apart = true}, {.start = 6}, {.start = 7}}),
              "1@0 1@26 2@52 ");
}

TEST(Timeline, ScalesShowRoundFigures) {
    using Figures = std::vector<double>;
    EXPECT_EQ(ValueScale::FromZero(0, 6579).Figures(28, 11), (Figures{5000}));
    EXPECT_EQ(ValueScale::FromZero(0, 6579).Figures(48, 10), (Figures{2500, 5000}));
    EXPECT_EQ(ValueScale::FromZero(0, 0).Figures(28, 10), (Figures{1}));
    EXPECT_EQ(ValueScale::FromZero(-700, 200).Figures(48, 10), (Figures{-500, -250}));
    EXPECT_EQ(ValueScale::Fitting(518, 591).Figures(48, 10), (Figures{550}));
    EXPECT_EQ(ValueScale::Fitting(350, 591).from, 0) << "not all above 60 %";
}

TEST(Timeline, HatchingStaysInItsRectangle) {
    const QRectF rect(10.5, 3, 33, 18);
    for (const Hatching hatching : {Hatching::Rising, Hatching::Falling, Hatching::Crossed,
                                    Hatching::Level, Hatching::Upright, Hatching::Dots}) {
        const auto lines = HatchLines(hatching, rect, -1e6);
        EXPECT_GT(lines.size(), 4);
        for (const QLineF& line : lines) {
            EXPECT_TRUE(rect.contains(line.p1()) && rect.contains(line.p2()));
            EXPECT_EQ(hatching == Hatching::Rising,
                      hatching != Hatching::Crossed && line.dx() * line.dy() < 0);
        }
    }
}

/// The texts of the lines, parted by strokes.
std::string CardText(const RunTrace& run, SimTime moment) {
    QString text;
    for (const CardLine& line : CardLines(run, moment)) {
        text += QStringList{line.caption, line.words, line.figure, line.right}
                    .join(QLatin1Char(' '))
                    .simplified() +
                QLatin1Char('|');
    }
    return text.toStdString();
}

TEST(Timeline, CardTellsWhatGoesOn) {
    const RunTrace run = StarterRun();
    EXPECT_EQ(CardText(run, SimTime(3 * 3600)),
              "Di 01.12. 21:00:00 nach 03:00|Baut Metallmine 4 bis 21:05:58|"
              "Wartet Kristallmine 2|auf 76 Metall, bis 21:25:04|Metall 0 +139/h|"
              "Kristall 301 +32/h|Deuterium 0 +0/h|Energie 79 von 50|");
    EXPECT_EQ(CardText(run, SimTime(7 * 3600)),
              "Mi 02.12. 01:00:00 nach 07:00|Baut nichts|Wartet Metallmine 5|"
              "auf Schlaf, bis 07:00:05|Metall 437 +195/h|Kristall 379 +58/h|"
              "Deuterium 0 +0/h|Energie 117 von 82|");
    EXPECT_EQ(CardText(run, SimTime(2 * 86400)),
              "Do 03.12. 18:00:00 nach 2 T 00:00|Baut nichts|Wartet Solarkraftwerk 9|"
              "auf 246 Metall, bis 18:32:31|Metall 1.676 +455/h|Kristall 2.106 +244/h|"
              "Deuterium 465 +48/h|Energie 342 von 500 Faktor 0,68|");
    EXPECT_EQ(CardText(run, run.Duration()),
              "Sa 05.12. 22:40:16 nach 4 T 04:40|Baut nichts|Wartet nichts|"
              "Metall 6.260 +568/h|Kristall 5.455 +457/h|Deuterium 66 +84/h|"
              "Energie 545 von 632 Faktor 0,86|");
}

/// All words of a picture.
std::vector<std::string> WordsOf(const QByteArray& svg) {
    std::vector<std::string> words;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QStringLiteral("text")) {
            words.push_back(reader.readElementText().trimmed().toStdString());
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return words;
}

TEST(Timeline, PosterSaysWhatTheRunSays) {
    if (!HasSvg()) {
        GTEST_SKIP() << "without the SVG module";
    }
    const RunTrace run = StarterRun();
    const PlanPoster poster(
        run, {.planName = QStringLiteral("Probe"), .icon = {}, .pictures = {}, .font = {}});
    std::vector<std::string> words =
        WordsOf(ToSvg(poster.Size(), [&](QPainter& painter) { poster.Paint(painter); }));
    const auto take = [&](const std::string& word) {
        const auto found = std::ranges::find(words, word);
        EXPECT_NE(found, words.end()) << word;
        if (found != words.end()) {
            words.erase(found);
        }
    };
    take("Eröffnung „Probe“");
    take(TimeSpanText(run.Duration().Seconds()));
    take(PointsText(run.end));
    take(PointsWithStockText(run.end) + " Punkte");
    DateTime day;
    for (const StartEvent& start : run.starts) {
        take(std::to_string(start.row + 1));
        take(OrderText(start));
        take(BriefWaitText(run, start));
        const DateTime moment = run.conditions.WallClock(start.start);
        const std::string withDay = ShortDateTimeText(moment);
        // The first of a column has its day, too.
        const bool named =
            StartOfDay(moment) != day || std::ranges::find(words, withDay) != words.end();
        take(named ? withDay : TimeOfDayText(moment));
        day = StartOfDay(moment);
    }
    for (const ItemRow& item : ItemTable()) {
        if (const Byte level = run.end.GetStufe(item.item); level > 0) {
            take(std::to_string(level));
        }
    }
    for (const Resource resource : kResources) {
        take(GroupedText(run.end.stock[resource].ToDouble()));
    }
}

}  // namespace
}  // namespace tarvelin
