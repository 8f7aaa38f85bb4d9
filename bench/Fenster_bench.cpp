// How long the window keeps the player waiting: start, a long plan, the hints.
#include <benchmark/benchmark.h>

#include <QLabel>
#include <QTest>

#include "ui/bauteile/Aussehen.h"
#include "ui/bauteile/Bauteile.h"
#include "ui/bauteile/Itemansicht.h"
#include "ui/fenster/Baulistenansicht.h"
#include "ui/fenster/frmMain.h"

namespace tarvelin {
namespace {

class Stumm final : public Dialoge {
  public:
    void Zeige(const Meldung& /*meldung*/) override {}
    bool ZeigeAbstellbar(const Meldung& /*meldung*/) override { return true; }
    void Piepton() override {}
    bool Stelle(const Frage& /*frage*/) override { return false; }
    std::filesystem::path FragNachDatei(Zweck /*zweck*/,
                                        const std::filesystem::path& /*ordner*/) override {
        return {};
    }
    void Beende() override {}
};

class KeinNetz final : public Abruf {
  public:
    std::optional<std::string> Hole(const std::string& /*adresse*/) override { return {}; }
    void Atme() override {}
    void BrichAb() override {}
};

class KeinTon final : public Klang {
  public:
    void Spiele(const std::filesystem::path& /*datei*/) override {}
};

struct Welt {
    Stumm Boxen;
    KeinNetz Netz;
    KeinTon Ton;
    tarvelin::Umgebung Umgebung{
        .Boxen = Boxen,
        .Netz = Netz,
        .Ton = Ton,
        .Jetzt = [] { return *LiesDatumzeit("18.11.2006 12:30:00"); },
        .OeffneSeite = [](const std::string&) {},
        .Programmordner = QCoreApplication::applicationDirPath().toStdString()};
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
    auto* const liste = fenster.findChild<Baulistenansicht*>();
    for (std::size_t i = 0; i < Auftragsliste::kHoechstzahl; ++i) {
        emit liste->DragDrop(AlsQString(Itemansichten()[i % kItemAnzahl].Bild));
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
        fenster.StarteSimulation(true);
        fenster.grab();
    }
}
BENCHMARK(LangerPlanSimuliertUndGezeigt)->Unit(benchmark::kMillisecond);

void EineBewegungUeberEinemBild(benchmark::State& state) {
    const Welt welt;
    frmMain fenster(welt.Umgebung);
    ZeigeGanz(fenster);
    Fuelle(fenster);
    auto* const bild = fenster.findChild<Itembild*>(QStringLiteral("ImgMetMine"));
    for (auto _ : state) {
        emit bild->MouseMove();
    }
}
BENCHMARK(EineBewegungUeberEinemBild)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvelin

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    benchmark::Initialize(&argc, argv);
    QApplication programm(argc, argv);
    tarvelin::StelleAussehenEin(programm);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
