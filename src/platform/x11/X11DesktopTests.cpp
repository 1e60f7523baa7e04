#include "platform/x11/X11Desktop.h"

#include "base/KeyCode.h"
#include "support/Print.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace velvane {

namespace {

// A session whose display does not exist, with one installed application.
class WithoutDisplay : public testing::TestWithParam<const char *> {
protected:
    WithoutDisplay()
    {
        QDir(data.path()).mkdir("applications");
        QFile file(data.filePath("applications/notes.desktop"));
        if (file.open(QFile::WriteOnly))
            file.write("[Desktop Entry]\nType=Application\nName=Notes\nExec=true\n");
    }

    QProcessEnvironment environment() const
    {
        QProcessEnvironment made;
        made.insert("DISPLAY", GetParam());
        made.insert("XDG_DATA_HOME", data.path());
        made.insert("XDG_DATA_DIRS", data.path());
        return made;
    }

    QTemporaryDir data;
};

// Takes the place of the browser.
class PageReader : public QObject {
    Q_OBJECT
public:
    PageReader()
    {
        QStandardPaths::setTestModeEnabled(true);
        QDesktopServices::setUrlHandler("file", this, "read");
    }
    ~PageReader() override
    {
        QDesktopServices::unsetUrlHandler("file");
        QStandardPaths::setTestModeEnabled(false);
    }

    QString page;

public Q_SLOTS:
    void read(const QUrl &address)
    {
        QFile file(address.toLocalFile());
        if (file.open(QFile::ReadOnly))
            page = QString::fromUtf8(file.readAll());
        file.remove();
    }
};

} // namespace

TEST_P(WithoutDisplay, InstalledApplicationsAreListedAndNothingRuns)
{
    X11Desktop desktop(environment());
    ASSERT_EQ(desktop.apps().installed().size(), 1U);
    EXPECT_EQ(desktop.apps().installed().front().name, "Notes");
    EXPECT_TRUE(desktop.apps().running().empty());
}

TEST_P(WithoutDisplay, ThereAreNoDisplaysAndNoPointer)
{
    X11Desktop desktop(environment());
    EXPECT_TRUE(desktop.screens().displays().empty());
    EXPECT_FALSE(desktop.screens().mainDisplay());
    EXPECT_FALSE(desktop.screens().primaryDisplay());
    EXPECT_FALSE(desktop.screens().pointer());
    EXPECT_FALSE(desktop.screens().missing().isEmpty());
    EXPECT_EQ(desktop.description(), "no display");
}

TEST_P(WithoutDisplay, NothingIsGrantedAndTheReasonIsGiven)
{
    X11Desktop desktop(environment());
    EXPECT_FALSE(desktop.permissions().request(Permission::accessibility));
    EXPECT_EQ(desktop.permissions().explanation(Permission::inputMonitoring),
              "Listening to the mouse and keyboard takes a connection to the X server, "
              "and there is none.");
}

TEST_P(WithoutDisplay, TheSettingsPageExplainsTheRemedy)
{
    PageReader browser;
    X11Desktop desktop(environment());
    EXPECT_TRUE(desktop.shell().open(QUrl(SettingsAddress::screenRecording)));
    EXPECT_TRUE(browser.page.contains("<h1>Taking pictures of the screen</h1>"));
    EXPECT_TRUE(browser.page.contains(
        desktop.permissions().explanation(Permission::screenRecording).toHtmlEscaped()));
}

TEST_P(WithoutDisplay, WhatIsMissingRefusesAndSaysWhy)
{
    X11Desktop desktop(environment());
    EXPECT_EQ(desktop.input().missing(), "There is no display.");
    desktop.input().moveTo({5, 5}, false);
    desktop.input().beginTyping("a")->post("a");
    EXPECT_FALSE(desktop.tap().listen([](const InputEvent &) {}, [] {}));
    EXPECT_FALSE(desktop.keys().watch(KeyCode::escape, [] {}));
    const CaptureOpening opening = desktop.capture().open(
        {}, [](const Frame &) {}, [](const QString &) {});
    EXPECT_FALSE(opening.stream);
    EXPECT_EQ(opening.error, desktop.capture().missing());
    EXPECT_TRUE(desktop.windows().windows().empty());
    EXPECT_FALSE(desktop.shell().reveal("/nowhere/a.mp4"));
}

TEST(Desktop, IsNeverNullWhateverTheSession)
{
    const std::unique_ptr<Desktop> desktop = Desktop::open();
    ASSERT_TRUE(desktop);
    EXPECT_FALSE(desktop->description().isEmpty());
    EXPECT_GT(desktop->clock().now(), 0s);
}

INSTANTIATE_TEST_SUITE_P(Names, WithoutDisplay, testing::Values(":64999", "nonsense", "no host:0"));

} // namespace velvane

#include "X11DesktopTests.moc"
