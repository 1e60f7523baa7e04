#include "editor/StagePane.h"

#include "capture/RecordActionsController.h"
#include "editor/BackdropController.h"
#include "editor/CanvasHint.h"
#include "editor/Controls.h"
#include "editor/LiveBackdrop.h"
#include "editor/PreviewCanvas.h"
#include "editor/ScreenRecordingPrompt.h"

namespace velvane {

StagePane::StagePane(PreviewCanvas *canvas, BackdropController &backdrop, QWidget *parent)
    : QWidget(parent)
    , m_backdrop(backdrop)
    , m_canvas(canvas)
    , m_prompt(new ScreenRecordingPrompt(this))
{
    canvas->setParent(this);
    m_prompt->raise();
    m_prompt->hide();
    setMinimumSize(minimumSizeHint());
    const auto showBackdrop = [canvas, &backdrop] { canvas->setBackdrop(backdrop.backdrop()); };
    connect(&backdrop, &BackdropController::backdropChanged, canvas, showBackdrop);
    connect(&backdrop, &BackdropController::backdropUpdated, canvas,
            [canvas, &backdrop](const QRegion &changed) {
                canvas->updateBackdrop(backdrop.backdrop(), changed);
            });
    showBackdrop();
    connect(canvas, &PreviewCanvas::placeChanged, this, &StagePane::placePrompt);
    offerLive();
}

void StagePane::offerLive()
{
    IconButton &button = m_canvas->hint().liveButton();
    button.show();
    connect(&button, &QAbstractButton::clicked, this, [this] { m_backdrop.setShowLive(true); });
    const auto showMissing = [this, &button, help = button.toolTip()] {
        Controls::setUsable(button, help, m_backdrop.liveMissing());
    };
    connect(&m_backdrop, &BackdropController::missingChanged, this, showMissing);
    showMissing();
}

void StagePane::offerRecording(RecordActionsController &record)
{
    IconButton &button = m_canvas->hint().recordButton();
    button.show();
    connect(&button, &QAbstractButton::clicked, &record, &RecordActionsController::recordActions);
    const auto showMissing = [&record, &button, help = button.toolTip()] {
        Controls::setUsable(button, help, record.missing());
    };
    connect(&record, &RecordActionsController::missingChanged, this, showMissing);
    showMissing();
}

void StagePane::askForPermission(LiveBackdrop &live)
{
    connect(&live, &LiveBackdrop::permissionMissingChanged, this,
            [this, &live] { setPermissionMissing(live.permissionMissing()); });
    connect(m_prompt, &ScreenRecordingPrompt::settingsRequested, &live.stream(),
            &ScreenStream::openScreenRecordingSettings);
    connect(m_prompt, &ScreenRecordingPrompt::retryRequested, &live, &LiveBackdrop::tryAgain);
}

void StagePane::setPermissionMissing(bool missing)
{
    m_prompt->setVisible(missing);
    m_canvas->setCovered(missing);
    placePrompt();
}

QSize StagePane::minimumSizeHint() const
{
    return m_canvas->minimumSizeHint();
}

void StagePane::resizeEvent(QResizeEvent *)
{
    m_canvas->setGeometry(rect());
    placePrompt();
}

// Over what shows of the canvas, or, where that is too small for the texts, in the stage's middle.
void StagePane::placePrompt()
{
    const QRect canvas = m_canvas->canvasRect().toAlignedRect() & rect();
    const QSize needed = m_prompt->minimumSizeHint().boundedTo(size());
    QRect place(QPoint(0, 0), canvas.size().expandedTo(needed));
    place.moveCenter(canvas.isEmpty() ? rect().center() : canvas.center());
    m_prompt->setGeometry(place);
}

} // namespace velvane
