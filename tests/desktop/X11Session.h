#pragma once

#include "platform/x11/X11Desktop.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

/// A session on the test's display whose user has a data folder of its own.
class X11Session {
public:
    explicit X11Session(const QByteArray &display = qgetenv("DISPLAY"))
        : m_display(display)
        , m_desktop(environment())
    {}

    X11Desktop &desktop() { return m_desktop; }

    /// Installs an application for this user, with a name in German.
    void install(const QString &id, const QString &name, const QString &germanName)
    {
        installEntry(id, QStringLiteral("Exec=true\nName=%1\nName[de]=%2\n").arg(name, germanName));
    }

    /// The same with these lines in its entry.
    void installEntry(const QString &id, const QString &lines)
    {
        const QDir folder(m_data.filePath("applications"));
        folder.mkpath(".");
        QFile file(folder.filePath(id + ".desktop"));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\n" + lines.toUtf8());
    }

private:
    QProcessEnvironment environment() const
    {
        QProcessEnvironment made = QProcessEnvironment::systemEnvironment();
        made.remove("XDG_CURRENT_DESKTOP");
        made.insert("DISPLAY", QString::fromLocal8Bit(m_display));
        made.insert("XDG_DATA_HOME", m_data.path());
        made.insert("LC_ALL", "de_DE.UTF-8");
        return made;
    }

    const QTemporaryDir m_data;
    const QByteArray m_display;
    X11Desktop m_desktop;
};

/// An X server of the test's own, without a window manager.
class TestServer {
public:
    explicit TestServer(const QStringList &options = {})
    {
        const QStringList fixed{"-displayfd", "1", "-noreset", "-nolisten", "tcp"};
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start("Xvfb", fixed + options);
        m_process.waitForReadyRead(10'000);
        m_display = ":" + m_process.readAll().trimmed();
    }
    ~TestServer() { stop(); }
    TestServer(const TestServer &) = delete;
    TestServer &operator=(const TestServer &) = delete;

    QByteArray display() const { return m_display; }

    void stop()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QByteArray m_display;
};

} // namespace velvane
