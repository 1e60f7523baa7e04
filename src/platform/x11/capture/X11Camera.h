#pragma once

#include "base/Frame.h"
#include "platform/ScreenCapture.h"
#include "platform/x11/capture/X11CaptureSource.h"
#include "platform/x11/capture/X11PixelReader.h"
#include "platform/x11/capture/X11PointerLayer.h"
#include "platform/x11/capture/X11Scene.h"

#include <memory>

namespace velvane {

/// Takes the pictures of one stream, on a connection of its own. One thread.
///
/// A program without windows reads the screen as it is; one that may have some has it put together
/// without them, from the first picture to the last.
class X11Camera {
public:
    X11Camera(const X11CaptureSource &source, const CaptureRequest &request);

    /// Why there will be no pictures; empty when there will.
    QString refusal() const;

    /// Hears what has happened on the screen. False once the server has gone.
    bool listen();
    /// Becomes readable when there is something to hear.
    int descriptor() const;
    /// May the next picture differ from the last?
    bool hasChanges() const { return m_scene->hasChanges(); }

    /// Takes a picture: the image, and what of it differs from the last one. Its time is the
    /// caller's to set. A null image while the display does not reach the region.
    Frame take();
    /// Must it be asked for pictures although nothing has changed, because the pointer moves?
    bool followsPointer() const { return m_pointer.has_value(); }

private:
    void selectDisplayChanges();
    void frameDisplay();
    XReply<xcb_generic_event_t> nextEvent() const;
    void hear(const xcb_generic_event_t &event);

    const X11Connection m_connection;
    const CaptureRequest m_request;
    int m_displayEvent = -1;
    std::unique_ptr<X11Scene> m_scene;
    X11PixelReader m_reader;
    std::optional<X11PointerLayer> m_pointer;
    /// In root-window pixels.
    QRect m_area;
    QImage m_image;
    bool m_isDisplayChanged = false;
    bool m_isNew = true;
};

} // namespace velvane
