#include "app/StartWindow.h"

#include "app/Documents.h"
#include "app/DroppedDemos.h"
#include "app/RecentDemoDelegate.h"
#include "editor/Controls.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QBoxLayout>
#include <QDropEvent>
#include <QIcon>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QStandardItemModel>

namespace velvane {

namespace {

// Logical pixels.
constexpr QSize windowSize(666, 400);
constexpr int actionsWidth = 209;
constexpr int symbolSize = 90; // the drawing leaves a margin
constexpr int buttonWidth = 144;
constexpr int listInset = 10;

} // namespace

StartWindow::StartWindow(Documents &documents, QWidget *parent)
    : QMainWindow(parent)
    , m_documents(documents)
    , m_model(new QStandardItemModel(this))
{
    setWindowTitle(tr("Velvane"));
    setAcceptDrops(true);
    setMinimumSize(windowSize);
    resize(windowSize);
    auto *panes = new QWidget(this);
    setCentralWidget(panes);
    auto *columns = new QHBoxLayout(panes);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(makeActions());
    columns->addWidget(makeRecents(), 1);
    addShortcuts();
    connect(&documents.recents(), &RecentDemos::changed, this, &StartWindow::fill);
    connect(&Theme::instance(), &Theme::changed, this, qOverload<>(&QWidget::update));
    fill();
}

QWidget *StartWindow::makeActions()
{
    auto *pane = new QWidget(this);
    pane->setFixedWidth(actionsWidth);
    auto *icon = new QLabel(pane);
    icon->setPixmap(QIcon(QStringLiteral(":/app/velvane.svg")).pixmap(symbolSize));
    icon->setAlignment(Qt::AlignCenter);
    auto *name = new QLabel(tr("Velvane"), pane);
    QFont large = Theme::font(TextSize::title, QFont::DemiBold);
    constexpr double nameFactor = 18.0 / 14;
    large.setPixelSize(qRound(QFontInfo(large).pixelSize() * nameFactor));
    name->setFont(large);
    name->setAlignment(Qt::AlignCenter);

    QPushButton *make =
        Controls::button({}, tr("New"), tr("Make a new demo"), QStringLiteral("primary"), pane);
    QPushButton *open = Controls::button({}, tr("Open…"), tr("Open a demo from a file"), {}, pane);
    connect(make, &QPushButton::clicked, this, [this] { m_documents.newDemo(); });
    connect(open, &QPushButton::clicked, this, [this] { m_documents.openPanel(this); });

    auto *column = new QVBoxLayout(pane);
    column->addStretch();
    column->addWidget(icon);
    column->addSpacing(Metrics::pagePadding);
    column->addWidget(name);
    column->addSpacing(Metrics::pagePadding);
    for (QPushButton *button : {make, open}) {
        button->setFixedWidth(buttonWidth);
        column->addWidget(button, 0, Qt::AlignHCenter);
    }
    column->addStretch();
    column->setSpacing(Metrics::gap);
    return pane;
}

QWidget *StartWindow::makeRecents()
{
    auto *pane = new QWidget(this);
    auto *heading = new QLabel(tr("Recent demos"), pane);
    heading->setFont(Theme::font(TextSize::body, QFont::DemiBold));
    heading->setContentsMargins(listInset, 0, 0, 0);
    m_list = new QListView(pane);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new RecentDemoDelegate(m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setMouseTracking(true);
    m_list->viewport()->setAutoFillBackground(false);
    m_list->setAccessibleName(heading->text());
    m_list->setToolTip(tr("Open a recent demo"));
    heading->setBuddy(m_list);
    connect(m_list, &QListView::activated, this, [this](const QModelIndex &index) {
        m_documents.open(index.data(RecentDemoDelegate::pathRole).toString(), this);
    });
    m_empty = Controls::note(tr("Demos that you open or save appear here."), QStringLiteral("hint"),
                             pane);
    m_empty->setAlignment(Qt::AlignCenter);

    auto *column = new QVBoxLayout(pane);
    column->setContentsMargins(listInset, 2 * listInset, listInset, listInset);
    column->setSpacing(Metrics::gap);
    column->addWidget(heading);
    column->addWidget(m_list, 1);
    column->addWidget(m_empty, 1);
    return pane;
}

void StartWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(QKeySequence::New, [this] { m_documents.newDemo(); });
    add(QKeySequence::Open, [this] { m_documents.openPanel(this); });
    add(QKeySequence::Close, [this] { close(); });
    // Not every desktop has a key of its own for this.
    add(QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });
}

void StartWindow::fill()
{
    const int row = m_list->currentIndex().row();
    m_model->clear();
    const RecentDemos &recents = m_documents.recents();
    const QList<RecentDemo> demos = recents.demos();
    for (const RecentDemo &demo : demos) {
        auto *item = new QStandardItem(demo.name());
        item->setData(recents.picture(demo.path), Qt::DecorationRole);
        item->setData(demo.path, RecentDemoDelegate::pathRole);
        item->setData(demo.folder(), RecentDemoDelegate::folderRole);
        item->setData(demo.used, RecentDemoDelegate::usedRole);
        item->setData(demo.path, Qt::ToolTipRole);
        item->setData(tr("%1, in %2").arg(demo.name(), demo.folder()), Qt::AccessibleTextRole);
        m_model->appendRow(item);
    }
    m_list->setVisible(!demos.isEmpty());
    m_empty->setVisible(demos.isEmpty());
    m_list->setCurrentIndex(m_model->index(qMax(0, row), 0));
}

void StartWindow::showEvent(QShowEvent *event)
{
    // A demo may have been moved or deleted meanwhile.
    fill();
    if (m_model->rowCount() > 0)
        m_list->setFocus();
    QMainWindow::showEvent(event);
}

void StartWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    Q_EMIT closed();
}

void StartWindow::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.fillRect(rect(), colors.base);
    painter.fillRect(0, 0, actionsWidth, height(), colors.window);
    painter.fillRect(actionsWidth, 0, 1, height(), colors.hairline);
}

void StartWindow::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(DroppedDemos::areIn(*event->mimeData()));
}

void StartWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    m_documents.open(DroppedDemos::files(*event->mimeData()), this);
}

} // namespace velvane
