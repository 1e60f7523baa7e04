#pragma once

#include "platform/Permissions.h"
#include "platform/x11/X11Connection.h"

#include <QList>

namespace velvane {

/// On X11 nobody is asked: something is allowed when the server has the extensions it takes. An
/// untrusted client (ssh -X) is shown a server without them.
class X11Permissions final : public Permissions {
public:
    /// `inWaylandSession`: the server is a guest in a Wayland session.
    X11Permissions(const X11Connection &connection, bool inWaylandSession);

    bool granted(Permission permission) override;
    bool request(Permission permission) override { return granted(permission); }
    QString explanation(Permission permission) override;

    /// Shows a page that explains what is withheld and how to get it.
    void openSettings(Permission permission);

    /// The extensions that something takes, by the names the server knows them by.
    static QList<QByteArray> extensions(Permission permission);

    /// Why something is withheld when the server lacks these extensions; empty when it is not.
    static QString explain(Permission permission, bool hasServer, bool inWaylandSession,
                           const QList<QByteArray> &lacking);

private:
    QList<QByteArray> lacking(Permission permission) const;
    bool isRefused(Permission permission) const;

    const X11Connection &m_connection;
    const bool m_inWaylandSession;
};

} // namespace velvane
