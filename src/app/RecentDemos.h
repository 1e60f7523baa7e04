#pragma once

#include "model/Snapshot.h"

#include <QCoroTask>
#include <QDateTime>
#include <QObject>
#include <QSettings>

namespace velvane {

/// One demo that was opened or saved not long ago.
struct RecentDemo {
    QString path;
    QDateTime used; ///< when it was last opened or saved, local time

    /// The file's name without extension.
    QString name() const;
    /// The folder as people write it: "~" for the home folder.
    QString folder() const;
};

/// The demos last opened or saved, newest first, each once; kept in the settings. Main thread only.
///
/// Pictures of their first frames lie in the user's cache folder and are made in the background.
class RecentDemos : public QObject {
    Q_OBJECT
public:
    static constexpr int most = 10;

    /// The settings must outlive this object.
    explicit RecentDemos(QSettings &settings, QObject *parent = nullptr);

    /// Those whose file is there.
    QList<RecentDemo> demos() const;
    /// Puts a demo first and remembers its picture.
    void add(const QString &path, const Snapshot &demo);
    /// Forgets all, pictures too.
    void clear();

    /// The demo's first frame, small; null while there is none.
    QImage picture(const QString &path) const;

    /// The folder of the pictures; for tests.
    void setPictureFolder(const QString &folder) { m_folder = folder; }

Q_SIGNALS:
    /// A demo was opened or saved.
    void added(const QString &path);
    void cleared();
    void changed();

private:
    QList<RecentDemo> stored() const;
    void store(const QList<RecentDemo> &demos);
    QCoro::Task<> paint(QString path, Snapshot demo);
    QString pictureFile(const QString &path) const;

    QSettings &m_settings;
    QString m_folder;
};

} // namespace velvane
