#include "app/RecentDemos.h"

#include "base/Background.h"
#include "base/WholeFile.h"
#include "model/Picture.h"
#include "render/FrameRenderer.h"
#include "timeline/Timeline.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

namespace velvane {

namespace {

// Pixels: twice the size in the start window, for fine screens.
constexpr QSize pictureSize(116, 72);

namespace Key {
const auto demos = QStringLiteral("recentDemos");
const auto path = QStringLiteral("path");
const auto used = QStringLiteral("used");
} // namespace Key

QImage firstFrame(const Snapshot &demo)
{
    const QImage frame = FrameRenderer::image(demo, Timeline(demo).state(Seconds::zero()));
    const QImage scaled =
        frame.scaled(pictureSize, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QRect middle(QPoint(), pictureSize);
    middle.moveCenter(scaled.rect().center());
    return scaled.copy(middle);
}

void writePicture(const QString &file, const Snapshot &demo)
{
    // A picture that cannot be kept is done without.
    QDir().mkpath(QFileInfo(file).absolutePath());
    if (const auto picture = Picture::encoded(firstFrame(demo)))
        WholeFile::write(file, *picture);
}

} // namespace

QString RecentDemo::name() const
{
    return QFileInfo(path).completeBaseName();
}

QString RecentDemo::folder() const
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString home = QDir::homePath();
    if (folder == home)
        return QStringLiteral("~");
    return folder.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + folder.mid(home.size())
                                                      : folder;
}

RecentDemos::RecentDemos(QSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_folder(QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
               + QStringLiteral("/recent-demos"))
{}

QList<RecentDemo> RecentDemos::stored() const
{
    QList<RecentDemo> demos;
    const QVariantList entries = m_settings.value(Key::demos).toList();
    for (const QVariant &entry : entries) {
        const QVariantMap fields = entry.toMap();
        demos.append({fields.value(Key::path).toString(), fields.value(Key::used).toDateTime()});
    }
    return demos;
}

void RecentDemos::store(const QList<RecentDemo> &demos)
{
    QVariantList entries;
    for (const RecentDemo &demo : demos)
        entries.append(QVariantMap{{Key::path, demo.path}, {Key::used, demo.used}});
    m_settings.setValue(Key::demos, entries);
    Q_EMIT changed();
}

QList<RecentDemo> RecentDemos::demos() const
{
    QList<RecentDemo> demos = stored();
    demos.removeIf([](const RecentDemo &demo) { return !QFileInfo(demo.path).isFile(); });
    return demos;
}

void RecentDemos::add(const QString &path, const Snapshot &demo)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    // Another process may have added some meanwhile.
    m_settings.sync();
    QList<RecentDemo> demos = stored();
    demos.removeIf([&absolute](const RecentDemo &known) { return known.path == absolute; });
    demos.prepend({absolute, QDateTime::currentDateTime()});
    while (demos.size() > most)
        QFile::remove(pictureFile(demos.takeLast().path));
    store(demos);
    Q_EMIT added(absolute);
    paint(absolute, demo);
}

QCoro::Task<> RecentDemos::paint(QString path, Snapshot demo)
{
    const QPointer<RecentDemos> alive(this);
    const QString file = pictureFile(path);
    const auto work = [file, demo] { writePicture(file, demo); };
    co_await inBackground(work);
    if (alive)
        Q_EMIT alive->changed();
}

void RecentDemos::clear()
{
    const QList<RecentDemo> demos = stored();
    for (const RecentDemo &demo : demos)
        QFile::remove(pictureFile(demo.path));
    store({});
    Q_EMIT cleared();
}

QImage RecentDemos::picture(const QString &path) const
{
    return QImage(pictureFile(path));
}

QString RecentDemos::pictureFile(const QString &path) const
{
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1);
    return m_folder + QLatin1Char('/') + QString::fromLatin1(hash.toHex()) + QStringLiteral(".png");
}

} // namespace velvane
