#include "base/WholeFile.h"
#include "cli/Commands.h"
#include "cli/DemoFile.h"
#include "cli/Validators.h"
#include "model/Picture.h"
#include "render/FrameRenderer.h"
#include "timeline/Timeline.h"

#include <QPainter>

#include <new>

namespace velvane::cli {

namespace {

struct Options {
    std::string demo;
    double at = 0;
    std::string output;
    /// Pixels that neither side may exceed; 0 for the canvas's own size.
    int size = 0;
};

constexpr int largestSize = 16384;

// As movies show it: what the backdrop leaves transparent is black.
QImage flattened(const QImage &frame)
{
    QImage opaque(frame.size(), QImage::Format_RGB32);
    opaque.fill(Qt::black);
    QPainter(&opaque).drawImage(0, 0, frame);
    return opaque;
}

// Never larger than the canvas: that would only blur it.
QImage fitted(const QImage &picture, int size)
{
    if (size == 0 || std::max(picture.width(), picture.height()) <= size)
        return picture;
    const QSize smaller = picture.size().scaled(size, size, Qt::KeepAspectRatio);
    return picture.scaled(smaller.expandedTo({1, 1}), Qt::IgnoreAspectRatio,
                          Qt::SmoothTransformation);
}

void writePng(const QImage &picture, const QString &path)
{
    const auto bytes = Picture::encoded(picture);
    // Any picture can be encoded; only memory may be missing for it.
    if (!bytes)
        throw std::bad_alloc();
    if (const auto failure = WholeFile::write(path, *bytes))
        throw CommandError(path + ": " + *failure);
}

int renderFrame(const Options &options)
{
    const DemoDocument demo = readDemo(options.demo);
    const QString path = fileName(options.output);
    if (isDemo(path))
        throw CommandError(tr("%1: the picture would replace the demo").arg(path));
    const Snapshot snap = demo.project().snapshot();
    const QImage frame = FrameRenderer::image(snap, Timeline(snap).state(Seconds(options.at)));
    if (frame.isNull())
        throw CommandError(tr("%1: a canvas of %2 × %3 cannot be drawn")
                               .arg(fileName(options.demo),
                                    QString::number(snap.canvasSize.width()),
                                    QString::number(snap.canvasSize.height())));
    writePng(fitted(flattened(frame), options.size), path);
    return 0;
}

} // namespace

void addFrame(CLI::App &app, Console &, Action &chosen)
{
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("frame", help("Render one moment of a demo to a picture"));
    command->add_option("DEMO", options->demo, help("The demo"))->required();
    command->add_option("--at", options->at, help("The moment in seconds"))
        ->required()
        ->type_name("T")
        ->check(isFinite());
    command->add_option("--output,-o", options->output, help("The picture to write"))
        ->required()
        ->type_name("PNG");
    command->add_option("--size", options->size, help("Make it no wider and no higher than this"))
        ->type_name("PIXELS")
        ->check(CLI::Range(1, largestSize));
    command->footer(help(R"(DESCRIPTION
  Render one moment of a demo to a PNG picture of the canvas's size: what a
  movie shows at that moment. A moment outside the demo shows its first or its
  last instant. With --size, a larger picture is scaled down.

EXAMPLES
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png)"));
    command->callback([&chosen, options] { chosen = [options] { return renderFrame(*options); }; });
}

} // namespace velvane::cli
