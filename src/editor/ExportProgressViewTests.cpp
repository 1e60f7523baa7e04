#include "editor/ExportProgressView.h"

#include "support/EditorFixture.h"
#include "support/RunToEnd.h"

#include <QPushButton>

namespace velvane {

TEST(ExportProgressView, ThePercentageIsNotRoundedUp)
{
    EXPECT_EQ(ExportProgressView::percentText(0), "0%");
    EXPECT_EQ(ExportProgressView::percentText(0.429), "42%");
    EXPECT_EQ(ExportProgressView::percentText(0.999), "99%");
    EXPECT_EQ(ExportProgressView::percentText(1), "100%");
}

TEST(ExportProgressView, TheTimeLeftIsInWholeSecondsOrMinutesRoundedUp)
{
    EXPECT_EQ(ExportProgressView::timeLeftText({}), "");
    EXPECT_EQ(ExportProgressView::timeLeftText(0.2s), "1 s left");
    EXPECT_EQ(ExportProgressView::timeLeftText(23.4s), "24 s left");
    EXPECT_EQ(ExportProgressView::timeLeftText(59s), "59 s left");
    EXPECT_EQ(ExportProgressView::timeLeftText(60s), "1 min left");
    EXPECT_EQ(ExportProgressView::timeLeftText(121s), "3 min left");
}

TEST_F(EditorFixture, CancelInTheStatusLineCancelsTheExport)
{
    Step pause = stepOf(StepKind::wait);
    pause.pauseAfter = 3600s;
    open({pause});
    auto *cancel = Widgets::named<QPushButton>(*view, "Cancel the export");
    ASSERT_TRUE(cancel);
    EXPECT_EQ(cancel->text(), "Cancel");
    EXPECT_FALSE(cancel->toolTip().isEmpty());
    QObject::connect(&view->exporting(), &ExportController::exportProgressChanged, cancel,
                     &QPushButton::click, Qt::SingleShotConnection);
    runToEnd(view->exporting().exportTo(folder.filePath("demo.mp4")));
    EXPECT_EQ(view->statusLine().message(), "Export cancelled.");
}

} // namespace velvane
