// Measures how long the windows keep the player waiting: start, a long plan, hints, the workbench.
#include <benchmark/benchmark.h>

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>

#include "ui/ProgramWindows.h"
#include "ui/mainwindow/BuildListView.h"
#include "ui/timeline/TimelineView.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/workbench/OrderListView.h"

namespace tarvelin {
namespace {

class NoDialogs final : public Dialogs {
  public:
    void Show(const Message& /*message*/) override {}
    bool ShowSuppressible(const Message& /*message*/) override { return true; }
    void Beep() override {}
    bool Ask(const Question& /*question*/) override { return false; }
    std::filesystem::path AskForFile(Purpose /*purpose*/,
                                     const std::filesystem::path& /*folder*/) override {
        return {};
    }
    void CloseAll() override {}
};

class NoFetcher final : public Fetcher {
  public:
    std::optional<std::string> Fetch(const std::string& /*address*/) override { return {}; }
    void ProcessEvents() override {}
    void Abort() override {}
};

class NoSound final : public Sound {
  public:
    void Play(const std::filesystem::path& /*file*/) override {}
};

struct FakeWorld {
    NoDialogs dialogs;
    NoFetcher fetcher;
    NoSound sound;
    Environment environment{.dialogs = dialogs,
                            .fetcher = fetcher,
                            .sound = sound,
                            .now = [] { return *ParseDateTime("18.11.2006 12:30:00"); },
                            .openPage = [](const std::string&) {},
                            .programFolder = QCoreApplication::applicationDirPath().toStdString()};
};

/// Shows the window and paints it, with all events that this takes.
void ShowFully(frmMain& window) {
    window.show();
    while (!QTest::qWaitForWindowExposed(&window)) {
    }
    window.grab();
}

/// Fills the list to its limit, with all items in turn.
void Fill(const frmMain& window) {
    auto* const list = window.findChild<BuildListView*>();
    for (std::size_t i = 0; i < OrderList::kMaxSize; ++i) {
        emit list->DragDrop(ToQString(ItemDisplays()[i % kNumItems].pictureName));
    }
}

void ProgramStart(benchmark::State& state) {
    const FakeWorld world;
    for (auto _ : state) {
        ProgramWindows program(world.environment);
        ShowFully(program.MainWindow());
    }
}
BENCHMARK(ProgramStart)->Unit(benchmark::kMillisecond);

void LongPlanRowByRow(benchmark::State& state) {
    const FakeWorld world;
    ProgramWindows program(world.environment);
    frmMain& window = program.MainWindow();
    ShowFully(window);
    auto* const clear = window.findChild<QPushButton*>(QStringLiteral("Cmd_Clear"));
    for (auto _ : state) {
        clear->click();
        Fill(window);
        window.grab();
    }
}
BENCHMARK(LongPlanRowByRow)->Unit(benchmark::kMillisecond);

void LongPlanSimulatedAndShown(benchmark::State& state) {
    const FakeWorld world;
    ProgramWindows program(world.environment);
    frmMain& window = program.MainWindow();
    ShowFully(window);
    Fill(window);
    for (auto _ : state) {
        program.PlanDocument().RunSimulation(true);
        window.grab();
    }
}
BENCHMARK(LongPlanSimulatedAndShown)->Unit(benchmark::kMillisecond);

void OneMoveOverAPicture(benchmark::State& state) {
    const FakeWorld world;
    ProgramWindows program(world.environment);
    frmMain& window = program.MainWindow();
    ShowFully(window);
    Fill(window);
    auto* const picture = window.findChild<ItemPicture*>(QStringLiteral("ImgMetMine"));
    for (auto _ : state) {
        emit picture->MouseMove();
    }
}
BENCHMARK(OneMoveOverAPicture)->Unit(benchmark::kMicrosecond);

QWidget& WorkbenchOf(frmMain& window) {
    window.findChild<QAction*>(QStringLiteral("mnuWerkbank"))->trigger();
    const auto all = QApplication::topLevelWidgets();
    const auto open = std::ranges::find(all, QStringLiteral("frmWerkbank"), &QObject::objectName);
    (*open)->resize(1600, 1000);
    while (!QTest::qWaitForWindowExposed(*open)) {
    }
    return **open;
}

/// Paints the timeline: the whole plan, and zoomed in by the given number of wheel steps.
void TimelinePainted(benchmark::State& state) {
    const FakeWorld world;
    ProgramWindows program(world.environment);
    frmMain& window = program.MainWindow();
    ShowFully(window);
    Fill(window);
    auto& timeline = *WorkbenchOf(window).findChild<TimelineView*>();
    const QPointF position(timeline.rect().center());
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        QWheelEvent wheel(position, position, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&timeline, &wheel);
    }
    QImage picture(timeline.size(), QImage::Format_RGB32);
    auto* const bar = timeline.findChild<QScrollBar*>();
    int step = 1;
    for (auto _ : state) {
        step = -step;
        bar->setValue(bar->value() + step);
        timeline.render(&picture);
    }
}
BENCHMARK(TimelinePainted)->Arg(0)->Arg(5)->Arg(20)->Unit(benchmark::kMillisecond);

/// Moves a row of 254 up and down; both windows run the plan and show it.
void RowMoved(benchmark::State& state) {
    const FakeWorld world;
    ProgramWindows program(world.environment);
    frmMain& window = program.MainWindow();
    ShowFully(window);
    Fill(window);
    QWidget& workbench = WorkbenchOf(window);
    auto* const list = workbench.findChild<OrderListView*>();
    list->Choose({100});
    bool up = false;
    for (auto _ : state) {
        up = !up;
        workbench
            .findChild<QAction*>(up ? QStringLiteral("Cmd_Hoch") : QStringLiteral("Cmd_Runter"))
            ->trigger();
        workbench.grab();
    }
}
BENCHMARK(RowMoved)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvelin

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    benchmark::Initialize(&argc, argv);
    QApplication program(argc, argv);
    tarvelin::ApplyAppearance(program);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
