#include "cli/CommandLineFixture.h"
#include "render/FrameRenderer.h"
#include "timeline/Timeline.h"

namespace velvane::cli {

TEST_F(CommandLineTest, FrameWritesWhatTheRendererDraws)
{
    ASSERT_EQ(runWith({"frame", sample(), "--at", "1.5", "--output", path("a.png")}).status, 0);
    const auto demo = DemoDocument::read(folder.filePath("sample.velvane"));
    const Snapshot snap = demo->project().snapshot();
    const QImage expected = FrameRenderer::image(snap, Timeline(snap).state(1.5s));
    EXPECT_EQ(QImage(folder.filePath("a.png")).convertToFormat(QImage::Format_RGB32),
              expected.convertToFormat(QImage::Format_RGB32));
}

TEST_F(CommandLineTest, FrameFitsAPictureIntoASize)
{
    const auto frameOfSize = [this](const char *size) {
        const Result result =
            runWith({"frame", sample(), "--at", "0", "--size", size, "--output", path("a.png")});
        EXPECT_EQ(result.status, 0) << result.err;
        return QImage(folder.filePath("a.png")).size();
    };
    EXPECT_EQ(frameOfSize("32"), QSize(32, 24));
    EXPECT_EQ(frameOfSize("1"), QSize(1, 1));
    // A larger one would show no more.
    EXPECT_EQ(frameOfSize("64"), QSize(64, 48));
    EXPECT_EQ(frameOfSize("512"), QSize(64, 48));
}

TEST_F(CommandLineTest, FrameRefusesASizeThatIsNone)
{
    for (const char *size : {"0", "-1", "big", "1e9"}) {
        const Result result =
            runWith({"frame", sample(), "--at", "0", "--size", size, "--output", path("a.png")});
        EXPECT_EQ(result.status, 2) << size;
        expectOneLine(result.err);
        EXPECT_FALSE(exists("a.png"));
    }
}

TEST_F(CommandLineTest, ExportSaysWhereTheMovieIs)
{
    const Result result = runWith({"export", sample(), path("a.mp4")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "Exported to a.mp4.\n");
    EXPECT_TRUE(result.err.starts_with(" 10 %\n")) << result.err;
    EXPECT_TRUE(result.err.ends_with("100 %\n")) << result.err;
    EXPECT_TRUE(exists("a.mp4"));
}

TEST_F(CommandLineTest, ExportReplacesAnExistingFile)
{
    write("a.mp4", QByteArray(1000000, 'x'));
    EXPECT_EQ(runWith({"export", sample(), path("a.mp4")}).status, 0);
    EXPECT_LT(QFile(folder.filePath("a.mp4")).size(), 1000000);
}

// As by "velvane export *.velvane" where there are two.
TEST_F(CommandLineTest, NothingIsWrittenOverAnotherDemo)
{
    const std::string demo = sample();
    ASSERT_EQ(runWith({"new", path("other.velvane")}).status, 0);
    for (const auto &arguments : {std::vector<std::string>{"export", demo, path("other.velvane")},
                                  std::vector<std::string>{"frame", demo, "--at", "0", "--output",
                                                           path("other.velvane")}}) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 1);
        expectOneLine(result.err);
        EXPECT_EQ(runWith({"inspect", path("other.velvane")}).status, 0);
    }
}

TEST_F(CommandLineTest, NothingIsWrittenOverTheDemoItself)
{
    const std::string demo = sample();
    for (const auto &arguments :
         {std::vector<std::string>{"export", demo, demo},
          std::vector<std::string>{"frame", demo, "--at", "0", "--output", demo}}) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 1);
        expectOneLine(result.err);
    }
    EXPECT_EQ(runWith({"inspect", demo}).status, 0);
}

TEST_F(CommandLineTest, ACanvasThatCannotBeDrawnIsRefused)
{
    ProjectFile file;
    for (const QSizeF canvas : {QSizeF(0.9, 500), QSizeF(1e6, 1e6), QSizeF(-5, 5)}) {
        file.canvasSize = canvas;
        ASSERT_FALSE(DemoDocument::write(file, folder.filePath("odd.velvane")));
        write("keep.mp4", "precious");
        for (const auto &arguments :
             {std::vector<std::string>{"frame", path("odd.velvane"), "--at", "0", "-o",
                                       path("odd.png")},
              std::vector<std::string>{"export", path("odd.velvane"), path("keep.mp4")}}) {
            const Result result = runWith(arguments);
            EXPECT_EQ(result.status, 1);
            expectOneLine(result.err);
        }
        EXPECT_EQ(QFile(folder.filePath("keep.mp4")).size(), 8) << "refused before it is removed";
    }
}

} // namespace velvane::cli
