// Starts the window.
#include <QDateTime>
#include <QDesktopServices>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include "persistence/Programmordner.h"
#include "ui/Aussehen.h"
#include "ui/Bauteile.h"
#include "ui/Klangausgabe.h"
#include "ui/Meldungsfenster.h"
#include "ui/Netzabruf.h"
#include "ui/frmMain.h"

namespace {

/// The machine's clock, in its local time.
tarvelin::Zeitpunkt Ortszeit() {
    const QDateTime jetzt = QDateTime::currentDateTime();
    const QDate anfang(1899, 12, 30);
    constexpr qint64 kSekundenJeTag = 86400;
    constexpr qint64 kJeSekunde = 1000;
    return tarvelin::Zeitpunkt(anfang.daysTo(jetzt.date()) * kSekundenJeTag +
                               jetzt.time().msecsSinceStartOfDay() / kJeSekunde);
}

void OeffneSeite(const std::string& adresse) {
    QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(adresse)));
}

std::filesystem::path Nutzerordner() {
    return tarvelin::AlsPfad(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

}  // namespace

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    tarvelin::StelleAussehenEin(programm);
    // The toolkit's file dialog would keep a history of folders in the user's settings.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    tarvelin::Meldungsfenster boxen;
    tarvelin::Netzabruf netz;
    tarvelin::Klangausgabe ton;
    const tarvelin::Umgebung umgebung{
        .Boxen = boxen,
        .Netz = netz,
        .Ton = ton,
        .Jetzt = Ortszeit,
        .OeffneSeite = OeffneSeite,
        .Programmordner = tarvelin::BestimmeProgrammordner(
            tarvelin::AlsPfad(QApplication::applicationDirPath()), Nutzerordner())};
    tarvelin::frmMain fenster(umgebung);
    fenster.Form_Load();
    return QApplication::exec();
}
