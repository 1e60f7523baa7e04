#pragma once

#include "platform/Permissions.h"

#include <gtest/gtest.h>

namespace velvane {

/// What every Permissions keeps. A stage gives `Permissions &permissions()`, where all is granted.
template <typename Stage>
class PermissionsContract : public testing::Test {
protected:
    static constexpr Permission all[3] = {Permission::accessibility, Permission::inputMonitoring,
                                          Permission::screenRecording};

    Stage stage;
};

TYPED_TEST_SUITE_P(PermissionsContract);

TYPED_TEST_P(PermissionsContract, WhatIsGrantedNeedsNoExplanation)
{
    for (const Permission permission : this->all) {
        EXPECT_TRUE(this->stage.permissions().granted(permission));
        EXPECT_TRUE(this->stage.permissions().explanation(permission).isEmpty());
    }
}

TYPED_TEST_P(PermissionsContract, AskingForWhatIsGrantedGrantsIt)
{
    for (const Permission permission : this->all)
        EXPECT_TRUE(this->stage.permissions().request(permission));
}

REGISTER_TYPED_TEST_SUITE_P(PermissionsContract, WhatIsGrantedNeedsNoExplanation,
                            AskingForWhatIsGrantedGrantsIt);

} // namespace velvane
