// Starts the window.
#include <QDateTime>

#include "ui/Aussehen.h"
#include "ui/Meldungsfenster.h"
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

}  // namespace

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    tarvelin::StelleAussehenEin(programm);
    tarvelin::Meldungsfenster boxen;
    const tarvelin::Umgebung umgebung{
        .Boxen = boxen,
        .Jetzt = Ortszeit,
        .Programmordner = QApplication::applicationDirPath().toStdString()};
    tarvelin::frmMain fenster(umgebung);
    fenster.show();
    return QApplication::exec();
}
