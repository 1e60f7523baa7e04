#pragma once

#include "capture/RecordMode.h"

#include <QObject>
#include <QSettings>

namespace velvane {

/// The three choices of a live run that outlive a document. Main thread only.
///
/// One object serves all windows, so that each shows a change at once. The keys are
/// "hideOthersDuringRun", "recordMode" and "recordCursor".
class RunSettings : public QObject {
    Q_OBJECT
public:
    /// The settings must outlive this object.
    explicit RunSettings(QSettings &settings, QObject *parent = nullptr);

    bool hideOthersDuringRun() const;
    void setHideOthersDuringRun(bool hide);

    /// As stored; "off" unless chosen.
    QString recordModeRaw() const;
    RecordMode recordMode() const { return velvane::recordMode(recordModeRaw()); }
    void setRecordMode(RecordMode mode);

    bool recordCursor() const;
    void setRecordCursor(bool record);

Q_SIGNALS:
    void changed();

private:
    void set(const QString &key, const QVariant &value);

    QSettings &m_settings;
};

} // namespace velvane
