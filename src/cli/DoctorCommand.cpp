#include "cli/Commands.h"
#include "media/EncoderInfo.h"
#include "platform/Desktop.h"

#include <QFontDatabase>
#include <QImageReader>
#include <QRawFont>

#include <CLI/CLI.hpp>

#include <iomanip>

namespace velvane::cli {

namespace {

struct Finding {
    bool good = true;
    QString what;
    QString state;
    /// What to do about it; empty when good.
    QString remedy;
};

Finding displayServer(Desktop &desktop)
{
    const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    const QString x11 = qEnvironmentVariable("DISPLAY");
    if (!wayland.isEmpty())
        return {true, "Display server", "Wayland (" + wayland + ')', {}};
    if (!x11.isEmpty() && desktop.screens().pointer())
        return {true, "Display server", desktop.description(), {}};
    if (!x11.isEmpty())
        return {false, "Display server", "X11 (" + x11 + "), which does not answer",
                "Start this in the desktop session, where DISPLAY and XAUTHORITY are right."};
    return {false, "Display server", "none",
            "Rendering needs none; the editor does: start it in a desktop session."};
}

// What the desktop lets this program do, with its permission.
Finding ability(const QString &what, const Facility &facility, Permissions &permissions,
                Permission permission)
{
    // It knows the remedy.
    QString reason = permissions.explanation(permission);
    if (reason.isEmpty())
        reason = facility.missing();
    if (reason.isEmpty())
        return {true, what, "works", {}};
    return {false, what, "not here", reason};
}

Finding captionFont()
{
    const QString family = "Inter";
    if (QFontDatabase::hasFamily(family))
        return {true, "Caption font", family + ", semibold", {}};
    return {false, "Caption font", "Inter is missing, another sans-serif stands in",
            "Install fonts-inter."};
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

Finding glyphs(const QString &what, const QString &characters, const QString &package)
{
    if (canShow(characters))
        return {true, what, characters, {}};
    return {false, what, "no font has all of " + characters, "Install " + package + '.'};
}

Finding pictures()
{
    QStringList formats;
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        formats << QString::fromLatin1(format);
    return {true, "Backdrop pictures", formats.join(' '), {}};
}

int examine(Console &console)
{
    const std::unique_ptr<Desktop> desktop = Desktop::open();
    Permissions &permissions = desktop->permissions();
    QList<Finding> findings{displayServer(*desktop)};
    for (const DesktopFact &fact : desktop->facts())
        findings << Finding{fact.remedy.isEmpty(), fact.what, fact.state, fact.remedy};
    findings << QList<Finding>{
        ability("Input posting", desktop->input(), permissions, Permission::accessibility),
        ability("Input listening", desktop->tap(), permissions, Permission::inputMonitoring),
        ability("Screen capture", desktop->capture(), permissions, Permission::screenRecording),
        {true, "H.264 encoder", EncoderInfo::encoder(), {}},
        {true, "Movie files", EncoderInfo::muxer(), {}},
        captionFont(),
        glyphs("Shortcut glyphs", QStringLiteral("⌃⌥⇧⌘⌫↩"), "fonts-dejavu-core"),
        glyphs("Emoji", QStringLiteral("👍🎉"), "fonts-noto-color-emoji"),
        pictures(),
    };
    for (const Finding &finding : findings) {
        console.out << (finding.good ? "✓ " : "✗ ") << std::left << std::setw(20)
                    << finding.what.toStdString() << finding.state.toStdString() << '\n';
        if (!finding.good)
            console.out << "  " << finding.remedy.toStdString() << '\n';
    }
    console.out << "\nScreen recordings are not built yet.\n";
    return 0;
}

} // namespace

void addDoctor(CLI::App &app, Console &console, Action &chosen)
{
    CLI::App *command =
        app.add_subcommand("doctor", "Say what this session can and cannot do, with remedies");
    command->footer(R"(DESCRIPTION
  Say what this session can and cannot do, a line for each capability, with
  the remedy below what is missing.)");
    command->callback([&chosen, &console] { chosen = [&console] { return examine(console); }; });
}

} // namespace velvane::cli
