#include "cli/DemoRun.h"

#include "cli/Waiting.h"
#include "live/LiveRunController.h"
#include "model/StepList.h"

#include <algorithm>

namespace velvane::cli {

namespace {

std::optional<QUuid> stepNamed(const QList<Step> &steps, const QString &name)
{
    const QUuid id(name);
    if (!id.isNull() && StepList::index(steps, id))
        return id;
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    const QList<std::optional<int>> numbers = StepList::displayNumbers(steps);
    const qsizetype place = isNumber ? numbers.indexOf(std::optional(number)) : -1;
    return place < 0 ? std::nullopt : std::optional(steps[place].id);
}

// The step to begin with; nothing for the first. Throws what the controller would not say.
std::optional<QUuid> checked(const QList<Step> &steps, Desktop &desktop, const QString &from)
{
    if (steps.isEmpty())
        return {};
    const auto step = stepNamed(steps, from);
    if (!from.isEmpty() && !step)
        throw CommandError(tr("there is no step “%1”").arg(from));
    // In a terminal no page of settings is opened.
    const QString withheld = desktop.permissions().explanation(Permission::accessibility);
    if (!withheld.isEmpty())
        throw CommandError(withheld);
    return step;
}

void showCountdown(int number, Console &console)
{
    if (number == 0)
        console.err << '\n';
    else
        console.err << number << "… " << std::flush;
}

} // namespace

int runDemo(DemoDocument &demo, Desktop &desktop, const DemoRun &run, Console &console)
{
    const auto from = checked(demo.project().steps(), desktop, run.from);
    Playback playback;
    LiveRunController live(demo.project(), playback, desktop, [&run] { return run.options; });
    QString outcome;
    QObject::connect(&live, &LiveRunController::liveCountdownChanged, &live,
                     [&] { showCountdown(live.liveCountdown(), console); });
    QObject::connect(&live, &LiveRunController::reported, &live, [&](const QString &message) {
        if (live.isBusy())
            console.err << printable(message) << std::endl;
        else
            outcome = message;
    });

    Waiting::forTask([&] { return live.runLive(from); }, [&] { live.cancel(); });

    if (live.outcome() == LiveRunController::Outcome::refused)
        throw CommandError(outcome);
    console.out << printable(outcome) << std::endl;
    if (!live.recordingPath().isEmpty())
        console.out << live.recordingPath().toStdString() << std::endl;
    return live.outcome() == LiveRunController::Outcome::finished ? 0 : 1;
}

} // namespace velvane::cli
