#pragma once

#include "Eventually.h"
#include "InputPoster.h"
#include "X11Session.h"
#include "base/KeyCode.h"
#include "platform/SystemClock.h"
#include "platform/x11/X11InputTap.h"
#include "platform/x11/X11KeyWatcher.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

// X codes of keys by what an American keyboard writes on them.
inline constexpr int keyA = 38, keyC = 54, keyE = 26, keyY = 29, keyZ = 52, equals = 21,
                     bracket = 34;
inline constexpr int escape = 9, shift = 50, control = 37, alt = 64, super = 133;

/// All that listens, on a server that nothing else uses.
struct Listening {
    explicit Listening(const QByteArray &display)
        : connection(display)
        , listener(connection, display, postedKeys)
        , tap(listener, display, clock)
        , keys(listener)
        , poster(display)
    {}

    X11Connection connection;
    SystemClock clock;
    X11PostedKeys postedKeys;
    X11Listener listener;
    X11InputTap tap;
    X11KeyWatcher keys;
    InputPoster poster;
};

/// Notes what a tap hears.
class X11ListeningTest : public testing::Test {
protected:
    void SetUp() override
    {
        token = on.tap.listen([this](const InputEvent &event) { heard.push_back(event); },
                              [this] { ++lost; });
        ASSERT_TRUE(token);
        // Where no test goes.
        on.poster.move({700, 500});
        ASSERT_TRUE(eventually([&] { return !heard.empty(); }));
        heard.clear();
    }

    /// All that was heard of what has been posted since the last call.
    std::vector<InputEvent> all()
    {
        const QPoint end(701 + m_ends++, 599);
        on.poster.move(end);
        EXPECT_TRUE(
            eventually([&] { return !heard.empty() && heard.back().point == QPointF(end); }));
        if (!heard.empty())
            heard.pop_back();
        return std::exchange(heard, {});
    }

    QString typed()
    {
        QString text;
        for (const InputEvent &event : all())
            text += event.text;
        return text;
    }

    void setLayout(const QStringList &arguments)
    {
        const QStringList display{"-display", QString::fromLocal8Bit(server.display())};
        ASSERT_EQ(QProcess::execute("setxkbmap", display + arguments), 0);
    }

    TestServer server{{"-screen", "0", "800x600x24"}};
    Listening on{server.display()};
    std::vector<InputEvent> heard;
    int lost = 0;
    Token token;

private:
    int m_ends = 0;
};

} // namespace velvane
