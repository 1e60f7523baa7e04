#pragma once

#include "support/contracts/AppControlContract.h"

#include <QStringList>

namespace velvane {

/// What every AppControl keeps when it watches switches. The stage is that of AppControlContract.
template <typename Stage>
class ActivationsContract : public AppControlContract<Stage> {};

TYPED_TEST_SUITE_P(ActivationsContract);

TYPED_TEST_P(ActivationsContract, EachSwitchIsToldUntilTheTokenEnds)
{
    this->stage.apps().activate(this->app("Contract Mail"));
    this->stage.settle();
    QStringList told;
    Token watch = this->stage.apps().watchActivations(
        [&](const AppInfo &activated) { told << activated.name; });
    ASSERT_TRUE(watch);
    this->stage.apps().activate(this->app("Contract Notes"));
    this->stage.settle();
    EXPECT_EQ(told, QStringList("Contract Notes"));
    watch.reset();
    this->stage.apps().activate(this->app("Contract Mail"));
    this->stage.settle();
    EXPECT_EQ(told, QStringList("Contract Notes"));
}

REGISTER_TYPED_TEST_SUITE_P(ActivationsContract, EachSwitchIsToldUntilTheTokenEnds);

} // namespace velvane
