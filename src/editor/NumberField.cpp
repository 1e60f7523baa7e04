#include "editor/NumberField.h"

#include "editor/Metrics.h"

#include <QKeyEvent>
#include <QLocale>
#include <QScopedValueRollback>

namespace velvane {

namespace {

constexpr double secondsStep = 0.1;
constexpr double largeSecondsStep = 1;
constexpr double coordinateStep = 1;
constexpr double largeCoordinateStep = 10;
constexpr int mostDecimals = 3;
// What the field has room for where letters are large.
const auto fiveDigits = QStringLiteral("00000");
constexpr int aside = 18; // logical pixels for padding, border and caret
constexpr int above = 6;

/// The step that a key asks for, in steps of the small and the large kind.
std::optional<double> stepOf(const QKeyEvent &key, double small, double large)
{
    const bool larger = key.modifiers() & Qt::ShiftModifier;
    switch (key.key()) {
    case Qt::Key_Up:
        return larger ? large : small;
    case Qt::Key_Down:
        return larger ? -large : -small;
    case Qt::Key_PageUp:
        return large;
    case Qt::Key_PageDown:
        return -large;
    default:
        return {};
    }
}

} // namespace

NumberField::NumberField(Kind kind, const QString &name, const QString &help, QWidget *parent)
    : QLineEdit(parent)
    , m_kind(kind)
{
    ensurePolished();
    const QFontMetrics letters(font());
    setFixedSize(std::max(Metrics::fieldWidth, letters.horizontalAdvance(fiveDigits) + aside),
                 std::max(Metrics::fieldHeight, letters.height() + above));
    setAccessibleName(name);
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    setLocale(plain);
    const QString keys =
        kind == Kind::seconds
            ? tr("↑ and ↓ change it by 0.1 s; with Shift, or Page Up and Page Down, by 1 s.")
            : tr("↑ and ↓ change it by 1; with Shift, or Page Up and Page Down, by 10.");
    setToolTip(help + QLatin1Char('\n') + keys);
    setAccessibleDescription(help);
    connect(this, &QLineEdit::textEdited, this, &NumberField::readText);
    connect(this, &QLineEdit::returnPressed, this, [this] {
        m_typing = false;
        showValue();
        selectAll();
    });
}

QString NumberField::format(double value) const
{
    if (m_kind == Kind::coordinate)
        return locale().toString(value, 'f', value == std::round(value) ? 0 : 1);
    // One decimal, more only where the value has them.
    QString text = locale().toString(value, 'f', mostDecimals);
    for (int cut = 0; cut < mostDecimals - 1 && text.endsWith(locale().zeroDigit()); ++cut)
        text.chop(1);
    return text;
}

std::optional<double> NumberField::value() const
{
    bool isNumber = false;
    QString typed = text().trimmed();
    double value = locale().toDouble(typed, &isNumber);
    // The other decimal sign will do too: keyboards' number blocks have only one.
    if (!isNumber)
        value = QLocale::c().toDouble(typed.replace(u',', u'.'), &isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

void NumberField::setValue(double value)
{
    // A value from elsewhere, an undo say, replaces what was typed.
    if (value != m_value && !m_announcing)
        m_typing = false;
    m_value = value;
    if (!m_typing)
        showValue();
}

void NumberField::showValue()
{
    const QString text = format(m_value);
    if (text == this->text())
        return;
    setText(text);
    // Of a number that is too long for the field, the end is what is not seen.
    if (!hasFocus())
        setCursorPosition(0);
}

void NumberField::readText()
{
    m_typing = true;
    const QScopedValueRollback announcing(m_announcing, true);
    if (const auto typed = value())
        Q_EMIT valueTyped(*typed);
}

bool NumberField::event(QEvent *event)
{
    // Undo and redo are the demo's, which knows the whole of what was typed.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void NumberField::keyPressEvent(QKeyEvent *event)
{
    const bool seconds = m_kind == Kind::seconds;
    const auto step = stepOf(*event, seconds ? secondsStep : coordinateStep,
                             seconds ? largeSecondsStep : largeCoordinateStep);
    if (!step) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    m_typing = false;
    Q_EMIT bumped(*step);
    showValue();
    selectAll();
}

void NumberField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        selectAll();
    Q_EMIT focused();
}

void NumberField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason)
        return; // its own context menu
    m_typing = false;
    showValue();
    Q_EMIT left();
}

} // namespace velvane
