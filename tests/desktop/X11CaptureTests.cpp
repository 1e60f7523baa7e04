#include "CaptureStage.h"
#include "Eventually.h"
#include "TestWindow.h"
#include "X11Session.h"
#include "support/contracts/ScreenCaptureContract.h"

#include <memory>

namespace velvane {

namespace {

const QColor red(Qt::red);
const QColor green(Qt::green);
const QColor blue(Qt::blue);
const QColor yellow(Qt::yellow);

// The contract's stage: what is painted goes into a window that covers the display. A window of
// ours lies over it all, unless the program is one without windows.
template <bool hasWindows>
class X11CaptureStage {
public:
    X11CaptureStage()
    {
        if (hasWindows)
            m_cover = std::make_unique<BareWindow>(m_ours, QRect({}, screenSize()), green);
        m_keeping = m_keeper.open(m_capture);
    }

    ScreenCapture &capture() { return m_capture; }
    QSize screenSize() const { return m_theirs.rootSize(); }

    void paint(const QRect &rect, const QColor &color)
    {
        m_probe = rect.center();
        m_color = color;
        m_canvas.paint(rect, color);
    }

    // Whoever begins to watch now sees the last change after those that watched before.
    void settle()
    {
        Viewer viewer;
        const CaptureOpening opening = viewer.open(m_capture);
        ASSERT_TRUE(eventually([&] { return viewer.colorAt(m_probe) == m_color; }));
        const int seen = viewer.count();
        ASSERT_TRUE(eventually([&] { return viewer.count() > seen; }));
    }

private:
    X11Connection m_theirs;
    X11Connection m_ours;
    SystemClock m_clock;
    X11Capture m_capture{m_theirs, qgetenv("DISPLAY"), m_clock, [this] {
                             return hasWindows ? X11OwnWindows(m_ours.get()) : X11OwnWindows();
                         }};
    BareWindow m_canvas{m_theirs, QRect({}, screenSize()), Qt::black};
    std::unique_ptr<BareWindow> m_cover;
    // As long as one stream is open the server keeps what is drawn below other windows.
    Viewer m_keeper;
    CaptureOpening m_keeping;
    QPoint m_probe;
    QColor m_color = Qt::black;
};

// A red window of another program, and a connection whose windows are ours.
class X11CaptureTest : public testing::Test {
protected:
    bool shows(QPoint place, const QColor &color)
    {
        return eventually([&] { return viewer.colorAt(place) == color; });
    }

    X11Connection theirs;
    X11Connection ours;
    SystemClock clock;
    X11Capture capture{theirs, qgetenv("DISPLAY"), clock,
                       [this] { return X11OwnWindows(ours.get()); }};
    BareWindow scene{theirs, QRect(100, 100, 400, 300), red};
    Viewer viewer;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(X11Composed, ScreenCaptureContract, X11CaptureStage<true>);
INSTANTIATE_TYPED_TEST_SUITE_P(X11Root, ScreenCaptureContract, X11CaptureStage<false>);

TEST_F(X11CaptureTest, OurWindowsAreInNoPictureAndWhatIsBehindThemIsSeenWhole)
{
    BareWindow editor(ours, QRect(50, 50, 600, 500), green);
    viewer.forbid(green);
    const CaptureOpening opening = viewer.open(capture);
    ASSERT_TRUE(shows({300, 200}, red));
    for (int i = 0; i < 20; ++i) {
        BareWindow menu(ours, QRect(120 + i, 120, 100, 100), green);
        menu.configure(XCB_CONFIG_WINDOW_X, {uint32_t(300 - i)});
        scene.paint(QRect(0, 0, 400, 300), i % 2 == 0 ? blue : yellow);
    }
    ASSERT_TRUE(shows({300, 200}, yellow));
    EXPECT_EQ(viewer.colorAt({499, 399}), yellow);
    EXPECT_FALSE(viewer.sawForbidden());
}

TEST_F(X11CaptureTest, AFramedWindowOfOursIsInNoPicture)
{
    viewer.forbid(green);
    const CaptureOpening opening = viewer.open(capture);
    ASSERT_TRUE(shows({300, 200}, red));
    TestWindow window(ours, "Ours", QRect(150, 150, 200, 200));
    BareWindow inside(ours, window.id(), QRect(0, 0, 200, 200), green);
    scene.paint(QRect(0, 0, 400, 300), blue);
    ASSERT_TRUE(shows({300, 200}, blue));
    EXPECT_EQ(viewer.colorAt({200, 200}), blue);
    EXPECT_FALSE(viewer.sawForbidden());
}

TEST_F(X11CaptureTest, WindowsAreSeenInTheirOrder)
{
    BareWindow upper(theirs, QRect(200, 200, 100, 100), blue);
    const CaptureOpening opening = viewer.open(capture);
    ASSERT_TRUE(shows({250, 250}, blue));
    scene.configure(XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_ABOVE});
    EXPECT_TRUE(shows({250, 250}, red));
    scene.configure(XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_BELOW});
    EXPECT_TRUE(shows({250, 250}, blue));
    upper.configure(XCB_CONFIG_WINDOW_X, {400});
    EXPECT_TRUE(shows({250, 250}, red));
    EXPECT_TRUE(shows({450, 250}, blue));
    upper.setMapped(false);
    EXPECT_TRUE(shows({450, 250}, red));
    upper.setMapped(true);
    EXPECT_TRUE(shows({450, 250}, blue));
    upper.configure(XCB_CONFIG_WINDOW_WIDTH, {20});
    EXPECT_TRUE(shows({450, 250}, red));
    EXPECT_TRUE(shows({410, 250}, blue));
}

TEST_F(X11CaptureTest, AStillScreenIsNotReadAndItsLastPictureComesAgain)
{
    const CaptureOpening opening = viewer.open(capture);
    ASSERT_TRUE(shows({300, 200}, red));
    const int seen = viewer.count();
    const int changes = viewer.changes();
    const Seconds before = clock.now();
    ASSERT_TRUE(eventually([&] { return viewer.count() >= seen + 2; }));
    EXPECT_LT((clock.now() - before) / 2, 1.5s) << "at least about once a second";
    EXPECT_EQ(viewer.changes(), changes);
}

TEST_F(X11CaptureTest, ThePointerIsSeenOnlyWhenAsked)
{
    Viewer without;
    const CaptureOpening plain = without.open(capture);
    CaptureRequest request;
    request.showsCursor = true;
    const CaptureOpening opening = viewer.open(capture, request);
    const auto movePointer = [&](int x, int y) {
        xcb_warp_pointer(theirs.get(), XCB_NONE, theirs.root(), 0, 0, 0, 0, int16_t(x), int16_t(y));
        xcb_flush(theirs.get());
    };
    const auto drawnAt = [&](const Viewer &in, int x, int y) {
        return in.differs(QRect(x - 3, y - 3, 12, 12), red);
    };
    movePointer(200, 200);
    ASSERT_TRUE(eventually([&] { return drawnAt(viewer, 200, 200); }));
    movePointer(350, 300);
    ASSERT_TRUE(eventually([&] { return drawnAt(viewer, 350, 300); }));
    EXPECT_FALSE(drawnAt(viewer, 200, 200)) << "what it covered is put back";
    scene.paint(QRect(0, 0, 10, 10), blue);
    ASSERT_TRUE(eventually([&] { return without.colorAt({105, 105}) == blue; }));
    EXPECT_FALSE(drawnAt(without, 350, 300));
}

TEST_F(X11CaptureTest, ARateIsNotExceeded)
{
    CaptureRequest request;
    request.maxRate = 5;
    const CaptureOpening opening = viewer.open(capture, request);
    ASSERT_TRUE(shows({300, 200}, red));
    const Seconds begun = clock.now();
    const int before = viewer.count();
    int i = 0;
    ASSERT_TRUE(eventually([&] {
        scene.paint(QRect(0, 0, 400, 300), ++i % 2 == 0 ? blue : yellow);
        return viewer.count() >= before + 5;
    }));
    EXPECT_GE(clock.now() - begun, 0.75s);
}

TEST_F(X11CaptureTest, WindowsThatComeAndGoInTheMiddleOfAReadDoNoHarm)
{
    const CaptureOpening opening = viewer.open(capture);
    ASSERT_TRUE(shows({300, 200}, red));
    for (int i = 0; i < 400; ++i) {
        BareWindow brief(theirs, QRect(100 + i % 50, 100, 200, 200), blue);
        brief.configure(XCB_CONFIG_WINDOW_WIDTH, {uint32_t(50 + i % 30)});
    }
    scene.paint(QRect(0, 0, 400, 300), yellow);
    EXPECT_TRUE(shows({120, 120}, yellow));
    EXPECT_TRUE(shows({300, 200}, yellow));
    EXPECT_FALSE(viewer.hasEnded());
}

TEST_F(X11CaptureTest, ARegionBesideTheDisplayIsRefused)
{
    CaptureRequest request;
    request.region = QRectF(100'000, 0, 50, 50);
    const CaptureOpening opening = viewer.open(capture, request);
    EXPECT_FALSE(opening.stream);
    EXPECT_EQ(opening.error, "The region to record lies outside the display.");
}

namespace {

// A server of the test's own: its options differ, or it goes away.
struct ServerStage {
    explicit ServerStage(const QStringList &options = {}) : server(options) {}

    TestServer server;
    X11Connection theirs{server.display()};
    X11Connection ours{server.display()};
    SystemClock clock;
    X11Capture capture{theirs, server.display(), clock,
                       [this] { return X11OwnWindows(ours.get()); }};
    Viewer viewer;
};

} // namespace

TEST(X11CaptureServer, AChangeOfResolutionIsFollowed)
{
    ServerStage stage({"-screen", "0", "1280x1024x24", "+extension", "RANDR"});
    BareWindow scene(stage.theirs, QRect(0, 0, 1280, 1024), red);
    const CaptureOpening opening = stage.viewer.open(stage.capture);
    ASSERT_TRUE(eventually([&] { return stage.viewer.colorAt({1200, 1000}) == red; }));
    const auto xrandr = [&](const QString &options) {
        QProcess::execute("xrandr", QStringList{"-d", stage.server.display()} + options.split(' '));
    };
    xrandr("--newmode small 40 800 840 968 1056 600 601 605 628");
    xrandr("--addmode screen small");
    xrandr("--output screen --mode small");
    ASSERT_TRUE(eventually([&] { return stage.viewer.newest().image.size() == QSize(800, 600); }));
    scene.paint(QRect(0, 0, 800, 600), blue);
    EXPECT_TRUE(eventually([&] { return stage.viewer.colorAt({790, 590}) == blue; }));
    xrandr("--output screen --mode 1280x1024");
    ASSERT_TRUE(
        eventually([&] { return stage.viewer.newest().image.size() == QSize(1280, 1024); }));
}

TEST(X11CaptureServer, AServerThatGoesAwayEndsTheStreamOnce)
{
    ServerStage stage;
    CaptureOpening opening = stage.viewer.open(stage.capture);
    ASSERT_TRUE(opening.stream);
    stage.server.stop();
    ASSERT_TRUE(eventually([&] { return stage.viewer.hasEnded(); }));
    opening.stream.reset();
    EXPECT_FALSE(stage.viewer.open(stage.capture).stream);
}

TEST(X11CaptureServer, WithoutSharedMemoryPicturesAreSent)
{
    ServerStage stage({"-extension", "MIT-SHM"});
    BareWindow scene(stage.theirs, QRect(0, 0, 2000, 2000), red);
    const CaptureOpening opening = stage.viewer.open(stage.capture);
    ASSERT_TRUE(opening.stream) << opening.error.toStdString();
    const QSize size = stage.theirs.rootSize();
    EXPECT_TRUE(eventually([&] {
        return stage.viewer.colorAt({size.width() - 1, size.height() - 1}) == red;
    }));
}

TEST(X11CaptureServer, ABackgroundThatNoWindowCoversIsSeen)
{
    ServerStage stage;
    QProcess::execute("xsetroot", {"-display", stage.server.display(), "-solid", "#0000ff"});
    BareWindow editor(stage.ours, QRect(0, 0, 300, 300), green);
    const CaptureOpening opening = stage.viewer.open(stage.capture);
    EXPECT_TRUE(eventually([&] { return stage.viewer.colorAt({100, 100}) == blue; }));
}

TEST(X11CaptureServer, WithoutCompositeAccessIsMissing)
{
    ServerStage stage({"-extension", "Composite"});
    const CaptureOpening opening = stage.viewer.open(stage.capture);
    EXPECT_FALSE(opening.stream);
    EXPECT_TRUE(opening.error.contains("Composite")) << opening.error.toStdString();
}

} // namespace velvane
