#pragma once

#include "platform/WindowControl.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace velvane {

/// What every WindowControl keeps. A stage gives `WindowControl &windows()`,
/// `openWindow(appName, frame)`, which returns the id of a new window in front, `closeWindow(id)`,
/// and `settle()`, which returns once the desktop has done what was asked.
template <typename Stage>
class WindowControlContract : public testing::Test {
protected:
    std::optional<WindowInfo> find(quint64 id)
    {
        stage.settle();
        for (const WindowInfo &window : stage.windows().windows()) {
            if (window.id == id)
                return window;
        }
        return {};
    }

    Stage stage;
};

TYPED_TEST_SUITE_P(WindowControlContract);

TYPED_TEST_P(WindowControlContract, AWindowHasItsOwnersNameAndItsFrame)
{
    const quint64 id = this->stage.openWindow("Contract Notes", QRect(100, 120, 400, 300));
    const auto window = this->find(id);
    ASSERT_TRUE(window);
    EXPECT_EQ(window->owner.name, "Contract Notes");
    EXPECT_TRUE(window->onScreen);
    EXPECT_TRUE(window->frame.contains(QRectF(110, 130, 380, 280)));
}

TYPED_TEST_P(WindowControlContract, TheFrontmostComesFirst)
{
    this->stage.openWindow("Contract Notes", QRect(100, 120, 400, 300));
    const quint64 front = this->stage.openWindow("Contract Mail", QRect(150, 150, 400, 300));
    this->stage.settle();
    ASSERT_GE(this->stage.windows().windows().size(), 2U);
    EXPECT_EQ(this->stage.windows().windows().front().id, front);
}

TYPED_TEST_P(WindowControlContract, AMovedWindowKeepsItsSize)
{
    const quint64 id = this->stage.openWindow("Contract Notes", QRect(100, 120, 400, 300));
    const QSizeF size = this->find(id)->frame.size();
    this->stage.windows().moveWindow(id, {300, 200});
    EXPECT_EQ(this->find(id)->frame, QRectF(QPointF(300, 200), size));
}

TYPED_TEST_P(WindowControlContract, AWindowThatIsGoneIsSkipped)
{
    const quint64 id = this->stage.openWindow("Contract Notes", QRect(100, 120, 400, 300));
    this->stage.closeWindow(id);
    this->stage.windows().moveWindow(id, {5, 5});
    EXPECT_FALSE(this->find(id));
}

REGISTER_TYPED_TEST_SUITE_P(WindowControlContract, AWindowHasItsOwnersNameAndItsFrame,
                            TheFrontmostComesFirst, AMovedWindowKeepsItsSize,
                            AWindowThatIsGoneIsSkipped);

} // namespace velvane
