#pragma once

#include "base/KeyCode.h"
#include "platform/InputSynthesizer.h"
#include "platform/InputTap.h"
#include "platform/KeyWatcher.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <vector>

namespace velvane {

/// What posting, listening to and watching keys keep. A stage gives `input()`, `tap()`, `keys()`,
/// `userPresses(keyCode)`, which is not this program, and `settle()`, which returns once all that
/// was posted has been heard.
template <typename Stage>
class KeyboardContract : public testing::Test {
protected:
    void SetUp() override
    {
        token = stage.tap().listen([this](const InputEvent &event) { heard.push_back(event); },
                                   [] { FAIL() << "the listening was lost"; });
        ASSERT_TRUE(token);
    }

    Stage stage;
    std::vector<InputEvent> heard;
    Token token;
};

TYPED_TEST_SUITE_P(KeyboardContract);

TYPED_TEST_P(KeyboardContract, AShortcutKeepsItsNumberAndModifiers)
{
    this->stage.input().pressKey(8, Modifier::control | Modifier::shift);
    this->stage.settle();
    const auto key = std::ranges::find_if(this->heard, [](const InputEvent &event) {
        return event.kind == InputEvent::Kind::keyDown && event.keyCode == 8;
    });
    ASSERT_NE(key, this->heard.end());
    EXPECT_EQ(key->modifiers, Modifier::control | Modifier::shift);
}

TYPED_TEST_P(KeyboardContract, TypedTextIsHeardAsTheSameText)
{
    const QString text = QString::fromUtf8("aZé");
    {
        const auto typing = this->stage.input().beginTyping(text);
        for (const QChar character : text)
            typing->post(QString(character));
    }
    this->stage.settle();
    QString typed;
    for (const InputEvent &event : this->heard)
        typed += event.text;
    EXPECT_EQ(typed, text);
}

TYPED_TEST_P(KeyboardContract, AWatcherSeesTheUsersKeyAndNotOurOwn)
{
    std::atomic<int> presses = 0;
    Token watch = this->stage.keys().watch(KeyCode::escape, [&] { ++presses; });
    ASSERT_TRUE(watch);
    this->stage.input().pressKey(KeyCode::escape, 0);
    this->stage.settle();
    EXPECT_EQ(presses, 0);
    this->stage.userPresses(KeyCode::escape);
    this->stage.settle();
    EXPECT_EQ(presses, 1);
    watch.reset();
    this->stage.userPresses(KeyCode::escape);
    this->stage.settle();
    EXPECT_EQ(presses, 1);
}

REGISTER_TYPED_TEST_SUITE_P(KeyboardContract, AShortcutKeepsItsNumberAndModifiers,
                            TypedTextIsHeardAsTheSameText, AWatcherSeesTheUsersKeyAndNotOurOwn);

} // namespace velvane
