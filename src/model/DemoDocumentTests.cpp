#include "model/DemoDocument.h"

#include "model/Picture.h"
#include "model/ProjectFile.h"
#include "support/Print.h"
#include "support/Python.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

QByteArray newDemo()
{
    return DemoDocument::contents(DemoDocument().snapshot());
}

QImage picture()
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    image.setPixel(1, 1, qRgb(200, 100, 50));
    return image;
}

} // namespace

TEST(DemoDocument, ANewDemoIsThatOfAnEmptyProject)
{
    const DemoDocument demo;
    ASSERT_EQ(demo.project().steps().size(), 1);
    EXPECT_EQ(demo.project().steps().constFirst().kind, StepKind::switchApp);
    EXPECT_EQ(demo.project().fps(), 60);
}

TEST(DemoDocument, WritesTheBinaryForm)
{
    EXPECT_TRUE(newDemo().startsWith("bplist00"));
}

TEST(DemoDocument, AnIndependentReaderReadsANewDemo)
{
    const QByteArray printed = pythonOutput(QStringLiteral(R"(
import plistlib, re, sys
demo = plistlib.loads(sys.stdin.buffer.read())
id = demo["steps"][0].pop("id")
print(bool(re.fullmatch("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}", id)))
print(demo)
)"),
                                            newDemo());
    EXPECT_EQ(printed,
              "True\n{'version': 1, 'steps': [{'kind': 'switchApp', 'point': [0.0, 0.0], "
              "'text': '', 'duration': 1.0, 'pauseAfter': 0.8, 'keyCode': 0, 'modifiers': 0, "
              "'centerWindow': False, 'collapsed': False}], 'startPoint': [640.0, 400.0], "
              "'canvasSize': [1280.0, 800.0], 'fps': 60}\n");
}

TEST(DemoDocument, ReadsXmlAndBinaryAlike)
{
    const auto program = QStringLiteral(R"(
import plistlib, sys
step = {"kind": "type", "text": "né", "id": "0123ABCD-0123-4567-89AB-0123456789AB"}
demo = {"version": 1, "steps": [step], "startPoint": [1, 2.5], "canvasSize": [3, 4], "fps": 25}
sys.stdout.buffer.write(plistlib.dumps(demo, fmt=plistlib.%1))
)");
    const ProjectFile binary =
        DemoDocument::fileOf(pythonOutput(program.arg(QLatin1String("FMT_BINARY"))));
    const ProjectFile xml =
        DemoDocument::fileOf(pythonOutput(program.arg(QLatin1String("FMT_XML"))));
    EXPECT_EQ(binary.steps, xml.steps);
    EXPECT_EQ(binary.steps.constFirst().text, QStringLiteral("né"));
    EXPECT_EQ(binary.startPoint, QPointF(1, 2.5));
    EXPECT_EQ(DemoDocument::contents(binary), DemoDocument::contents(xml));
}

TEST(DemoDocument, RefusesWhatIsNoPropertyList)
{
    const auto refusal = [](const QByteArray &contents) {
        return refusalOf([&] { DemoDocument::fileOf(contents); });
    };
    EXPECT_EQ(refusal(""), "not a property list");
    EXPECT_EQ(refusal("hello"), "not a property list");
    EXPECT_EQ(refusal("{\"version\": 1}"), "not a property list");
    EXPECT_EQ(refusal("bplist"), "not a property list");
    EXPECT_EQ(refusal(QByteArray(100, '\0')), "not a property list");
    EXPECT_EQ(refusal("<html/>"),
              "damaged property list: line 1, column 7: unknown element “html”");
    EXPECT_EQ(refusal("<plist><array/></plist>"), "not a dictionary");
}

TEST(DemoDocument, RefusesEveryTruncation)
{
    ProjectFile file = DemoDocument().snapshot();
    for (const StepKind kind : allStepKinds)
        file.steps << Step::withDefaults(kind, file.canvasSize);
    file.background = Picture::encoded(picture());
    file.recordingBookmark = QByteArray(100, '\x01');
    const QByteArray whole = DemoDocument::contents(file);
    ASSERT_NO_THROW(DemoDocument::fileOf(whole));
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_THROW(DemoDocument::fileOf(whole.first(size)), DocumentError) << size;
}

TEST(DemoDocument, ABackgroundComesBackWithTheSamePixels)
{
    DemoDocument demo;
    demo.project().setBackground(picture());
    const DemoDocument again(DemoDocument::fileOf(DemoDocument::contents(demo.snapshot())));
    EXPECT_EQ(again.project().background().convertToFormat(QImage::Format_RGB32), picture());
}

TEST(DemoDocument, ABackgroundThatIsNoPictureIsLeftOut)
{
    ProjectFile file = DemoDocument().snapshot();
    file.background = QByteArray("no picture");
    const DemoDocument demo(DemoDocument::fileOf(DemoDocument::contents(file)));
    EXPECT_TRUE(demo.project().background().isNull());
    EXPECT_EQ(demo.snapshot().background, std::nullopt);
    EXPECT_TRUE(demo.hasLostBackground());
    EXPECT_FALSE(DemoDocument(demo.snapshot()).hasLostBackground());
}

} // namespace velvane
