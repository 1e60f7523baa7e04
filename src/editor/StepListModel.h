#pragma once

#include "model/Project.h"

#include <QAbstractListModel>
#include <QHash>
#include <QItemSelection>
#include <QSet>

#include <optional>

namespace velvane {

/// One row of the step list.
struct StepRow {
    Step step;
    /// Counted from 1; none for a section.
    std::optional<int> number;
    /// Action and pause; of a section, that of all its steps.
    Seconds length{0};
    /// Does it belong to a section?
    bool indented = false;
    /// Where the step stands in the demo.
    qsizetype index = 0;

    bool operator==(const StepRow &) const = default;
};

/// The visible rows of a demo's step list. Main thread only.
///
/// An edit signals the rows that it removed, moved, inserted or changed, so that a view keeps its
/// place; only one that scatters over very many places resets the model.
class StepListModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role {
        IdRole = Qt::UserRole + 1, ///< QUuid
        KindRole,                  ///< int of StepKind
        NumberRole,                ///< int; invalid for a section
        LengthRole,                ///< seconds, double
        LengthTextRole,            ///< "1.2s"
        IndentedRole,              ///< bool
        CollapsedRole,             ///< bool, of sections
        IndexRole,                 ///< index in the demo's steps
    };

    explicit StepListModel(Project &project, QObject *parent = nullptr);

    const StepRow &row(int row) const { return m_rows.at(row); }
    /// The row of a step; -1 when it is hidden or gone.
    int rowOf(const QUuid &id) const;
    /// The rows of these steps, in as few stretches as there are: selection models take time in the
    /// square of their number.
    QItemSelection rowsOf(const QSet<QUuid> &ids) const;

    /// The row before which a row comes when it is moved one place up or down; nothing at the ends.
    /// A section goes past the whole of its neighbour.
    std::optional<int> rowPast(int row, bool isUp) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void update();
    bool removeGone(const QList<StepRow> &rows);
    bool moveKept(const QList<StepRow> &rows);
    bool insertNew(const QList<StepRow> &rows);
    void refresh(const QList<StepRow> &rows);

    Project &m_project;
    QList<StepRow> m_rows;
    mutable QHash<QUuid, int> m_rowOf;
};

} // namespace velvane

Q_DECLARE_TYPEINFO(velvane::StepRow, Q_RELOCATABLE_TYPE);
