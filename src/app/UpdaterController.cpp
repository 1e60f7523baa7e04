#include "app/UpdaterController.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace velvane {

namespace {

namespace Key {
const QString automatic = QStringLiteral("updates/automatic");
const QString lastCheck = QStringLiteral("updates/lastCheck");
const QString lastFeed = QStringLiteral("updates/lastFeed");
} // namespace Key

using namespace std::chrono_literals;
constexpr auto firstTick = 1min;
constexpr auto nextTick = 1h;
constexpr qint64 secondsPerDay = 24 * 60 * 60;

QDateTime date(const QSettings &settings, const QString &key)
{
    return QDateTime::fromString(settings.value(key).toString(), Qt::ISODate).toUTC();
}

} // namespace

UpdateSource UpdateSource::ofThisProgram()
{
    UpdateSource source;
    source.feed.address = QUrl(QStringLiteral(VELVANE_UPDATE_FEED));
    source.publicKey = QByteArray::fromBase64(VELVANE_UPDATE_KEY);
    source.version = QStringLiteral(VELVANE_VERSION);
    if (!source.feed.address.isEmpty())
        source.owner =
            std::async(std::launch::async, [program = QCoreApplication::applicationFilePath()] {
                return PackageOwner::of(QFileInfo(program).canonicalFilePath());
            });
    return source;
}

UpdaterController::UpdaterController(UpdateSource source, QSettings &settings, QObject *parent)
    : QObject(parent)
    , m_source(std::move(source))
    , m_settings(settings)
{
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_timer.start(nextTick);
        tick(QDateTime::currentDateTimeUtc());
    });
}

UpdaterController::~UpdaterController() = default;

UpdaterController &UpdaterController::shared()
{
    // Its transfers need the application.
    static QPointer<UpdaterController> updater;
    if (!updater) {
        auto settings = std::make_unique<QSettings>();
        updater = new UpdaterController(UpdateSource::ofThisProgram(), *settings, qApp);
        settings.release()->setParent(updater);
    }
    return *updater;
}

PackageOwner::Owner UpdaterController::owner() const
{
    return m_source.owner.valid() ? m_source.owner.get() : PackageOwner::Owner::none;
}

bool UpdaterController::isAvailable() const
{
    return !m_source.feed.address.isEmpty() && owner() == PackageOwner::Owner::none;
}

bool UpdaterController::isAutomatic() const
{
    return m_settings.value(Key::automatic, true).toBool();
}

void UpdaterController::setAutomatic(bool automatic)
{
    m_settings.setValue(Key::automatic, automatic);
}

void UpdaterController::start()
{
    if (!m_source.feed.address.isEmpty())
        m_timer.start(firstTick);
}

void UpdaterController::tick(const QDateTime &now)
{
    if (!isAvailable() || !isAutomatic() || m_download)
        return;
    const QDateTime last = date(m_settings, Key::lastCheck);
    if (!last.isValid()) {
        m_settings.setValue(Key::lastCheck, now.toUTC().toString(Qt::ISODate));
        return;
    }
    // The clock may have been set back.
    if (std::abs(last.secsTo(now)) >= secondsPerDay)
        look(now);
}

void UpdaterController::checkForUpdates()
{
    if (m_source.feed.address.isEmpty()) {
        Q_EMIT checked(
            {tr("No update feed is configured, so Velvane cannot check for updates."), {}, {}});
        return;
    }
    if (owner() != PackageOwner::Owner::none) {
        Q_EMIT checked({PackageOwner::explanation(owner()), {}, {}});
        return;
    }
    m_isAsked = true;
    if (!m_download)
        look(QDateTime::currentDateTimeUtc());
}

void UpdaterController::look(const QDateTime &now)
{
    m_settings.setValue(Key::lastCheck, now.toUTC().toString(Qt::ISODate));
    m_download = new FeedDownload(m_source.feed, this);
    connect(m_download, &FeedDownload::received, this, &UpdaterController::finish);
    connect(m_download, &FeedDownload::failed, this, [this](const QString &sentence) {
        answer({sentence, {}, {}});
    });
    m_download->start();
}

void UpdaterController::finish(const QByteArray &feed)
{
    const auto read = readFeed(feed, {m_source.publicKey, date(m_settings, Key::lastFeed)});
    if (const auto *error = std::get_if<UpdateError>(&read))
        return answer({error->sentence, {}, {}});
    const auto &appcast = std::get<Appcast>(read);
    m_settings.setValue(Key::lastFeed, appcast.date.toString(Qt::ISODate));
    const UpdateAnswer found = compare(appcast.newest());
    if (!m_isAsked && !found.page.isEmpty())
        Q_EMIT updateFound(appcast.newest()->name);
    answer(found);
}

UpdateAnswer UpdaterController::compare(const Release *newest)
{
    const auto current = ProgramVersion::fromString(m_source.version);
    if (!newest || !current || !(*current < newest->version))
        return {tr("Velvane %1 is the newest version.").arg(m_source.version), {}, {}};
    return {
        tr("Velvane %1 is available.").arg(newest->name),
        tr("You have version %1. The download page opens in your browser.").arg(m_source.version),
        newest->page};
}

void UpdaterController::answer(const UpdateAnswer &answer)
{
    m_download->deleteLater();
    m_download.clear();
    if (std::exchange(m_isAsked, false))
        Q_EMIT checked(answer);
}

} // namespace velvane
