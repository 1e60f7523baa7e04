#include "model/StepKind.h"

#include <QCoreApplication>

namespace velvane {

namespace {

struct Vocabulary {
    const char *id;
    const char *label;
    const char *shortLabel;
    const char *symbol;
};

// In the order of the enumerators.
constexpr std::array<Vocabulary, allStepKinds.size()> vocabulary{{
    {"move", QT_TRANSLATE_NOOP("StepKind", "Move to"), QT_TRANSLATE_NOOP("StepKind", "Move"),
     "arrow.up.left"},
    {"click", QT_TRANSLATE_NOOP("StepKind", "Click"), QT_TRANSLATE_NOOP("StepKind", "Click"),
     "cursorarrow.click"},
    {"rightClick", QT_TRANSLATE_NOOP("StepKind", "Right-click"),
     QT_TRANSLATE_NOOP("StepKind", "Right"), "cursorarrow.click.2"},
    {"hold", QT_TRANSLATE_NOOP("StepKind", "Hold (mouse down)"),
     QT_TRANSLATE_NOOP("StepKind", "Hold"), "hand.tap.fill"},
    {"release", QT_TRANSLATE_NOOP("StepKind", "Release (mouse up)"),
     QT_TRANSLATE_NOOP("StepKind", "Release"), "hand.raised.fill"},
    {"type", QT_TRANSLATE_NOOP("StepKind", "Type"), QT_TRANSLATE_NOOP("StepKind", "Type"),
     "keyboard"},
    {"shortcut", QT_TRANSLATE_NOOP("StepKind", "Keyboard shortcut"),
     QT_TRANSLATE_NOOP("StepKind", "Keys"), "command"},
    {"wait", QT_TRANSLATE_NOOP("StepKind", "Wait"), QT_TRANSLATE_NOOP("StepKind", "Wait"), "pause"},
    {"switchApp", QT_TRANSLATE_NOOP("StepKind", "Switch app"),
     QT_TRANSLATE_NOOP("StepKind", "Switch"), "rectangle.2.swap"},
    {"section", QT_TRANSLATE_NOOP("StepKind", "Section"), QT_TRANSLATE_NOOP("StepKind", "Section"),
     "text.alignleft"},
}};

const Vocabulary &words(StepKind kind)
{
    return vocabulary.at(static_cast<std::size_t>(kind));
}

} // namespace

QString id(StepKind kind)
{
    return QString::fromLatin1(words(kind).id);
}

std::optional<StepKind> stepKind(const QString &id)
{
    for (const StepKind kind : allStepKinds) {
        if (id == QLatin1String(words(kind).id))
            return kind;
    }
    return {};
}

QString label(StepKind kind)
{
    return QCoreApplication::translate("StepKind", words(kind).label);
}

QString shortLabel(StepKind kind)
{
    return QCoreApplication::translate("StepKind", words(kind).shortLabel);
}

QString symbol(StepKind kind)
{
    return QString::fromLatin1(words(kind).symbol);
}

} // namespace velvane
