#pragma once

#include "update/FeedDownload.h"
#include "update/FeedReading.h"
#include "update/PackageOwner.h"

#include <QPointer>
#include <QSettings>
#include <QTimer>

#include <future>

namespace velvane {

/// Where newer versions are announced, and what this one is.
struct UpdateSource {
    FeedRequest feed;     ///< no address: there is no feed
    QByteArray publicKey; ///< of the feed's maker
    QString version;      ///< of this program
    /// Who else brings the updates. Looking for that takes long, so it happens in the background;
    /// not valid: nobody.
    std::shared_future<PackageOwner::Owner> owner;

    /// As the program was built and installed.
    static UpdateSource ofThisProgram();
};

/// What a check has found.
struct UpdateAnswer {
    QString sentence;
    QString detail; ///< may be empty
    QUrl page;      ///< where the newer version is; empty when there is none
};

/// Looks for newer versions of the program. One for all windows; main thread only.
///
/// It reads one signed feed and tells: it never downloads or runs anything else. Under Flatpak and
/// where the package manager owns the program it does not look at all. Kept in the settings are
/// "updates/automatic" (default true), "updates/lastCheck" and "updates/lastFeed", both UTC.
class UpdaterController : public QObject {
    Q_OBJECT
public:
    /// Borrows the settings.
    UpdaterController(UpdateSource source, QSettings &settings, QObject *parent = nullptr);
    ~UpdaterController() override;

    /// The one updater; made on first use, ends with the application.
    static UpdaterController &shared();

    /// Can this program look for updates at all? May wait for who owns the program to be found.
    bool isAvailable() const;
    /// Does it look by itself, too?
    bool isAutomatic() const;
    void setAutomatic(bool automatic);

    /// Begins to look by itself, at most once a day, from a while after now.
    void start();
    /// Looks if it is time: a day after the last look, whatever came of that. The first start ever
    /// counts as one, so that it is left alone.
    void tick(const QDateTime &now);

    /// Looks now; the answer arrives through checked(), at once when there is nowhere to look.
    void checkForUpdates();

Q_SIGNALS:
    /// What checkForUpdates() has found.
    void checked(const velvane::UpdateAnswer &answer);
    /// A look that nobody asked for has found a newer version. One that failed is not told.
    void updateFound(const QString &name);

private:
    PackageOwner::Owner owner() const;
    void look(const QDateTime &now);
    void finish(const QByteArray &feed);
    void answer(const UpdateAnswer &answer);
    UpdateAnswer compare(const Release *newest);

    const UpdateSource m_source;
    QSettings &m_settings;
    QTimer m_timer;
    QPointer<FeedDownload> m_download;
    bool m_isAsked = false; ///< did somebody ask for the look under way?
};

} // namespace velvane
