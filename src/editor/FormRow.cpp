#include "editor/FormRow.h"

#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QEvent>

namespace velvane {

namespace {

constexpr int textGap = 6;

} // namespace

FormRow::FormRow(const QString &label, QWidget *parent)
    : QWidget(parent)
    , m_whole(new QBoxLayout(QBoxLayout::LeftToRight, this))
    , m_space(new QSpacerItem(0, 0))
    , m_row(new QHBoxLayout)
    , m_label(new QLabel(label, this))
{
    // As high as its highest control, whatever that would take.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_whole->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(textGap);
    m_label->setProperty("look", QStringLiteral("note"));
    m_label->setMinimumHeight(Metrics::fieldHeight);
    setLabelColumn(Metrics::labelColumn);
    m_label->setVisible(!label.isEmpty());
    m_whole->addWidget(m_label, 0, Qt::AlignTop);
    m_whole->addItem(m_space);
    m_whole->addLayout(m_row, 1);
}

void FormRow::setLabelColumn(int width)
{
    m_column = width;
    m_label->ensurePolished();
    // Not the label's size hint, which counts the width that was fixed before.
    const int natural = m_label->fontMetrics().size(Qt::TextShowMnemonic, m_label->text()).width();
    const bool fits = natural <= width - textGap;
    m_whole->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_whole->setSpacing(fits ? textGap : 0);
    m_label->setFixedWidth(natural);
    const int beside = m_label->text().isEmpty() ? width : width - textGap - natural;
    m_space->changeSize(fits ? beside : 0, 0, QSizePolicy::Maximum);
    m_whole->invalidate();
}

bool FormRow::event(QEvent *event)
{
    const bool done = QWidget::event(event);
    // The label may be of other letters now than where it was made.
    if (event->type() == QEvent::Show || event->type() == QEvent::StyleChange)
        setLabelColumn(m_column);
    return done;
}

void FormRow::add(QWidget *control, int stretch)
{
    if (!m_label->buddy())
        m_label->setBuddy(control);
    m_row->addWidget(control, stretch);
}

void FormRow::addText(const QString &text, int minimumWidth)
{
    auto *label = new QLabel(text, this);
    label->setProperty("look", QStringLiteral("hint"));
    label->setFont(Theme::font(TextSize::secondary));
    label->setMinimumWidth(minimumWidth);
    m_row->addWidget(label);
}

} // namespace velvane
