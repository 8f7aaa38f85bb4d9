// Starts the window.
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include "persistence/ProgramFolder.h"
#include "persistence/ProtectedFileSystem.h"
#include "ui/mainwindow/frmMain.h"
#include "ui/services/DesktopColors.h"
#include "ui/services/FolderLock.h"
#include "ui/services/HttpFetcher.h"
#include "ui/services/PlanArgument.h"
#include "ui/services/QtDialogs.h"
#include "ui/services/SoundPlayer.h"
#include "ui/services/TerminationSignals.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"

namespace {

/// The machine's clock, in its local time.
tarvelin::DateTime Ortszeit() {
    const QDateTime jetzt = QDateTime::currentDateTime();
    const QDate anfang(1899, 12, 30);
    constexpr qint64 kSekundenJeTag = 86400;
    constexpr qint64 kJeSekunde = 1000;
    return tarvelin::DateTime(anfang.daysTo(jetzt.date()) * kSekundenJeTag +
                              jetzt.time().msecsSinceStartOfDay() / kJeSekunde);
}

void OeffneSeite(const std::string& adresse) {
    QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(adresse)));
}

/// Empty for a user without a home.
std::filesystem::path Nutzerordner() {
    if (QDir::homePath() == QDir::rootPath() &&
        !qEnvironmentVariable("XDG_DATA_HOME").startsWith(QLatin1Char('/'))) {
        return {};
    }
    return tarvelin::ToPath(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

tarvelin::Message OhneNutzerordner() {
    return {.text =
                "Für deine Baulisten und Einstellungen gibt es keinen Ordner, in dem geschrieben "
                "werden kann: sie werden beim Beenden nicht behalten.\r\n\r\nSpeichere deine "
                "Bauliste selbst (Datei, Speichern) an einem Ort, an dem du schreiben kannst.",
            .title = "Tarvelin",
            .icon = tarvelin::MessageIcon::Warning};
}

tarvelin::Question ZweitesFenster() {
    return {.text =
                "Tarvelin läuft schon. Soll trotzdem ein zweites Fenster aufgehen?\r\n\r\nDas "
                "zweite merkt sich beim Beenden weder Bauliste noch Einstellungen: was bleiben "
                "soll, musst du dort selbst speichern (Datei, Speichern).",
            .title = "Tarvelin",
            .icon = tarvelin::MessageIcon::Question};
}

}  // namespace

int main(int argc, char** argv) {
    // The toolkit would take arguments of its own.
    int anzahl = 1;
    QApplication programm(anzahl, argv);
    const tarvelin::DesktopColors desktop(QApplication::palette());
    tarvelin::ApplyAppearance(programm);
    // The toolkit's file dialog would keep a history of folders in the user's settings. Where these
    // are no file, it is built without that.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    const tarvelin::ProgramFolder ordner = tarvelin::ResolveProgramFolder(
        tarvelin::ToPath(QApplication::applicationDirPath()), Nutzerordner());
    tarvelin::FolderLock schloss(ordner.TempFolder);
    tarvelin::QtDialogs boxen;
    if (schloss.HeldByOther() && !boxen.Ask(ZweitesFenster())) {
        return 0;
    }
    const tarvelin::ProtectedFileSystem dateien(ordner.ReadOnlyPaths(schloss.HeldByOther()));
    tarvelin::HttpFetcher netz;
    tarvelin::SoundPlayer ton;
    const tarvelin::Environment umgebung{
        .dialogs = boxen,
        .fetcher = netz,
        .sound = ton,
        .now = Ortszeit,
        .openPage = OeffneSeite,
        .programFolder = ordner.TempFolder,
        .files = dateien,
        .desktopPalette = [&desktop] { return desktop.CurrentPalette(); },
        .planArgument = tarvelin::PlanArgument(argc, argv),
        .startNotice = ordner.canKeep ? std::nullopt : std::optional(OhneNutzerordner())};
    tarvelin::frmMain fenster(umgebung);
    // Small windows may stay open; they keep nothing.
    QObject::connect(&fenster, &tarvelin::frmMain::Closed, [&schloss] { schloss.Release(); });
    // Whatever is open closes with the window, and every event loop ends.
    const auto beende = [&fenster] {
        fenster.close();
        QApplication::closeAllWindows();
        QApplication::exit();
    };
    const tarvelin::TerminationSignals signale(beende);
    // The session may go on after it; its end closes the windows.
    QObject::connect(&programm, &QGuiApplication::commitDataRequest, &fenster,
                     &tarvelin::frmMain::SaveNow, Qt::DirectConnection);
    // Within the event loop, which a signal can end.
    QTimer::singleShot(0, &fenster, &tarvelin::frmMain::Form_Load);
    return QApplication::exec();
}
