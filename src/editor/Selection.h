#pragma once

#include "model/Project.h"

#include <QSet>

namespace velvane {

/// The steps selected in the list, kept in step with the project's one selected step.
///
/// selectedIDs() is what the list's rows were selected to; it is empty while the project's own
/// selection stands alone. What is highlighted, and what commands act on, is targets().
/// A change of the project's selection from elsewhere empties selectedIDs() unless it holds the new
/// one. Ids of steps that are gone may linger and do no harm. Main thread only.
class Selection : public QObject {
    Q_OBJECT
public:
    explicit Selection(Project &project, QObject *parent = nullptr);

    const QSet<QUuid> &selectedIDs() const { return m_selectedIDs; }
    /// Selects these steps; the project's selection becomes `current` when that is one of them,
    /// else stays when it is one, else becomes the first of them in the demo, else none.
    void setSelectedIDs(const QSet<QUuid> &ids, std::optional<QUuid> current = {});
    /// Selects one step alone, or none.
    void select(std::optional<QUuid> id);
    void selectAll();

    /// selectedIDs(), or the project's selection when that is empty.
    QSet<QUuid> targets() const;
    /// Where the targets that exist stand in the demo, ascending.
    QList<qsizetype> targetIndices() const;

    /// Is there an existing step to delete?
    bool canDelete() const;
    /// Deletes the targets in one edit, "Delete Step" or as named, and empties selectedIDs().
    void deleteSelected(const QString &name = {});

Q_SIGNALS:
    void selectedIDsChanged();
    /// targets() changed: highlight these rows.
    void targetsChanged();

private:
    void followProject();
    void change(const QSet<QUuid> &ids, std::optional<QUuid> current);

    Project &m_project;
    QSet<QUuid> m_selectedIDs;
    bool m_leading = false;
};

} // namespace velvane
