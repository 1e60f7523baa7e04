#include "app/HelpPage.h"

#include "app/WebPage.h"
#include "language/Languages.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QNetworkReply>

#include <utility>

namespace velvane {

namespace {

QString installedPage()
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const char *place : {"/share/velvane/help", "/../share/velvane/help"}) {
        const QString page = HelpPlaces::pageIn(folder + QLatin1String(place), Languages::chosen());
        if (!page.isEmpty())
            return page;
    }
    return {};
}

} // namespace

QString HelpPlaces::pageIn(const QString &folder, const QString &language)
{
    const QString plain = language.section(u'_', 0, 0);
    for (const QString &suffix : {QString(u'.' + language), QString(u'.' + plain), QString()}) {
        const QFileInfo file(folder + "/docs" + suffix + ".html");
        if (file.isFile())
            return file.canonicalFilePath();
    }
    return {};
}

HelpPlaces HelpPlaces::usual()
{
    const QString site = qEnvironmentVariable("VELVANE_SITE", QStringLiteral(VELVANE_SITE));
    return {QUrl(site + "/apps/velvane/docs.html"), installedPage()};
}

HelpPage::HelpPage(DesktopShell &shell, HelpPlaces places, Seconds patience, QObject *parent)
    : QObject(parent)
    , m_shell(shell)
    , m_places(std::move(places))
    , m_patience(patience)
{}

void HelpPage::open()
{
    if (std::exchange(m_asking, true))
        return;
    QNetworkRequest request(m_places.online);
    request.setTransferTimeout(
        static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(m_patience).count()));
    QNetworkReply *reply = m_network.head(request);
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        reply->deleteLater();
        m_asking = false;
        answered(reply->error() == QNetworkReply::NoError);
    });
}

void HelpPage::answered(bool isThere)
{
    if (isThere && openPage(m_shell, m_places.online))
        return;
    if (!m_places.local.isEmpty() && openPage(m_shell, QUrl::fromLocalFile(m_places.local)))
        return;
    // A browser may reach what we cannot.
    if (!isThere && openPage(m_shell, m_places.online))
        return;
    Q_EMIT failed();
}

} // namespace velvane
