#include "editor/TaskbarProgress.h"

#include <QDBusConnection>
#include <QGuiApplication>

namespace velvane {

void TaskbarProgress::follow(ExportController &exporting)
{
    const auto follow = [this, &exporting] { update(exporting); };
    connect(&exporting, &ExportController::isExportingChanged, this, follow);
    connect(&exporting, &ExportController::exportProgressChanged, this, follow);
    connect(&exporting, &QObject::destroyed, this, [this, &exporting] { forget(&exporting); });
}

std::optional<double> TaskbarProgress::progress() const
{
    if (m_parts.empty())
        return {};
    double sum = 0;
    for (const auto &[exporting, part] : m_parts)
        sum += part.progress;
    return sum / double(m_parts.size());
}

QDBusMessage TaskbarProgress::message(std::optional<double> progress)
{
    QDBusMessage message = QDBusMessage::createSignal(
        QStringLiteral("/com/orvikel/velvane"), QStringLiteral("com.canonical.Unity.LauncherEntry"),
        QStringLiteral("Update"));
    message << QStringLiteral("application://%1.desktop").arg(QGuiApplication::desktopFileName())
            << QVariantMap{{QStringLiteral("progress"), progress.value_or(0)},
                           {QStringLiteral("progress-visible"), progress.has_value()}};
    return message;
}

void TaskbarProgress::update(const ExportController &exporting)
{
    if (exporting.isExporting())
        m_parts[&exporting] = {.isRunning = true, .progress = exporting.exportProgress()};
    else if (const auto part = m_parts.find(&exporting); part != m_parts.end())
        part->second = {.isRunning = false, .progress = 1};
    show();
}

void TaskbarProgress::forget(const ExportController *exporting)
{
    m_parts.erase(exporting);
    show();
}

void TaskbarProgress::show()
{
    const auto isRunning = [](const auto &entry) { return entry.second.isRunning; };
    if (std::none_of(m_parts.begin(), m_parts.end(), isRunning))
        m_parts.clear();
    const auto now = progress();
    const int percent = now ? int(*now * 100) : -1;
    if (percent == m_percent)
        return;
    m_percent = percent;
    QDBusConnection::sessionBus().send(message(now));
    Q_EMIT progressChanged();
}

} // namespace velvane
