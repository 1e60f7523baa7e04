#include "cli/DemoReport.h"

#include "base/PlainLine.h"
#include "cli/Columns.h"
#include "cli/Console.h"
#include "model/StepList.h"
#include "timeline/Timeline.h"

namespace velvane::cli {

namespace {

Json stepJson(const Step &step, std::optional<int> number, bool visible)
{
    return {{"id", json(step.id.toString(QUuid::WithoutBraces).toUpper())},
            {"kind", json(id(step.kind))},
            {"point", json(step.point)},
            {"text", json(step.text)},
            {"duration", step.duration.count()},
            {"pauseAfter", step.pauseAfter.count()},
            {"keyCode", step.keyCode},
            {"modifiers", step.modifiers},
            {"centerWindow", step.centerWindow},
            {"collapsed", step.collapsed},
            {"recordedOffset", jsonOr(step.recordedOffset, [](Seconds s) { return s.count(); })},
            {"number", jsonOr(number, [](int n) { return n; })},
            {"summary", json(step.englishSummary())},
            {"shortcutDisplay", json(step.shortcutDisplay())},
            {"visible", visible}};
}

Json segmentJson(const ResolvedStep &segment, qsizetype index)
{
    return {{"step", index},
            {"id", json(segment.step.id.toString(QUuid::WithoutBraces).toUpper())},
            {"start", segment.start.count()},
            {"end", segment.end.count()},
            {"actionDuration", segment.actionDuration.count()},
            {"startPos", json(segment.startPos)},
            {"endPos", json(segment.endPos)},
            {"heldEntering", segment.heldEntering}};
}

Json stepsJson(const QList<Step> &steps)
{
    Json rows = Json::array();
    const auto numbers = StepList::displayNumbers(steps);
    const auto visible = StepList::visibility(steps);
    for (qsizetype i = 0; i < steps.size(); ++i)
        rows.push_back(stepJson(steps[i], numbers[i], visible[i]));
    return rows;
}

// Segments are the steps without the sections, in the same order.
Json segmentsJson(const Timeline &timeline, const QList<Step> &steps)
{
    Json rows = Json::array();
    qsizetype next = 0;
    for (qsizetype i = 0; i < steps.size(); ++i) {
        if (steps[i].kind != StepKind::section)
            rows.push_back(segmentJson(timeline.steps()[next++], i));
    }
    return rows;
}

QString seconds(Seconds time)
{
    return QString::number(time.count(), 'f', 2);
}

QString plain(double number)
{
    return QString::number(number, 'g', 10);
}

void printRow(std::ostream &out, const QString &number, const QString &what, const QString &times)
{
    constexpr int width = 47;
    const QString row =
        number.rightJustified(4) + "  " + Columns::cut(plainLine(what, width), width);
    out << (times.isEmpty() ? row : Columns::left(row, width + 6) + times).toStdString() << '\n';
}

void printSettings(const Project &project, Seconds total, std::ostream &out)
{
    const auto setting = [&out](const QString &name, const QString &value) {
        out << Columns::left(name + u' ', 11).toStdString() << value.toStdString() << '\n';
    };
    const QSizeF canvas = project.canvasSize();
    const QPointF start = project.startPoint();
    const QImage &picture = project.background();
    setting(tr("Canvas"), QString("%1 × %2").arg(plain(canvas.width()), plain(canvas.height())));
    setting(tr("Rate"), tr("%1 frames per second").arg(project.fps()));
    setting(tr("Start"), QString("(%1, %2)").arg(plain(start.x()), plain(start.y())));
    setting(tr("Backdrop"),
            picture.isNull() ? tr("none")
                             : tr("picture of %1 × %2").arg(picture.width()).arg(picture.height()));
    setting(tr("Recording"), project.recordingBookmark() ? tr("yes") : tr("none"));
    setting(tr("Total"), seconds(total) + " s\n");
}

QString timesOf(const ResolvedStep &segment)
{
    return seconds(segment.start).rightJustified(9) + seconds(segment.end).rightJustified(9)
           + seconds(segment.actionDuration).rightJustified(9)
           + seconds(std::max(segment.step.pauseAfter, 0s)).rightJustified(9);
}

} // namespace

Json demoJson(const DemoDocument &demo)
{
    const Project &project = demo.project();
    const Timeline timeline(project.snapshot());
    return {{"version", demo.fileVersion()},
            {"fps", project.fps()},
            {"canvasSize", json(project.canvasSize())},
            {"startPoint", json(project.startPoint())},
            {"hasBackground", !project.background().isNull()},
            {"hasRecording", project.recordingBookmark().has_value()},
            {"total", timeline.total().count()},
            {"steps", stepsJson(project.steps())},
            {"segments", segmentsJson(timeline, project.steps())}};
}

void printDemoTable(const DemoDocument &demo, std::ostream &out)
{
    const Project &project = demo.project();
    const Timeline timeline(project.snapshot());
    printSettings(project, timeline.total(), out);
    printRow(out, "", tr("Step"),
             Columns::right(tr("Start"), 9) + Columns::right(tr("End"), 9)
                 + Columns::right(tr("Action"), 9) + Columns::right(tr("Pause"), 9));
    const auto numbers = StepList::displayNumbers(project.steps());
    auto segment = timeline.steps().begin();
    for (qsizetype i = 0; i < project.steps().size(); ++i) {
        const Step &step = project.steps()[i];
        if (numbers[i])
            printRow(out, QString::number(*numbers[i]), step.summary(), timesOf(*segment++));
        else
            printRow(out, step.collapsed ? "▸" : "▾", step.summary(), {});
    }
}

} // namespace velvane::cli
