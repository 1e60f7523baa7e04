#include "editor/StepMime.h"

#include "model/DemoDocument.h"
#include "model/DocumentError.h"
#include "model/ProjectFile.h"
#include "model/propertylist/BinaryReader.h"

#include <QMimeData>

namespace velvane {

namespace {

ProjectFile decoded(const QByteArray &bytes)
{
    try {
        return ProjectFile::from(BinaryReader::read(bytes));
    } catch (const DocumentError &) {
        // Another program's data under our type: nothing to paste.
        return {};
    }
}

} // namespace

QString StepMime::type()
{
    return QStringLiteral("application/vnd.orvikel.velvane.steps");
}

std::unique_ptr<QMimeData> StepMime::write(const QList<Step> &steps,
                                           const std::optional<QByteArray> &recordingBookmark)
{
    ProjectFile file;
    file.steps = steps;
    file.recordingBookmark = recordingBookmark;
    QStringList lines;
    lines.reserve(steps.size());
    for (const Step &step : steps)
        lines << step.summary();
    auto data = std::make_unique<QMimeData>();
    data->setData(type(), DemoDocument::contents(file));
    data->setText(lines.join(u'\n'));
    return data;
}

QList<Step> StepMime::read(const QMimeData &data,
                           const std::optional<QByteArray> &recordingBookmark)
{
    if (!data.hasFormat(type()))
        return {};
    ProjectFile file = decoded(data.data(type()));
    const bool sameRecording = recordingBookmark && file.recordingBookmark == recordingBookmark;
    for (Step &step : file.steps) {
        step.id = QUuid::createUuid();
        if (!sameRecording)
            step.recordedOffset.reset();
    }
    return file.steps;
}

} // namespace velvane
