// Asks for files and writes them.
#include "ui/workbench/PlanExports.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <chrono>

#include "export/Calendar.h"
#include "export/Timetable.h"
#include "persistence/AtomicWrite.h"
#include "ui/services/SvgImage.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/TimelinePicture.h"

namespace tarvelin {

namespace {

std::string SaveBytes(const std::filesystem::path& file, const std::string& bytes,
                      const FileSystem& files) {
    return WriteFileAtomically(file, bytes, files)
               ? "Gespeichert: " + PathToQString(file).toStdString()
               : "Die Datei konnte nicht gespeichert werden: wähle einen Ordner, in dem du "
                 "schreiben kannst.";
}

}  // namespace

std::string CopyTimetable(const RunTrace& trace) {
    auto* const content = new QMimeData;
    content->setText(ToQString(TimetableTsv(trace)));
    content->setHtml(ToQString(TimetableHtml(trace)));
    // The clipboard owns it.
    QGuiApplication::clipboard()->setMimeData(content);
    return "Der Zeitplan liegt in der Zwischenablage.";
}

std::string SaveCalendar(const RunTrace& trace, std::optional<Long> leadTime,
                         const Environment& environment) {
    const auto file = environment.AskForFile(Dialogs::Purpose::Calendar);
    if (file.empty()) {
        return "";
    }
    const auto createdAt =
        std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    return SaveBytes(file, CalendarText(trace, leadTime, createdAt), environment.files);
}

std::string SavePicture(TimelineView& timeline, const Environment& environment) {
    const auto file = environment.AskForFile(Dialogs::Purpose::Picture);
    if (file.empty()) {
        return "";
    }
    const auto picture = RenderTimeline(timeline, QFileInfo(PathToQString(file)).suffix());
    return picture ? SaveBytes(file, picture->toStdString(), environment.files)
                   : std::string("Der Name des Bildes endet auf .png, ") +
                         (HasSvg() ? ".svg " : "") + "oder .pdf: es wurde nichts gespeichert.";
}

}  // namespace tarvelin
