#include "editor/Condensing.h"

namespace velvane {

namespace {

constexpr int narrow = 1200;
constexpr int narrowest = 1080;
constexpr int low = 720;

} // namespace

Condensing Condensing::of(int windowWidth, int windowHeight)
{
    Condensing room;
    if (windowWidth < narrow) {
        room.iconRunOptions = true;
        room.sidebarWidth = 264;
        room.inspectorWidth = 256;
        room.stageMargin = 16;
    }
    if (windowWidth < narrowest) {
        room.iconBackdrops = true;
        room.sidebarWidth = 244;
        room.inspectorWidth = 240;
        room.stageMargin = 12;
        room.padding = 8;
        room.labelColumn = 60;
    }
    room.addMenu = windowHeight < low;
    return room;
}

} // namespace velvane
