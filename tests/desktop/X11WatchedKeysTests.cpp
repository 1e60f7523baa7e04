#include "X11ListeningFixture.h"

#include <semaphore>
#include <thread>

namespace velvane {

TEST_F(X11ListeningTest, AWatcherIsCalledWhileTheMainThreadIsBusy)
{
    std::counting_semaphore<> presses(0);
    const Token watch = on.keys.watch(KeyCode::escape, [&] { presses.release(); });
    ASSERT_TRUE(watch);
    on.poster.tap(keyA);
    on.poster.chord({control}, escape);
    EXPECT_TRUE(presses.try_acquire_for(std::chrono::seconds(10)));
    EXPECT_FALSE(presses.try_acquire());
}

TEST_F(X11ListeningTest, AWatcherTellsOurPressesFromTheirsWhileBothPost)
{
    constexpr int each = 300;
    std::atomic<int> presses = 0;
    Token watch = on.keys.watch(KeyCode::escape, [&] { ++presses; });
    ASSERT_TRUE(watch);
    std::thread others([&] {
        InputPoster other(server.display());
        for (int i = 0; i < each; ++i) {
            other.tap(escape);
            other.tap(keyA);
        }
    });
    // Two that press one key at the same time press it once: what counts is what was heard.
    std::atomic<int> escapes = 0;
    const Token count = on.listener.subscribe(
        [&](const X11HeardEvent &event) {
            escapes += event.type == XCB_KEY_PRESS && event.detail == escape ? 1 : 0;
        },
        [] {});
    for (int i = 0; i < each; ++i) {
        on.postedKeys.add(keyC);
        on.poster.tap(keyC);
    }
    others.join();
    all();
    EXPECT_EQ(presses, each);
    EXPECT_EQ(escapes, each);
}

TEST_F(X11ListeningTest, OurOwnEscDoesNotCountAndTheUsersDoes)
{
    std::atomic<int> presses = 0;
    Token watch = on.keys.watch(KeyCode::escape, [&] { ++presses; });
    ASSERT_TRUE(watch);
    const auto ours = [&] {
        on.postedKeys.add(escape);
        on.poster.tap(escape);
    };
    ours();
    all();
    EXPECT_EQ(presses, 0);
    on.poster.tap(escape);
    ours();
    on.poster.tap(escape);
    all();
    EXPECT_EQ(presses, 2);
    watch.reset();
    on.poster.tap(escape);
    all();
    EXPECT_EQ(presses, 2);
}

TEST_F(X11ListeningTest, WhatWasPostedWhileNobodyListenedHidesNoEscLater)
{
    token.reset();
    on.postedKeys.add(escape);
    on.poster.tap(escape);
    std::atomic<int> presses = 0;
    const Token watch = on.keys.watch(KeyCode::escape, [&] { ++presses; });
    ASSERT_TRUE(watch);
    on.poster.tap(escape);
    EXPECT_TRUE(eventually([&] { return presses == 1; }));
}

} // namespace velvane
