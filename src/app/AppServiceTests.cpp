#include "app/AppService.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(AppService, WithoutABusItIsAlone)
{
    AppService service(QDBusConnection("none"));
    EXPECT_FALSE(service.claim());
    EXPECT_FALSE(service.handOver({"/a"}));
}

TEST(AppService, FilesAreOpenedByTheirAddresses)
{
    AppService service(QDBusConnection("none"));
    QStringList heard;
    QObject::connect(&service, &AppService::opened,
                     [&](const QStringList &paths) { heard = paths; });
    service.Open({"file:///a%20b.velvane", "https://example.org/c", "file:///%C3%A4"}, {});
    EXPECT_EQ(heard, (QStringList{"/a b.velvane", "/ä"}));
}

TEST(AppService, TheDesktopsTokensGoAlong)
{
    qputenv("XDG_ACTIVATION_TOKEN", "token");
    qputenv("DESKTOP_STARTUP_ID", "id_TIME1");
    const QVariantMap data = AppService::platformData();
    qunsetenv("XDG_ACTIVATION_TOKEN");
    qunsetenv("DESKTOP_STARTUP_ID");
    EXPECT_EQ(data.value("activation-token"), "token");
    EXPECT_EQ(data.value("desktop-startup-id"), "id_TIME1");
    EXPECT_TRUE(AppService::platformData().isEmpty());
}

} // namespace velvane
