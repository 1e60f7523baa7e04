#include "capture/RunSettings.h"

namespace velvane {

namespace {

namespace Key {
const QString hideOthers = QStringLiteral("hideOthersDuringRun");
const QString recordMode = QStringLiteral("recordMode");
const QString recordCursor = QStringLiteral("recordCursor");
} // namespace Key

} // namespace

RunSettings::RunSettings(QSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{}

bool RunSettings::hideOthersDuringRun() const
{
    return m_settings.value(Key::hideOthers, false).toBool();
}

void RunSettings::setHideOthersDuringRun(bool hide)
{
    if (hide != hideOthersDuringRun())
        set(Key::hideOthers, hide);
}

QString RunSettings::recordModeRaw() const
{
    return m_settings.value(Key::recordMode, id(RecordMode::off)).toString();
}

void RunSettings::setRecordMode(RecordMode mode)
{
    if (id(mode) != recordModeRaw())
        set(Key::recordMode, id(mode));
}

bool RunSettings::recordCursor() const
{
    return m_settings.value(Key::recordCursor, true).toBool();
}

void RunSettings::setRecordCursor(bool record)
{
    if (record != recordCursor())
        set(Key::recordCursor, record);
}

void RunSettings::set(const QString &key, const QVariant &value)
{
    m_settings.setValue(key, value);
    Q_EMIT changed();
}

} // namespace velvane
