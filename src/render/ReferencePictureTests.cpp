#include "render/FrameRenderer.h"

#include "support/Pixels.h"

#include <QDir>

#include <gtest/gtest.h>

namespace velvane {

// Whether machines, compilers and libraries draw the same. Without a caption: its glyphs are the
// fonts'.
TEST(ReferencePicture, EverythingButGlyphsIsDrawnAsItAlwaysWas)
{
    QImage backdrop(3, 2, QImage::Format_RGB32);
    for (int i = 0; i < 6; ++i)
        backdrop.setPixel(i % 3, i / 3, qRgb(250 - 40 * i, 90 + 20 * i, 40 * i));
    const Snapshot demo{.canvasSize = {160, 100}, .background = backdrop};
    const QImage drawn =
        FrameRenderer::image(demo,
                             {.cursor = {70.3, 40.7}, .ripple = 0.4, .press = 0.6, .held = true})
            .convertToFormat(QImage::Format_RGB32);
    const QImage reference =
        QImage(QStringLiteral(":/reference/layers.png")).convertToFormat(QImage::Format_RGB32);
    if (drawn != reference) {
        const QString file = QDir::temp().filePath(QStringLiteral("velvane-layers.png"));
        ADD_FAILURE() << "differs from the reference; what was drawn is in " << file.toStdString()
                      << (drawn.save(file) ? "" : ", which cannot be written");
    }
}

} // namespace velvane
