// Starts the desktop program.
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include "persistence/ProgramFolder.h"
#include "persistence/ProtectedFileSystem.h"
#include "ui/ProgramWindows.h"
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

/// The wall clock, in local time.
tarvelin::DateTime LocalTime() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate epoch(1899, 12, 30);
    constexpr qint64 kSecondsPerDay = 86400;
    constexpr qint64 kMillisecondsPerSecond = 1000;
    return tarvelin::DateTime(epoch.daysTo(now.date()) * kSecondsPerDay +
                              now.time().msecsSinceStartOfDay() / kMillisecondsPerSecond);
}

void OpenPage(const std::string& address) {
    QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(address)));
}

/// Empty for a user without a home folder.
std::filesystem::path UserFolder() {
    if (QDir::homePath() == QDir::rootPath() &&
        !qEnvironmentVariable("XDG_DATA_HOME").startsWith(QLatin1Char('/'))) {
        return {};
    }
    return tarvelin::ToPath(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

tarvelin::Message WithoutUserFolder() {
    return {.text =
                "Für deine Baulisten und Einstellungen gibt es keinen Ordner, in dem geschrieben "
                "werden kann: sie werden beim Beenden nicht behalten.\r\n\r\nSpeichere deine "
                "Bauliste selbst (Datei, Speichern) an einem Ort, an dem du schreiben kannst.",
            .title = "Tarvelin",
            .icon = tarvelin::MessageIcon::Warning};
}

tarvelin::Question SecondWindow() {
    return {.text =
                "Tarvelin läuft schon. Soll trotzdem ein zweites Fenster aufgehen?\r\n\r\nDas "
                "zweite merkt sich beim Beenden weder Bauliste noch Einstellungen: was bleiben "
                "soll, musst du dort selbst speichern (Datei, Speichern).",
            .title = "Tarvelin",
            .icon = tarvelin::MessageIcon::Question};
}

}  // namespace

int main(int argc, char** argv) {
    // The toolkit gets no arguments, or it would interpret some.
    int count = 1;
    QApplication program(count, argv);
    const tarvelin::DesktopColors desktop(QApplication::palette());
    tarvelin::ApplyAppearance(program);
    // Keeps the toolkit's file dialog from writing its history to the user's settings. Where
    // settings are no file, the toolkit is built without that.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    const tarvelin::ProgramFolder folder = tarvelin::ResolveProgramFolder(
        tarvelin::ToPath(QApplication::applicationDirPath()), UserFolder());
    tarvelin::FolderLock lock(folder.path);
    tarvelin::QtDialogs dialogs;
    if (lock.HeldByOther() && !dialogs.Ask(SecondWindow())) {
        return 0;
    }
    const tarvelin::ProtectedFileSystem files(folder.ReadOnlyPaths(lock.HeldByOther()));
    tarvelin::HttpFetcher fetcher;
    tarvelin::SoundPlayer sound;
    const tarvelin::Environment environment{
        .dialogs = dialogs,
        .fetcher = fetcher,
        .sound = sound,
        .now = LocalTime,
        .openPage = OpenPage,
        .programFolder = folder.path,
        .files = files,
        .desktopPalette = [&desktop] { return desktop.CurrentPalette(); },
        .planArgument = tarvelin::PlanArgument(argc, argv),
        .startNotice = folder.canKeep ? std::nullopt : std::optional(WithoutUserFolder())};
    tarvelin::ProgramWindows windows(environment);
    // Other windows may stay open, but save nothing.
    QObject::connect(&windows, &tarvelin::ProgramWindows::Closed, [&lock] { lock.Release(); });
    // Closes all windows and ends every event loop.
    const auto finish = [&windows] {
        windows.Close();
        QApplication::closeAllWindows();
        QApplication::exit();
    };
    const tarvelin::TerminationSignals terminationSignals(finish);
    // Save only: the session may yet go on. If it ends, the windows are closed.
    QObject::connect(&program, &QGuiApplication::commitDataRequest, &windows,
                     &tarvelin::ProgramWindows::SaveNow, Qt::DirectConnection);
    // Within the event loop, so that a signal can end it.
    QTimer::singleShot(0, &windows, &tarvelin::ProgramWindows::Start);
    return QApplication::exec();
}
