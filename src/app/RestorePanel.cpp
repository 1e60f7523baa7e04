#include "app/RestorePanel.h"

#include "app/RecentDemos.h"
#include "editor/Controls.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>

namespace velvane {

namespace {

// Logical pixels.
constexpr int panelWidth = 460;
constexpr int listHeight = 132;
constexpr int margin = 20;
constexpr int rowGap = 2;

} // namespace

RestorePanel::RestorePanel(const QList<KeptDemo> &demos, QWidget *over)
    : QDialog(over)
    , m_list(new QListWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Velvane"));
    setMinimumWidth(panelWidth);
    auto *text = new QLabel(tr("Velvane did not end properly the last time."), this);
    text->setFont(Theme::font(TextSize::body, QFont::DemiBold));
    auto *detail = new QLabel(tr("These demos have changes that were not saved. What is not "
                                 "checked is offered again at the next start."),
                              this);
    detail->setWordWrap(true);
    m_list->setAccessibleName(tr("Demos with changes that were not saved"));
    m_list->setToolTip(tr("Check the demos that you mean"));
    m_list->setFixedHeight(listHeight);
    m_list->setSpacing(rowGap);
    for (const KeptDemo &demo : demos) {
        const QString place =
            demo.path.isEmpty() ? tr("never saved") : RecentDemo{demo.path, {}}.folder();
        const QString when = QLocale().toString(demo.kept, QLocale::ShortFormat);
        auto *item = new QListWidgetItem(tr("%1 — %2, %3").arg(demo.title, place, when), m_list);
        item->setData(Qt::UserRole, demo.id);
        item->setToolTip(demo.path);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_list->setCurrentRow(0);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(Metrics::pagePadding);
    column->addWidget(text);
    column->addWidget(detail);
    column->addWidget(m_list);
    column->addWidget(makeAnswers());
}

QWidget *RestorePanel::makeAnswers()
{
    auto *bar = new QWidget(this);
    QPushButton *restore = Controls::button({}, tr("Restore"), tr("Open the checked demos"),
                                            QStringLiteral("primary"), bar);
    QPushButton *later =
        Controls::button({}, tr("Later"), tr("Ask again at the next start"), {}, bar);
    QPushButton *discard = Controls::button(
        {}, tr("Discard"), tr("Give up the changes of the checked demos"), {}, bar);
    restore->setDefault(true);
    connect(restore, &QPushButton::clicked, this, [this] { finish(Answer::restore); });
    connect(discard, &QPushButton::clicked, this, [this] { finish(Answer::discard); });
    connect(later, &QPushButton::clicked, this, &RestorePanel::reject);
    const auto follow = [this, restore, discard] {
        for (QPushButton *button : {restore, discard})
            button->setEnabled(!checked().isEmpty());
    };
    connect(m_list, &QListWidget::itemChanged, this, follow);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(discard);
    row->addStretch();
    row->addWidget(later);
    row->addWidget(restore);
    return bar;
}

QList<QUuid> RestorePanel::checked() const
{
    QList<QUuid> ids;
    for (int row = 0; row < m_list->count(); ++row)
        if (m_list->item(row)->checkState() == Qt::Checked)
            ids.append(m_list->item(row)->data(Qt::UserRole).toUuid());
    return ids;
}

void RestorePanel::finish(Answer answer)
{
    Q_EMIT answered(answer);
    done(answer == Answer::restore ? Accepted : Rejected);
}

void RestorePanel::reject()
{
    finish(Answer::later);
}

} // namespace velvane
