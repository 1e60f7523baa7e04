#include "model/ProjectFile.h"

#include "model/DocState.h"
#include "model/DocumentError.h"
#include "model/Fields.h"
#include "model/Picture.h"
#include "model/propertylist/PropertyList.h"

#include <QCoreApplication>

namespace velvane {

namespace {

namespace Key {
const QString version = QStringLiteral("version");
const QString steps = QStringLiteral("steps");
const QString startPoint = QStringLiteral("startPoint");
const QString canvasSize = QStringLiteral("canvasSize");
const QString fps = QStringLiteral("fps");
const QString background = QStringLiteral("background");
const QString recordingBookmark = QStringLiteral("recordingBookmark");

const QString id = QStringLiteral("id");
const QString kind = QStringLiteral("kind");
const QString point = QStringLiteral("point");
const QString text = QStringLiteral("text");
const QString duration = QStringLiteral("duration");
const QString pauseAfter = QStringLiteral("pauseAfter");
const QString keyCode = QStringLiteral("keyCode");
const QString modifiers = QStringLiteral("modifiers");
const QString centerWindow = QStringLiteral("centerWindow");
const QString collapsed = QStringLiteral("collapsed");
const QString recordedOffset = QStringLiteral("recordedOffset");
} // namespace Key

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

Step readStep(const PropertyList &record, qsizetype number)
{
    const Fields fields(record, number);
    static const Step defaults;
    const auto id = fields.id(Key::id);
    return {
        .id = id ? *id : QUuid::createUuid(),
        .kind = fields.kind(Key::kind),
        .point = fields.point(Key::point).value_or(defaults.point),
        .text = fields.text(Key::text).value_or(defaults.text),
        .duration = fields.seconds(Key::duration).value_or(defaults.duration),
        .pauseAfter = fields.seconds(Key::pauseAfter).value_or(defaults.pauseAfter),
        .keyCode = fields.integer<quint16>(Key::keyCode).value_or(defaults.keyCode),
        .modifiers = fields.integer<quint64>(Key::modifiers).value_or(defaults.modifiers),
        .centerWindow = fields.truth(Key::centerWindow).value_or(defaults.centerWindow),
        .collapsed = fields.truth(Key::collapsed).value_or(defaults.collapsed),
        .recordedOffset = fields.seconds(Key::recordedOffset),
    };
}

Array pair(double first, double second)
{
    return {PropertyList(first), PropertyList(second)};
}

PropertyList written(const Step &step)
{
    Dictionary record{
        {Key::id, step.id.toString(QUuid::WithoutBraces).toUpper()},
        {Key::kind, id(step.kind)},
        {Key::point, pair(step.point.x(), step.point.y())},
        {Key::text, step.text},
        {Key::duration, step.duration.count()},
        {Key::pauseAfter, step.pauseAfter.count()},
        {Key::keyCode, step.keyCode},
        {Key::modifiers, step.modifiers},
        {Key::centerWindow, step.centerWindow},
        {Key::collapsed, step.collapsed},
    };
    if (step.recordedOffset)
        record.append({Key::recordedOffset, step.recordedOffset->count()});
    return record;
}

} // namespace

ProjectFile ProjectFile::of(const DocState &state)
{
    return {.version = 1,
            .steps = state.steps,
            .startPoint = state.startPoint,
            .canvasSize = state.canvasSize,
            .fps = state.fps,
            .background = Picture::encoded(state.background),
            .recordingBookmark = state.recordingBookmark};
}

ProjectFile ProjectFile::from(const PropertyList &root)
{
    const Fields fields(root, 0);
    ProjectFile file;
    file.version = fields.required(Key::version, fields.integer<qint64>(Key::version));
    const Array &records = fields.array(Key::steps);
    if (records.size() > maxSteps)
        throw DocumentError(
            QCoreApplication::translate("ProjectFile", "more than %1 steps").arg(maxSteps));
    file.steps.reserve(records.size());
    for (const PropertyList &record : records)
        file.steps.append(readStep(record, file.steps.size() + 1));
    file.startPoint = fields.required(Key::startPoint, fields.point(Key::startPoint));
    const QPointF size = fields.required(Key::canvasSize, fields.point(Key::canvasSize));
    file.canvasSize = {size.x(), size.y()};
    file.fps = fields.required(Key::fps, fields.integer<int>(Key::fps));
    file.background = fields.data(Key::background);
    file.recordingBookmark = fields.data(Key::recordingBookmark);
    return file;
}

PropertyList ProjectFile::toPropertyList() const
{
    Array records;
    records.reserve(steps.size());
    for (const Step &step : steps)
        records.append(written(step));
    Dictionary root{
        {Key::version, 1},
        {Key::steps, records},
        {Key::startPoint, pair(startPoint.x(), startPoint.y())},
        {Key::canvasSize, pair(canvasSize.width(), canvasSize.height())},
        {Key::fps, fps},
    };
    if (background)
        root.append({Key::background, *background});
    if (recordingBookmark)
        root.append({Key::recordingBookmark, *recordingBookmark});
    return root;
}

} // namespace velvane
