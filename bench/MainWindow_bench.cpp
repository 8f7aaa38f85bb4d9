// How long the window keeps the player waiting: start, a long plan, the hints.
#include <benchmark/benchmark.h>

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>

#include "ui/mainwindow/BuildListView.h"
#include "ui/mainwindow/frmMain.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/workbench/OrderListView.h"
#include "ui/workbench/TimelineView.h"

namespace tarvelin {
namespace {

class Stumm final : public Dialogs {
  public:
    void Show(const Message& /*meldung*/) override {}
    bool ShowSuppressible(const Message& /*meldung*/) override { return true; }
    void Beep() override {}
    bool Ask(const Question& /*frage*/) override { return false; }
    std::filesystem::path AskForFile(Purpose /*zweck*/,
                                     const std::filesystem::path& /*ordner*/) override {
        return {};
    }
    void CloseAll() override {}
};

class KeinNetz final : public Fetcher {
  public:
    std::optional<std::string> Fetch(const std::string& /*adresse*/) override { return {}; }
    void ProcessEvents() override {}
    void Abort() override {}
};

class KeinTon final : public Sound {
  public:
    void Play(const std::filesystem::path& /*datei*/) override {}
};

struct Welt {
    Stumm Boxen;
    KeinNetz Netz;
    KeinTon Ton;
    tarvelin::Environment Umgebung{
        .dialogs = Boxen,
        .fetcher = Netz,
        .sound = Ton,
        .now = [] { return *ParseDateTime("18.11.2006 12:30:00"); },
        .openPage = [](const std::string&) {},
        .programFolder = QCoreApplication::applicationDirPath().toStdString()};
};

/// Shown, with every event behind it that painting takes.
void ZeigeGanz(frmMain& fenster) {
    fenster.show();
    while (!QTest::qWaitForWindowExposed(&fenster)) {
    }
    fenster.grab();
}

/// As many rows as a list can hold, all items in turn.
void Fuelle(const frmMain& fenster) {
    auto* const liste = fenster.findChild<BuildListView*>();
    for (std::size_t i = 0; i < OrderList::kMaxSize; ++i) {
        emit liste->DragDrop(ToQString(ItemDisplays()[i % kNumItems].pictureName));
    }
}

void Start(benchmark::State& state) {
    const Welt welt;
    for (auto _ : state) {
        frmMain fenster(welt.Umgebung);
        ZeigeGanz(fenster);
    }
}
BENCHMARK(Start)->Unit(benchmark::kMillisecond);

void LangerPlanZeileFuerZeile(benchmark::State& state) {
    const Welt welt;
    frmMain fenster(welt.Umgebung);
    ZeigeGanz(fenster);
    auto* const leeren = fenster.findChild<QPushButton*>(QStringLiteral("Cmd_Clear"));
    for (auto _ : state) {
        leeren->click();
        Fuelle(fenster);
        fenster.grab();
    }
}
BENCHMARK(LangerPlanZeileFuerZeile)->Unit(benchmark::kMillisecond);

void LangerPlanSimuliertUndGezeigt(benchmark::State& state) {
    const Welt welt;
    frmMain fenster(welt.Umgebung);
    ZeigeGanz(fenster);
    Fuelle(fenster);
    for (auto _ : state) {
        fenster.RunSimulation(true);
        fenster.grab();
    }
}
BENCHMARK(LangerPlanSimuliertUndGezeigt)->Unit(benchmark::kMillisecond);

void EineBewegungUeberEinemBild(benchmark::State& state) {
    const Welt welt;
    frmMain fenster(welt.Umgebung);
    ZeigeGanz(fenster);
    Fuelle(fenster);
    auto* const bild = fenster.findChild<ItemPicture*>(QStringLiteral("ImgMetMine"));
    for (auto _ : state) {
        emit bild->MouseMove();
    }
}
BENCHMARK(EineBewegungUeberEinemBild)->Unit(benchmark::kMicrosecond);

QWidget& Werkbank(frmMain& fenster) {
    fenster.findChild<QAction*>(QStringLiteral("mnuWerkbank"))->trigger();
    const auto alle = QApplication::topLevelWidgets();
    const auto offen = std::ranges::find(alle, QStringLiteral("frmWerkbank"), &QObject::objectName);
    (*offen)->resize(1600, 1000);
    while (!QTest::qWaitForWindowExposed(*offen)) {
    }
    return **offen;
}

/// A picture of the timeline, first of the whole plan, then with each number of zooms.
void ZeitleisteGemalt(benchmark::State& state) {
    const Welt welt;
    frmMain fenster(welt.Umgebung);
    ZeigeGanz(fenster);
    Fuelle(fenster);
    auto& leiste = *Werkbank(fenster).findChild<TimelineView*>();
    const QPointF ort(leiste.viewport()->rect().center());
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        QWheelEvent rad(ort, ort, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(leiste.viewport(), &rad);
    }
    QImage bild(leiste.viewport()->size(), QImage::Format_RGB32);
    int schritt = 1;
    for (auto _ : state) {
        schritt = -schritt;
        leiste.horizontalScrollBar()->setValue(leiste.horizontalScrollBar()->value() + schritt);
        leiste.viewport()->render(&bild);
    }
}
BENCHMARK(ZeitleisteGemalt)->Arg(0)->Arg(5)->Arg(20)->Unit(benchmark::kMillisecond);

/// A row of 254 goes up and down: both windows run the plan and show it.
void ZeileVerschoben(benchmark::State& state) {
    const Welt welt;
    frmMain fenster(welt.Umgebung);
    ZeigeGanz(fenster);
    Fuelle(fenster);
    QWidget& werkbank = Werkbank(fenster);
    auto* const liste = werkbank.findChild<OrderListView*>();
    liste->Choose({100});
    bool hoch = false;
    for (auto _ : state) {
        hoch = !hoch;
        werkbank
            .findChild<QPushButton*>(hoch ? QStringLiteral("Cmd_Hoch")
                                          : QStringLiteral("Cmd_Runter"))
            ->click();
        werkbank.grab();
    }
}
BENCHMARK(ZeileVerschoben)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvelin

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    benchmark::Initialize(&argc, argv);
    QApplication programm(argc, argv);
    tarvelin::ApplyAppearance(programm);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
