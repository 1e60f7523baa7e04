#pragma once

#include "base/Seconds.h"
#include "platform/DesktopShell.h"

#include <QNetworkAccessManager>

namespace velvane {

/// Where the documentation stands.
struct HelpPlaces {
    QUrl online;
    /// A file; empty when none is installed.
    QString local;

    /// The page on the product's site, whose host is chosen when the program is built and replaced
    /// by the environment's VELVANE_SITE, and the one in the program's language that is installed
    /// with the program or was built with it.
    static HelpPlaces usual();
    /// The page of a folder in a language like "de" or "zh_CN", or in that without its region, or
    /// in English; empty when there is none.
    static QString pageIn(const QString &folder, const QString &language);
};

/// Shows the documentation: the page online, or the installed one when that cannot be had. Main
/// thread only; the shell must outlive it.
class HelpPage : public QObject {
    Q_OBJECT
public:
    /// `patience`: how long the site may take to answer.
    HelpPage(DesktopShell &shell, HelpPlaces places, Seconds patience, QObject *parent = nullptr);

    /// Asks the site whether the page is there, and opens what is. While it has not answered
    /// nothing more is asked.
    void open();

Q_SIGNALS:
    /// Nothing here shows either page.
    void failed();

private:
    void answered(bool isThere);

    DesktopShell &m_shell;
    const HelpPlaces m_places;
    const Seconds m_patience;
    QNetworkAccessManager m_network;
    bool m_asking = false;
};

} // namespace velvane
