#include "model/Step.h"

#include "base/Geometry.h"
#include "base/OneDecimal.h"
#include "model/Shortcut.h"

#include <QCoreApplication>
#include <QLocale>

namespace velvane {

namespace {

QString inUsersLanguage(const char *english)
{
    return QCoreApplication::translate("Step", english);
}

QString asItIs(const char *english)
{
    return QString::fromUtf8(english);
}

// How a summary is put into words: where they are looked up, and how numbers are written.
struct Words {
    QString (*translated)(const char *english);
    QLocale locale;
};

QString summaryOf(const Step &step, const Words &words)
{
    const auto translated = words.translated;
    switch (step.kind) {
    case StepKind::move:
        return translated("Move to (%1, %2)")
            .arg(truncated(step.point.x()))
            .arg(truncated(step.point.y()));
    case StepKind::click:
        return translated("Click");
    case StepKind::rightClick:
        return translated("Right-click");
    case StepKind::hold:
        return translated("Hold mouse down");
    case StepKind::release:
        return translated("Release mouse");
    case StepKind::type:
        return translated("Type \"%1\"").arg(step.text);
    case StepKind::shortcut: {
        const QString keys = step.shortcutDisplay();
        return keys.isEmpty() ? translated("Shortcut") : translated("Press %1").arg(keys);
    }
    case StepKind::wait:
        return translated("Wait %1s").arg(oneDecimal(step.pauseAfter.count(), words.locale));
    case StepKind::switchApp:
        return translated("Switch to %1").arg(step.text.isEmpty() ? translated("app") : step.text);
    case StepKind::section:
        return step.text.isEmpty() ? translated("Section") : step.text;
    }
    return {};
}

} // namespace

Step Step::withDefaults(StepKind kind, QSizeF canvasSize)
{
    Step step;
    step.kind = kind;
    switch (kind) {
    case StepKind::move:
        step.point = {canvasSize.width() * 0.5, canvasSize.height() * 0.5};
        step.duration = 1.2s;
        step.pauseAfter = 0.2s;
        break;
    case StepKind::click:
    case StepKind::rightClick:
        step.pauseAfter = 0.4s;
        break;
    case StepKind::hold:
    case StepKind::release:
    case StepKind::shortcut:
        break;
    case StepKind::type:
        // What files hold does not depend on the language of who makes them.
        step.text = QStringLiteral("Type here");
        step.duration = 1.6s;
        break;
    case StepKind::wait:
        step.pauseAfter = 1.0s;
        break;
    case StepKind::switchApp:
        step.text = QStringLiteral("Safari");
        step.pauseAfter = 0.8s;
        break;
    case StepKind::section:
        step.text = QStringLiteral("Section");
        step.pauseAfter = 0s;
        break;
    }
    return step;
}

QString Step::summary() const
{
    return summaryOf(*this, {inUsersLanguage, QLocale()});
}

QString Step::englishSummary() const
{
    return summaryOf(*this, {asItIs, QLocale::c()});
}

QString Step::shortcutDisplay() const
{
    const QString special = Shortcut::specialKeyLabel(keyCode);
    return Shortcut::modifierGlyphs(modifiers) + (special.isEmpty() ? text : special);
}

bool Step::operator==(const Step &other) const
{
    return id == other.id && kind == other.kind && identical(point, other.point)
           && text == other.text && duration == other.duration && pauseAfter == other.pauseAfter
           && keyCode == other.keyCode && modifiers == other.modifiers
           && centerWindow == other.centerWindow && collapsed == other.collapsed
           && recordedOffset == other.recordedOffset;
}

} // namespace velvane
