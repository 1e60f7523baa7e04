#pragma once

#include "platform/Facility.h"

#include <QUrl>

namespace velvane {

/// This program's place on the desktop, and the desktop's file manager and browser.
///
/// hide(), unhide() and activate() may be called on any thread and take effect in the order of the
/// calls, perhaps a little later; the others on the main thread.
class DesktopShell : public Facility {
public:
    /// Takes all our windows off the screen.
    virtual void hide() = 0;

    /// Brings them back without giving them the keyboard. Nothing happens unless hidden.
    virtual void unhide() = 0;

    /// Brings our windows in front of all others, with the keyboard.
    virtual void activate() = 0;

    /// Shows a file selected in the file manager, brought forward. False when that fails.
    virtual bool reveal(const QString &file) = 0;

    /// Opens an address with whatever handles it; a SettingsAddress opens the system's page on
    /// which that permission is granted, or one that explains the remedy. False when nothing does.
    virtual bool open(const QUrl &address) = 0;

    /// Puts a file of this MIME type into the desktop's own list of recently used files, a little
    /// later.
    virtual void noteRecent(const QString &file, const QString &type) = 0;

    /// Takes all that this program put there out of that list again, a little later.
    virtual void forgetRecent() = 0;
};

} // namespace velvane
