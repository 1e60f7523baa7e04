#include "app/HelpPage.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QNetworkReply>

#include <utility>

namespace velvane {

namespace {

QString installedPage()
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const char *place : {"/help/docs.html", "/../share/velvane/help/docs.html"}) {
        const QFileInfo file(folder + QLatin1String(place));
        if (file.isFile())
            return file.canonicalFilePath();
    }
    return {};
}

} // namespace

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
    if (isThere && show(m_places.online))
        return;
    if (!m_places.local.isEmpty() && show(QUrl::fromLocalFile(m_places.local)))
        return;
    // A browser may reach what we cannot.
    if (!isThere && show(m_places.online))
        return;
    Q_EMIT failed();
}

bool HelpPage::show(const QUrl &page)
{
    // The session's shell knows best; without one Qt asks the desktop itself.
    return m_shell.missing().isEmpty() ? m_shell.open(page) : QDesktopServices::openUrl(page);
}

} // namespace velvane
