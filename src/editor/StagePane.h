#pragma once

#include <QWidget>

namespace velvane {

class BackdropController;
class LiveBackdrop;
class PreviewCanvas;
class RecordActionsController;
class ScreenRecordingPrompt;

/// The stage: the canvas, and over it the prompt for the permission to see the screen.
///
/// Takes ownership of the canvas. It hands the canvas the backdrop's pictures. Main thread only.
class StagePane : public QWidget {
    Q_OBJECT
public:
    StagePane(PreviewCanvas *canvas, BackdropController &backdrop, QWidget *parent = nullptr);

    PreviewCanvas &canvas() { return *m_canvas; }
    ScreenRecordingPrompt &prompt() { return *m_prompt; }
    /// Lets an empty demo begin with a recording.
    void offerRecording(RecordActionsController &record);
    /// Shows the prompt while the live screen is wanted but not permitted.
    void askForPermission(LiveBackdrop &live);
    void setPermissionMissing(bool missing);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void offerLive();
    void placePrompt();

    BackdropController &m_backdrop;
    PreviewCanvas *m_canvas;
    ScreenRecordingPrompt *m_prompt;
};

} // namespace velvane
