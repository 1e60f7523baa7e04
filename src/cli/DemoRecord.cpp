#include "cli/DemoRecord.h"

#include "capture/RecordActionsController.h"
#include "cli/DemoFile.h"
#include "cli/KeptRecording.h"
#include "cli/RescuedDemo.h"
#include "cli/Waiting.h"

#include <QFileInfo>

#include <climits>

namespace velvane::cli {

namespace {

// In a terminal no page of settings is opened.
void checkPermissions(Permissions &permissions)
{
    for (const auto permission : {Permission::accessibility, Permission::inputMonitoring}) {
        const QString withheld = permissions.explanation(permission);
        if (!withheld.isEmpty())
            throw CommandError(withheld);
    }
}

// Better now than after somebody has performed a demo for it.
void checkWritable(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isWritable() || !QFileInfo(file.absolutePath()).isWritable())
        throw CommandError(tr("%1: is not writable").arg(path));
}

QString sizeText(QSizeF size)
{
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

void tellLargerScreen(const RecordActionsController &recording, QSizeF canvas, Console &console)
{
    if (const std::optional<QSizeF> screen = recording.largerScreen())
        console.err << printable(tr("The screen (%1) is larger than the canvas (%2): what lies "
                                    "beyond is recorded at the canvas's edge.")
                                     .arg(sizeText(*screen), sizeText(canvas)))
                    << std::endl;
}

// Another program may have saved the demo meanwhile: the steps go to what the file holds now.
void append(const QList<Step> &steps, const std::optional<QByteArray> &movie,
            const std::string &demo)
{
    DemoDocument latest = readDemo(demo);
    Project &project = latest.project();
    project.setSteps(project.steps() + steps);
    project.setRecordingBookmark(movie);
    writeDemo(project.fileSnapshot(), fileName(demo));
}

// The steps of a performance that nobody wants to give twice. What the demo was when it began goes
// with them.
[[noreturn]] void rescue(const CommandError &failure, const DocState &state, const QString &path,
                         KeptRecording &kept)
{
    const std::optional<QString> rescued = rescueDemo(ProjectFile::of(state), path);
    if (!rescued)
        throw failure;
    kept.forget();
    throw CommandError(tr("%1; the recorded steps are in %2").arg(failure.what(), *rescued));
}

// Saves what was recorded after the first so many steps.
void keep(const DocState &state, qsizetype before, const std::string &demo, KeptRecording &kept)
{
    kept.tick();
    try {
        append(state.steps.sliced(before), state.recordingBookmark, demo);
    } catch (const CommandError &failure) {
        rescue(failure, state, fileName(demo), kept);
    }
    kept.forget();
}

} // namespace

int recordDemo(const std::string &demo, Desktop &desktop, Console &console)
{
    DemoDocument document = readDemo(demo);
    checkWritable(fileName(demo));
    checkPermissions(desktop.permissions());
    Project &project = document.project();
    const qsizetype before = project.steps().size();
    Playback playback;
    RecordActionsController recording(project, playback, desktop);
    QString outcome;
    QObject::connect(&recording, &RecordActionsController::reported, &recording,
                     [&](const QString &message) {
                         if (recording.isBusy())
                             console.err << printable(message) << std::endl;
                         else
                             outcome = message;
                     });
    QObject::connect(
        &recording, &RecordActionsController::movieEnded, &recording,
        [&](const QString &message) { console.err << printable(message) << std::endl; });
    tellLargerScreen(recording, project.canvasSize(), console);
    // Called as the process ends: there is nobody left to tell.
    const auto save = [&](KeptRecording &kept) {
        const DocState state = recording.stateSoFar();
        if (state.steps.size() == before)
            return;
        try {
            keep(state, before, demo, kept);
        } catch (const CommandError &failure) {
            console.err << printable(failure.message()) << std::endl;
        }
    };
    KeptRecording kept(recording, fileName(demo), save);
    Waiting::forTask([&] { return recording.record(); }, [&] { recording.cancel(); });

    using Outcome = RecordActionsController::Outcome;
    if (recording.outcome() == Outcome::refused)
        throw CommandError(outcome);
    if (recording.outcome() == Outcome::recorded)
        keep(project.docState(), before, demo, kept);
    console.out << printable(outcome) << std::endl;
    return 0;
}

} // namespace velvane::cli
