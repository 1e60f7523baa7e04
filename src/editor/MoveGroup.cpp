#include "editor/MoveGroup.h"

#include "base/Graphemes.h"
#include "base/OneDecimal.h"
#include "base/PlainLine.h"

#include <QCoreApplication>

namespace velvane {

namespace {

// Characters of a typed text that a capsule has room for.
constexpr int shownCharacters = 14;

QString translated(const char *text)
{
    return QCoreApplication::translate("MoveGroup", text);
}

} // namespace

QList<MoveGroup> moveGroups(const QList<Step> &steps)
{
    QList<MoveGroup> groups;
    int number = 0;
    for (const Step &step : steps) {
        if (step.kind == StepKind::section)
            continue;
        ++number;
        if (step.kind == StepKind::move)
            groups.append({.step = step, .number = number, .actions = {}});
        else if (step.kind != StepKind::switchApp && !groups.isEmpty())
            groups.last().actions << step;
    }
    return groups;
}

QString actionText(const Step &step)
{
    switch (step.kind) {
    case StepKind::wait:
        return translated("Wait %1s").arg(oneDecimal(step.pauseAfter.count()));
    case StepKind::shortcut: {
        const QString keys = step.shortcutDisplay();
        return keys.isEmpty() ? translated("Keys") : keys;
    }
    case StepKind::type:
        if (step.text.isEmpty())
            return translated("Type");
        return QChar(0x201c) + withVisibleBreaks(Graphemes::prefix(step.text, shownCharacters))
               + QChar(0x201d);
    default:
        return label(step.kind);
    }
}

} // namespace velvane
