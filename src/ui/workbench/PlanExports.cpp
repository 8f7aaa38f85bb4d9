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
#include "ui/timeline/TimelinePicture.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

std::string SaveBytes(const std::filesystem::path& file, const std::string& bytes,
                      const FileSystem& files) {
    return WriteFileAtomically(file, bytes, files)
               ? "Gespeichert: " + PathToQString(file).toStdString()
               : "Die Datei konnte nicht gespeichert werden: wähle einen Ordner, in dem du "
                 "schreiben kannst.";
}

/// Asks for the file, whose suffix says the format.
std::string SavePictureOf(const QSize& size, int sharpness, const Environment& environment,
                          const std::function<void(QPainter&)>& draw) {
    const auto file = environment.AskForFile(Dialogs::Purpose::Picture);
    if (file.empty()) {
        return "";
    }
    const auto picture =
        RenderPicture(size, sharpness, QFileInfo(PathToQString(file)).suffix(), draw);
    return picture ? SaveBytes(file, picture->toStdString(), environment.files)
                   : std::string("Der Name des Bildes endet auf .png, ") +
                         (HasSvg() ? ".svg " : "") + "oder .pdf: es wurde nichts gespeichert.";
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

std::string SavePoster(const RunTrace& trace, const PlanPoster::Parts& parts,
                       const Environment& environment) {
    const PlanPoster poster(trace, parts);
    return SavePictureOf(poster.Size(), 1, environment,
                         [&](QPainter& painter) { poster.Paint(painter); });
}

std::string SaveSection(TimelineView& timeline, const Environment& environment) {
    // Sharp on screens of scale 2, too.
    return SavePictureOf(timeline.size(), 2, environment,
                         [&](QPainter& painter) { timeline.PaintSection(painter); });
}

}  // namespace tarvelin
