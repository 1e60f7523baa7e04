// A program to be captured: draws on the display until it is ended.
//
// usage: CaptureScene still|typing|moving|animation

#include "platform/SystemClock.h"
#include "platform/x11/X11Connection.h"

#include <QRect>

#include <iostream>
#include <map>
#include <string>

namespace {

using namespace velvane;

class Scene {
public:
    explicit Scene(const X11Connection &connection)
        : m_connection(connection)
        , m_size(connection.rootSize())
        , m_background(window(QRect({}, m_size), 0x204060))
        , m_context(xcb_generate_id(connection.get()))
    {
        xcb_create_gc(m_connection.get(), m_context, m_background, 0, nullptr);
    }

    void still(int) {}

    // Eight characters a second.
    void typing(int tick)
    {
        if (tick % 8 == 0)
            fill(m_background, QRect(200 + tick / 8 % 80 * 10, 300, 9, 18), 0xe0e0e0);
    }

    void moving(int tick)
    {
        if (m_moved == XCB_NONE)
            m_moved = window(QRect(100, 100, 800, 600), 0xa06020);
        const uint32_t place[] = {uint32_t(100 + tick * 4 % 900), uint32_t(100 + tick % 300)};
        xcb_configure_window(m_connection.get(), m_moved, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                             place);
    }

    void animation(int tick)
    {
        constexpr int bars = 24;
        for (int i = 0; i < bars; ++i) {
            const int height = m_size.height() / bars + 1;
            fill(m_background, QRect(0, i * height, m_size.width(), height),
                 uint32_t(i * 10 + tick * 3) % 256 << 8 | uint32_t(tick) % 256);
        }
    }

    void flush() { xcb_flush(m_connection.get()); }

private:
    xcb_window_t window(const QRect &frame, uint32_t color)
    {
        const xcb_window_t id = xcb_generate_id(m_connection.get());
        const uint32_t values[] = {color, 1};
        xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, id, m_connection.root(),
                          int16_t(frame.x()), int16_t(frame.y()), uint16_t(frame.width()),
                          uint16_t(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT,
                          values);
        xcb_map_window(m_connection.get(), id);
        return id;
    }

    void fill(xcb_window_t window, const QRect &area, uint32_t color)
    {
        const xcb_rectangle_t rect{int16_t(area.x()), int16_t(area.y()), uint16_t(area.width()),
                                   uint16_t(area.height())};
        xcb_change_gc(m_connection.get(), m_context, XCB_GC_FOREGROUND, &color);
        xcb_poly_fill_rectangle(m_connection.get(), window, m_context, 1, &rect);
    }

    const X11Connection &m_connection;
    const QSize m_size;
    const xcb_window_t m_background;
    const xcb_gcontext_t m_context;
    xcb_window_t m_moved = XCB_NONE;
};

} // namespace

int main(int argc, char **argv)
{
    const std::map<std::string, void (Scene::*)(int)> scenes{{"still", &Scene::still},
                                                             {"typing", &Scene::typing},
                                                             {"moving", &Scene::moving},
                                                             {"animation", &Scene::animation}};
    const auto chosen = scenes.find(argc == 2 ? argv[1] : "");
    const X11Connection connection;
    if (chosen == scenes.end() || !connection.isOpen()) {
        std::cerr << "usage: CaptureScene still|typing|moving|animation, on a display\n";
        return 2;
    }
    Scene scene(connection);
    SystemClock clock;
    const Seconds begun = clock.now();
    for (int tick = 0; connection.isOpen(); ++tick) {
        (scene.*chosen->second)(tick);
        scene.flush();
        clock.sleepUntil(begun + tick / 60.0 * 1s);
    }
}
