#include "cli/SessionReport.h"

#include "capture/Bookmark.h"
#include "cli/Console.h"
#include "media/EncoderInfo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QImageReader>
#include <QLocale>
#include <QRawFont>

#include <filesystem>

#include <langinfo.h>

namespace velvane::cli {

namespace {

// About a quarter of an hour of a busy screen.
constexpr qint64 littleRoom = qint64(1) << 30;

DesktopFact displayServer(Desktop &desktop)
{
    const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    const QString x11 = qEnvironmentVariable("DISPLAY");
    if (!wayland.isEmpty())
        return {tr("Display server"), "Wayland (" + wayland + ')', {}};
    if (!x11.isEmpty() && desktop.screens().pointer())
        return {tr("Display server"), desktop.description(), {}};
    if (!x11.isEmpty())
        return {tr("Display server"), tr("X11 (%1), which does not answer").arg(x11),
                tr("Start this in the desktop session, where DISPLAY and XAUTHORITY are right.")};
    return {tr("Display server"), tr("none"),
            tr("Rendering needs none; the editor does: start it in a desktop session.")};
}

// What the desktop lets this program do, with its permission.
DesktopFact ability(const QString &what, const Facility &facility, Permissions &permissions,
                    Permission permission)
{
    // It knows the remedy.
    QString reason = permissions.explanation(permission);
    if (reason.isEmpty())
        reason = facility.missing();
    return {what, reason.isEmpty() ? tr("works") : tr("not here"), reason};
}

DesktopFact captionFont()
{
    const QString family = "Inter";
    if (QFontDatabase::hasFamily(family))
        return {tr("Caption font"), tr("%1, semibold").arg(family), {}};
    return {tr("Caption font"), tr("Inter is missing, another sans-serif stands in"),
            tr("Install %1.").arg("fonts-inter")};
}

// Is there any font with all of these characters' glyphs?
bool canShow(const QString &characters)
{
    for (const QString &family : QFontDatabase::families()) {
        const QRawFont font = QRawFont::fromFont(QFont(family));
        const auto ucs4 = characters.toUcs4();
        if (std::all_of(ucs4.begin(), ucs4.end(),
                        [&](uint c) { return font.supportsCharacter(c); }))
            return true;
    }
    return false;
}

DesktopFact glyphs(const QString &what, const QString &characters, const QString &package)
{
    if (canShow(characters))
        return {what, characters, {}};
    return {what, tr("no font has all of %1").arg(characters), tr("Install %1.").arg(package)};
}

DesktopFact pictures()
{
    QStringList formats;
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        formats << QString::fromLatin1(format);
    return {tr("Backdrop pictures"), formats.join(' '), {}};
}

QFileInfo nearestExisting(const QString &folder)
{
    QFileInfo info(folder);
    while (!info.exists() && !info.isRoot())
        info = QFileInfo(info.absolutePath());
    return info;
}

} // namespace

DesktopFact sessionKind(const QString &type, const QString &desktop)
{
    const QString name = desktop.isEmpty() ? QString() : ", " + desktop;
    if (type == "wayland")
        return {tr("Session"), "Wayland" + name,
                tr("Log in with an X11 session: in a Wayland session demos can be composed and "
                   "rendered, not run or recorded.")};
    if (type == "x11")
        return {tr("Session"), "X11" + name, {}};
    return {tr("Session"), (type.isEmpty() ? tr("not told") : type) + name, {}};
}

DesktopFact roomForMovies(const QString &folder, qint64 bytes)
{
    if (bytes < 0)
        return {tr("Recordings"), folder, {}};
    const QString state = tr("%1, %2 free").arg(folder, QLocale::c().formattedDataSize(bytes));
    if (bytes >= littleRoom)
        return {tr("Recordings"), state, {}};
    return {tr("Recordings"), state,
            tr("Make room there: a recording ends when the disk is full.")};
}

DesktopFact movieFolder(const QString &folder)
{
    const QFileInfo place = nearestExisting(folder);
    if (!place.isDir() || !place.isWritable())
        return {tr("Recordings"), tr("%1 cannot be written to").arg(folder),
                tr("Make %1 a folder that you may write to.").arg(place.filePath())};
    // Asks for the folder itself: in a sandbox the list of mounts may lack the one that it is on.
    std::error_code unknown;
    const auto space =
        std::filesystem::space(QFile::encodeName(place.filePath()).toStdString(), unknown);
    return roomForMovies(folder, unknown ? -1 : qint64(space.available));
}

DesktopFact locale(const QString &name, const QByteArray &characterSet)
{
    const QString state = QString("%1, %2").arg(name, QString::fromLatin1(characterSet));
    if (characterSet == "UTF-8")
        return {tr("Language"), state, {}};
    return {tr("Language"), state,
            tr("Set LANG to a UTF-8 locale, such as C.UTF-8, so that file names and texts are read "
               "as they are written.")};
}

std::vector<DesktopFact> sessionReport(Desktop &desktop)
{
    Permissions &permissions = desktop.permissions();
    std::vector<DesktopFact> report{
        displayServer(desktop),
        sessionKind(qEnvironmentVariable("XDG_SESSION_TYPE"),
                    qEnvironmentVariable("XDG_CURRENT_DESKTOP")),
    };
    for (const DesktopFact &fact : desktop.facts())
        report.push_back(fact);
    for (const DesktopFact &fact : {
             ability(tr("Input posting"), desktop.input(), permissions, Permission::accessibility),
             ability(tr("Input listening"), desktop.tap(), permissions,
                     Permission::inputMonitoring),
             ability(tr("Screen capture"), desktop.capture(), permissions,
                     Permission::screenRecording),
             movieFolder(Bookmark::recordingsFolder()),
             DesktopFact{tr("H.264 encoder"), EncoderInfo::encoder(), {}},
             DesktopFact{tr("Movie files"), EncoderInfo::muxer(), {}},
             captionFont(),
             glyphs(tr("Shortcut glyphs"), QStringLiteral("⌃⌥⇧⌘⌫↩"), "fonts-dejavu-core"),
             glyphs(tr("Emoji"), QStringLiteral("👍🎉"), "fonts-noto-color-emoji"),
             pictures(),
             locale(QLocale::system().name(), nl_langinfo(CODESET)),
         })
        report.push_back(fact);
    return report;
}

} // namespace velvane::cli
