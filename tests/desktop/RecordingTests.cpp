#include "CaptureStage.h"
#include "DelayProbe.h"
#include "Eventually.h"
#include "RecordedMovie.h"
#include "TestWindow.h"
#include "X11Session.h"
#include "capture/RunRecorder.h"
#include "support/RunToEnd.h"
#include "support/TemporaryHome.h"

#include <QGuiApplication>
#include <QPainter>
#include <QRasterWindow>

#include <list>

namespace velvane {

namespace {

const QColor red(190, 30, 30);
const QColor green(0, 255, 0);
const QColor blue(40, 60, 200);
const QList<QColor> palette{red, blue, QColor(220, 200, 40), QColor(60, 60, 60)};

class RecordingTest : public testing::Test {
protected:
    Clock &clock() { return session.desktop().clock(); }

    QString start(RecordScope scope = RecordScope::screen, const QString &app = {},
                  bool cursor = false)
    {
        return recorder.start(scope, app, cursor, false);
    }
    RecordedMovie stop()
    {
        const QString path = recorder.url();
        runToEnd(recorder.stop());
        return RecordedMovie(path);
    }
    /// Turns the event loop for a while.
    static void pass(int milliseconds)
    {
        const QDeadlineTimer end(milliseconds);
        while (!end.hasExpired()) {
            QCoreApplication::processEvents();
            QThread::msleep(2);
        }
    }
    void movePointer(int x, int y)
    {
        xcb_warp_pointer(theirs.get(), XCB_NONE, theirs.root(), 0, 0, 0, 0, int16_t(x), int16_t(y));
        xcb_flush(theirs.get());
        ASSERT_TRUE(
            eventually([&] { return session.desktop().screens().pointer() == QPointF(x, y); }));
    }

    TemporaryHome home;
    X11Session session;
    X11Connection theirs;
    RunRecorder recorder{session.desktop()};
    BareWindow scene{theirs, QRect(100, 100, 600, 400), red};
};

/// A window of ours, all green.
class GreenWindow : public QRasterWindow {
public:
    GreenWindow(const QRect &frame, Qt::WindowFlags flags)
    {
        setFlags(flags);
        setGeometry(frame);
        show();
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(QRect({}, size()), green);
        wasPainted = true;
    }
    bool wasPainted = false;
};

/// A server of the test's own, with a client that cannot be taken for the toolkit's, which has the
/// same number on another server perhaps.
struct ServerStage {
    explicit ServerStage(const QStringList &options = {}) : server(options)
    {
        do
            clients.emplace_back(server.display());
        while (isNumberedLikeToolkit(theirs()));
    }

    static bool isNumberedLikeToolkit(const X11Connection &connection)
    {
        auto *toolkit = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        return xcb_get_setup(connection.get())->resource_id_base
               == xcb_get_setup(toolkit->connection())->resource_id_base;
    }
    X11Connection &theirs() { return clients.back(); }

    TemporaryHome home;
    TestServer server;
    X11Session session{server.display()};
    std::list<X11Connection> clients;
};

} // namespace

TEST_F(RecordingTest, EveryChangeIsInTheMovieAtItsTime)
{
    const DelayProbe probe(clock());
    start();
    // The first picture is a while in the making, longer than what follows.
    ASSERT_TRUE(eventually([&] {
        QFile file(recorder.url());
        return file.open(QFile::ReadOnly) && file.readAll().contains("moof");
    }));
    // In the clock's time; the display's answer to the second says that it was painted.
    struct Change {
        Seconds earliest;
        Seconds latest;
        QColor color;
    };
    std::vector<Change> changes;
    for (int i = 0; i < 16; ++i) {
        pass(i % 4 == 3 ? 700 : 80 + 13 * i);
        const QColor color = palette[(i + 1) % palette.size()];
        const Seconds before = clock().now();
        scene.paint(QRect(0, 0, 600, 400), color);
        changes.push_back({before, clock().now(), color});
    }
    pass(300);
    const Seconds end = clock().now();
    const RecordedMovie movie = stop();

    EXPECT_EQ(movie.size(), theirs.rootSize());
    // A frame of the movie; and what a busy machine lets everybody wait.
    constexpr Seconds frame = 1s / 60 + 0.001s;
    const Seconds length = end - recorder.begun();
    EXPECT_GE(movie.duration(), length.count() - 1e-3);
    EXPECT_LE(movie.duration(), (length + frame + probe.delay(end, end + 0.1s)).count());
    const std::vector<RecordedMovie::Change> seen = movie.changesAt({400, 300});
    ASSERT_EQ(seen.size(), changes.size() + 1) << "the first colour, and each that followed";
    for (size_t i = 0; i < changes.size(); ++i) {
        const RecordedMovie::Change &change = seen[i + 1];
        const Seconds at = recorder.begun() + Seconds(change.time);
        EXPECT_TRUE(change.shows(changes[i].color)) << i;
        EXPECT_GE((at - changes[i].earliest + frame).count(), 0) << i << ", seconds early";
        // What delayed the picture before delays this one too.
        const Seconds latest = changes[i].latest + frame + probe.delay(changes[i].latest, at)
                               + probe.starved(changes[i].earliest - frame, at);
        EXPECT_LE((at - latest).count(), 0) << i << ", seconds late";
    }
}

TEST_F(RecordingTest, ThePointerIsThereWhenAskedForAndOnlyThen)
{
    for (const bool cursor : {true, false}) {
        RunRecorder one(session.desktop());
        movePointer(300, 250);
        const QString path = one.start(RecordScope::screen, {}, cursor, false);
        pass(300);
        runToEnd(one.stop());
        EXPECT_EQ(RecordedMovie(path).differs(QRect(300, 250, 12, 12), red), cursor);
        // Its name is that of its second.
        EXPECT_TRUE(QFile::remove(path));
    }
}

TEST_F(RecordingTest, AWindowIsRecordedWithWhatLiesOverIt)
{
    TestWindow window(theirs, "Notebook", QRect(200, 150, 501, 381));
    window.setNumbers("_NET_WM_PID", XCB_ATOM_CARDINAL, {1});
    const auto frame = [&]() -> QRectF {
        const auto found =
            RunRecorder::mainWindow("notebook", session.desktop().windows().windows());
        return found ? found->frame : QRectF();
    };
    ASSERT_TRUE(eventually([&] { return !frame().isEmpty(); }));
    const QRect place = frame().toRect();
    const BareWindow above(theirs, QRect(place.topLeft() + QPoint(20, 60), QSize(80, 80)), blue);
    start(RecordScope::window, " NOTEBOOK ");
    EXPECT_FALSE(recorder.fellBackToScreen());
    pass(300);
    const RecordedMovie movie = stop();
    EXPECT_EQ(movie.size(), QSize(place.width() & ~1, place.height() & ~1));
    EXPECT_FALSE(movie.differs(QRect(30, 70, 60, 60), blue));
}

TEST_F(RecordingTest, WithoutTheWindowTheScreenIsRecorded)
{
    start(RecordScope::window, "Nobody");
    EXPECT_TRUE(recorder.fellBackToScreen());
    pass(200);
    EXPECT_EQ(stop().size(), theirs.rootSize());
}

TEST_F(RecordingTest, OurWindowsAreInNoPicture)
{
    GreenWindow editor(QRect(50, 50, 700, 500), Qt::Window);
    ASSERT_TRUE(eventually([&] { return editor.wasPainted; }));
    start();
    for (int i = 0; i < 6; ++i) {
        GreenWindow menu(QRect(150 + i * 10, 150, 120, 200), Qt::Popup);
        GreenWindow dialog(QRect(300, 200 + i * 10, 200, 100), Qt::Dialog);
        EXPECT_TRUE(eventually([&] { return menu.wasPainted && dialog.wasPainted; }));
        scene.paint(QRect(0, 0, 600, 400), palette[i % palette.size()]);
        pass(150);
    }
    const RecordedMovie movie = stop();
    EXPECT_GT(movie.changesAt({400, 300}).size(), 4U);
    EXPECT_FALSE(movie.everShows(green));
}

TEST(RecordingServer, AChangeOfResolutionGoesOnInTheSameMovie)
{
    ServerStage stage({"-screen", "0", "1280x1024x24", "+extension", "RANDR"});
    BareWindow scene(stage.theirs(), QRect(0, 0, 1280, 1024), red);
    RunRecorder recorder(stage.session.desktop());
    const QString path = recorder.start(RecordScope::screen, {}, false, false);
    const auto xrandr = [&](const QString &options) {
        QProcess::execute("xrandr", QStringList{"-d", stage.server.display()} + options.split(' '));
    };
    xrandr("--newmode small 40 800 840 968 1056 600 601 605 628");
    xrandr("--addmode screen small");
    xrandr("--output screen --mode small");
    ASSERT_TRUE(eventually([&] {
        const auto display = stage.session.desktop().screens().primaryDisplay();
        return display && display->frame.size() == QSizeF(800, 600);
    }));
    scene.paint(QRect(0, 0, 1280, 1024), blue);
    QThread::msleep(500);
    xrandr("--output screen --mode 1280x1024");
    scene.paint(QRect(0, 0, 1280, 1024), palette[2]);
    QThread::msleep(500);
    runToEnd(recorder.stop());

    const RecordedMovie movie(path);
    EXPECT_EQ(movie.size(), QSize(1280, 1024));
    QList<int> shown;
    for (const RecordedMovie::Change &change : movie.changesAt({640, 512})) {
        for (int i = 0; i < palette.size(); ++i) {
            if (change.shows(palette[i]))
                shown << i;
        }
    }
    // What a growing display uncovers, the server itself paints in the window's own colour.
    EXPECT_EQ(shown.value(0, -1), 0);
    shown.removeAll(0);
    EXPECT_EQ(shown, QList<int>({1, 2}));
}

TEST(RecordingServer, AServerThatGoesAwayEndsTheRecordingAndKeepsIt)
{
    ServerStage stage;
    BareWindow scene(stage.theirs(), QRect(0, 0, 400, 400), red);
    RunRecorder recorder(stage.session.desktop());
    QStringList ended;
    QObject::connect(&recorder, &RunRecorder::ended,
                     [&](const QString &reason) { ended << reason; });
    const QString path = recorder.start(RecordScope::screen, {}, true, false);
    QThread::msleep(400);
    stage.server.stop();
    EXPECT_TRUE(eventually([&] { return !ended.isEmpty(); }));
    EXPECT_EQ(ended, QStringList("The X server has gone."));
    runToEnd(recorder.stop());
    EXPECT_TRUE(RecordedMovie(path).changesAt({200, 200}).front().shows(red));
}

} // namespace velvane
