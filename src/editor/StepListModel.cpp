#include "editor/StepListModel.h"

#include "base/OneDecimal.h"
#include "model/StepList.h"
#include "timeline/Timeline.h"

#include <algorithm>
#include <utility>

namespace velvane {

namespace {

// Every change costs views a look at all rows: from so many on, one reset is cheaper.
constexpr qsizetype maxRuns = 64;

QList<StepRow> visibleRows(const QList<Step> &steps)
{
    QList<StepRow> rows;
    rows.reserve(steps.size());
    int number = 0;
    qsizetype section = -1;
    bool hiding = false;
    for (qsizetype i = 0; i < steps.size(); ++i) {
        const Step &step = steps[i];
        if (step.kind == StepKind::section) {
            section = rows.size();
            hiding = step.collapsed;
            rows.append({.step = step, .index = i});
            continue;
        }
        ++number;
        const Seconds length = Timeline::length(step);
        if (section >= 0)
            rows[section].length += length;
        if (!hiding)
            rows.append({.step = step,
                         .number = number,
                         .length = length,
                         .indented = section >= 0,
                         .index = i});
    }
    return rows;
}

bool sameSteps(const QList<StepRow> &a, const QList<StepRow> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const StepRow &x, const StepRow &y) { return x.step.id == y.step.id; });
}

QSet<QUuid> idsOf(const QList<StepRow> &rows)
{
    QSet<QUuid> ids;
    ids.reserve(rows.size());
    for (const StepRow &row : rows)
        ids << row.step.id;
    return ids;
}

struct Run {
    qsizetype first;
    qsizetype count;
};

// The stretches of rows whose steps are not among the ids.
QList<Run> runsOutside(const QList<StepRow> &rows, const QSet<QUuid> &ids)
{
    QList<Run> runs;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (ids.contains(rows[i].step.id))
            continue;
        if (!runs.isEmpty() && runs.last().first + runs.last().count == i)
            ++runs.last().count;
        else
            runs.append({i, 1});
    }
    return runs;
}

QString lengthText(Seconds length)
{
    return StepListModel::tr("%1s").arg(oneDecimal(length.count()));
}

QString spoken(const StepRow &row)
{
    const QString text = row.step.summary() + QStringLiteral(", ") + lengthText(row.length);
    return row.number ? QString::number(*row.number) + QStringLiteral(", ") + text : text;
}

} // namespace

StepListModel::StepListModel(Project &project, QObject *parent)
    : QAbstractListModel(parent)
    , m_project(project)
    , m_rows(visibleRows(project.steps()))
{
    connect(&project, &Project::stepsChanged, this, &StepListModel::update);
}

int StepListModel::rowOf(const QUuid &id) const
{
    if (m_rowOf.isEmpty()) {
        m_rowOf.reserve(m_rows.size());
        for (qsizetype i = 0; i < m_rows.size(); ++i)
            m_rowOf.insert(m_rows[i].step.id, static_cast<int>(i));
    }
    return m_rowOf.value(id, -1);
}

QItemSelection StepListModel::rowsOf(const QSet<QUuid> &ids) const
{
    QItemSelection selection;
    int first = -1;
    for (int row = 0; row <= m_rows.size(); ++row) {
        const bool isIn = row < m_rows.size() && ids.contains(m_rows[row].step.id);
        if (isIn && first < 0)
            first = row;
        if (isIn || first < 0)
            continue;
        selection.append(QItemSelectionRange(index(first), index(row - 1)));
        first = -1;
    }
    return selection;
}

std::optional<int> StepListModel::rowPast(int row, bool isUp) const
{
    const int count = rowCount();
    const bool isSection = this->row(row).step.kind == StepKind::section;
    const auto nextUnit = [&](int from, int by) {
        do
            from += by;
        while (isSection && from > 0 && from < count
               && this->row(from).step.kind != StepKind::section);
        return from;
    };
    if (isUp)
        return row > 0 ? std::optional(nextUnit(row, -1)) : std::nullopt;
    const int neighbour = nextUnit(row, 1);
    return neighbour < count ? std::optional(nextUnit(neighbour, 1)) : std::nullopt;
}

int StepListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant StepListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const StepRow &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.step.summary();
    case Qt::AccessibleTextRole:
        return spoken(row);
    case IdRole:
        return row.step.id;
    case KindRole:
        return static_cast<int>(row.step.kind);
    case NumberRole:
        return row.number ? QVariant(*row.number) : QVariant();
    case LengthRole:
        return row.length.count();
    case LengthTextRole:
        return lengthText(row.length);
    case IndentedRole:
        return row.indented;
    case CollapsedRole:
        return row.step.collapsed;
    case IndexRole:
        return row.index;
    default:
        return {};
    }
}

void StepListModel::update()
{
    const QList<StepRow> rows = visibleRows(m_project.steps());
    m_rowOf.clear();
    if (!sameSteps(m_rows, rows) && !(removeGone(rows) && moveKept(rows) && insertNew(rows))) {
        beginResetModel();
        m_rows = rows;
        endResetModel();
        return;
    }
    refresh(rows);
}

bool StepListModel::removeGone(const QList<StepRow> &rows)
{
    const QList<Run> gone = runsOutside(m_rows, idsOf(rows));
    if (gone.size() > maxRuns)
        return false;
    for (auto run = gone.rbegin(); run != gone.rend(); ++run) {
        beginRemoveRows({}, static_cast<int>(run->first),
                        static_cast<int>(run->first + run->count - 1));
        m_rows.remove(run->first, run->count);
        endRemoveRows();
    }
    return true;
}

bool StepListModel::moveKept(const QList<StepRow> &rows)
{
    const QSet<QUuid> known = idsOf(m_rows);
    QList<StepRow> kept;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(kept),
                 [&known](const StepRow &row) { return known.contains(row.step.id); });
    if (sameSteps(m_rows, kept))
        return true;
    if (kept.size() != m_rows.size())
        return false;
    const auto sameId = [](const StepRow &a, const StepRow &b) { return a.step.id == b.step.id; };
    const auto first = std::mismatch(m_rows.begin(), m_rows.end(), kept.begin(), sameId).first;
    const auto last = std::mismatch(m_rows.rbegin(), m_rows.rend(), kept.rbegin(), sameId).first;
    // One stretch has changed places with its neighbours when what differs is but rotated.
    const auto head = first - m_rows.begin();
    const auto tail = m_rows.rend() - last;
    const auto middle = std::find_if(m_rows.begin() + head, m_rows.begin() + tail,
                                     [&](const StepRow &row) { return sameId(row, kept[head]); })
                        - m_rows.begin();
    QList<StepRow> moved = m_rows;
    std::rotate(moved.begin() + head, moved.begin() + middle, moved.begin() + tail);
    if (!sameSteps(moved, kept))
        return false;
    beginMoveRows({}, static_cast<int>(head), static_cast<int>(middle - 1), {},
                  static_cast<int>(tail));
    m_rows = moved;
    endMoveRows();
    return true;
}

bool StepListModel::insertNew(const QList<StepRow> &rows)
{
    const QList<Run> added = runsOutside(rows, idsOf(m_rows));
    if (added.size() > maxRuns)
        return false;
    for (const Run &run : added) {
        beginInsertRows({}, static_cast<int>(run.first),
                        static_cast<int>(run.first + run.count - 1));
        QList<StepRow> grown;
        grown.reserve(m_rows.size() + run.count);
        grown << m_rows.first(run.first) << rows.sliced(run.first, run.count)
              << m_rows.sliced(run.first);
        m_rows = grown;
        endInsertRows();
    }
    return true;
}

void StepListModel::refresh(const QList<StepRow> &rows)
{
    const QList<StepRow> before = std::exchange(m_rows, rows);
    qsizetype row = 0;
    while (row < rows.size()) {
        if (before[row] == rows[row]) {
            ++row;
            continue;
        }
        const qsizetype first = row;
        while (row < rows.size() && !(before[row] == rows[row]))
            ++row;
        Q_EMIT dataChanged(index(static_cast<int>(first)), index(static_cast<int>(row - 1)));
    }
}

} // namespace velvane
